// The list of one client's recordings, newest first, each with the picture of its kind: choosing the recording
// to open, or deleting one.
#pragma once

#include <filesystem>
#include <string_view>

#include <QDialog>
#include <QString>
#include <QtGlobal>

#include "app/SettingsFiles.h"
#include "clients/PacienteRecord.h"
#include "store/RecordingFiles.h"

class QPushButton;
class ReportList;
struct Prompt;

inline constexpr std::string_view kFilesTitle = QT_TRANSLATE_NOOP("Sonalys", "%s - Files");
inline constexpr std::string_view kDateColumn = QT_TRANSLATE_NOOP("Sonalys", "Date");
inline constexpr std::string_view kOpenRecordingButton = QT_TRANSLATE_NOOP("Sonalys", "&Open");
inline constexpr std::string_view kDeleteRecordingButton = QT_TRANSLATE_NOOP("Sonalys", "&Delete");
inline constexpr std::string_view kCloseRecordingsButton = QT_TRANSLATE_NOOP("Sonalys", "&Close");

// The number at the end of a row's text: "03/14/2024 File 12" gives 12; -1 when the text ends in no digit.
int NumberAtEnd(const QString& rowText);

class CAbrirSessao : public QDialog {
    Q_OBJECT
public:
    enum EndCode { RecordingChosen = 1, FileByPathChosen = 6 };

    // `pickOnly` hides Delete: the list then serves to pick a recording to compare with.
    CAbrirSessao(const PacienteRecord& client, std::filesystem::path home, LanguageId language, Prompt& prompt,
                 bool pickOnly = false, QWidget* parent = nullptr);

    // The recording chosen, after RecordingChosen.
    int RecordingNumber() const { return m_number; }
    FileKind Kind() const { return m_kind; }
    ReportList* list() const { return m_list; }

public slots:
    void open();
    void deleteRecording();

signals:
    // The files of recording `number` were deleted; the view lets it go if it shows that number.
    void recordingDeleted(int number);

private:
    void fillList();
    ClientFolder folder() const;
    // The kind of the chosen row, or nothing after "Select a file!".
    bool chosenRow(int& row, FileKind& kind);

    PacienteRecord m_client;
    std::filesystem::path m_home;
    LanguageId m_language;
    Prompt& m_prompt;
    ReportList* m_list;
    QPushButton* m_open;
    QPushButton* m_delete;
    int m_number = -1;
    FileKind m_kind = FileKind::WvWithoutDate;
};
