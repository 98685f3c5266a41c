#include "app/CPaciente.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <system_error>

#include "app/TableText.h"
#include "clients/CPacienteTable.h"
#include "controls/DigitBox.h"
#include "controls/UiText.h"
#include "store/FileLookup.h"
#include "store/Prompt.h"
#include "store/TextFormat.h"

namespace {

// The order in which the date boxes are met: month, day, year in English; year, month, day in Korean; day,
// month, year in Spanish and Portuguese. The table always stores month, day, year.
enum class DateOrder { MonthDayYear, YearMonthDay, DayMonthYear };

DateOrder dateOrder(LanguageId language) {
    if (language == LanguageId::English) return DateOrder::MonthDayYear;
    if (language == LanguageId::Korean) return DateOrder::YearMonthDay;
    return DateOrder::DayMonthYear;
}

bool inRange(const QString& text, int low, int high) {
    bool number = false;
    const int value = text.toInt(&number);
    return number && value >= low && value <= high;
}

// A day or a month of one digit from 1 to 9 is complete as it stands; the focus stays for a second digit.
bool isSingleDigitAboveZero(const QString& text) { return text.size() == 1 && inRange(text, 1, 9); }

}  // namespace

CPaciente::CPaciente(Mode mode, const PacienteRecord& record, CPacienteTable& table, PacienteRecord& currentClient,
                     std::filesystem::path home, LanguageId language, Prompt& prompt, QWidget* parent)
    : QDialog(parent),
      m_mode(mode),
      m_record(record),
      m_table(table),
      m_currentClient(currentClient),
      m_home(std::move(home)),
      m_language(language),
      m_prompt(prompt) {
    setWindowTitle(uiText(kClientFormTitle));
    buildForm();
    fillFrom(m_record);
    m_name->setFocus();
}

QLineEdit* CPaciente::addTextBox(const char* name, int limit) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    box->setMaxLength(limit);
    box->setValidator(new TableTextValidator(limit, m_language, box));
    return box;
}

