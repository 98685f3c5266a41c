// The overview strip: where a sample stands, the eight points of each column, short ranges, the live trace, and
// what the frame looks like.
#include <vector>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "view/WaveStrip.h"

class WaveStripTest : public QObject {
    Q_OBJECT
private slots:
    void samplesStayInsideTheStripAtBothExtremes();
    void eachColumnTakesEightPointsAtEvenFractionsAndMissesWhatLiesBetween();
    void aRangeShorterThanTheWidthRepeatsSamples();
    void theLiveTraceKeepsTheNewestPointsFromTheLeft();
    void theFrameIsWhiteWithAnOutlineAndThreeGuideLines();

private:
    const ViewLayout m_layout = ViewLayout::forScreen({800, 600});  // strip 445 to 495
};

void WaveStripTest::samplesStayInsideTheStripAtBothExtremes() {
    QCOMPARE(StripY(m_layout, 0.0f), 470);
    QCOMPARE(StripY(m_layout, 16384.0f), 457);  // 470 - 12.5, truncated
    QCOMPARE(StripY(m_layout, -16384.0f), 482);
    QCOMPARE(StripY(m_layout, -32768.0f), 494);  // 495 is the bottom: one pixel inside
    QCOMPARE(StripY(m_layout, 32767.0f), 446);   // 445.0008 reaches the top: one pixel inside
}

void WaveStripTest::eachColumnTakesEightPointsAtEvenFractionsAndMissesWhatLiesBetween() {
    const int width = m_layout.GraphWidth;
    std::vector<std::int16_t> samples(static_cast<std::size_t>(width) * 16, 0);  // 16 samples a column
    samples[5 * 16 + 6] = -32768;                                                // column 5, point 3: 6 = 3 x 16 / 8
    samples[9 * 16 + 7] = -32768;  // between two points of column 9: never read
    const QPolygon trace = StripTrace(m_layout, samples, 0, static_cast<std::int64_t>(samples.size()));
    QCOMPARE(trace.size(), width * 8);
    for (int i = 0; i < trace.size(); ++i) {
        QCOMPARE(trace[i].x(), m_layout.GraphLeft + i / 8);
        QCOMPARE(trace[i].y(), i == 5 * 8 + 3 ? 494 : 470);
    }
}

void WaveStripTest::aRangeShorterThanTheWidthRepeatsSamples() {
    std::vector<std::int16_t> samples(1000, 0);
    for (int i = 0; i < 1000; ++i) samples[i] = static_cast<std::int16_t>(i * 30);
    // 100 samples over 671 columns: 0.149 of a sample a column, so every point of columns 0 to 6 is sample 500.
    const QPolygon trace = StripTrace(m_layout, samples, 500, 600);
    QCOMPARE(trace.size(), m_layout.GraphWidth * 8);
    for (int i = 0; i < 7 * 8; ++i) QCOMPARE(trace[i].y(), StripY(m_layout, 15000.0f));
    QCOMPARE(trace[7 * 8].y(), StripY(m_layout, 15030.0f));  // column 7: 7 x 0.149 = 1.04
    QCOMPARE(trace.last().y(), StripY(m_layout, 599 * 30.0f));
}

void WaveStripTest::theLiveTraceKeepsTheNewestPointsFromTheLeft() {
    LiveTrace live(10);  // 80 points
    std::vector<std::int16_t> block(64);
    for (int b = 0; b < 3; ++b) {
        for (int i = 0; i < 64; ++i) block[i] = static_cast<std::int16_t>(b * 64 + i);
        live.addBlock(block);  // 4 columns of 16 samples: points at 0, 2, ..., 14 of each
    }
    QCOMPARE(live.count(), 80);
    // 96 points were added; the 16 oldest (the first two columns of block 0) are gone.
    QCOMPARE(live.points()[0], 32.0f);
    QCOMPARE(live.points()[1], 34.0f);
    QCOMPARE(live.points()[79], 128.0f + 62.0f);
    const QPolygon trace = live.trace(m_layout);
    QCOMPARE(trace.size(), 80);
    QCOMPARE(trace[0].x(), m_layout.GraphLeft);
    QCOMPARE(trace[79].x(), m_layout.GraphLeft + 9);
    live.addBlock({});  // an empty block adds nothing
    QCOMPARE(live.count(), 80);
}

void WaveStripTest::theFrameIsWhiteWithAnOutlineAndThreeGuideLines() {
    QImage image(820, 500, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    DrawStrip(painter, m_layout, {}, Qt::black);
    painter.end();
    const int x = 300;
    QCOMPARE(image.pixel(x, 445), qRgb(0, 0, 0));  // outline
    QCOMPARE(image.pixel(x, 494), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(m_layout.GraphLeft, 460), qRgb(0, 0, 0));
    QCOMPARE(image.pixel(m_layout.GraphLeft + m_layout.GraphWidth + 1, 460), qRgb(0, 0, 0));
    for (const int y : {445 + 12, 445 + 25, 445 + 37}) QCOMPARE(image.pixel(x, y), kGuideLineColour);
    QCOMPARE(image.pixel(x, 450), qRgb(255, 255, 255));
    QCOMPARE(image.pixel(x, 496), qRgb(255, 0, 0));  // nothing drawn past the strip
}

QTEST_MAIN(WaveStripTest)
#include "WaveStrip_test.moc"
