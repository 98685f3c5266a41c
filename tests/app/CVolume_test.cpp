// The volume sliders over scripted mixer lines: a line the card lacks leaves its slider disabled, a slider moved
// writes its level, and a level changed elsewhere moves it.
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
    void anAttachedSliderWritesAndFollowsItsLineAsItIsMadeAnew();
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

void CVolumeTest::anAttachedSliderWritesAndFollowsItsLineAsItIsMadeAnew() {
    FakePrompt prompt;
    ScriptedMixer lines(true, {0});  // lines from 0 to 70 at level 20, two channels
    MixerVolumes mixer;
    mixer.SetUp(lines.factory(), 0, prompt);
    VolumeSlider master, input;
    mixer.attachSlider(MixerLine::Master, master);
    mixer.attachSlider(MixerLine::Input, input);
    QCOMPARE(input.maximum(), 70);
    QCOMPARE(input.tickInterval(), 10);  // a seventh of the range
    QCOMPARE(input.value(), 70 - 20);    // upside down: the loudest level at the top

    master.setValue(70 - 35);  // as when the user drags it
    QCOMPARE(lines.master->writes.back(), (std::vector<int>{35, 35}));
    lines.input->changeFromOutside(60);
    QCOMPARE(input.value(), 10);

    QVERIFY(!mixer.SetInput(1));  // no line input on this card: the slider waits disabled
    QVERIFY(!input.isEnabled());
    QVERIFY(mixer.SetInput(0));
    QVERIFY(input.isEnabled());
    QCOMPARE(input.value(), 70 - 20);
}

QTEST_MAIN(CVolumeTest)
#include "CVolume_test.moc"
