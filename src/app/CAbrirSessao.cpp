#include "app/CAbrirSessao.h"

#include <algorithm>

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/TableText.h"
#include "controls/PictureButton.h"
#include "controls/ReportList.h"
#include "controls/UiText.h"
#include "store/Prompt.h"
#include "store/RecordingDeletion.h"

namespace {

const char* const kKindPictures[5] = {":/app/kind0-wv-dated.svg", ":/app/kind1-qv-dated.svg", ":/app/kind2-wv.svg",
                                      ":/app/kind3-qv.svg", ":/app/kind4-backup.svg"};

// The program's own pictures, by name.
QPushButton* pictureButton(std::string_view text, const char* picture, const char* name, QWidget* parent) {
    return pictureButton(text, QString(":/app/%1.svg").arg(QLatin1String(picture)), name, parent);
}

}  // namespace

int NumberAtEnd(const QString& rowText) {
    qsizetype start = rowText.size();
    while (start > 0 && rowText[start - 1].isDigit()) --start;
    return start == rowText.size() ? -1 : rowText.mid(start).toInt();
}

CAbrirSessao::CAbrirSessao(const PacienteRecord& client, std::filesystem::path home, LanguageId language,
                           Prompt& prompt, bool pickOnly, QWidget* parent)
    : QDialog(parent),
      m_client(client),
      m_home(std::move(home)),
      m_language(language),
      m_prompt(prompt),
      m_list(new ReportList(this)) {
    setWindowTitle(uiText(kFilesTitle).replace("%s", TableTextToScreen(recordText(client.Nome), language)));
    m_list->setObjectName("recordings");
    m_list->setColumns({uiText(kDateColumn)});
    m_list->setSortableByHeader(false);
    m_list->setMinimumSize(m_list->fontMetrics().horizontalAdvance("00/00/0000 File 000") + 80, 300);
    m_open = pictureButton(kOpenRecordingButton, "recording-open", "open", this);
    m_delete = pictureButton(kDeleteRecordingButton, "recording-delete", "delete", this);
    auto* close = pictureButton(kCloseRecordingsButton, "close", "close", this);
    m_delete->setVisible(!pickOnly);
    for (QPushButton* button : {m_open, m_delete}) {
        button->setEnabled(false);
        connect(m_list, &ReportList::choiceChanged, button, &QPushButton::setEnabled);
    }
    connect(m_open, &QPushButton::clicked, this, &CAbrirSessao::open);
    connect(m_list, &ReportList::rowActivated, this, &CAbrirSessao::open);
    connect(m_delete, &QPushButton::clicked, this, &CAbrirSessao::deleteRecording);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_open);
    buttons->addWidget(m_delete);
    buttons->addStretch();
    buttons->addWidget(close);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    fillList();
    m_list->setFocus();
}

ClientFolder CAbrirSessao::folder() const { return ClientFolder{m_home, m_client.Codigo}; }

void CAbrirSessao::fillList() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::vector<RecordingListRow> rows = ListRecordings(folder(), static_cast<int>(m_language), m_prompt);
    // Newest first. Recordings of one day keep the order of their numbers reversed, the last made on top.
    std::stable_sort(rows.begin(), rows.end(), [](const RecordingListRow& a, const RecordingListRow& b) {
        return a.sortKey != b.sortKey ? a.sortKey > b.sortKey : a.number > b.number;
    });
    m_list->clearRows();
    for (const RecordingListRow& row : rows) {
        const int kind = static_cast<int>(row.kind);
        m_list->addRow({QString::fromStdString(row.text)}, QIcon(kKindPictures[kind]), kind);
    }
    QApplication::restoreOverrideCursor();
}

bool CAbrirSessao::chosenRow(int& row, FileKind& kind) {
    row = m_list->selectedRow();
    if (row < 0) {
        m_prompt.showOk(kSelectAFile);
        return false;
    }
    kind = static_cast<FileKind>(m_list->rowKey(row));
    return true;
}

void CAbrirSessao::open() {
    int row = -1;
    FileKind kind{};
    if (!chosenRow(row, kind)) return;
    // A recording whose sound went to a backup cannot be opened until the backup is attached.
    if (kind == FileKind::SentToBackup) {
        m_prompt.showOk(kSentToBackup);
        return;
    }
    m_number = NumberAtEnd(m_list->cellText(row, 0));
    m_kind = kind;
    done(RecordingChosen);
}

void CAbrirSessao::deleteRecording() {
    int row = -1;
    FileKind kind{};
    if (!chosenRow(row, kind)) return;
    const int number = NumberAtEnd(m_list->cellText(row, 0));
    if (!DeleteRecordingFilesFromList(folder(), number, kind, m_prompt)) return;
    m_list->removeRow(row);
    emit recordingDeleted(number);
}
