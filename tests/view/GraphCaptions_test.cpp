// The texts around the graph: the duration, the format and file lines, the time axis, and the read-outs.
#include <QTest>

#include "view/GraphCaptions.h"
#include "view/ReadOut.h"

class GraphCaptionsTest : public QObject {
    Q_OBJECT
private slots:
    void theDurationSplitsMinutesAboveAMinuteAndNeverShowsHours_data();
    void theDurationSplitsMinutesAboveAMinuteAndNeverShowsHours();
    void formatAndFileLines();
    void timeLabelsSpreadTheRangeInSixths();
    void readOutsUseTheShownRangeAndTheTopFrequency();
    void theReadOutBoxGoesLeftNearTheRightEndAndStaysInTheGraph();
};

void GraphCaptionsTest::theDurationSplitsMinutesAboveAMinuteAndNeverShowsHours_data() {
    QTest::addColumn<qint64>("count");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("61.5 s") << qint64(61.5 * 22050) << 22050 << "00:01:01,500";
    QTest::newRow("3700 s: minutes run past 59") << qint64(3700) * 11025 << 11025 << "00:61:40,000";
    QTest::newRow("exactly 60 s stays in seconds") << qint64(60) * 44100 << 44100 << "00:00:60,000";
    QTest::newRow("milliseconds truncated") << qint64(90469) << 22050 << "00:00:04,102";  // 4.1029 s
    QTest::newRow("nothing") << qint64(0) << 11025 << "00:00:00,000";
}

void GraphCaptionsTest::theDurationSplitsMinutesAboveAMinuteAndNeverShowsHours() {
    QFETCH(qint64, count);
    QFETCH(int, rate);
    QFETCH(QString, text);
    QCOMPARE(QString::fromStdString(DurationText(count, rate)), text);
}

void GraphCaptionsTest::formatAndFileLines() {
    WaveFormat format;
    format.nSamplesPerSec = 22050;
    format.wBitsPerSample = 16;
    format.nChannels = 1;
    QCOMPARE(FormatLineText(format), std::string("22050 Hz, 16 Bits Mono"));
    format.nChannels = 2;
    format.nSamplesPerSec = 44100;
    QCOMPARE(FormatLineText(format), std::string("44100 Hz, 16 Bits Stereo"));
    QCOMPARE(FileLineText(7, "pac001/wv007.wav"), std::string("File 7"));
    QCOMPARE(FileLineText(-1, "/home/me/Sounds/my voice.wav"), std::string("my voice.wav"));
    QCOMPARE(FileLineText(-2, "Models/a.wav"), std::string("Model"));
}

void GraphCaptionsTest::timeLabelsSpreadTheRangeInSixths() {
    QCOMPARE(TimeAxisLabel(0, 90469, 22050, 0), std::string("0,00 s"));
    QCOMPARE(TimeAxisLabel(0, 90469, 22050, 6), std::string("4,10 s"));
    QCOMPARE(TimeAxisLabel(22050, 44100, 22050, 3), std::string("1,50 s"));  // 1 + 3 x (1 / 6)
    QCOMPARE(TimeAxisLabel(11025, 11025, 11025, 5), std::string("1,00 s"));
}

void GraphCaptionsTest::readOutsUseTheShownRangeAndTheTopFrequency() {
    const ViewLayout layout = ViewLayout::forScreen({1024, 768});  // graph 140 + 800, 150 + 300
    QCOMPARE(ReadOutSeconds(layout, 140 + 400, 0, 44100, 22050), 1.0);
    QCOMPARE(ReadOutSeconds(layout, 140 + 200, 22050, 22050 + 8000, 22050), (22050 + 2000) / 22050.0);
    QCOMPARE(ReadOutHertz(layout, 150 + 150, 7350.0), 3675.0);
    QCOMPARE(ReadOutHertz(layout, 150, 7350.0), 7350.0);
    QCOMPARE(ReadOutText(kSpectrogramReadOut, 3675.0, 1.0), std::string("3675,00 Hz   1,00 s"));
    QCOMPARE(ReadOutText(kSpectrumReadOut, 1.5, -3.256), std::string("1,50 kHz   -3,26 dB"));
}

void GraphCaptionsTest::theReadOutBoxGoesLeftNearTheRightEndAndStaysInTheGraph() {
    const ViewLayout layout = ViewLayout::forScreen({1024, 768});
    const QRect right = ReadOutBox(layout, {300, 300});
    QVERIFY(right.left() > 300);
    QCOMPARE(right.top(), 285);  // 15 above the pointer
    QCOMPARE(right.width(), kReadOutWidth);
    const QRect left = ReadOutBox(layout, {940 - 150, 300});  // within 200 of the right end
    QVERIFY(left.right() < 940 - 150);
    const QRect corner = ReadOutBox(layout, {141, 151});
    QVERIFY(QRect(layout.pictureRect()).contains(corner));
}

QTEST_MAIN(GraphCaptionsTest)
#include "GraphCaptions_test.moc"
