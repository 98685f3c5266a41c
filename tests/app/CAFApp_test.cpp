#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QTextBrowser>

#include "FakePrompt.h"
#include "ModalDriver.h"
#include "ProgramOnRoot.h"
#include "TempDir.h"
#include "app/CAFApp.h"
#include "app/CAboutDlg.h"
#include "app/CMainFrame.h"
#include "app/CSplashWnd.h"
#include "app/HelpBrowser.h"
#include "app/MessageBoxPrompt.h"
#include "app/RecentFileList.h"
#include "app/ScreenCheck.h"
#include "audio/CrashMarker.h"
#include "view/CAFView.h"

namespace {

std::string le32(std::uint32_t v) {
    return {static_cast<char>(v), static_cast<char>(v >> 8), static_cast<char>(v >> 16), static_cast<char>(v >> 24)};
}

}  // namespace

class CAFAppTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void startsInEnglishWhateverLangDatSays();
    void recentFilesKeepTheLastFourNewestFirst();
    void brokenRecordingWarnsOnceAndKeepsTheUpdateRate();
    void theScreenIsCheckedAndAPoorOneStopsTheStart();
    void fixedSizeLargerThanTheScreenIsRefusedButStartGoesOn();
    void splashStaysCentredAndClosesOnAKeyAClickOrAfterTwoSeconds();
    void languageCommandsWriteLangDatAndFollowTheRecording();
    void exitAsksFirstAndTheStatusBarShowsBusyTexts();
    void aboutBoxShowsVersionAndMemory();
    void messageBoxIsTitledWithTheProgramsName();
    void contentsOpensTheUserGuideWhoseLinksAllResolve();
};

void CAFAppTest::startsInEnglishWhateverLangDatSays() {
    for (const std::string& contents : {le32(2), std::string()}) {
        TempDir home;
        if (!contents.empty()) home.write("lang.dat", contents);
        ProgramOnRoot program(home.path());
        QCOMPARE(program.app->languageId(), LanguageId::English);
        QVERIFY(program.frame().command(32891)->isChecked());
        QVERIFY(!program.frame().command(32892)->isChecked());
        // Reading does not write: the file stays as it was, or absent.
        QCOMPARE(home.read("lang.dat"), contents);
        QVERIFY(program.prompt.shown.empty());
        // A first start in an empty data root makes the client table without a word.
        QVERIFY(std::filesystem::exists(home / "pacb.dbf"));
        // Out of the maximised state the window is still large enough for the small layout.
        program.frame().showNormal();
        QVERIFY(program.frame().width() >= 800 && program.frame().height() >= 600);
    }
}

void CAFAppTest::recentFilesKeepTheLastFourNewestFirst() {
    QSettings(kProfileOrganization, kProfileApplication).clear();
    RecentFileList recent;
    for (const char* path : {"/a/1.wav", "/a/2.wav", "/a/3.wav", "/a/4.wav", "/a/5.wav", "/a/3.wav"}) recent.add(path);
    recent.remove("/a/5.wav");
    QCOMPARE(RecentFileList().files(), QStringList({"/a/3.wav", "/a/4.wav", "/a/2.wav"}));  // kept in the profile
    // The Files menu lists them; choosing one hands its path on.
    TempDir home;
    ProgramOnRoot program(home.path());
    auto* files = qobject_cast<QMenu*>(program.frame().command(32784)->associatedObjects().value(0));
    emit files->aboutToShow();
    QSignalSpy chosen(&program.frame(), &CMainFrame::recordingFileChosen);
    for (QAction* action : files->actions())
        if (action->text() == "&1 /a/3.wav") action->trigger();
    QCOMPARE(chosen.value(0).value(0).toString(), QString("/a/3.wav"));
    QSettings(kProfileOrganization, kProfileApplication).clear();
}

