#include "app/CPaciente.h"

#include <QApplication>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "DataRoot.h"
#include "FakePrompt.h"
#include "controls/DigitBox.h"

Q_DECLARE_METATYPE(LanguageId)

namespace {

struct Form {
    DataRoot own;  // the data root, unless the test gives one
    DataRoot& root;
    FakePrompt prompt;
    CPacienteTable table{root.path(), prompt};
    PacienteRecord current;
    std::unique_ptr<CPaciente> dialog;

    Form(DataRoot& dataRoot, CPaciente::Mode mode, const PacienteRecord& record,
         LanguageId language = LanguageId::English)
        : root(dataRoot) {
        table.SetFileName(std::string(kClientTableName));
        dialog = std::make_unique<CPaciente>(mode, record, table, current, root.path(), language, prompt);
        dialog->show();
    }
    explicit Form(CPaciente::Mode mode, const PacienteRecord& record, LanguageId language = LanguageId::English)
        : Form(own, mode, record, language) {}
    QLineEdit* box(const char* name) const { return dialog->findChild<QLineEdit*>(name); }
    void check(const char* type) const { dialog->findChild<QRadioButton*>(type)->setChecked(true); }
    // Types into whichever box has the focus, one key at a time, as a person does.
    void type(const QString& keys) const {
        for (const QChar key : keys) {
            QWidget* target = dialog->focusWidget();
            if (key.unicode() < 128) {
                QTest::keyClicks(target, QString(key));
            } else {  // a letter beyond ASCII arrives as text, as from a keyboard layout or input method
                QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(key));
                QApplication::sendEvent(target, &press);
            }
        }
    }
    void typeInto(const char* name, const QString& keys) const {
        box(name)->setFocus();
        type(keys);
    }
    void ok() const { dialog->findChild<QPushButton*>("ok")->click(); }
};

}  // namespace

class CPacienteTest : public QObject {
    Q_OBJECT
private slots:
    void birthDateIsTypedInTheLanguagesOrder_data();
    void birthDateIsTypedInTheLanguagesOrder();
    void dateBoxesTakeOnlyDigitsInRange();
    void okChecksNameTypeAndDateInOrder();
    void dateIsStoredMonthDayYearOrEmpty();
    void insertStoresTypeAndTextAndReusesAnOldFolder();
    void editShowsTheStoredDateAndLeavesAClientGoneMeanwhileAlone();
    void textsAreLimitedToTheirFieldsInTheTablesCodePage();
};

void CPacienteTest::birthDateIsTypedInTheLanguagesOrder_data() {
    QTest::addColumn<LanguageId>("language");
    QTest::addColumn<QString>("firstBox");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("focusAfter");
    QTest::newRow("English: month, day, year")
        << LanguageId::English << "month" << QStringList{"03", "14", "1975"} << QStringList{"day", "year", "address"};
    QTest::newRow("Korean: year, month, day")
        << LanguageId::Korean << "year" << QStringList{"1975", "03", "14"} << QStringList{"month", "day", "address"};
    QTest::newRow("Spanish: day, month, year")
        << LanguageId::Spanish << "day" << QStringList{"14", "03", "1975"} << QStringList{"month", "year", "address"};
}

void CPacienteTest::birthDateIsTypedInTheLanguagesOrder() {
    QFETCH(LanguageId, language);
    QFETCH(QString, firstBox);
    QFETCH(QStringList, keys);
    QFETCH(QStringList, focusAfter);
    Form form(CPaciente::InsertMode, makeRecord({1, ""}), language);
    form.typeInto("name", "Ana Souza");
    form.check("woman");
    form.box(firstBox.toLatin1().constData())->setFocus();
    for (int i = 0; i < keys.size(); ++i) {
        form.type(keys[i]);
        QCOMPARE(form.dialog->focusWidget()->objectName(), focusAfter[i]);
    }
    QVERIFY(form.dialog->dayComplete() && form.dialog->monthComplete() && form.dialog->yearComplete());
    form.ok();
    QVERIFY(form.prompt.shown.empty());
    QCOMPARE(form.dialog->result(), int(QDialog::Accepted));
    // Whatever the order of entry, the table keeps month, day, year.
    QCOMPARE(std::string(recordText(form.dialog->record().DataNasc)), std::string("03141975"));
    QCOMPARE(std::string(recordText(tableRecords(form.root.path()).at(0).DataNasc)), std::string("03141975"));
}

void CPacienteTest::dateBoxesTakeOnlyDigitsInRange() {
    // Each box with what is typed into it, and the message, or none, at once.
    const struct {
        const char* box;
        const char* keys;
        const char* message;
        bool complete;
    } rows[] = {
        {"day", "00", "Invalid Day !", false},
        {"day", "32", "Invalid Day !", false},
        {"month", "13", "Invalid Month !", false},
        {"year", "1889", "Invalid Year \nRange: 1890 to 2050", false},
        {"year", "2051", "Invalid Year \nRange: 1890 to 2050", false},
        {"day", "31", "", true},
        {"month", "12", "", true},
        {"year", "1890", "", true},
        {"day", "5", "", true},  // a single digit completes a day or month without moving on, but 0 does not
        {"day", "0", "", false},
        {"day", "a", "", false},  // letters never reach a date box
        {"year", "197", "", false},
    };
    Form form(CPaciente::InsertMode, makeRecord({1, ""}));
    for (const auto& row : rows) {
        form.prompt.shown.clear();
        form.box(row.box)->clear();
        form.typeInto(row.box, row.keys);
        QCOMPARE(form.prompt.shown.empty() ? std::string() : form.prompt.last(), std::string(row.message));
        const bool complete = std::string(row.box) == "day"     ? form.dialog->dayComplete()
                              : std::string(row.box) == "month" ? form.dialog->monthComplete()
                                                                : form.dialog->yearComplete();
        QVERIFY2(complete == row.complete, row.keys);
        if (*row.message != '\0') QCOMPARE(form.box(row.box)->text(), QString());  // a refused entry is cleared
    }
}

