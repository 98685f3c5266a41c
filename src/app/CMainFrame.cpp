#include "app/CMainFrame.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include "app/AudioStartBox.h"
#include "app/CAFApp.h"
#include "app/CAboutDlg.h"
#include "app/CAbrirPaciente.h"
#include "app/CAbrirSessao.h"
#include "app/CConfF0.h"
#include "app/CConfGravar.h"
#include "app/CPaciente.h"
#include "app/CVolume.h"
#include "app/DesktopPrograms.h"
#include "app/HelpBrowser.h"
#include "app/MixerVolumes.h"
#include "app/TableText.h"
#include "audio/CrashMarker.h"
#include "audio/QtWaveInDevice.h"
#include "audio/QtWaveOutDevice.h"
#include "audio/SoundSystemExit.h"
#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"
#include "clients/CPacienteTable.h"
#include "controls/FileDialogMemory.h"
#include "controls/UiText.h"
#include "panels/CMyBarra.h"
#include "store/FileLookup.h"
#include "store/Prompt.h"
#include "store/RecordingDeletion.h"
#include "store/TextFormat.h"
#include "view/CAFView.h"

namespace {

// Command numbers, as the rest of the program and its translations know them; those the view's table rules are
// declared with it.
constexpr int kIdOpenClient = 32812;
constexpr int kIdNewClient = 32811;
constexpr int kIdPersonalInformation = 32817;
constexpr int kIdDeleteClient = 1040;
constexpr int kIdExit = 57665;
constexpr int kIdOpenRecording = 32784;
constexpr int kIdVolume = 32843;
constexpr int kIdEnglish = 32891;
constexpr int kIdKorean = 32892;
constexpr int kIdSpanish = 32893;
constexpr int kIdPortuguese = 32894;

// The language commands, in the order of the menu: each sets its language, is checked while that language is in
// force, and is written to lang.dat.
struct LanguageCommand {
    int id;
    LanguageId language;
    std::string_view text;
    std::string_view tip;
};
constexpr LanguageCommand kLanguageCommands[] = {
    {kIdEnglish, LanguageId::English, kCommandEnglish, kTipEnglish},
    {kIdKorean, LanguageId::Korean, kCommandKorean, kTipKorean},
    {kIdSpanish, LanguageId::Spanish, kCommandSpanish, kTipSpanish},
    {kIdPortuguese, LanguageId::Portuguese, kCommandPortuguese, kTipPortuguese},
};

// Where the working message stands on the frame, in pixels from the tool bar's top left corner.
constexpr QPoint kBusyTextAt(600, 7);
constexpr int kBusyTextWidth = 200;

// The view's audio held for the life of a modal dialog, and given back however the dialog ends.
class DialogHold {
public:
    explicit DialogHold(CAFView& view) : m_view(view) { m_view.HoldAudioForDialog(true); }
    ~DialogHold() { m_view.HoldAudioForDialog(false); }
    DialogHold(const DialogHold&) = delete;
    DialogHold& operator=(const DialogHold&) = delete;

private:
    CAFView& m_view;
};

}  // namespace

