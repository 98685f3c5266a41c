// The power-spectrum picture: where its points stand, the two styles, the average's pen, and the scales beside it.
#include <cmath>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "analysis/PowerSpectrum.h"
#include "panels/PictureAxes.h"
#include "panels/SpectrumPicture.h"

namespace {

std::vector<std::int16_t> sine(double hz, int rate, int count) {
    std::vector<std::int16_t> samples(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        samples[i] = static_cast<std::int16_t>(10000.0 * std::sin(2.0 * M_PI * hz * i / rate));
    return samples;
}

int colouredInColumn(const QImage& image, int x, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) count += image.pixel(x, y) == colour;
    return count;
}

}  // namespace

class SpectrumPictureTest : public QObject {
    Q_OBJECT
private slots:
    void pointsStepAndBaseLineFollowTheGraph();
    void levelsAreHeldInsideTheGraphAndBelowTheTopMargin();
    void solidFillsUnderTheCurveAndLineDrawsOnlyTheCurve();
    void theAverageIsRedUnlessTheCurveIsRed();
    void dbLabelsStateTheLevelOfTheirPosition();
    void khzLabelsStandAtEleventhsAndEndAtTheLimit();
    void frequencyLabelsStandAtRoundFrequencies();
};

void SpectrumPictureTest::pointsStepAndBaseLineFollowTheGraph() {
    QCOMPARE(SpectrumPointCount(512, 3.0f), 85);   // 256 / 3
    QCOMPARE(SpectrumPointCount(512, 1.5f), 170);  // 22050 Hz shown to 7350 Hz
    QCOMPARE(SpectrumPointCount(1024, 1.0f), 512);
    const SpectrumArea area{141, 150, 941, 450};
    QCOMPARE(SpectrumStep(area, 85), 10);  // 800 / 85 = 9.4, rounded up
    QCOMPARE(SpectrumStep(area, 800), 1);
    QCOMPARE(SpectrumStep(area, 801), 1);
    QCOMPARE(SpectrumBaseLine(area), 450 - 27);  // 300 / 11 = 27
    const std::vector<float> values(85, 0.0f);
    const QPolygon points = SpectrumPoints(area, values, 85);
    QCOMPARE(points.size(), 85);
    QCOMPARE(points[1].x(), 151);
    QCOMPARE(points[84].x(), 940);  // 141 + 840 is past the right edge: held at right - 1
}

void SpectrumPictureTest::levelsAreHeldInsideTheGraphAndBelowTheTopMargin() {
    const SpectrumArea area{0, 100, 800, 400};
    QCOMPARE(SpectrumY(area, 0.0f), 373);
    QCOMPARE(SpectrumY(area, 50.0f), 373 - 150);
    QCOMPARE(SpectrumY(area, -50.0f), 399);  // below the graph: its last row
    const SpectrumArea high{0, 0, 800, 100};
    QCOMPARE(SpectrumY(high, 100.0f), kSpectrumTopMargin);  // 91 - 100 would leave the window
    QCOMPARE(SpectrumLevelAt(area, 373), 0.0);
    QCOMPARE(SpectrumLevelAt(area, 223), 50.0);
    QCOMPARE(SpectrumFrequencyAt(area, 400, 5512.0), 2756.0);
}

void SpectrumPictureTest::solidFillsUnderTheCurveAndLineDrawsOnlyTheCurve() {
    PowerSpectrum spectrum;
    spectrum.setSampleRate(11025);  // the whole band: 256 points at 512
    const auto samples = sine(1000.0, 11025, 11025);
    spectrum.computeSpectrum(samples);
    const SpectrumArea area{10, 30, 522, 330};  // 512 wide: 2 pixels a point
    const int peakX = 10 + 2 * static_cast<int>(std::lround(1000.0 * 512 / 11025));
    const QRgb blue = qRgb(0, 0, 128);
    for (const SpectrumStyle style : {SpectrumStyle::Solid, SpectrumStyle::Line}) {
        QImage image(600, 360, QImage::Format_RGB32);
        image.fill(Qt::gray);
        QPainter painter(&image);
        SpectrumSettings settings;
        settings.style = style;
        DrawSpectrum(painter, spectrum, settings, area);
        painter.end();
        QCOMPARE(image.pixel(peakX, 32), qRgb(255, 255, 255));  // over the peak: white
        QCOMPARE(image.pixel(500, 35), qRgb(255, 255, 255));
        if (style == SpectrumStyle::Solid) {
            QCOMPARE(image.pixel(peakX, 328), blue);
            QVERIFY(colouredInColumn(image, peakX, blue) > 150);  // a strong peak: most of the column
        } else {
            QCOMPARE(image.pixel(peakX, 328), qRgb(255, 255, 255));
            QVERIFY(colouredInColumn(image, 300, blue) < 20);
        }
    }
}

