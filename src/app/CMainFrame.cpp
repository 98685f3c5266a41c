#include "app/CMainFrame.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include "app/CAFApp.h"
#include "app/CAboutDlg.h"
#include "app/DesktopPrograms.h"
#include "app/HelpBrowser.h"
#include "controls/UiText.h"
#include "store/Prompt.h"
#include "view/CAFView.h"

namespace {

// Command numbers, as the rest of the program and its translations know them.
constexpr int kIdOpenClient = 32812;
constexpr int kIdNewClient = 32811;
constexpr int kIdPersonalInformation = 32817;
constexpr int kIdDeleteClient = 1040;
constexpr int kIdExit = 57665;
constexpr int kIdOpenRecording = 32784;
constexpr int kIdVolume = 32843;
constexpr int kIdContents = 32856;
constexpr int kIdAbout = 57664;
constexpr int kIdEnglish = 32891;
constexpr int kIdKorean = 32892;

// Where the working message stands on the frame, in pixels from the tool bar's top left corner.
constexpr QPoint kBusyTextAt(600, 7);
constexpr int kBusyTextWidth = 200;

}  // namespace

CMainFrame::CMainFrame(CAFApp& app, QWidget* parent)
    : QMainWindow(parent), m_app(app), m_prompt(app.prompt()), m_home(app.home()) {
    // A recording that never ended means the screen update rate was too fast for this computer.
    const RecordingMarker marker = TakeRecordingMarker(m_home);
    if (marker.present) RememberedUpdateRateIndex = marker.updateRateIndex;
    if (marker.lastRecordingBroken()) m_prompt.showOk(kNotEndedProperly);

    setWindowIcon(QIcon(":/app/sonalys.svg"));
    m_view = new CAFView(this);
    setCentralWidget(m_view);
    createCommands();
    createToolBar();
    createStatusBar();
    RecordInput = ReadRecordInput(m_home, 0);
    f0Range = F0Range{70, 400};
    setWindowTitle(QGuiApplication::applicationDisplayName());
    UpdateCommands();
}

CMainFrame::~CMainFrame() = default;

bool CMainFrame::isIdle() const { return m_view->isIdle(); }

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
    const auto withClient = [this] { return m_clientCode != -1; };
    const auto idle = [this] { return isIdle(); };
    const auto notRecording = [this] { return !m_view->Recording; };

    auto addMenu = [this](std::string_view title) {
        QMenu* menu = menuBar()->addMenu(QString());
        m_menus.push_back({menu, title});
        connect(menu, &QMenu::aboutToShow, this, &CMainFrame::UpdateCommands);
        return menu;
    };

    QMenu* client = addMenu(kMenuClient);
    addCommand(client, kIdOpenClient, kCommandOpenClient, kTipOpenClient, "client-open");
    addCommand(client, kIdNewClient, kCommandNewClient, kTipNewClient, "client-new");
    addCommand(client, kIdPersonalInformation, kCommandPersonalInformation, kTipPersonalInformation, "client-info",
               withClient);
    addCommand(client, kIdDeleteClient, kCommandDeleteClient, kTipDeleteClient, "client-delete",
               [this] { return m_clientCode != -1 && isIdle(); });
    client->addSeparator();
    QAction* exit = addCommand(client, kIdExit, kCommandExit, kTipExit, nullptr);
    exit->setShortcut(QKeySequence::Quit);
    connect(exit, &QAction::triggered, this, &QWidget::close);

    m_filesMenu = addMenu(kMenuFiles);
    addCommand(m_filesMenu, kIdOpenRecording, kCommandOpenRecording, kTipOpenRecording, "recording-open", withClient);
    m_recentSeparator = m_filesMenu->addSeparator();
    connect(m_filesMenu, &QMenu::aboutToShow, this, &CMainFrame::fillRecentFiles);

    QMenu* settings = addMenu(kMenuSettings);
    connect(addCommand(settings, kIdVolume, kCommandVolume, kTipVolume, nullptr), &QAction::triggered, this,
            &CMainFrame::volume);
    QMenu* language = settings->addMenu(QString());
    m_menus.push_back({language, kMenuLanguage});
    connect(language, &QMenu::aboutToShow, this, &CMainFrame::UpdateCommands);
    connect(addCommand(language, kIdEnglish, kCommandEnglish, kTipEnglish, nullptr, notRecording,
                       [this] { return m_app.languageId() == LanguageId::English; }),
            &QAction::triggered, this, &CMainFrame::languageEnglish);
    connect(addCommand(language, kIdKorean, kCommandKorean, kTipKorean, nullptr, notRecording,
                       [this] { return m_app.languageId() == LanguageId::Korean; }),
            &QAction::triggered, this, &CMainFrame::languageKorean);

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
    if (m_ready != nullptr) m_ready->setText(uiText(kReady));
}

QAction* CMainFrame::command(int id) const {
    for (const FrameCommand& row : m_commands) {
        if (row.id == id) return row.action;
    }
    return nullptr;
}

void CMainFrame::UpdateCommands() {
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
        connect(action, &QAction::triggered, this, [this, path] { emit recentFileChosen(path); });
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
    // No mixer of our own is up: the desktop's volume control takes over.
    if (!StartFirstProgram(VolumeControlPrograms(), m_app.startProgram)) m_prompt.showOk(kVolumeControlFailed);
}

void CMainFrame::contents() {
    if (!m_help) m_help = new HelpBrowser(this);
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void CMainFrame::about() {
    CAboutDlg box(m_app.Licensed, this);
    box.exec();
}

void CMainFrame::languageEnglish() { SetLanguageCommand(LanguageId::English); }
void CMainFrame::languageKorean() { SetLanguageCommand(LanguageId::Korean); }

void CMainFrame::SetLanguageCommand(LanguageId language) {
    if (m_app.languageId() == language) return;
    m_app.setLanguageId(language);
    m_app.SetLanguage();
    retranslate();
    UpdateCommands();
    update();
    WriteLanguage(m_home, language);
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    // A program running with a good licence asks before it goes.
    if (m_app.Licensed && !m_prompt.askYesNo(kExitQuestion)) {
        event->ignore();
        return;
    }
    if (m_help) m_help->close();
    event->accept();
}