CMainFrame::CMainFrame(CAFApp& app, QWidget* parent)
    : QMainWindow(parent), m_app(app), m_prompt(app.prompt()), m_home(app.home()) {
    // A recording that never ended means the screen update rate was too fast for this computer.
    RememberedUpdateRateIndex = takeCrashMarker(m_home, m_prompt);

    setWindowIcon(QIcon(":/app/sonalys.svg"));
    m_view = new CAFView(m_prompt, this);
    // The view is laid out for the screen the program runs on, as the start-up check fixed it.
    if (app.FixedScreenWidth > 0 && app.FixedScreenHeight > 0)
        m_view->setScreenSize(QSize(app.FixedScreenWidth, app.FixedScreenHeight));
    setCentralWidget(m_view);
    connect(m_view->document(), &CAFDoc::titleChanged, this, &CMainFrame::setDocumentTitle);
    connect(m_view, &CAFView::commandsChanged, this, &CMainFrame::updateFrameCommands);
    connect(this, &CMainFrame::recordingChosen, this, &CMainFrame::openChosenRecording);
    connect(this, &CMainFrame::recordingFileChosen, this, &CMainFrame::openChosenFile);
    connect(this, &CMainFrame::recordingDeleted, m_view, &CAFView::RecordingDeleted);
    connect(m_view, &CAFView::busyText, this, &CMainFrame::ShowBusyText);
    m_view->setF0RangeSource([this] { return f0Range; });
    m_view->setTakeSaveChooser([this](const std::filesystem::path& folder) { return chooseTakePath(folder); });
    createCommands();
    createToolBar();
    createStatusBar();
    RecordInput = ReadRecordInput(m_home, 0);
    m_view->LineInput = RecordInput == kLineInput;
    m_mixer = new MixerVolumes(this);
    SetUpMixerWithWaitBox(*m_mixer, app.makeVolume, RecordInput, m_prompt, this);
    m_mixer->attachSlider(MixerLine::Master, *m_view->masterSlider());
    m_mixer->attachSlider(MixerLine::Input, *m_view->inputSlider());
    f0Range = kStartF0Range;
    CurrentClient = PacienteRecord{};
    // A first start in an empty data root simply has an empty client base.
    m_table = std::make_unique<CPacienteTable>(m_home, m_prompt);
    m_table->SetFileName(std::string(kClientTableName));
    if (!m_table->TableExists()) m_table->CreateTable();
    setDocumentTitle(QString());
    createAudioEngines();
    UpdateCommands();
}

CMainFrame::~CMainFrame() {
    m_view->setAudioEngines(nullptr, nullptr);
    // The wave line holds the playback stream's volume: it goes before the device does.
    delete m_mixer;
    m_mixer = nullptr;
    // A stream closed just before the end must be answered by the sound server before the process goes.
    const bool soundUsed = m_recorder->finishState() != 0 || m_recorder->deviceOpen() || m_player->deviceOpen();
    m_player.reset();
    m_recorder.reset();
    m_waveOut.reset();
    m_waveIn.reset();
    if (soundUsed) letSoundSystemSettle();
}

void CMainFrame::createAudioEngines() {
    m_waveIn = std::make_unique<QtWaveInDevice>();
    m_waveOut = std::make_unique<QtWaveOutDevice>();
    m_recorder = std::make_unique<WaveRecorder>(*m_waveIn, m_prompt, m_home);
    m_player = std::make_unique<WavePlayer>(*m_waveOut, m_prompt);
    m_view->setAudioEngines(m_recorder.get(), m_player.get());
    m_mixer->SetPlaybackStream(*m_waveOut);
    // The Update Rate left by a recording that never ended.
    m_view->spectrogramPanel()->SetUpdateRateIndex(RememberedUpdateRateIndex);
}

bool CMainFrame::isIdle() const { return m_view->isIdle(); }

LanguageId CMainFrame::languageId() const { return m_app.languageId(); }

std::filesystem::path CMainFrame::clientFolderPath() const {
    return findFileIgnoringCase(ClientFolder{m_home, CurrentClient.Codigo}.path());
}

// The view opens the client's recordings and titles its document with the client's name.
void CMainFrame::tellViewTheClient() {
    const QString name =
        CurrentClient.Codigo == kNoClient ? QString() : TableTextToScreen(recordText(CurrentClient.Nome), languageId());
    m_view->setCurrentClient(ClientFolder{m_home, CurrentClient.Codigo}, name);
}

void CMainFrame::openChosenRecording(int number, FileKind kind) {
    m_view->OpenRecording(static_cast<int>(kind), number);
    UpdateCommands();
}

void CMainFrame::openChosenFile(const QString& path) {
    if (m_view->OpenRecordingFile(std::filesystem::path(path.toStdString())) == 1) m_recentFiles.add(path);
    UpdateCommands();
}

void CMainFrame::setDocumentTitle(const QString& title) {
    const QString program = QGuiApplication::applicationDisplayName();
    setWindowTitle(title.isEmpty() ? program : title + " - " + program);
}

