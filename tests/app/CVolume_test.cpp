// The volume dialog's sliders over scripted mixer lines, the record settings dialog, and both commands of the frame.
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
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
#include "app/SettingsFiles.h"
#include "controls/VolumeSlider.h"

namespace {

// Lines made by the mixer, kept by the test to look at; the input line exists only for the inputs listed.
struct ScriptedMixer {
    FakeVolume* master = nullptr;
    FakeVolume* input = nullptr;
    std::vector<int> inputs{0, 1};

    MixerVolumes::Factory factory() {
        return [this](MixerLine line, int recordInput) -> std::unique_ptr<IVolume> {
            auto volume = std::make_unique<FakeVolume>(0, 70, std::vector<int>{20, 20});
            if (line == MixerLine::Master) master = volume.get();
            if (line == MixerLine::Input) {
                volume->found = std::find(inputs.begin(), inputs.end(), recordInput) != inputs.end();
                input = volume->found ? volume.get() : nullptr;
            }
            return volume;
        };
    }
};

}  // namespace

class CVolumeTest : public QObject {
    Q_OBJECT
private slots:
    void slidersStandUpsideDownOverTheLinesRange();
    void aMissingLineDisablesItsSliderAndTheInputColumnIsNamedByTheInput();
    void recordSettingsListTheInputsInTheirOrder();
    void theFrameCommandsOpenBothDialogs();
};

void CVolumeTest::slidersStandUpsideDownOverTheLinesRange() {
    FakePrompt prompt;
    ScriptedMixer lines;
    MixerVolumes mixer;
    mixer.SetUp(lines.factory(), 0, prompt);
    CVolume dialog(mixer, 0);
    VolumeSlider* master = dialog.slider(MixerLine::Master);
    QCOMPARE(master->minimum(), 0);
    QCOMPARE(master->maximum(), 70);
    QCOMPARE(master->tickInterval(), 10);  // (70 - 0) / 7
    QCOMPARE(master->value(), 50);         // 70 - 20
    master->setValue(30);
    QCOMPARE(lines.master->writes, (std::vector<std::vector<int>>{{40, 40}}));  // both channels, 70 - 30
    lines.master->changeFromOutside(65);
    QCOMPARE(master->value(), 5);
    QCOMPARE(lines.master->writes.size(), std::size_t{1});  // following the outside change writes nothing back
}

void CVolumeTest::aMissingLineDisablesItsSliderAndTheInputColumnIsNamedByTheInput() {
    FakePrompt prompt;
    ScriptedMixer lines;
    lines.inputs = {0};
    MixerVolumes mixer;
    mixer.SetUp(lines.factory(), 0, prompt);
    CVolume mic(mixer, 0);
    QCOMPARE(mic.caption(MixerLine::Input)->text(), QString("Mic"));
    QVERIFY(mic.slider(MixerLine::Input)->isEnabled());
    QVERIFY(!mic.slider(MixerLine::Wave)->isEnabled());  // no playback stream given yet
    QVERIFY(!mixer.SetInput(1));
    CVolume line(mixer, 1);
    QCOMPARE(line.caption(MixerLine::Input)->text(), QString("Line"));
    QVERIFY(!line.slider(MixerLine::Input)->isEnabled());
    QCOMPARE(line.windowTitle(), QString("Playback and Record Volume"));
}

void CVolumeTest::recordSettingsListTheInputsInTheirOrder() {
    CConfGravar dialog(1);
    QCOMPARE(dialog.windowTitle(), QString("Record Setting..."));
    QCOMPARE(dialog.inputBox()->count(), 2);
    QCOMPARE(dialog.inputBox()->itemText(0), QString("Microfone"));
    QCOMPARE(dialog.inputBox()->itemText(1), QString("Line In"));
    QCOMPARE(dialog.Input(), 1);
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
    ModalDriver::whenModal([](QWidget* modal) {
        auto* dialog = qobject_cast<CConfGravar*>(modal);
        dialog->inputBox()->setCurrentIndex(1);
        dialog->accept();
    });
    frame.command(32890)->trigger();
    QCOMPARE(prompt.shown,
             std::vector<std::string>{"Attention! Select the Audio Input in the Windows Record Control!"});
    QCOMPARE(frame.RecordInput, 1);
    QCOMPARE(ReadRecordInput(home.path(), -1), 1);
    QVERIFY(frame.mixer().line(MixerLine::Input) == lines.input);
}

QTEST_MAIN(CVolumeTest)
#include "CVolume_test.moc"
