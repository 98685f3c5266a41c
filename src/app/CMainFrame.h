// The main window: the menus and tool bar with their commands, the status bar, the client in work, and the
// main view in the middle.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <QMainWindow>
#include <QPointer>
#include <QtGlobal>

#include "app/ClientTypeRange.h"
#include "app/RecentFileList.h"
#include "app/SettingsFiles.h"
#include "clients/PacienteRecord.h"
#include "store/RecordingFiles.h"

class CAFApp;
class CAFView;
class MixerVolumes;
class CPacienteTable;
class QAction;
class QLabel;
class QMenu;
class QToolBar;
class QtWaveInDevice;
class QtWaveOutDevice;
class WavePlayer;
class WaveRecorder;
struct Prompt;

// Menus and their commands.
inline constexpr std::string_view kMenuClient = QT_TRANSLATE_NOOP("Sonalys", "&Client");
inline constexpr std::string_view kMenuFiles = QT_TRANSLATE_NOOP("Sonalys", "&Files");
inline constexpr std::string_view kMenuMode = QT_TRANSLATE_NOOP("Sonalys", "&Mode");
inline constexpr std::string_view kMenuSettings = QT_TRANSLATE_NOOP("Sonalys", "&Settings");
inline constexpr std::string_view kMenuLanguage = QT_TRANSLATE_NOOP("Sonalys", "&Language");
inline constexpr std::string_view kMenuHelp = QT_TRANSLATE_NOOP("Sonalys", "&Help");
inline constexpr std::string_view kCommandOpenClient = QT_TRANSLATE_NOOP("Sonalys", "&Open...");
inline constexpr std::string_view kCommandNewClient = QT_TRANSLATE_NOOP("Sonalys", "&New...");
inline constexpr std::string_view kCommandPersonalInformation =
    QT_TRANSLATE_NOOP("Sonalys", "P&ersonal Information...");
inline constexpr std::string_view kCommandDeleteClient = QT_TRANSLATE_NOOP("Sonalys", "&Delete");
inline constexpr std::string_view kCommandExit = QT_TRANSLATE_NOOP("Sonalys", "E&xit");
inline constexpr std::string_view kCommandOpenRecording = QT_TRANSLATE_NOOP("Sonalys", "&Open...");
inline constexpr std::string_view kCommandVolume = QT_TRANSLATE_NOOP("Sonalys", "Volume...");
inline constexpr std::string_view kCommandEnglish = QT_TRANSLATE_NOOP("Sonalys", "&English");
inline constexpr std::string_view kCommandKorean = QT_TRANSLATE_NOOP("Sonalys", "&Korean");
inline constexpr std::string_view kCommandSpanish = QT_TRANSLATE_NOOP("Sonalys", "&Spanish");
inline constexpr std::string_view kCommandPortuguese = QT_TRANSLATE_NOOP("Sonalys", "&Portuguese");
inline constexpr std::string_view kCommandContents = QT_TRANSLATE_NOOP("Sonalys", "Contents...");
inline constexpr std::string_view kCommandAbout = QT_TRANSLATE_NOOP("Sonalys", "&About Sonalys...");

// What each command does, for the status bar and the tool bar's tips.
inline constexpr std::string_view kTipOpenClient = QT_TRANSLATE_NOOP("Sonalys", "Choose a client to work with");
inline constexpr std::string_view kTipNewClient = QT_TRANSLATE_NOOP("Sonalys", "Insert a new client");
inline constexpr std::string_view kTipPersonalInformation =
    QT_TRANSLATE_NOOP("Sonalys", "See or change the personal information of the client");
inline constexpr std::string_view kTipDeleteClient =
    QT_TRANSLATE_NOOP("Sonalys", "Delete the client and all the client´s recordings");
inline constexpr std::string_view kTipExit = QT_TRANSLATE_NOOP("Sonalys", "Quit the program");
inline constexpr std::string_view kTipOpenRecording = QT_TRANSLATE_NOOP("Sonalys", "Open a recording of the client");
inline constexpr std::string_view kTipVolume = QT_TRANSLATE_NOOP("Sonalys", "Set the recording and playing volume");
inline constexpr std::string_view kTipRecordSettings =
    QT_TRANSLATE_NOOP("Sonalys", "Choose the input the recordings are taken from");
inline constexpr std::string_view kTipEnglish = QT_TRANSLATE_NOOP("Sonalys", "Show the program in English");
inline constexpr std::string_view kTipKorean = QT_TRANSLATE_NOOP("Sonalys", "Show the program in Korean");
inline constexpr std::string_view kTipSpanish = QT_TRANSLATE_NOOP("Sonalys", "Show the program in Spanish");
inline constexpr std::string_view kTipPortuguese = QT_TRANSLATE_NOOP("Sonalys", "Show the program in Portuguese");
inline constexpr std::string_view kTipContents = QT_TRANSLATE_NOOP("Sonalys", "Open the user guide");
inline constexpr std::string_view kTipAbout =
    QT_TRANSLATE_NOOP("Sonalys", "Show the version of the program and of the computer");
inline constexpr std::string_view kReady = QT_TRANSLATE_NOOP("Sonalys", "Ready");