void CAFAppTest::brokenRecordingWarnsOnceAndKeepsTheUpdateRate() {
    for (const std::uint32_t ended : {0u, 1u}) {
        TempDir home;
        home.write("sy1.log", le32(ended) + le32(2 + ended));
        ProgramOnRoot program(home.path());
        QCOMPARE(program.prompt.shown.size(), std::size_t(ended == 0 ? 1 : 0));
        QCOMPARE(program.prompt.shown.empty() ? "" : program.prompt.last(),
                 ended == 0 ? std::string(kNotEndedProperly) : "");
        QCOMPARE(program.frame().RememberedUpdateRateIndex, int(2 + ended));
        QVERIFY(!std::filesystem::exists(home / "sy1.log"));
    }
}

void CAFAppTest::theScreenIsCheckedAndAPoorOneStopsTheStart() {
    TempDir home;
    FakePrompt prompt;
    CAFApp app(home.path(), prompt);
    app.startProgram = [](const QString&, const QStringList&) { return false; };
    QStringList lines;
    ModalDriver::whenModal([&](QWidget* modal) {
        lines << modal->windowTitle();
        for (const QLabel* label : modal->findChildren<QLabel*>()) lines << label->text();
        qobject_cast<QDialog*>(modal)->reject();  // No
    });
    QVERIFY(!app.CheckScreen(ScreenInfo{4, 1024, 768}));
    QCOMPARE(lines,
             QStringList({"Attention!", "Sonalys needs a different video resolution !",
                          "Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels",
                          "Colors: High Color (16 bits) or better", "Do you want to change the configuration now ?"}));
    // A size between the two layouts asks for another; a size either layout serves is kept.
    QVERIFY(!app.CheckScreen(ScreenInfo{32, 1000, 700}));
    QCOMPARE(prompt.shown,
             (std::vector<std::string>{"The screen resolution is higher than the options available!\nPlease select the "
                                       "option 800 x 600, 1024 x 768 ou 1280 x 800 in the next screen!",
                                       "Error Loading Video Setting Program!"}));
    QVERIFY(app.CheckScreen(ScreenInfo{32, 1152, 864}));
    QCOMPARE(QSize(app.FixedScreenWidth, app.FixedScreenHeight), QSize(1152, 864));
}

void CAFAppTest::fixedSizeLargerThanTheScreenIsRefusedButStartGoesOn() {
    TempDir home;
    home.write("conf.dat", le32(3));  // 1280 x 1024, larger than the test screen
    ProgramOnRoot program(home.path());
    QCOMPARE(program.app->FixedScreenWidth, 1280);
    QCOMPARE(program.app->FixedScreenHeight, 1024);
    QCOMPARE(program.prompt.shown, std::vector<std::string>{"It´s not possible to set the resolution!"});
    QVERIFY(program.frame().isVisible());
}

void CAFAppTest::splashStaysCentredAndClosesOnAKeyAClickOrAfterTwoSeconds() {
    QWidget window;
    auto* edit = new QLineEdit(&window);
    window.setGeometry(40, 30, 800, 600);
    window.show();
    edit->setFocus();
    QPointer<CSplashWnd> splash = CSplashWnd::ShowSplashScreen(&window, LanguageId::English);
    const auto centred = [&] {
        return QRect(splash->mapToGlobal(QPoint(0, 0)), splash->size()).center() ==
               QRect(window.mapToGlobal(QPoint(0, 0)), window.size()).center();
    };
    QVERIFY(splash->isVisible() && centred());
    window.setGeometry(0, 0, 1200, 900);  // maximised once the desktop has placed it
    QVERIFY(centred());
    QTest::keyClick(edit, Qt::Key_A);
    QTRY_VERIFY(splash.isNull());
    QCOMPARE(edit->text(), QString());  // the key that closed the splash typed nothing
    QTest::keyClick(edit, Qt::Key_B);
    QCOMPARE(edit->text(), QString("b"));
    splash = CSplashWnd::ShowSplashScreen(&window, LanguageId::English);
    QTest::mouseClick(&window, Qt::LeftButton);
    QTRY_VERIFY(splash.isNull());
    splash = CSplashWnd::ShowSplashScreen(&window, LanguageId::English);
    QTest::qWait(1500);
    QVERIFY(!splash.isNull());
    QTRY_VERIFY_WITH_TIMEOUT(splash.isNull(), 2000);
}