void CPacienteTest::okChecksNameTypeAndDateInOrder() {
    Form form(CPaciente::InsertMode, makeRecord({1, ""}));
    form.typeInto("name", "A");
    form.ok();
    form.typeInto("name", "n");
    form.ok();
    form.check("child");
    form.typeInto("day", "12");
    form.typeInto("month", "05");
    form.ok();
    QCOMPARE(form.prompt.shown, (std::vector<std::string>{"You need to type the client´s name!",
                                                          "The Client is Man/Woman, Singer or Child?",
                                                          "Invalid Year (it must have 4 digits)\nSample.: 1974"}));
    QCOMPARE(form.dialog->focusWidget()->objectName(), QString("year"));
    QVERIFY(tableRecords(form.root.path()).empty());
    form.type("2015");
    form.ok();
    QCOMPARE(form.dialog->result(), int(QDialog::Accepted));
    QCOMPARE(form.dialog->record().Tipo, 2);
}

void CPacienteTest::dateIsStoredMonthDayYearOrEmpty() {
    struct Case {
        const char* day;
        const char* month;
        const char* year;
        const char* stored;
    };
    // 31 February passes: days are not checked against the month. A day alone, or no date, stores nothing.
    for (const Case& c : {Case{"31", "02", "2000", "02312000"}, Case{"7", "3", "1950", "03071950"},
                          Case{"15", "", "", ""}, Case{"", "", "", ""}, Case{"", "", "1980", ""}}) {
        Form form(CPaciente::InsertMode, makeRecord({1, ""}));
        form.typeInto("name", "Bruno");
        form.check("man");
        form.typeInto("day", c.day);
        form.typeInto("month", c.month);
        form.typeInto("year", c.year);
        form.ok();
        QVERIFY2(form.prompt.shown.empty(), c.stored);
        QCOMPARE(std::string(recordText(form.dialog->record().DataNasc)), std::string(c.stored));
    }
}

void CPacienteTest::insertStoresTypeAndTextAndReusesAnOldFolder() {
    DataRoot root({{1, "Ana"}});
    Form form(root, CPaciente::InsertMode, makeRecord({2, ""}));
    QCOMPARE(form.box("code")->text(), QString("002"));
    form.typeInto("name", "Carla Dias");
    form.check("singer");
    form.typeInto("observations", "rouquidão");
    form.ok();
    // The folder, the row and the current client as the window's test sees them; here the type and the bytes.
    QVERIFY(form.prompt.shown.empty());
    QCOMPARE(tableRecords(root.path()).at(1).Tipo, 3);
    // Text goes to the table in the Western code page: "ã" is the single byte 0xE3.
    QCOMPARE(std::string(recordText(form.current.Obs)), std::string("rouquid\xE3o"));
    // An old folder of the same code, spelled by another system, is reused after a word.
    root.write("PAC004/wv001.wav", "RIFF");
    Form again(root, CPaciente::InsertMode, makeRecord({4, ""}));
    again.typeInto("name", "Davi");
    again.check("man");
    again.ok();
    QCOMPARE(again.prompt.shown, std::vector<std::string>{"The Client´s Folder already exist"});
    QVERIFY(!std::filesystem::exists(root / "pac004") && std::filesystem::exists(root / "PAC004/wv001.wav"));
}

void CPacienteTest::editShowsTheStoredDateAndLeavesAClientGoneMeanwhileAlone() {
    // Renaming through the form is the window's test; here what only the form decides.
    DataRoot root({{1, "Ana", 1, "01021990"}, {2, "Bia", 1}});
    Form form(root, CPaciente::EditMode, makeRecord({1, "Ana", 1, "01021990"}));
    QCOMPARE(form.box("month")->text() + form.box("day")->text() + form.box("year")->text(), QString("01021990"));
    QVERIFY(form.dialog->dayComplete() && form.dialog->monthComplete() && form.dialog->yearComplete());
    // A client gone from the table meanwhile changes nothing: the last row is not overwritten.
    Form gone(root, CPaciente::EditMode, makeRecord({7, "Gone"}));
    gone.check("man");
    gone.ok();
    QCOMPARE(gone.prompt.shown, std::vector<std::string>{std::string(kClientNoLongerInTable)});
    QCOMPARE(tableNames(root.path()), (std::vector<std::string>{"Ana", "Bia"}));
}

void CPacienteTest::textsAreLimitedToTheirFieldsInTheTablesCodePage() {
    Form form(CPaciente::InsertMode, makeRecord({1, ""}));
    form.typeInto("name", QString(70, 'x'));
    QCOMPARE(form.box("name")->text().size(), 59);
    form.typeInto("city", QString::fromUtf8("São José"));
    QCOMPARE(form.box("city")->text(), QString::fromUtf8("São José"));
    // A character the Western code page lacks cannot be typed in English; in Korean a syllable takes two bytes.
    form.typeInto("address", QString::fromUtf8("서울"));
    QCOMPARE(form.box("address")->text(), QString());
    Form korean(form.root, CPaciente::InsertMode, makeRecord({1, ""}), LanguageId::Korean);
    korean.typeInto("state", QString::fromUtf8("서울시"));
    QCOMPARE(korean.box("state")->text(), QString::fromUtf8("서"));
}

QTEST_MAIN(CPacienteTest)
#include "CPaciente_test.moc"
