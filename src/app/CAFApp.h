// The application: it brings the program up in its fixed order (language, screen, main window), owns the
// interface language for the whole run, and takes the program down again.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include <QString>
#include <QStringList>
#include <QTranslator>
#include <QtGlobal>

#include "app/CommandLineInfo.h"
#include "app/DesktopPrograms.h"
#include "app/MixerVolumes.h"
#include "app/ScreenCheck.h"
#include "app/SettingsFiles.h"

class CMainFrame;
struct Prompt;

inline constexpr std::string_view kApplicationName = "Sonalys";

class CAFApp {
public:
    // `home` is the data root: the working directory at start-up, where every settings file and client stands.
    CAFApp(std::filesystem::path home, Prompt& prompt);
    ~CAFApp();
    CAFApp(const CAFApp&) = delete;
    CAFApp& operator=(const CAFApp&) = delete;

    // Language, screen check, main window; false when the program must not go on.
    bool InitInstance(const QStringList& arguments);
    // Takes the program down: the main window goes and nothing else is written.
    int ExitInstance();

    // The interface language. The program always starts in English, whatever lang.dat says.
    LanguageId languageId() const { return m_languageId; }
    void setLanguageId(LanguageId language) { m_languageId = language; }
    // Puts the language in force: the locale and the translation that every text passes through.
    void SetLanguage();

    // True if start-up may go on; the screen is measured unless `measured` is given.
    bool CheckScreen();
    bool CheckScreen(const ScreenInfo& measured);

    int ScreenMode = 4;
    int FixedScreenWidth = 0;
    int FixedScreenHeight = 0;
    // There is no licence step in this program: the state is always good.
    bool Licensed = true;
    // How the desktop's settings programs are started.
    ProgramStarter startProgram = StartDetached;
    // How the frame makes its mixer lines; empty for a program that sets no levels of its own.
    MixerVolumes::Factory makeVolume = makeSoundServerVolume;

    const std::filesystem::path& home() const { return m_home; }
    Prompt& prompt() { return m_prompt; }
    CMainFrame* mainFrame() const { return m_frame.get(); }
    const CommandLineInfo& commandLine() const { return m_commandLine; }

private:
    void showMainWindow();

    std::filesystem::path m_home;
    Prompt& m_prompt;
    LanguageId m_languageId = LanguageId::English;
    CommandLineInfo m_commandLine;
    // One translation per language, each loaded at most once and kept for the life of the process.
    QTranslator m_translations[4];
    bool m_translationLoaded[4] = {};
    QTranslator* m_installed = nullptr;
    std::unique_ptr<CMainFrame> m_frame;
};