void CAFAppTest::languageCommandsWriteLangDatAndFollowTheRecording() {
    TempDir home;
    ProgramOnRoot program(home.path());
    CMainFrame* frame = &program.frame();
    QAction* english = frame->command(32891);
    QAction* korean = frame->command(32892);
    english->trigger();  // already English: nothing is written
    QVERIFY(!std::filesystem::exists(home / "lang.dat"));
    korean->trigger();
    QCOMPARE(program.app->languageId(), LanguageId::Korean);
    QCOMPARE(home.read("lang.dat"), le32(2));
    QVERIFY(korean->isChecked() && !english->isChecked());
    // The translations ship inside the program, where the language commands look for them.
    for (const char* language : {"es", "ko", "pt"})
        QVERIFY(QFile::exists(QString(":/i18n/sonalys_%1.qm").arg(language)));
    frame->view()->Recording = true;
    frame->UpdateCommands();
    QVERIFY(!english->isEnabled() && !korean->isEnabled());
}

void CAFAppTest::exitAsksFirstAndTheStatusBarShowsBusyTexts() {
    TempDir home;
    ProgramOnRoot program(home.path());
    CMainFrame& frame = program.frame();
    frame.ShowBusyText("Calculating F0...");
    QCOMPARE(frame.busyText(), QString("Calculating F0..."));
    frame.ShowBusyText(" ");  // under two characters: the text goes
    QCOMPARE(frame.busyText(), QString());
    // Without a desktop mixer the volume command says so.
    frame.command(32843)->trigger();
    QCOMPARE(program.prompt.shown, std::vector<std::string>{"Volume Control can´t be  can´t be Inicialized!"});
    program.prompt.answers = {false, true};
    frame.close();
    QVERIFY(frame.isVisible());
    QCOMPARE(program.prompt.last(), std::string("Are you sure you want to exit?"));
    frame.close();
    QVERIFY(!frame.isVisible());
}

void CAFAppTest::aboutBoxShowsVersionAndMemory() {
    QCOMPARE(VersionLine(true), QString("Sonalys version 4.2"));
    QCOMPARE(VersionLine(false), QString("Sonalys Trial Version"));
    QCOMPARE(MemoryText(2048), QString("2048,0 MB"));
}

void CAFAppTest::messageBoxIsTitledWithTheProgramsName() {
    TempDir home;
    FakePrompt unused;
    CAFApp app(home.path(), unused);  // names the application
    MessageBoxPrompt prompt;
    QString title;
    QString text;
    ModalDriver::answerMessageBox(QMessageBox::Ok, &title, &text);
    prompt.showOk("Select a file!");
    QCOMPARE(title + "|" + text, QString("Sonalys|Select a file!"));
}

void CAFAppTest::contentsOpensTheUserGuideWhoseLinksAllResolve() {
    TempDir home;
    ProgramOnRoot program(home.path());
    program.frame().command(32856)->trigger();
    auto* help = program.frame().findChild<HelpBrowser*>();
    QVERIFY(help != nullptr && help->browser()->toPlainText().contains("Sonalys user guide"));
    // Every link and picture of every page shipped is found inside the program.
    const QRegularExpression reference(R"re((?:href|src)="([^"#]+)")re");
    int checked = 0;
    for (const QString& page : QDir(":/help").entryList({"*.html"})) {
        QFile file(":/help/" + page);
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (auto match = reference.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext(); ++checked) {
            const QString target = match.next().captured(1);
            const QString resource = target.startsWith("qrc:") ? target.mid(3) : ":/help/" + target;
            QVERIFY2(QFile::exists(resource), qPrintable(page + " -> " + target));
        }
    }
    QVERIFY(checked > 15);
}

QTEST_MAIN(CAFAppTest)
#include "CAFApp_test.moc"
