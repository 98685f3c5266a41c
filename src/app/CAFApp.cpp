#include "app/CAFApp.h"

#include <algorithm>

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QScreen>

#include "app/CConfiguraCores.h"
#include "app/CMainFrame.h"
#include "app/CSplashWnd.h"
#include "store/Prompt.h"

namespace {

// The locale and translation of each language, by LanguageId. Portuguese keeps the system's locale.
struct LanguageResources {
    const char* locale;       // empty: leave the locale as it is
    const char* translation;  // empty: the program's own English texts
};
constexpr LanguageResources kLanguageResources[4] = {
    {"en_US", ""}, {"es_ES", "sonalys_es"}, {"ko_KR", "sonalys_ko"}, {"", "sonalys_pt"}};

}  // namespace

CAFApp::CAFApp(std::filesystem::path home, Prompt& prompt) : m_home(std::move(home)), m_prompt(prompt) {
    const QString name = QString::fromUtf8(kApplicationName.data(), static_cast<qsizetype>(kApplicationName.size()));
    QApplication::setApplicationName(name);
    QApplication::setApplicationDisplayName(name);
    QApplication::setWindowIcon(QIcon(":/app/sonalys.svg"));
}

CAFApp::~CAFApp() {
    m_frame.reset();
    if (m_installed != nullptr) QCoreApplication::removeTranslator(m_installed);
}

bool CAFApp::InitInstance(const QStringList& arguments) {
    m_commandLine = ParseCommandLine(arguments);
    // lang.dat is read, and then the program starts in English regardless: a language chosen in the menu lasts
    // until the program ends, and the next start is English again.
    m_languageId = ReadLanguage(m_home);
    m_languageId = LanguageId::English;
    SetLanguage();
    if (!CheckScreen()) return false;
    m_frame = std::make_unique<CMainFrame>(*this);
    showMainWindow();
    return true;
}

int CAFApp::ExitInstance() {
    m_frame.reset();
    return 0;
}

void CAFApp::SetLanguage() {
    const int index = static_cast<int>(m_languageId);
    if (index < 0 || index > 3) return;
    const LanguageResources& resources = kLanguageResources[index];
    if (*resources.locale != '\0') QLocale::setDefault(QLocale(QString::fromLatin1(resources.locale)));
    if (m_installed != nullptr) {
        QCoreApplication::removeTranslator(m_installed);
        m_installed = nullptr;
    }
    if (*resources.translation == '\0') return;
    if (!m_translationLoaded[index]) {
        // A language whose translation is not shipped yet shows the English texts.
        m_translationLoaded[index] = m_translations[index].load(QString::fromLatin1(resources.translation), ":/i18n");
    }
    if (m_translationLoaded[index] && QCoreApplication::installTranslator(&m_translations[index])) {
        m_installed = &m_translations[index];
    }
}

bool CAFApp::CheckScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return CheckScreen(ScreenInfo{});
    return CheckScreen(ScreenInfo{screen->depth(), screen->size().width(), screen->size().height()});
}

bool CAFApp::CheckScreen(const ScreenInfo& measured) {
    ScreenMode = ReadScreenMode(m_home);
    if (const auto fixed = FixedSizeOfScreenMode(ScreenMode)) {
        // The display is never switched: the fixed size is what the main window is given (see showMainWindow).
        FixedScreenWidth = fixed->width;
        FixedScreenHeight = fixed->height;
        return true;
    }
    switch (JudgeScreen(measured)) {
    case ScreenVerdict::Fits:
        FixedScreenWidth = measured.width;
        FixedScreenHeight = measured.height;
        return true;
    case ScreenVerdict::NeedsOtherResolution: {
        CConfiguraCores box;
        if (box.exec() == QDialog::Accepted && !StartFirstProgram(DisplaySettingsPrograms(), startProgram)) {
            m_prompt.showOk(kNoDisplaySettingsProgram);
        }
        return false;
    }
    case ScreenVerdict::BetweenTheLayouts:
        m_prompt.showOk(kResolutionBetweenLayouts);
        if (!StartFirstProgram(DisplaySettingsPrograms(), startProgram)) m_prompt.showOk(kVideoProgramFailed);
        return false;
    }
    return false;
}

void CAFApp::showMainWindow() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize whole = screen != nullptr ? screen->size() : QSize();
    const QRect available = screen != nullptr ? screen->availableGeometry() : QRect();
    const bool wished = FixedSizeOfScreenMode(ScreenMode).has_value();
    // A maximised window remembers the size it had before; without one it would fall back to a tiny one.
    if (!available.isEmpty()) m_frame->setGeometry(RestoredWindowGeometry(available));
    if (wished && (whole.width() < FixedScreenWidth || whole.height() < FixedScreenHeight)) {
        m_prompt.showOk(kCannotSetResolution);
        m_frame->showMaximized();
    } else if (wished && (available.width() > FixedScreenWidth || available.height() > FixedScreenHeight)) {
        const QSize size(std::min(FixedScreenWidth, available.width()),
                         std::min(FixedScreenHeight, available.height()));
        m_frame->resize(size);
        m_frame->move(available.center() - QPoint(size.width() / 2, size.height() / 2));
        m_frame->show();
    } else {
        m_frame->showMaximized();
    }
    if (m_commandLine.showSplash) CSplashWnd::ShowSplashScreen(m_frame.get(), m_languageId);
}
