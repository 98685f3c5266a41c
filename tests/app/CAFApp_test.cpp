#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTest>

#include "FakePrompt.h"
#include "ModalDriver.h"
#include "ProgramOnRoot.h"
#include "TempDir.h"
#include "app/CAFApp.h"
#include "app/CMainFrame.h"
#include "app/MessageBoxPrompt.h"
#include "app/ScreenCheck.h"
#include "audio/CrashMarker.h"

namespace {

std::string le32(std::uint32_t v) {
    return {static_cast<char>(v), static_cast<char>(v >> 8), static_cast<char>(v >> 16), static_cast<char>(v >> 24)};
}

}  // namespace

class CAFAppTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void brokenRecordingWarnsOnceAndKeepsTheUpdateRate();
    void theScreenIsCheckedAndAPoorOneStopsTheStart();
    void fixedSizeLargerThanTheScreenIsRefusedButStartGoesOn();
    void exitAsksFirstAndAMissingMixerIsSaid();
    void messageBoxIsTitledWithTheProgramsName();
};

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

void CAFAppTest::exitAsksFirstAndAMissingMixerIsSaid() {
    TempDir home;
    ProgramOnRoot program(home.path());
    CMainFrame& frame = program.frame();
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

void CAFAppTest::messageBoxIsTitledWithTheProgramsName() {
    TempDir home;
    FakePrompt unused;
    CAFApp app(home.path(), unused);  // names the application
    MessageBoxPrompt prompt;
    QString seen;
    ModalDriver::whenModal([&seen](QWidget* box) {
        seen = box->windowTitle() + "|" + qobject_cast<QMessageBox*>(box)->text();
        box->close();
    });
    prompt.showOk("Select a file!");
    QCOMPARE(seen, QString("Sonalys|Select a file!"));
}

QTEST_MAIN(CAFAppTest)
#include "CAFApp_test.moc"
