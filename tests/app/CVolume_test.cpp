// The volume dialog's sliders over scripted mixer lines, the record settings dialog, and both commands of the frame.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QTest>

#include "FakePrompt.h"
#include "FakeVolume.h"
#include "ModalDriver.h"
#include "TempDir.h"
#include "app/CAFApp.h"
#include "app/CConfGravar.h"
#include "app/CMainFrame.h"
#include "app/CVolume.h"
#include "app/MixerVolumes.h"
#include "controls/VolumeSlider.h"

class CVolumeTest : public QObject {
    Q_OBJECT
private slots:
    void slidersStandUpsideDownAndAMissingLineDisablesItsSlider();
    void theFrameCommandsOpenBothDialogs();
};

void CVolumeTest::slidersStandUpsideDownAndAMissingLineDisablesItsSlider() {
    FakePrompt prompt;
    ScriptedMixer lines(true, {0});
    MixerVolumes mixer;
    mixer.SetUp(lines.factory(), 0, prompt);
    CVolume mic(mixer, 0);
    QCOMPARE(mic.windowTitle(), QString("Playback and Record Volume"));
    VolumeSlider* master = mic.slider(MixerLine::Master);
    QCOMPARE(master->minimum(), 0);
    QCOMPARE(master->maximum(), 70);
    QCOMPARE(master->tickInterval(), 10);  // (70 - 0) / 7
    QCOMPARE(master->value(), 50);         // 70 - 20
    master->setValue(30);
    QCOMPARE(lines.master->writes, (std::vector<std::vector<int>>{{40, 40}}));  // both channels, 70 - 30
    lines.master->changeFromOutside(65);
    QCOMPARE(master->value(), 5);
    QCOMPARE(lines.master->writes.size(), std::size_t{1});  // following the outside change writes nothing back
    QCOMPARE(mic.caption(MixerLine::Input)->text(), QString("Mic"));
    QVERIFY(mic.slider(MixerLine::Input)->isEnabled());
    QVERIFY(!mic.slider(MixerLine::Wave)->isEnabled());  // no playback stream given yet

    QVERIFY(!mixer.SetInput(1));  // the card has no line input
    CVolume line(mixer, 1);
    QCOMPARE(line.caption(MixerLine::Input)->text(), QString("Line"));
    QVERIFY(!line.slider(MixerLine::Input)->isEnabled());
}

void CVolumeTest::theFrameCommandsOpenBothDialogs() {
    TempDir home;
    FakePrompt prompt;
    ScriptedMixer lines;
    CAFApp app(home.path(), prompt);
    app.startProgram = [](const QString&, const QStringList&) { return false; };
    app.makeVolume = lines.factory();
    app.InitInstance({"sonalys", "-Embedding"});
    CMainFrame& frame = *app.mainFrame();

    bool volumeShown = false;
    ModalDriver::whenModal([&](QWidget* modal) {
        volumeShown = qobject_cast<CVolume*>(modal) != nullptr;
        modal->close();
    });
    frame.command(32843)->trigger();
    QVERIFY(volumeShown);

    // The line input is chosen: the reminder comes, cfr.dat keeps it, and the input line is made for it.
    QStringList seen;
    ModalDriver::whenModal([&seen](QWidget* modal) {
        auto* dialog = qobject_cast<CConfGravar*>(modal);
        seen << dialog->windowTitle() << dialog->inputBox()->itemText(0) << dialog->inputBox()->itemText(1)
             << QString::number(dialog->Input());
        dialog->inputBox()->setCurrentIndex(1);
        dialog->accept();
    });
    frame.command(32890)->trigger();
    // The inputs in the order of their numbers, the one in force chosen.
    QCOMPARE(seen, QStringList({"Record Setting...", "Microfone", "Line In", "0"}));
    QCOMPARE(prompt.shown,
             std::vector<std::string>{"Attention! Select the Audio Input in the Windows Record Control!"});
    QCOMPARE(frame.RecordInput, 1);
    QVERIFY(frame.mixer().line(MixerLine::Input) == lines.input);
}

QTEST_MAIN(CVolumeTest)
#include "CVolume_test.moc"
