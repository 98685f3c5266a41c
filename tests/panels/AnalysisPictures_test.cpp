// The pictures of the analysis pages and their scales, drawn into images and compared with values worked out by hand.
#include <cmath>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QTest>

#include "analysis/PowerSpectrum.h"
#include "panels/PanelDefaults.h"
#include "panels/PictureAxes.h"
#include "panels/SpectrogramPicture.h"
#include "panels/SpectrumPicture.h"

const QRgb kWhite = qRgb(255, 255, 255);
const QRgb kBlue = qRgb(0, 0, 128);

static std::vector<std::int16_t> sine(double hz, int rate, int count) {
    std::vector<std::int16_t> samples(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        samples[i] = static_cast<std::int16_t>(10000.0 * std::sin(2.0 * M_PI * hz * i / rate));
    return samples;
}

// A spectrogram picture of `size` computed from samples [first, last) at `rate`, shown up to `top` Hz.
static SpectrogramPicture computed(QSize size, std::span<const std::int16_t> samples, std::int64_t first,
                                   std::int64_t last, int rate, int top,
                                   int bandwidth = kBandEntries[kDefaultBandEntry]) {
    Spectrogram engine;
    engine.setSampleRate(rate);
    engine.setBandwidth(bandwidth);
    engine.setMaxFrequency(top);
    SpectrogramPicture picture;
    picture.resize(size);
    picture.compute(engine, samples, first, last, rate, {}, 0);
    return picture;
}

static int colouredInColumn(const QImage& image, int x, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) count += image.pixel(x, y) == colour;
    return count;
}

