// The volume dialog over scripted mixer lines: a line the card lacks leaves its slider disabled.
#include <QLabel>
#include <QTest>

#include "FakePrompt.h"
#include "FakeVolume.h"
#include "app/CVolume.h"
#include "app/MixerVolumes.h"
#include "controls/VolumeSlider.h"

class CVolumeTest : public QObject {
    Q_OBJECT
private slots:
    void aMissingLineDisablesItsSlider();
};

void CVolumeTest::aMissingLineDisablesItsSlider() {
    FakePrompt prompt;
    ScriptedMixer lines(true, {0});
    MixerVolumes mixer;
    mixer.SetUp(lines.factory(), 0, prompt);
    CVolume mic(mixer, 0);
    QCOMPARE(mic.windowTitle(), QString("Playback and Record Volume"));
    QCOMPARE(mic.caption(MixerLine::Input)->text(), QString("Mic"));
    QVERIFY(mic.slider(MixerLine::Master)->isEnabled() && mic.slider(MixerLine::Input)->isEnabled());
    QVERIFY(!mic.slider(MixerLine::Wave)->isEnabled());  // no playback stream given yet

    QVERIFY(!mixer.SetInput(1));  // the card has no line input
    CVolume line(mixer, 1);
    QCOMPARE(line.caption(MixerLine::Input)->text(), QString("Line"));
    QVERIFY(!line.slider(MixerLine::Input)->isEnabled());
}

QTEST_MAIN(CVolumeTest)
#include "CVolume_test.moc"
