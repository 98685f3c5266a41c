// How the display mode moves, and the fault of a mode outside the five.
#include <QTest>

#include "FakePrompt.h"
#include "view/DisplayModeRules.h"

using M = DisplayMode;
Q_DECLARE_METATYPE(DisplayMode)

class DisplayModeRulesTest : public QObject {
    Q_OBJECT
private slots:
    void openingKeepsThePowerSpectrumPageAndOtherwiseShowsTheSpectrogram();
    void theModeCommandsGoToTheLiveOrFilePage();
    void recordingGoesLiveAndBackToTheFilePage();
    void theShapesOfTheTests();
    void anUnknownModeIsShownAndDrawsBlack();
};

void DisplayModeRulesTest::openingKeepsThePowerSpectrumPageAndOtherwiseShowsTheSpectrogram() {
    QCOMPARE(ModeAfterOpening(M::ModeEmpty), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterOpening(M::LiveSpectrogramMode), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterOpening(M::FileSpectrogramMode), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterOpening(M::LiveSpectrumMode), M::FileSpectrumMode);
    QCOMPARE(ModeAfterOpening(M::FileSpectrumMode), M::FileSpectrumMode);
}

void DisplayModeRulesTest::theModeCommandsGoToTheLiveOrFilePage() {
    QCOMPARE(ModeAfterShowSpectrum(true), M::FileSpectrumMode);
    QCOMPARE(ModeAfterShowSpectrum(false), M::LiveSpectrumMode);
    QCOMPARE(ModeAfterShowSpectrogram(M::LiveSpectrogramMode, true), M::LiveSpectrogramMode);  // nothing happens
    QCOMPARE(ModeAfterShowSpectrogram(M::FileSpectrogramMode, false), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterShowSpectrogram(M::FileSpectrumMode, true), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterShowSpectrogram(M::ModeEmpty, false), M::LiveSpectrogramMode);
}

void DisplayModeRulesTest::recordingGoesLiveAndBackToTheFilePage() {
    QCOMPARE(ModeAfterStartRecording(M::FileSpectrogramMode, M::ModeEmpty), M::LiveSpectrogramMode);
    QCOMPARE(ModeAfterStartRecording(M::FileSpectrumMode, M::ModeEmpty), M::LiveSpectrumMode);
    QCOMPARE(ModeAfterStartRecording(M::LiveSpectrumMode, M::ModeEmpty), M::LiveSpectrumMode);
    QCOMPARE(ModeAfterStartRecording(M::ModeEmpty, M::FileSpectrumMode), M::FileSpectrumMode);
    QCOMPARE(ModeAfterStartRecording(M::LiveSpectrogramMode, M::FileSpectrogramMode), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterStopRecording(M::LiveSpectrogramMode), M::FileSpectrogramMode);
    QCOMPARE(ModeAfterStopRecording(M::LiveSpectrumMode), M::FileSpectrumMode);
}

void DisplayModeRulesTest::theShapesOfTheTests() {
    QVERIFY(isLiveMode(M::LiveSpectrumMode) && !isLiveMode(M::FileSpectrogramMode));
    QVERIFY(isFileOrEmptyMode(M::ModeEmpty) && isFileOrEmptyMode(M::FileSpectrogramMode));
    QVERIFY(!isFileOrEmptyMode(M::LiveSpectrogramMode));
    QVERIFY(!showsPicture(M::ModeEmpty) && showsPicture(M::LiveSpectrogramMode));
}

void DisplayModeRulesTest::anUnknownModeIsShownAndDrawsBlack() {
    FakePrompt prompt;
    for (const M mode :
         {M::LiveSpectrogramMode, M::LiveSpectrumMode, M::FileSpectrogramMode, M::FileSpectrumMode, M::ModeEmpty})
        QCOMPARE(TraceColour(mode, prompt), QColor(Qt::black));
    QVERIFY(prompt.shown.empty());
    QCOMPARE(TraceColour(static_cast<M>(5), prompt), QColor(Qt::black));
    QCOMPARE(prompt.shown, std::vector<std::string>{"Invalid Function!"});
}

QTEST_MAIN(DisplayModeRulesTest)
#include "DisplayModeRules_test.moc"