void SpectrumPictureTest::theAverageIsRedUnlessTheCurveIsRed() {
    QCOMPARE(AverageColour(QColor(0, 0, 128)), QColor(255, 0, 0));
    QCOMPARE(AverageColour(QColor(255, 0, 0)), QColor(Qt::black));
    QCOMPARE(AverageColour(QColor(254, 0, 0)), QColor(255, 0, 0));
    PowerSpectrum spectrum;
    spectrum.setSampleRate(11025);
    const auto samples = sine(1000.0, 11025, 11025);
    spectrum.computeSpectrum(samples);
    QImage image(600, 360, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    SpectrumSettings settings;
    settings.style = SpectrumStyle::Line;
    settings.ltas = true;
    DrawSpectrum(painter, spectrum, settings, {10, 30, 522, 330});
    painter.end();
    int red = 0;
    for (int x = 10; x < 522; ++x) red += colouredInColumn(image, x, qRgb(255, 0, 0));
    QVERIFY(red > 512);  // a line two pixels wide across the graph
}

void SpectrumPictureTest::dbLabelsStateTheLevelOfTheirPosition() {
    const SpectrumArea area{0, 0, 800, 300};
    const std::vector<AxisLabel> labels = DbAxisLabels(area);
    QCOMPARE(labels.size(), std::size_t{9});
    // Label 0 at 300 - 3, label 8 at 3: (273 - y) x 100 / 300 dB from the base line at 273.
    QCOMPARE(labels[0].at, 297);
    QCOMPARE(labels[0].text, std::string("-08 dB"));
    QCOMPARE(labels[8].at, 3);
    QCOMPARE(labels[8].text, std::string("90 dB"));
    QCOMPARE(labels[4].at, 297 - 4 * 294 / 8);
    QCOMPARE(DbAxisLabels({0, 0, 800, 299}).size(), std::size_t{5});
}

void SpectrumPictureTest::khzLabelsStandAtEleventhsAndEndAtTheLimit() {
    const std::vector<AxisLabel> labels = KhzAxisLabels({100, 0, 900, 300}, 5512.0);
    QCOMPARE(labels.size(), std::size_t{7});
    const std::vector<int> at = {100, 245, 390, 536, 681, 827, 900};  // 100 + i x 800 / 5.5, truncated
    const std::vector<std::string> text = {"0,0 kHz", "1,0 kHz", "2,0 kHz", "3,0 kHz", "4,0 kHz", "5,0 kHz", "5,5 kHz"};
    for (std::size_t i = 0; i < 7; ++i) {
        QCOMPARE(labels[i].at, at[i]);
        QCOMPARE(labels[i].text, text[i]);
    }
}

void SpectrumPictureTest::frequencyLabelsStandAtRoundFrequencies() {
    const SpectrumArea area{0, 100, 800, 400};
    const std::vector<AxisLabel> at7350 = FrequencyAxisLabels(area, 7350.0);
    QCOMPARE(at7350.size(), std::size_t{8});  // 0 to 7 kHz
    QCOMPARE(at7350[0].at, 399);
    QCOMPARE(at7350[0].text, std::string("0 kHz"));
    QCOMPARE(at7350[7].at, 400 - static_cast<int>(7000.0 / 7350.0 * 300));
    QCOMPARE(at7350[7].text, std::string("7 kHz"));
    const std::vector<AxisLabel> at2756 = FrequencyAxisLabels(area, 2756.0);
    QCOMPARE(at2756.size(), std::size_t{6});
    QCOMPARE(at2756[1].text, std::string("0,5 kHz"));
    QCOMPARE(FrequencyAxisLabels(area, 22050.0).size(), std::size_t{5});             // every 5 kHz
    QCOMPARE(FrequencyAxisLabels({0, 0, 800, 200}, 7350.0).size(), std::size_t{4});  // every 2 kHz
}

QTEST_MAIN(SpectrumPictureTest)
#include "SpectrumPicture_test.moc"