// The spectrum of a 1000 Hz sine at 11025 Hz (the whole band: 256 points at 512) drawn in `style` into the area
// {10, 30, 522, 330}, 512 wide: 2 pixels a point.
static QImage drawnSpectrum(SpectrumStyle style, bool ltas = false) {
    PowerSpectrum spectrum;
    spectrum.setSampleRate(11025);
    spectrum.computeSpectrum(sine(1000.0, 11025, 11025));
    QImage image(600, 360, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    DrawSpectrum(painter, spectrum, SpectrumSettings{.style = style, .ltas = ltas}, {10, 30, 522, 330});
    return image;
}

// Each label as its position and its text, "297 -08 dB".
static QStringList labelTexts(const std::vector<AxisLabel>& labels) {
    QStringList texts;
    for (const AxisLabel& label : labels)
        texts << QString("%1 %2").arg(label.at).arg(QString::fromStdString(label.text));
    return texts;
}

class AnalysisPicturesTest : public QObject {
    Q_OBJECT
private slots:
    void spectrogramLevelsAreReadAsSignedBytesAndSaturateAt100() {
        SpectrogramPicture picture;
        picture.resize(QSize(2, 9));
        const std::vector<std::uint8_t> levels = {0, 1, 50, 99, 100, 101, 127, 128, 255};
        for (const int c : {1, 2, -1})
            picture.paintColumn(c, levels);  // outside the picture: ignored, not written past
        // 0 and below (128 and 255 read as -128 and -1) take the background entry 100; 100 and above entry 0.
        const std::vector<int> expected = {100, 99, 50, 1, 0, 0, 0, 100, 100};
        for (int row = 0; row < 9; ++row) {
            QCOMPARE(int(picture.image().scanLine(row)[1]), expected[row]);
            QCOMPARE(int(picture.image().scanLine(row)[0]), kBackgroundEntry);
        }
    }

    void aSineLightsItsRowAndARangeOfUnderTwoSamplesOrPastTheEndIsBlank() {
        const SpectrogramPicture picture = computed({40, 147}, sine(1000.0, 22050, 22050), 0, 22050, 22050, 7350, 40);
        QCOMPARE(picture.columnsDone(), 40);
        // 1000 Hz of 7350 Hz from the bottom of 147 rows: row 127, far stronger than the leakage at 6000 Hz.
        for (const int c : {10, 20, 30}) {
            int strongest = 0;
            for (int row = 1; row < 147; ++row)
                if (picture.image().scanLine(row)[c] < picture.image().scanLine(strongest)[c]) strongest = row;
            QVERIFY(std::abs(strongest - 127) <= 1);
        }
        QVERIFY(picture.image().scanLine(127)[20] <= 20 && picture.image().scanLine(20)[20] >= 90);
        const auto samples = sine(700.0, 11025, 4000);
        for (const auto& [first, last] :
             {std::pair<std::int64_t, std::int64_t>{100, 101}, {4000, 8000}, {5000, 9000}}) {
            const SpectrogramPicture blank = computed({10, 50}, samples, first, last, 11025, 5512);
            QCOMPARE(blank.columnsDone(), 10);
            for (int row = 0; row < 50; ++row)
                for (int c = 0; c < 10; ++c) QCOMPARE(int(blank.image().scanLine(row)[c]), kBackgroundEntry);
        }
    }

    void spectrumPointsAndLevelsStayInsideTheGraph() {
        QCOMPARE(SpectrumPointCount(512, 3.0f), 85);  // 256 / 3
        const SpectrumArea wide{141, 150, 941, 450};
        QCOMPARE(SpectrumStep(wide, 85), 10);        // 800 / 85 = 9.4, rounded up
        QCOMPARE(SpectrumBaseLine(wide), 450 - 27);  // 300 / 11 = 27
        const QPolygon points = SpectrumPoints(wide, std::vector<float>(85, 0.0f), 85);
        QCOMPARE(points[1].x(), 151);
        QCOMPARE(points[84].x(), 940);  // 141 + 840 is past the right edge: held at right - 1
        const SpectrumArea area{0, 100, 800, 400};
        QCOMPARE(SpectrumY(area, 50.0f), 373 - 150);
        QCOMPARE(SpectrumY(area, -50.0f), 399);                             // below the graph: its last row
        QCOMPARE(SpectrumY({0, 0, 800, 100}, 100.0f), kSpectrumTopMargin);  // 91 - 100 would leave the window
        QCOMPARE(SpectrumLevelAt(area, 223), 50.0);
        QCOMPARE(SpectrumFrequencyAt(area, 400, 5512.0), 2756.0);
    }

    void solidFillsUnderTheCurveLineDrawsItAndTheAverageIsRedUnlessTheCurveIs() {
        const int peakX = 10 + 2 * static_cast<int>(std::lround(1000.0 * 512 / 11025));
        const QImage solid = drawnSpectrum(SpectrumStyle::Solid);
        const QImage line = drawnSpectrum(SpectrumStyle::Line);
        for (const QImage& image : {solid, line}) QCOMPARE(image.pixel(peakX, 32), kWhite);  // over the peak: white
        QVERIFY(colouredInColumn(solid, peakX, kBlue) > 150);  // a strong peak: most of the column
        QCOMPARE(line.pixel(peakX, 328), kWhite);
        QVERIFY(colouredInColumn(line, 300, kBlue) < 20);
        QCOMPARE(AverageColour(QColor(0, 0, 128)), QColor(255, 0, 0));
        QCOMPARE(AverageColour(QColor(255, 0, 0)), QColor(Qt::black));
        const QImage average = drawnSpectrum(SpectrumStyle::Line, true);
        int red = 0;
        for (int x = 10; x < 522; ++x) red += colouredInColumn(average, x, qRgb(255, 0, 0));
        QVERIFY(red > 512);  // a line two pixels wide across the graph
    }

    void labelsStateTheValueOfTheirPosition() {
        // dB: label 0 at 300 - 3, label 8 at 3: (273 - y) x 100 / 300 dB from the base line at 273; 5 under 300 high.
        const QStringList db = labelTexts(DbAxisLabels({0, 0, 800, 300}));
        QCOMPARE(QStringList({db.first(), db[4], db.last()}), QStringList({"297 -08 dB", "150 41 dB", "3 90 dB"}));
        QCOMPARE(DbAxisLabels({0, 0, 800, 299}).size(), std::size_t{5});
        // kHz: 100 + i x 800 / 5.5, truncated, and the last at the right end.
        QCOMPARE(labelTexts(KhzAxisLabels({100, 0, 900, 300}, 5512.0)),
                 QStringList({"100 0,0 kHz", "245 1,0 kHz", "390 2,0 kHz", "536 3,0 kHz", "681 4,0 kHz", "827 5,0 kHz",
                              "900 5,5 kHz"}));
        // The spectrogram's scale: round frequencies, the bottom label held inside the graph.
        const SpectrumArea area{0, 100, 800, 400};
        QStringList expected{"399 0 kHz"};
        for (int k = 1; k <= 7; ++k) expected << QString("%1 %2 kHz").arg(400 - int(k * 1000.0 / 7350.0 * 300)).arg(k);
        QCOMPARE(labelTexts(FrequencyAxisLabels(area, 7350.0)), expected);
        QCOMPARE(FrequencyAxisLabels(area, 22050.0).size(), std::size_t{5});             // every 5 kHz
        QCOMPARE(FrequencyAxisLabels({0, 0, 800, 200}, 7350.0).size(), std::size_t{4});  // every 2 kHz
    }

    void theLastTwoKhzLabelsStandApartOnTheSmallLayout() {
        const SpectrumArea area{93, 100, 93 + 671, 400};  // the graph of an 800 x 600 screen
        QImage image(900, 450, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        DrawSpectrumAxes(painter, area, 7350.0);  // "6,7 kHz" and "7,3 kHz" at the right end
        painter.end();
        // Clusters of ink under the graph from the fifth tick on, apart by 6 blank columns or more: one a label.
        int clusters = 0;
        int blank = 6;
        for (int x = KhzAxisLabels(area, 7350.0)[5].at - 45; x < image.width(); ++x) {
            bool ink = false;
            for (int y = area.bottom + 6; y < area.bottom + 22; ++y) ink = ink || qGray(image.pixel(x, y)) < 128;
            clusters += ink && blank >= 6;
            blank = ink ? 0 : blank + 1;
        }
        QCOMPARE(clusters, 2);
    }
};

QTEST_MAIN(AnalysisPicturesTest)
#include "AnalysisPictures_test.moc"
