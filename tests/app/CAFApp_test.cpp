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
#include <fstream>

#include "FakePrompt.h"
#include "ModalDriver.h"
#include "ProgramOnRoot.h"
#include "TempDir.h"
#include "app/CAFApp.h"
#include "app/CAboutDlg.h"
#include "app/CConfiguraCores.h"
#include "app/CMainFrame.h"
#include "app/CSplashWnd.h"
#include "app/HelpBrowser.h"
#include "app/MessageBoxPrompt.h"
#include "app/RecentFileList.h"
#include "app/ScreenCheck.h"
#include "app/SystemInfo.h"
#include "audio/CrashMarker.h"
#include "controls/UiText.h"
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
    void aboutBoxShowsVersionMemoryAndSystem();
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
    for (const char* path : {"/a/1.wav", "/a/2.wav", "/a/3.wav", "/a/4.wav", "/a/5.wav"}) recent.add(path);
    QCOMPARE(recent.files(), QStringList({"/a/5.wav", "/a/4.wav", "/a/3.wav", "/a/2.wav"}));
    recent.add("/a/3.wav");  // opened again: moves up, not twice
    QCOMPARE(recent.files(), QStringList({"/a/3.wav", "/a/5.wav", "/a/4.wav", "/a/2.wav"}));
    recent.remove("/a/5.wav");
    QCOMPARE(RecentFileList().files(), QStringList({"/a/3.wav", "/a/4.wav", "/a/2.wav"}));

    // The Files menu lists them; choosing one hands its path on.
    TempDir home;
    ProgramOnRoot program(home.path());
    auto* files = qobject_cast<QMenu*>(program.frame().command(32784)->associatedObjects().value(0));
    QVERIFY(files != nullptr);
    emit files->aboutToShow();
    QAction* first = nullptr;
    for (QAction* action : files->actions()) {
        if (action->text().endsWith("3.wav")) first = action;
    }
    QVERIFY(first != nullptr);
    QCOMPARE(first->text(), QString("&1 /a/3.wav"));
    QSignalSpy chosen(&program.frame(), &CMainFrame::recordingFileChosen);
    first->trigger();
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0).toString(), QString("/a/3.wav"));
    QSettings(kProfileOrganization, kProfileApplication).clear();
}

void CAFAppTest::brokenRecordingWarnsOnceAndKeepsTheUpdateRate() {
    TempDir home;
    home.write("sy1.log", le32(0) + le32(2));
    auto program = std::make_unique<ProgramOnRoot>(home.path());
    QCOMPARE(program->prompt.shown, std::vector<std::string>{std::string(kNotEndedProperly)});
    QCOMPARE(program->frame().RememberedUpdateRateIndex, 2);
    QVERIFY(!std::filesystem::exists(home / "sy1.log"));
    program.reset();
    home.write("sy1.log", le32(1) + le32(3));  // ended properly: silent
    program = std::make_unique<ProgramOnRoot>(home.path());
    QVERIFY(program->prompt.shown.empty());
    QCOMPARE(program->frame().RememberedUpdateRateIndex, 3);
    QVERIFY(!std::filesystem::exists(home / "sy1.log"));
}

void CAFAppTest::theScreenIsCheckedAndAPoorOneStopsTheStart() {
    TempDir home;
    FakePrompt prompt;
    CAFApp app(home.path(), prompt);
    QStringList started;
    app.startProgram = [&](const QString& path, const QStringList&) {
        started << path;
        return false;
    };
    QString title;
    QStringList lines;
    ModalDriver::whenModal([&](QWidget* modal) {
        title = modal->windowTitle();
        for (const QLabel* label : modal->findChildren<QLabel*>()) lines << label->text();
        qobject_cast<QDialog*>(modal)->reject();  // No
    });
    QVERIFY(!app.CheckScreen(ScreenInfo{4, 1024, 768}));
    QCOMPARE(title, QString("Attention!"));
    QCOMPARE(lines,
             QStringList({"Sonalys needs a different video resolution !",
                          "Resolution : 800 x 600, 1024 x 768 ou 1280 x 800 pixels",
                          "Colors: High Color (16 bits) or better", "Do you want to change the configuration now ?"}));
    QVERIFY(started.isEmpty());
    QVERIFY(prompt.shown.empty());

    // Yes hands over to the desktop's display settings; with none to be found the user is told so.
    ModalDriver::whenModal([](QWidget* modal) { qobject_cast<QDialog*>(modal)->accept(); });
    QVERIFY(!app.CheckScreen(ScreenInfo{32, 640, 480}));
    if (started.isEmpty()) QCOMPARE(prompt.shown, std::vector<std::string>{std::string(kNoDisplaySettingsProgram)});

    // A size between the two layouts asks for another; a size either layout serves is kept.
    prompt.shown.clear();
    QVERIFY(!app.CheckScreen(ScreenInfo{32, 1000, 700}));
    QCOMPARE(prompt.shown,
             (std::vector<std::string>{"The screen resolution is higher than the options available!\nPlease select the "
                                       "option 800 x 600, 1024 x 768 ou 1280 x 800 in the next screen!",
                                       "Error Loading Video Setting Program!"}));
    prompt.shown.clear();
    QVERIFY(app.CheckScreen(ScreenInfo{32, 1152, 864}));
    QCOMPARE(app.FixedScreenWidth, 1152);
    QCOMPARE(app.FixedScreenHeight, 864);
    QVERIFY(app.CheckScreen(ScreenInfo{32, 900, 600}));
    QVERIFY(prompt.shown.empty());
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
    // The translations ship inside the program, where the language commands look for them.
    for (const char* language : {"es", "ko", "pt"})
        QVERIFY(QFile::exists(QString(":/i18n/sonalys_%1.qm").arg(language)));
    QCOMPARE(home.read("lang.dat"), le32(2));
    QVERIFY(korean->isChecked());
    QVERIFY(!english->isChecked());
    english->trigger();
    QCOMPARE(home.read("lang.dat"), le32(0));

    frame->view()->Recording = true;
    frame->UpdateCommands();
    QVERIFY(!english->isEnabled());
    QVERIFY(!korean->isEnabled());
    frame->view()->Recording = false;
    frame->UpdateCommands();
    QVERIFY(korean->isEnabled());
}