void CMainFrame::applyClientTypeRange() {
    if (CurrentClient.Codigo == OutsideClientCode) {
        f0Range = kOutsideClientF0Range;
    } else if (const auto range = ClientTypeRange(CurrentClient.Tipo)) {
        f0Range = *range;
    } else {
        m_prompt.showOk(kUndefinedType);
    }
    m_view->F0RangeChanged();
}

// Back to no client: the client commands go off and the view shows nothing.
void CMainFrame::noClient() {
    CurrentClient = PacienteRecord{};
    tellViewTheClient();
    setDocumentTitle(QString());
    m_view->ShowEmpty();
    UpdateCommands();
}

void CMainFrame::openClient() {
    CAbrirPaciente list(*this);
    const int chosen = [&] {
        const DialogHold hold(*m_view);
        return list.exec();
    }();
    switch (chosen) {
    case CAbrirPaciente::ClientChosen: openCurrentClient(); break;
    case CAbrirPaciente::NewClientChosen: newClient(); break;
    case CAbrirPaciente::OtherFilesChosen: openOtherFiles(); break;
    default: break;
    }
    UpdateCommands();
}

// Makes CurrentClient the client in work, once its folder is found.
void CMainFrame::openCurrentClient() {
    std::error_code error;
    if (!std::filesystem::is_directory(clientFolderPath(), error)) {
        m_prompt.showOk(kErrorAccessingClientFolder);
        noClient();
        return;
    }
    tellViewTheClient();
    m_view->ShowEmpty();
    setDocumentTitle(TableTextToScreen(recordText(CurrentClient.Nome), languageId()));
    UpdateCommands();
    applyClientTypeRange();
}

void CMainFrame::openOtherFiles() {
    const auto folder = findFileIgnoringCase(m_home / std::string(kOtherFilesFolder));
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    CurrentClient = PacienteRecord{};
    CurrentClient.Codigo = OutsideClientCode;
    setRecordText(CurrentClient.Nome, ScreenTextToTable(uiText(kDefaultClientName), languageId()));
    openCurrentClient();
}

void CMainFrame::newClient() {
    m_table->LoadClients();
    PacienteRecord proposed;
    proposed.Codigo = m_table->NextFreeCode();
    // The form makes the new client the client in work when it is inserted.
    CPaciente form(CPaciente::InsertMode, proposed, *m_table, CurrentClient, m_home, languageId(), m_prompt, this);
    if (form.exec() == QDialog::Accepted) openCurrentClient();
}

void CMainFrame::personalInformation() {
    if (CurrentClient.Codigo == OutsideClientCode) {
        m_prompt.showOk(kNoPersonalInformationOutside);
        return;
    }
    m_table->LoadClients(formatText("CODIGO = %d", CurrentClient.Codigo));
    if (m_table->Count() == 0) {
        m_prompt.showOk(kClientNoLongerInTable);
        return;
    }
    CPaciente form(CPaciente::EditMode, m_table->EntryAt(0)->record, *m_table, CurrentClient, m_home, languageId(),
                   m_prompt, this);
    const DialogHold hold(*m_view);
    if (form.exec() != QDialog::Accepted) return;
    CurrentClient = form.record();
    applyClientTypeRange();
    tellViewTheClient();
    setDocumentTitle(TableTextToScreen(recordText(CurrentClient.Nome), languageId()));
    m_view->update();
}

void CMainFrame::deleteClient() {
    if (CurrentClient.Codigo == kNoClient || !m_prompt.askYesNo(kConfirmDeleteClient)) return;
    const bool outside = CurrentClient.Codigo == OutsideClientCode;
    int recordNumber = -1;
    if (!outside) {
        // Only the row of this very code is deleted; when it has gone meanwhile, nothing is touched.
        recordNumber = m_table->LoadClients(formatText("CODIGO = %d", CurrentClient.Codigo));
        if (recordNumber < 0) return;
        if (m_table->Count() == 0) {
            m_prompt.showOk(kClientNoLongerInTable);
            return;
        }
    }
    const auto folder = clientFolderPath();
    setDocumentTitle(QString());
    m_view->ShowEmpty();
    std::error_code error;
    if (std::filesystem::is_directory(folder, error)) {
        DeleteMatchingFiles(folder, kClientMenuDeletePatterns);
        if (!std::filesystem::remove(folder, error) || error) m_prompt.showOk(kClientFolderNotDeleted);
    }
    if (!outside) m_table->DeleteClient(recordNumber);
    noClient();
}

