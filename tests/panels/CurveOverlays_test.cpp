// The F0 and formant dots and the F0 scale, drawn into images and checked at positions worked out from the rules
// of the scale: percentage of the range, the dot's box at its top left corner, 4 pixels up at the bottom edge.
#include <QImage>
#include <QPainter>
#include <QTest>

#include "panels/CurveOverlays.h"

const QRgb kGrey = qRgb(128, 128, 128);
const QRect kGraph(10, 20, 200, 300);  // bottom 320, right 210
const F0Range kRange{70, 400};

// One F0 frame per column of the graph: `voiced(c)` gives the value of column c.
template <class Voiced>
static F0Track trackOf(Voiced voiced) {
    F0Track track;
    for (int c = 0; c < kGraph.width(); ++c) track.values.push_back(voiced(c));
    track.valid = true;
    return track;
}

static QImage blank() {
    QImage image(240, 340, QImage::Format_RGB32);
    image.fill(kGrey);
    return image;
}

static QImage drawnF0(const F0Track& track, int scheme = 0, F0Range range = kRange) {
    QImage image = blank();
    QPainter painter(&image);
    DrawF0(painter, kGraph, track, track.count() * 100, 0, track.count() * 100, range, scheme);
    return image;
}

static int countColour(const QImage& image, QRect area, QRgb colour) {
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) n += image.pixel(x, y) == colour;
    return n;
}

class CurveOverlaysTest : public QObject {
    Q_OBJECT
private slots:
    void f0DotStandsAtItsPercentageOfTheRangeAndUnvoicedFramesLeaveGaps() {
        // 235 Hz is 50 % of 70..400: y = 320 - 50 * 300 / 100 = 170. Columns under 50 are unvoiced.
        const QImage image = drawnF0(trackOf([](int c) { return c < 50 ? 0.0f : 235.0f; }), 1);
        const QRgb red = qRgb(255, 0, 0);
        QCOMPARE(image.pixel(kGraph.x() + 100 + 1, 171), red);
        QCOMPARE(image.pixel(kGraph.x() + 100 + 2, 172), red);
        QCOMPARE(image.pixel(kGraph.x() + 100, 175), kGrey);  // the dot is 4 pixels high: 170 to 173
        QCOMPARE(image.pixel(kGraph.x() + 100, 168), kGrey);
        QCOMPARE(countColour(image, QRect(kGraph.x(), kGraph.y(), 50, 300), red), 0);
        // The live dot: 200 frames over 20000 samples put sample 7050 in frame 70, drawn 4 pixels left of its column.
        QImage live = blank();
        QPainter painter(&live);
        const F0Track track = trackOf([](int c) { return c == 70 ? 235.0f : 0.0f; });
        QCOMPARE(DrawF0Point(painter, kGraph, track, 120, 20000, 7050, kRange, 1), 70);
        QCOMPARE(DrawF0Point(painter, kGraph, track, 120, 20000, -1, kRange, 1), -1);
        painter.end();
        QCOMPARE(live.pixel(kGraph.x() + 116 + 1, 171), red);
        QVERIFY(countColour(live, kGraph, red) <= kF0DotSize * kF0DotSize);  // that dot alone
    }

    void rangeLimitsAreDrawnAndValuesJustOutsideAreNot() {
        // The dot's top row, or -1 for none: the minimum is raised 4 pixels off the bottom, the maximum at the top.
        for (const auto& [value, top] : {std::pair{70.0f, 320 - 4}, {400.0f, 20}, {69.99f, -1}, {400.01f, -1}}) {
            const QImage image = drawnF0(trackOf([value](int) { return value; }));
            const QRgb blue = qRgb(0, 0, 255);
            QCOMPARE(countColour(image, image.rect(), blue) > 0, top >= 0);
            if (top < 0) continue;
            QCOMPARE(image.pixel(kGraph.x() + 50, top + 1), blue);
            QCOMPARE(countColour(image, QRect(0, 0, image.width(), top), blue), 0);
            QCOMPARE(countColour(image, QRect(0, top + 4, image.width(), image.height() - top - 4), blue), 0);
        }
    }

