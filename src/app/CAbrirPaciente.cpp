#include "app/CAbrirPaciente.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <system_error>

#include "app/CMainFrame.h"
#include "app/CPaciente.h"
#include "app/TableText.h"
#include "clients/CPacienteTable.h"
#include "controls/PictureButton.h"
#include "controls/ReportList.h"
#include "controls/UiText.h"
#include "store/FileLookup.h"
#include "store/Prompt.h"
#include "store/RecordingDeletion.h"
#include "store/TextFormat.h"

namespace {

constexpr int kVisibleRows = 10;

// The program's own pictures, by name.
QPushButton* pictureButton(std::string_view text, const char* picture, const char* name, QWidget* parent) {
    return pictureButton(text, QString(":/app/%1.svg").arg(QLatin1String(picture)), name, parent);
}

}  // namespace

int NameColumnWidth(int clientCount, LanguageId language) {
    if (clientCount >= 11) return 153;
    return language == LanguageId::Korean ? 211 : 170;
}

CAbrirPaciente::CAbrirPaciente(CMainFrame& frame)
    : QDialog(&frame), m_frame(frame), m_list(new ReportList(this)), m_search(new QLineEdit(this)) {
    setWindowTitle(uiText(kSelectClientTitle));
    m_list->setObjectName("clients");
    m_list->setColumns({uiText(kCodeColumn), uiText(kNameColumn)});
    m_list->header()->setStretchLastSection(false);
    m_search->setObjectName("search");
    m_search->setMaxLength(kNameLimit);
    auto* searchButton = pictureButton(kSearchButton, "search", "searchButton", this);
    m_open = pictureButton(kOpenButton, "open", "open", this);
    auto* newClient = pictureButton(kNewClientButton, "client-new", "newClient", this);
    auto* otherFiles = pictureButton(kOtherFilesButton, "other-files", "otherFiles", this);
    m_personalInformation = pictureButton(kPersonalInformationButton, "client-info", "personalInformation", this);
    m_deleteClient = pictureButton(kDeleteClientButton, "client-delete", "deleteClient", this);
    auto* close = pictureButton(kCloseButton, "close", "close", this);

    connect(searchButton, &QPushButton::clicked, this, &CAbrirPaciente::search);
    connect(m_search, &QLineEdit::returnPressed, this, &CAbrirPaciente::search);
    connect(m_open, &QPushButton::clicked, this, &CAbrirPaciente::open);
    connect(m_list, &ReportList::rowActivated, this, &CAbrirPaciente::open);
    connect(newClient, &QPushButton::clicked, this, [this] { done(NewClientChosen); });
    connect(otherFiles, &QPushButton::clicked, this, [this] { done(OtherFilesChosen); });
    connect(m_personalInformation, &QPushButton::clicked, this, &CAbrirPaciente::personalInformation);
    connect(m_deleteClient, &QPushButton::clicked, this, &CAbrirPaciente::deleteClient);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    // The commands that work on a client follow the choice in the list.
    for (QPushButton* button : {m_open, m_personalInformation, m_deleteClient}) {
        button->setEnabled(false);
        connect(m_list, &ReportList::choiceChanged, button, &QPushButton::setEnabled);
    }

    // The search box stands over the list, as wide as it; the buttons stand in a column beside them.
    auto* layout = new QGridLayout(this);
    layout->addWidget(new QLabel(uiText(kSearchLabel), this), 0, 0);
    layout->addWidget(m_search, 1, 0);
    layout->addWidget(searchButton, 1, 1);
    layout->addWidget(m_list, 2, 0);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {m_open, newClient, otherFiles, m_personalInformation, m_deleteClient}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons, 2, 1);
    layout->setColumnMinimumWidth(1, searchButton->sizeHint().width());

    // The list is as wide as its two columns with room for the scroll bar, and shows ten rows.
    const int frameWidth = 2 * m_list->frameWidth();
    m_list->setFixedWidth(kCodeColumnWidth + NameColumnWidth(0, frame.languageId()) + frameWidth);
    m_list->setFixedHeight(m_list->header()->sizeHint().height() + kVisibleRows * (m_list->fontMetrics().height() + 6) +
                           frameWidth);
    fillList();
    m_search->setFocus();
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void CAbrirPaciente::fillList() {
    CPacienteTable& table = m_frame.table();
    table.LoadClients();
    m_list->clearRows();
    for (int i = 0; i < table.Count(); ++i) {
        const PacienteRecord& client = table.EntryAt(i)->record;
        m_list->addRow({QString::fromStdString(formatText("%03d", client.Codigo)),
                        TableTextToScreen(recordText(client.Nome), m_frame.languageId())},
                       {}, client.Codigo);
    }
    fitNameColumn();
}