void CMainFrame::ClientWasDeleted() { noClient(); }

void CMainFrame::ClientWasChanged(const PacienteRecord& client) {
    CurrentClient = client;
    applyClientTypeRange();
    tellViewTheClient();
    setDocumentTitle(TableTextToScreen(recordText(CurrentClient.Nome), languageId()));
}

void CMainFrame::openRecording() {
    if (CurrentClient.Codigo == kNoClient) return;
    if (CurrentClient.Codigo == OutsideClientCode) {
        const FileDialogMemoryGuard forget;
        const QString path = QFileDialog::getOpenFileName(
            this, QString(), QString::fromStdString(clientFolderPath().string()), uiText(kSoundFileFilter));
        if (!path.isEmpty()) emit recordingFileChosen(path);
        return;
    }
    CAbrirSessao list(CurrentClient, m_home, languageId(), m_prompt, false, this);
    connect(&list, &CAbrirSessao::recordingDeleted, this, &CMainFrame::recordingDeleted);
    const int chosen = [&] {
        const DialogHold hold(*m_view);
        return list.exec();
    }();
    if (chosen == CAbrirSessao::RecordingChosen) {
        emit recordingChosen(list.RecordingNumber(), list.Kind());
    } else {
        setDocumentTitle(TableTextToScreen(recordText(CurrentClient.Nome), languageId()));
    }
    UpdateCommands();
}

QAction* CMainFrame::addCommand(QMenu* menu, int id, std::string_view text, std::string_view tip, const char* icon,
                                std::function<bool()> enabledWhen, std::function<bool()> checkedWhen) {
    auto* action = new QAction(this);
    action->setObjectName(QStringLiteral("command%1").arg(id));
    if (icon != nullptr) action->setIcon(QIcon(QString(":/app/%1.svg").arg(QLatin1String(icon))));
    action->setCheckable(static_cast<bool>(checkedWhen));
    menu->addAction(action);
    m_commands.push_back({id, action, text, tip, std::move(enabledWhen), std::move(checkedWhen)});
    return action;
}