inline constexpr std::string_view kExitQuestion = QT_TRANSLATE_NOOP("Sonalys", "Are you sure you want to exit?");
inline constexpr std::string_view kVolumeControlFailed =
    QT_TRANSLATE_NOOP("Sonalys", "Volume Control can´t be  can´t be Inicialized!");
inline constexpr std::string_view kErrorAccessingClientFolder =
    QT_TRANSLATE_NOOP("Sonalys", "Error Acessing Client´s folder !");
// The name shown while working without a client.
inline constexpr std::string_view kDefaultClientName = QT_TRANSLATE_NOOP("Sonalys", "default");
inline constexpr std::string_view kSoundFileFilter = QT_TRANSLATE_NOOP("Sonalys", "Sound File (*.wav)");
inline constexpr std::string_view kNoPersonalInformationOutside = QT_TRANSLATE_NOOP(
    "Sonalys", "The sounds of \"Other Files\" belong to no client: there is no personal information to show.");

class CMainFrame : public QMainWindow {
    Q_OBJECT
public:
    explicit CMainFrame(CAFApp& app, QWidget* parent = nullptr);
    ~CMainFrame() override;

    // Writes a short working message ("Calculating F0...") on the frame at once, or clears it when the text has
    // fewer than 2 characters.
    void ShowBusyText(const QString& text);
    QString busyText() const;

    CAFView* view() const { return m_view; }
    // The action of a command, by the command's number (32812 opens the client list).
    QAction* command(int id) const;
    // Brings every command's enabled and checked state up to date.
    void UpdateCommands();

    // Settings read at start: the record input of cfr.dat and the update rate index left by sy1.log.
    int RecordInput = 0;
    int RememberedUpdateRateIndex = -1;
    F0Range f0Range = kStartF0Range;

    // The client in work: code -1 for none, OutsideClientCode for work without a client.
    PacienteRecord CurrentClient;
    bool isIdle() const;

    CPacienteTable& table() { return *m_table; }
    MixerVolumes& mixer() { return *m_mixer; }
    Prompt& prompt() { return m_prompt; }
    const std::filesystem::path& home() const { return m_home; }
    LanguageId languageId() const;
    // The folder of the client in work: pacNNN, or "Other Files".
    std::filesystem::path clientFolderPath() const;

    // The open client was deleted from the client list: the program goes back to having no client.
    void ClientWasDeleted();
    // The open client's information was changed from the client list.
    void ClientWasChanged(const PacienteRecord& client);

public slots:
    void openClient();
    void newClient();
    void personalInformation();
    void deleteClient();
    void openRecording();
    void volume();
    void RecordSetting();
    void f0Setting();
    void contents();
    void about();

signals:
    // A recording of the client in work was chosen from its list, to be shown in the view.
    void recordingChosen(int number, FileKind kind);
    // A sound file was chosen by its path (work without a client, or the recent-file list).
    void recordingFileChosen(const QString& path);
    // The files of recording `number` of the client in work were deleted from the recording list.
    void recordingDeleted(int number);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::filesystem::path chooseTakePath(const std::filesystem::path& folder);
    struct FrameCommand {
        int id;
        QAction* action;
        std::string_view text;
        std::string_view tip;
        std::function<bool()> enabledWhen;  // empty: always on
        std::function<bool()> checkedWhen;  // empty: not a checked command
    };

    void createCommands();
    QAction* addCommand(QMenu* menu, int id, std::string_view text, std::string_view tip, const char* icon,
                        std::function<bool()> enabledWhen = {}, std::function<bool()> checkedWhen = {});
    void createMenus();
    void createToolBar();
    void createStatusBar();
    void retranslate();
    void fillRecentFiles();
    void SetLanguageCommand(LanguageId language);
    void openCurrentClient();
    void openOtherFiles();
    void noClient();
    void setDocumentTitle(const QString& title);
    void applyClientTypeRange();
    void tellViewTheClient();
    void updateFrameCommands();
    void openChosenRecording(int number, FileKind kind);
    void openChosenFile(const QString& path);

    CAFApp& m_app;
    Prompt& m_prompt;
    std::filesystem::path m_home;
    std::unique_ptr<CPacienteTable> m_table;
    CAFView* m_view = nullptr;
    MixerVolumes* m_mixer = nullptr;
    QToolBar* m_toolBar = nullptr;
    QLabel* m_busyText = nullptr;
    QLabel* m_ready = nullptr;
    std::vector<FrameCommand> m_commands;
    struct MenuTitle {
        QMenu* menu;
        std::string_view text;
    };
    std::vector<MenuTitle> m_menus;
    QMenu* m_filesMenu = nullptr;
    QAction* m_recentSeparator = nullptr;
    std::vector<QAction*> m_recentActions;
    RecentFileList m_recentFiles;
    QPointer<QWidget> m_help;

    // The sound devices and the single capture and playback engines, made with the frame and lent to the view.
    void createAudioEngines();
    std::unique_ptr<QtWaveInDevice> m_waveIn;
    std::unique_ptr<QtWaveOutDevice> m_waveOut;
    std::unique_ptr<WaveRecorder> m_recorder;
    std::unique_ptr<WavePlayer> m_player;
};