void CAFAppTest::exitAsksFirstAndTheStatusBarShowsBusyTexts() {
    TempDir home;
    ProgramOnRoot program(home.path());
    CMainFrame& frame = program.frame();
    frame.ShowBusyText("Calculating F0...");
    QCOMPARE(frame.busyText(), QString("Calculating F0..."));
    frame.ShowBusyText(" ");
    QCOMPARE(frame.busyText(), QString());
    frame.ShowBusyText("ab");
    QCOMPARE(frame.busyText(), QString("ab"));
    // Without a desktop mixer the volume command says so.
    frame.command(32843)->trigger();
    QCOMPARE(program.prompt.shown, std::vector<std::string>{"Volume Control can´t be  can´t be Inicialized!"});
    program.prompt.answers = {false};
    frame.close();
    QVERIFY(frame.isVisible());
    QCOMPARE(program.prompt.last(), std::string("Are you sure you want to exit?"));
    program.prompt.answers = {true};
    frame.close();
    QVERIFY(!frame.isVisible());
}

void CAFAppTest::aboutBoxShowsVersionMemoryAndSystem() {
    QCOMPARE(VersionLine(true), QString("Sonalys version 4.2"));
    QCOMPARE(VersionLine(false), QString("Sonalys Trial Version"));
    QCOMPARE(MemoryText(2048), QString("2048,0 MB"));
#if defined(__linux__)
    // The kernel's own count of memory, in kB, rounded up to whole megabytes.
    std::ifstream meminfo("/proc/meminfo");
    std::string key;
    long long kilobytes = 0;
    while (meminfo >> key >> kilobytes && key != "MemTotal:") meminfo.ignore(256, '\n');
    QCOMPARE(PhysicalMemoryMB(), (kilobytes + 1023) / 1024);
#endif
    CAboutDlg box(true);
    QCOMPARE(box.findChild<QLabel*>("memory")->text(), MemoryText(PhysicalMemoryMB()));
    QCOMPARE(box.findChild<QLabel*>("system")->text(), QSysInfo::prettyProductName());
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
    QCOMPARE(title, QString("Sonalys"));
    QCOMPARE(text, QString("Select a file!"));
    ModalDriver::answerMessageBox(QMessageBox::No, &title, &text);
    QVERIFY(!prompt.askYesNo("Are you sure you want to exit?"));
    ModalDriver::answerMessageBox(QMessageBox::Yes);
    QVERIFY(prompt.askYesNo("Are you sure you want to exit?"));
    QCOMPARE(text, QString("Are you sure you want to exit?"));
}

void CAFAppTest::contentsOpensTheUserGuideWhoseLinksAllResolve() {
    TempDir home;
    ProgramOnRoot program(home.path());
    program.frame().command(32856)->trigger();
    auto* help = program.frame().findChild<HelpBrowser*>();
    QVERIFY(help != nullptr && help->isVisible());
    QVERIFY(help->browser()->toPlainText().contains("Sonalys user guide"));
    // Every page shipped, every link and picture in it found inside the program.
    const QStringList pages = QDir(":/help").entryList({"*.html"});
    QVERIFY(pages.size() >= 5);
    const QRegularExpression reference(R"re((?:href|src)="([^"#]+)")re");
    int checked = 0;
    for (const QString& page : pages) {
        QFile file(":/help/" + page);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(file.readAll());
        for (auto match = reference.globalMatch(html); match.hasNext();) {
            const QString target = match.next().captured(1);
            const QString resource = target.startsWith("qrc:") ? target.mid(3) : ":/help/" + target;
            QVERIFY2(QFile::exists(resource), qPrintable(page + " -> " + target));
            ++checked;
        }
    }
    QVERIFY(checked > 15);
}

QTEST_MAIN(CAFAppTest)
#include "CAFApp_test.moc"