void CMainFrame::createCommands() {
    const auto withClient = [this] { return CurrentClient.Codigo != kNoClient; };
    const auto idle = [this] { return isIdle(); };
    const auto notRecording = [this] { return !m_view->Recording; };

    auto addMenu = [this](std::string_view title) {
        QMenu* menu = menuBar()->addMenu(QString());
        m_menus.push_back({menu, title});
        connect(menu, &QMenu::aboutToShow, this, &CMainFrame::UpdateCommands);
        return menu;
    };

    QMenu* client = addMenu(kMenuClient);
    connect(addCommand(client, kIdOpenClient, kCommandOpenClient, kTipOpenClient, "client-open"), &QAction::triggered,
            this, &CMainFrame::openClient);
    connect(addCommand(client, kIdNewClient, kCommandNewClient, kTipNewClient, "client-new"), &QAction::triggered, this,
            &CMainFrame::newClient);
    connect(addCommand(client, kIdPersonalInformation, kCommandPersonalInformation, kTipPersonalInformation,
                       "client-info", withClient),
            &QAction::triggered, this, &CMainFrame::personalInformation);
    connect(addCommand(client, kIdDeleteClient, kCommandDeleteClient, kTipDeleteClient, "client-delete",
                       [this] { return CurrentClient.Codigo != kNoClient && isIdle(); }),
            &QAction::triggered, this, &CMainFrame::deleteClient);
    client->addSeparator();
    QAction* exit = addCommand(client, kIdExit, kCommandExit, kTipExit, nullptr);
    exit->setShortcut(QKeySequence::Quit);
    connect(exit, &QAction::triggered, this, &QWidget::close);

    m_filesMenu = addMenu(kMenuFiles);
    connect(addCommand(m_filesMenu, kIdOpenRecording, kCommandOpenRecording, kTipOpenRecording, "recording-open",
                       withClient),
            &QAction::triggered, this, &CMainFrame::openRecording);
    m_recentSeparator = m_filesMenu->addSeparator();
    connect(m_filesMenu, &QMenu::aboutToShow, this, &CMainFrame::fillRecentFiles);

    // The pages and the zoom are the view's commands, with the view's rules for when they work.
    QMenu* mode = addMenu(kMenuMode);
    mode->addAction(m_view->action(kIdShowSpectrogram));
    mode->addAction(m_view->action(kIdShowSpectrum));
    mode->addSeparator();
    mode->addAction(m_view->action(kIdZoom));
    mode->addSeparator();
    mode->addAction(m_view->action(kIdPlay));
    mode->addAction(m_view->action(kIdRecord));

    QMenu* settings = addMenu(kMenuSettings);
    connect(addCommand(settings, kIdVolume, kCommandVolume, kTipVolume, nullptr), &QAction::triggered, this,
            &CMainFrame::volume);
    connect(addCommand(settings, kIdRecordSettings, FindViewCommand(kIdRecordSettings)->text, kTipRecordSettings,
                       nullptr, notRecording),
            &QAction::triggered, this, &CMainFrame::RecordSetting);
    connect(addCommand(settings, kIdF0Setting, kCommandF0Setting, kTipF0Setting, nullptr, idle), &QAction::triggered,
            this, &CMainFrame::f0Setting);
    QMenu* language = settings->addMenu(QString());
    m_menus.push_back({language, kMenuLanguage});
    connect(language, &QMenu::aboutToShow, this, &CMainFrame::UpdateCommands);
    for (const LanguageCommand& row : kLanguageCommands) {
        const LanguageId id = row.language;
        connect(addCommand(language, row.id, row.text, row.tip, nullptr, notRecording,
                           [this, id] { return m_app.languageId() == id; }),
                &QAction::triggered, this, [this, id] { SetLanguageCommand(id); });
    }

    QMenu* help = addMenu(kMenuHelp);
    QAction* contents = addCommand(help, kIdContents, kCommandContents, kTipContents, "help", idle);
    contents->setShortcut(QKeySequence::HelpContents);
    connect(contents, &QAction::triggered, this, &CMainFrame::contents);
    help->addSeparator();
    connect(addCommand(help, kIdAbout, kCommandAbout, kTipAbout, "about", idle), &QAction::triggered, this,
            &CMainFrame::about);
    retranslate();
}

void CMainFrame::createToolBar() {
    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName("mainToolBar");
    m_toolBar->setIconSize(QSize(24, 24));
    for (const int id : {kIdOpenClient, kIdNewClient, kIdPersonalInformation, kIdOpenRecording}) {
        m_toolBar->addAction(command(id));
    }
    m_toolBar->addAction(m_view->action(kIdZoom));
    m_toolBar->addSeparator();
    m_toolBar->addAction(command(kIdContents));
    m_toolBar->addAction(command(kIdAbout));
    // The working message is written on the tool bar's band, over nothing but its background.
    m_busyText = new QLabel(m_toolBar);
    m_busyText->setObjectName("busyText");
    m_busyText->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_busyText->move(kBusyTextAt);
    m_busyText->resize(kBusyTextWidth, m_busyText->fontMetrics().height());
    m_busyText->hide();
}

void CMainFrame::createStatusBar() {
    m_ready = new QLabel(statusBar());
    statusBar()->addWidget(m_ready, 1);
    m_ready->setText(uiText(kReady));
}

void CMainFrame::retranslate() {
    for (const MenuTitle& menu : m_menus) menu.menu->setTitle(uiText(menu.text));
    for (const FrameCommand& row : m_commands) {
        row.action->setText(uiText(row.text));
        row.action->setStatusTip(uiText(row.tip));
        row.action->setToolTip(uiText(row.tip));
    }
    if (m_toolBar != nullptr) m_toolBar->setWindowTitle(uiText(kMenuFiles).remove('&'));
    m_view->retranslate();
    if (m_ready != nullptr) m_ready->setText(uiText(kReady));
    if (auto* help = qobject_cast<HelpBrowser*>(m_help.data())) help->setLanguage(m_app.languageId());
}