    void anAllUnvoicedRecordingDrawsTheScaleAndNoDot() {
        QImage image = drawnF0(trackOf([](int) { return 0.0f; }));
        {
            QPainter painter(&image);
            DrawF0Axis(painter, kGraph.right() - 60, kGraph.y(), kGraph.height(), kRange, 0);
        }
        QCOMPARE(countColour(image, kGraph.adjusted(0, 0, -60, 0), qRgb(0, 0, 255)), 0);
        const QRect strip(kGraph.right() - 59, kGraph.y(), kF0AxisWidth, kGraph.height());
        QCOMPARE(image.pixel(strip.topLeft()), qRgb(255, 255, 255));
        QVERIFY(countColour(image, strip, qRgb(255, 255, 255)) < strip.width() * strip.height());  // labels written
    }

    void scaleHasFiveLabelsUnder300PixelsAndNineFrom300() {
        const std::vector<AxisLabel> tall = F0AxisLabels(kRange, 400, 300);
        QCOMPARE(tall.size(), std::size_t(9));
        QCOMPARE(tall[0].text, std::string("70 Hz"));
        QCOMPARE(tall[1].text, std::string("111 Hz"));  // 70 + 330 / 8, truncated
        QCOMPARE(tall[1].at, 400 - 8 - 294 / 8);
        QCOMPARE(tall[8].at, 400 - 8 - 294);
        const std::vector<AxisLabel> short_ = F0AxisLabels({100, 1000}, 400, 299);
        QCOMPARE(short_.size(), std::size_t(5));
        QCOMPARE(short_[3].text, std::string("775 Hz"));
        QCOMPARE(short_[4].text, std::string("1,00 k"));  // from 1000 Hz up, in thousands with a decimal comma
        QCOMPARE(F0AxisLabels({60, 1200}, 400, 300)[8].text, std::string("1,20 k"));
    }

    void formantsStandOnTheFrequencyScaleOnlyWhereTheVoiceIsVoiced() {
        FormantTrack formants;
        formants.records.assign(100, FormantRecord{500.0f, 1500.0f, 2500.0f, 5000.0f, 0, 1});
        formants.valid = true;
        const F0Track f0 = trackOf([](int c) { return c < 100 ? 0.0f : 150.0f; });  // the second half voiced
        QImage image = blank();
        {
            QPainter painter(&image);
            DrawFormants(painter, kGraph, formants, 20000, 5000.0, 0, 20000, 1, f0);
        }
        // Offsets 500 * 300 / 5000 = 30, 90 and 150 above the bottom; 5000 Hz is the top of the scale and has no dot.
        const int x = kGraph.x() + 150 + 1;
        QCOMPARE(image.pixel(x, 320 - 30 + 1), qRgb(255, 255, 255));
        QCOMPARE(image.pixel(x, 320 - 90 + 1), qRgb(255, 128, 0));
        QCOMPARE(image.pixel(x, 320 - 150 + 1), qRgb(255, 128, 192));
        QCOMPARE(countColour(image, kGraph, qRgb(255, 255, 0)), 0);
        QCOMPARE(countColour(image, QRect(kGraph.x(), kGraph.y(), 100, 300), qRgb(255, 255, 255)), 0);
    }

    void refusedRangesGiveTheirMessageInOrder() {
        // 50 to 1200 Hz is the widest range allowed; when both ends are wrong the minimum is told.
        const std::tuple<int, int, const char*> rows[] = {{50, 1200, ""},
                                                          {49, 400, "Min. Value: 50 Hz"},
                                                          {70, 1201, "Max. Value: 1200 Hz"},
                                                          {40, 1300, "Min. Value: 50 Hz"},
                                                          {200, 200, "Min. Value >= Max. Value"},
                                                          {300, 200, "Min. Value >= Max. Value"}};
        for (const auto& [minimum, maximum, message] : rows) {
            const auto problem = F0RangeProblem({minimum, maximum});
            QCOMPARE(problem ? QString::fromUtf8(problem->data(), static_cast<int>(problem->size())) : QString(),
                     QString(message));
        }
    }
};

QTEST_MAIN(CurveOverlaysTest)
#include "CurveOverlays_test.moc"