void CAbrirPaciente::fitNameColumn() {
    m_list->setColumnWidthInPixels(0, kCodeColumnWidth);
    m_list->setColumnWidthInPixels(1, NameColumnWidth(m_list->rowCount(), m_frame.languageId()));
}

int CAbrirPaciente::selectedCode() const {
    const int row = m_list->selectedRow();
    return row < 0 ? -1 : m_list->cellText(row, 0).toInt();
}

void CAbrirPaciente::search() {
    const QString name = m_search->text();
    if (name.isEmpty()) {
        m_frame.prompt().showOk(kTypeNameToSearch);
        m_search->setFocus();
        return;
    }
    const int row = m_list->findPrefix(1, name);
    if (row < 0) {
        m_frame.prompt().showOk(kClientNotFound);
        return;
    }
    m_list->selectRow(row);
    m_list->setFocus();
}

void CAbrirPaciente::open() {
    const int code = selectedCode();
    if (code < 0) return;
    CPacienteTable& table = m_frame.table();
    if (table.LoadClients(formatText("CODIGO=%d", code)) < 0) return;
    if (table.Count() == 0) {
        m_frame.prompt().showOk(kClientNoLongerInTable);
        fillList();
        return;
    }
    m_frame.CurrentClient = table.EntryAt(0)->record;
    done(ClientChosen);
}

void CAbrirPaciente::personalInformation() {
    const int row = m_list->selectedRow();
    if (row < 0) {
        m_frame.prompt().showOk(kSelectAnItem);
        return;
    }
    CPacienteTable& table = m_frame.table();
    table.LoadClients(formatText("CODIGO=%d", selectedCode()));
    if (table.Count() == 0) {
        m_frame.prompt().showOk(kErrorReadingFile);
        return;
    }
    CPaciente form(CPaciente::EditMode, table.EntryAt(0)->record, table, m_frame.CurrentClient, m_frame.home(),
                   m_frame.languageId(), m_frame.prompt(), this);
    if (form.exec() != QDialog::Accepted) return;
    m_list->setCellText(row, 1, TableTextToScreen(recordText(form.record().Nome), m_frame.languageId()));
    if (form.record().Codigo == m_frame.CurrentClient.Codigo) m_frame.ClientWasChanged(form.record());
}

void CAbrirPaciente::deleteClient() {
    const int row = m_list->selectedRow();
    if (row < 0) {
        m_frame.prompt().showOk(kSelectAnItem);
        return;
    }
    Prompt& prompt = m_frame.prompt();
    if (!prompt.askYesNo(kConfirmDeleteClient)) return;
    const int code = selectedCode();
    CPacienteTable& table = m_frame.table();
    const int recordNumber = table.LoadClients(formatText("CODIGO=%d", code));
    if (recordNumber < 0) return;
    // Only the row of this very code is deleted; when it has gone meanwhile, nothing is touched.
    if (table.Count() == 0) {
        prompt.showOk(kClientNoLongerInTable);
        fillList();
        return;
    }
    if (code == m_frame.CurrentClient.Codigo) m_frame.ClientWasDeleted();

    const auto folder = findFileIgnoringCase(m_frame.home() / ClientFolderName(code));
    std::error_code error;
    if (std::filesystem::is_directory(folder, error)) {
        DeleteMatchingFiles(folder, kClientListDeletePatterns);
        if (!std::filesystem::remove(folder, error) || error) prompt.showOk(kClientFolderNotDeleted);
    }
    m_list->removeRow(row);
    table.DeleteClient(recordNumber);
    table.LoadClients();
    fitNameColumn();
}