QAction* CMainFrame::command(int id) const {
    for (const FrameCommand& row : m_commands) {
        if (row.id == id) return row.action;
    }
    return nullptr;
}

void CMainFrame::UpdateCommands() {
    m_view->UpdateCommands();  // which brings the frame's own commands along
}

void CMainFrame::updateFrameCommands() {
    for (const FrameCommand& row : m_commands) {
        row.action->setEnabled(!row.enabledWhen || row.enabledWhen());
        if (row.checkedWhen) row.action->setChecked(row.checkedWhen());
    }
}

void CMainFrame::fillRecentFiles() {
    for (QAction* action : m_recentActions) delete action;
    m_recentActions.clear();
    const QStringList files = m_recentFiles.files();
    m_recentSeparator->setVisible(!files.isEmpty());
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString path = files[i];
        auto* action = new QAction(QString("&%1 %2").arg(i + 1).arg(QDir::toNativeSeparators(path)), m_filesMenu);
        action->setEnabled(isIdle());
        connect(action, &QAction::triggered, this, [this, path] { emit recordingFileChosen(path); });
        m_filesMenu->addAction(action);
        m_recentActions.push_back(action);
    }
}

void CMainFrame::ShowBusyText(const QString& text) {
    if (text.size() < 2) {
        m_busyText->clear();
        m_busyText->hide();
    } else {
        m_busyText->setText(text);
        m_busyText->resize(std::max(kBusyTextWidth, m_busyText->sizeHint().width()), m_busyText->height());
        m_busyText->show();
        m_busyText->raise();
    }
    // The message is written while the program works without returning to its event loop, so it is drawn now.
    m_busyText->repaint();
    m_toolBar->repaint();
}

QString CMainFrame::busyText() const { return m_busyText->isVisible() ? m_busyText->text() : QString(); }

void CMainFrame::volume() {
    // Without the master level no mixer of our own is up: the desktop's volume control takes over.
    if (m_mixer->line(MixerLine::Master) == nullptr) {
        if (!StartFirstProgram(VolumeControlPrograms(), m_app.startProgram)) m_prompt.showOk(kVolumeControlFailed);
        return;
    }
    {
        const DialogHold hold(*m_view);
        CVolume dialog(*m_mixer, RecordInput, this);
        dialog.exec();
    }
    raise();
    activateWindow();
    setFocus();
}

void CMainFrame::RecordSetting() {
    const DialogHold hold(*m_view);
    CConfGravar dialog(RecordInput, this);
    if (dialog.exec() != QDialog::Accepted) return;
    RecordInput = ApplyRecordInput(RecordInput, dialog.Input(), *m_mixer, m_prompt, m_home);
    m_view->LineInput = RecordInput == kLineInput;
    m_view->update();
}

void CMainFrame::f0Setting() {
    {
        const DialogHold hold(*m_view);
        CConfF0 box(f0Range, m_prompt, this);
        if (box.exec() != QDialog::Accepted) return;
        f0Range = box.range();
    }
    m_view->F0RangeChanged();
}

void CMainFrame::contents() {
    if (!m_help) m_help = new HelpBrowser(m_app.languageId(), this);
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void CMainFrame::about() {
    CAboutDlg box(m_app.Licensed, this);
    box.exec();
}

void CMainFrame::SetLanguageCommand(LanguageId language) {
    if (m_app.languageId() == language) return;
    m_app.setLanguageId(language);
    m_app.SetLanguage();
    retranslate();
    UpdateCommands();
    update();
    WriteLanguage(m_home, language);
}

// Where a take made without a client is kept: a save dialog that starts in the folder for such work.
std::filesystem::path CMainFrame::chooseTakePath(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    QFileDialog dialog(this, QString(), QString::fromStdString(folder.string()), uiText(kSoundFileFilter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("wav"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return std::filesystem::path(dialog.selectedFiles().constFirst().toStdString());
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    // A program running with a good licence asks before it goes.
    if (m_app.Licensed && !m_prompt.askYesNo(kExitQuestion)) {
        event->ignore();
        return;
    }
    if (m_help) m_help->close();
    m_view->StopAudio();
    event->accept();
}