void CPaciente::buildForm() {
    m_code = new QLineEdit(this);
    m_code->setObjectName("code");
    m_code->setReadOnly(true);
    m_code->setFocusPolicy(Qt::NoFocus);
    m_code->setFixedWidth(m_code->fontMetrics().horizontalAdvance("000000") + 16);
    m_name = addTextBox("name", kNameLimit);
    m_name->setMinimumWidth(m_name->fontMetrics().averageCharWidth() * 44);

    m_type = new QButtonGroup(this);
    auto* types = new QHBoxLayout;
    const std::string_view typeNames[4] = {kMan, kWoman, kChild, kSinger};
    const char* typeObjects[4] = {"man", "woman", "child", "singer"};
    for (int tipo = 0; tipo < 4; ++tipo) {
        auto* button = new QRadioButton(uiText(typeNames[tipo]), this);
        button->setObjectName(typeObjects[tipo]);
        m_type->addButton(button, tipo);
        types->addWidget(button);
    }
    types->addStretch();

    m_day = new DigitBox(2, this);
    m_day->setObjectName("day");
    m_month = new DigitBox(2, this);
    m_month->setObjectName("month");
    m_year = new DigitBox(4, this);
    m_year->setObjectName("year");
    connect(m_day, &QLineEdit::textEdited, this, &CPaciente::dayEdited);
    connect(m_month, &QLineEdit::textEdited, this, &CPaciente::monthEdited);
    connect(m_year, &QLineEdit::textEdited, this, &CPaciente::yearEdited);
    QWidget* dateBoxes[3] = {m_month, m_day, m_year};
    std::string_view orderHint = kDateOrderMonthFirst;
    if (dateOrder(m_language) == DateOrder::YearMonthDay) {
        dateBoxes[0] = m_year, dateBoxes[1] = m_month, dateBoxes[2] = m_day;
        orderHint = kDateOrderYearFirst;
    } else if (dateOrder(m_language) == DateOrder::DayMonthYear) {
        dateBoxes[0] = m_day, dateBoxes[1] = m_month, dateBoxes[2] = m_year;
        orderHint = kDateOrderDayFirst;
    }
    auto* date = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        if (i > 0) date->addWidget(new QLabel("/", this));
        date->addWidget(dateBoxes[i]);
    }
    date->addWidget(new QLabel(uiText(orderHint), this));
    date->addStretch();

    m_address = addTextBox("address", kAddressLimit);
    m_city = addTextBox("city", kCityLimit);
    m_state = addTextBox("state", kStateLimit);
    m_state->setFixedWidth(m_state->fontMetrics().horizontalAdvance("WWWW") + 16);
    m_postalCode = addTextBox("postalCode", kPostalCodeLimit);
    m_homePhone = addTextBox("homePhone", kPhoneLimit);
    m_workPhone = addTextBox("workPhone", kPhoneLimit);
    m_observations = addTextBox("observations", kObservationsLimit);
    // The boxes keep their room whatever the length of the labels in the language in force: a sentence of notes
    // (some 55 characters) shows whole even where the labels are short.
    m_observations->setMinimumWidth(m_observations->fontMetrics().horizontalAdvance(QString(48, QLatin1Char('n'))));

    auto* cityRow = new QHBoxLayout;
    cityRow->addWidget(m_city, 1);
    cityRow->addSpacing(12);
    cityRow->addWidget(new QLabel(uiText(kStateLabel), this));
    cityRow->addWidget(m_state);
    auto* phones = new QHBoxLayout;
    phones->addWidget(m_homePhone, 1);
    phones->addSpacing(12);
    phones->addWidget(new QLabel(uiText(kWorkPhoneLabel), this));
    phones->addWidget(m_workPhone, 1);

    auto* form = new QFormLayout;
    form->addRow(uiText(kCodeLabel), m_code);
    form->addRow(uiText(kNameLabel), m_name);
    form->addRow(uiText(kTypeLabel), types);
    form->addRow(uiText(kBirthDateLabel), date);
    form->addRow(uiText(kAddressLabel), m_address);
    form->addRow(uiText(kCityLabel), cityRow);
    form->addRow(uiText(kPostalCodeLabel), m_postalCode);
    form->addRow(uiText(kHomePhoneLabel), phones);
    form->addRow(uiText(kObservationsLabel), m_observations);

    auto* buttons = new QDialogButtonBox(this);
    m_ok =
        buttons->addButton(uiText(m_mode == InsertMode ? kInsertButton : kChangeButton), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName("ok");
    m_ok->setDefault(true);
    QPushButton* cancel = buttons->addButton(uiText(kCancelButton), QDialogButtonBox::RejectRole);
    cancel->setObjectName("cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &CPaciente::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CPaciente::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    // Tab goes through the form in reading order, the date boxes in the order of the language.
    QWidget* order[] = {m_name,
                        m_type->button(0),
                        m_type->button(1),
                        m_type->button(2),
                        m_type->button(3),
                        dateBoxes[0],
                        dateBoxes[1],
                        dateBoxes[2],
                        m_address,
                        m_city,
                        m_state,
                        m_postalCode,
                        m_homePhone,
                        m_workPhone,
                        m_observations,
                        m_ok,
                        cancel};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void CPaciente::fillFrom(const PacienteRecord& record) {
    m_code->setText(QString::fromStdString(formatText("%03d", record.Codigo)));
    if (m_mode == InsertMode) return;
    const auto text = [this](auto& buffer) { return TableTextToScreen(recordText(buffer), m_language); };
    m_name->setText(text(record.Nome));
    if (QAbstractButton* type = m_type->button(record.Tipo)) type->setChecked(true);
    const QString date = QString::fromLatin1(recordText(record.DataNasc));
    if (date.size() > 2) {
        m_month->setText(date.mid(0, 2));
        m_day->setText(date.mid(2, 2));
        m_year->setText(date.mid(4));
        m_dayComplete = m_monthComplete = m_yearComplete = true;
    }
    m_address->setText(text(record.Endereco));
    m_city->setText(text(record.Cidade));
    m_state->setText(text(record.Estado));
    m_postalCode->setText(text(record.Cep));
    m_homePhone->setText(text(record.FoneR));
    m_workPhone->setText(text(record.FoneC));
    m_observations->setText(text(record.Obs));
    // A text longer than its box shows its beginning, not its end.
    for (QLineEdit* box : {m_address, m_city, m_state, m_postalCode, m_homePhone, m_workPhone, m_observations})
        box->setCursorPosition(0);
}

void CPaciente::dayEdited(const QString& text) {
    m_dayComplete = false;
    if (text.size() == 2) {
        if (!inRange(text, 1, 31)) {
            m_prompt.showOk(kInvalidDay);
            m_day->clear();
            return;
        }
        m_dayComplete = true;
        if (m_language == LanguageId::Korean) {
            m_address->setFocus();
        } else if (m_language == LanguageId::English) {
            m_year->setFocus();
        } else {
            m_month->setFocus();
        }
    } else {
        m_dayComplete = isSingleDigitAboveZero(text);
    }
}

void CPaciente::monthEdited(const QString& text) {
    m_monthComplete = false;
    if (text.size() == 2) {
        if (!inRange(text, 1, 12)) {
            m_prompt.showOk(kInvalidMonth);
            m_month->clear();
            return;
        }
        m_monthComplete = true;
        if (m_language == LanguageId::Spanish || m_language == LanguageId::Portuguese) {
            m_year->setFocus();
        } else {
            m_day->setFocus();
        }
    } else {
        m_monthComplete = isSingleDigitAboveZero(text);
    }
}

void CPaciente::yearEdited(const QString& text) {
    m_yearComplete = false;
    if (text.size() != 4) return;
    if (!inRange(text, 1890, 2050)) {
        m_prompt.showOk(kInvalidYear);
        m_year->clear();
        return;
    }
    m_yearComplete = true;
    if (m_language == LanguageId::Korean) {
        m_month->setFocus();
    } else {
        m_address->setFocus();
    }
}

// The birth date as stored: eight digits month, day, year, or empty. False when the person must correct it.
bool CPaciente::readDate(std::string& date) {
    date.clear();
    if (m_dayComplete && m_monthComplete && !m_yearComplete) {
        m_prompt.showOk(kYearNeedsFourDigits);
        m_year->setFocus();
        return false;
    }
    // A day alone, or nothing at all, is a client with no birth date; the person is not asked.
    if (!(m_dayComplete && m_monthComplete && m_yearComplete)) return true;
    if (!inRange(m_day->text(), 1, 31)) {
        m_prompt.showOk(kInvalidDay);
        return false;
    }
    if (!inRange(m_month->text(), 1, 12)) {
        m_prompt.showOk(kInvalidMonth);
        return false;
    }
    if (!inRange(m_year->text(), 1890, 2050)) {
        m_prompt.showOk(kInvalidYear);
        return false;
    }
    // Days are not checked against the month: 31 February passes.
    date = formatText("%02d%02d%04d", m_month->text().toInt(), m_day->text().toInt(), m_year->text().toInt());
    return true;
}

void CPaciente::readTexts() {
    const auto store = [this](auto& buffer, const QLineEdit* box) {
        setRecordText(buffer, ScreenTextToTable(box->text(), m_language));
    };
    store(m_record.Endereco, m_address);
    store(m_record.Estado, m_state);
    store(m_record.Cep, m_postalCode);
    store(m_record.FoneR, m_homePhone);
    store(m_record.FoneC, m_workPhone);
    store(m_record.Obs, m_observations);
}

void CPaciente::accept() {
    if (m_name->text().size() < 2) {
        m_prompt.showOk(kNameMissing);
        m_name->setFocus();
        return;
    }
    if (m_type->checkedId() < 0) {
        m_prompt.showOk(kTypeMissing);
        return;
    }
    std::string date;
    if (!readDate(date)) return;
    setRecordText(m_record.Nome, ScreenTextToTable(m_name->text(), m_language));
    m_record.Tipo = m_type->checkedId();
    setRecordText(m_record.Cidade, ScreenTextToTable(m_city->text(), m_language));
    setRecordText(m_record.DataNasc, date);
    readTexts();
    if (save()) QDialog::accept();
}

// Writes the client to the table. False leaves the form open (the table has said why) or, when the client has
// gone from the table meanwhile, closes it with nothing changed.
bool CPaciente::save() {
    if (m_mode == InsertMode) {
        if (m_table.InsertClient(m_record) != 1) {
            // Another copy of the program may have just taken this code: the next free one is offered instead,
            // so that Insert can be pressed again.
            m_table.LoadClients();
            m_record.Codigo = m_table.NextFreeCode();
            m_code->setText(QString::fromStdString(formatText("%03d", m_record.Codigo)));
            return false;
        }
        const auto folder = findFileIgnoringCase(m_home / ClientFolderName(m_record.Codigo));
        std::error_code error;
        if (std::filesystem::is_directory(folder, error)) {
            m_prompt.showOk(kFolderAlreadyExists);  // an old folder of this code is used again
        } else if (!std::filesystem::create_directory(folder, error) || error) {
            m_prompt.showOk(formatText(m_prompt.inLanguage(kFolderNotCreated).c_str(), folder.string().c_str()));
        }
        m_currentClient = m_record;
        return true;
    }
    // The row is looked up afresh by its code: a record number is never kept, since deletions move the rows.
    const int recordNumber = m_table.LoadClients(formatText("CODIGO=%d", m_record.Codigo));
    if (recordNumber < 0) {
        reject();
        return false;
    }
    if (m_table.Count() == 0) {
        m_prompt.showOk(kClientNoLongerInTable);
        reject();
        return false;
    }
    m_table.UpdateClient(recordNumber, m_record);
    return true;
}
