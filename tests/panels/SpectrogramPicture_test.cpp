// The spectrogram picture: levels become palette entries, a new palette recolours without analysis, a sine lights
// the row of its frequency, and the picture equals the one the command-line tool paints from the same file.
#include <cmath>
#include <vector>

#include <QImage>
#include <QTest>

#include "RunCommand.h"
#include "TempDir.h"
#include "panels/PanelDefaults.h"
#include "panels/SpectrogramPicture.h"
#include "store/WaveFile.h"

namespace {

std::vector<std::int16_t> sine(double hz, int rate, int count) {
    std::vector<std::int16_t> samples(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        samples[i] = static_cast<std::int16_t>(10000.0 * std::sin(2.0 * M_PI * hz * i / rate));
    return samples;
}

// The row whose entry is strongest (lowest) in column `c`.
int strongestRow(const QImage& image, int c) {
    int best = 0;
    for (int row = 1; row < image.height(); ++row)
        if (image.scanLine(row)[c] < image.scanLine(best)[c]) best = row;
    return best;
}

}  // namespace

class SpectrogramPictureTest : public QObject {
    Q_OBJECT
private slots:
    void levelsAreReadAsSignedBytesAndSaturateAt100();
    void aSineLightsTheRowOfItsFrequency();
    void aNewPaletteRecoloursWithoutNewAnalysis();
    void aRangeOfUnderTwoSamplesOrPastTheEndIsBlank();
    void theProgressIsToldAfterEveryEvenColumn();
    void theLiveColumnIsPaintedWhereItIsAsked();
    void equalsThePictureOfTheCommandLineTool();
};

void SpectrogramPictureTest::levelsAreReadAsSignedBytesAndSaturateAt100() {
    SpectrogramPicture picture;
    picture.resize(QSize(2, 9));
    const std::vector<std::uint8_t> levels = {0, 1, 50, 99, 100, 101, 127, 128, 255};
    picture.paintColumn(1, levels);
    // 0 and below (128 and 255 read as -128 and -1) take the background entry 100; 100 and above entry 0.
    const std::vector<int> expected = {100, 99, 50, 1, 0, 0, 0, 100, 100};
    for (int row = 0; row < 9; ++row) QCOMPARE(int(picture.image().scanLine(row)[1]), expected[row]);
    for (int row = 0; row < 9; ++row) QCOMPARE(int(picture.image().scanLine(row)[0]), kBackgroundEntry);
    // A column outside the picture is ignored rather than written past its end.
    picture.paintColumn(2, levels);
    picture.paintColumn(-1, levels);
}

void SpectrogramPictureTest::aSineLightsTheRowOfItsFrequency() {
    Spectrogram engine;
    engine.setSampleRate(22050);
    engine.setBandwidth(40);
    engine.setMaxFrequency(7350);
    SpectrogramPicture picture;
    picture.resize(QSize(40, 147));
    const auto samples = sine(1000.0, 22050, 22050);
    picture.compute(engine, samples, 0, 22050, 22050);
    QCOMPARE(picture.columnsDone(), 40);
    // 1000 Hz of 7350 Hz from the bottom of 147 rows: row 147 - 20 = 127.
    for (const int c : {10, 20, 30})
        QVERIFY2(std::abs(strongestRow(picture.image(), c) - 127) <= 1,
                 qPrintable(QString::number(strongestRow(picture.image(), c))));
    // The peak is near the strongest entry; at 6000 Hz only the window's leakage is left, far weaker.
    QVERIFY(picture.image().scanLine(127)[20] <= 20);
    QVERIFY(picture.image().scanLine(20)[20] >= 90);
}

void SpectrogramPictureTest::aNewPaletteRecoloursWithoutNewAnalysis() {
    Spectrogram engine;
    engine.setSampleRate(11025);
    engine.setMaxFrequency(5512);
    SpectrogramPicture picture;
    picture.resize(QSize(20, 100));
    const auto samples = sine(700.0, 11025, 11025);
    picture.compute(engine, samples, 0, 11025, 11025);
    const QImage before = picture.image().copy();
    const Palette grey = BuildPalette(40, 0);
    picture.setPalette(grey);
    QCOMPARE(picture.columnsDone(), 20);
    for (int row = 0; row < 100; row += 7) {
        QCOMPARE(picture.image().scanLine(row)[10], before.scanLine(row)[10]);
        const Rgb c = grey[picture.image().scanLine(row)[10]];
        QCOMPARE(picture.image().pixel(10, row), qRgb(c.red, c.green, c.blue));
    }
}

void SpectrogramPictureTest::aRangeOfUnderTwoSamplesOrPastTheEndIsBlank() {
    Spectrogram engine;
    engine.setSampleRate(11025);
    engine.setMaxFrequency(5512);
    SpectrogramPicture picture;
    picture.resize(QSize(10, 50));
    const auto samples = sine(700.0, 11025, 4000);
    for (const auto& [first, last] : {std::pair<std::int64_t, std::int64_t>{100, 101}, {4000, 8000}, {5000, 9000}}) {
        picture.compute(engine, samples, first, last, 11025);
        QCOMPARE(picture.columnsDone(), 10);
        for (int row = 0; row < 50; ++row)
            for (int c = 0; c < 10; ++c) QCOMPARE(int(picture.image().scanLine(row)[c]), kBackgroundEntry);
    }
}

void SpectrogramPictureTest::theProgressIsToldAfterEveryEvenColumn() {
    Spectrogram engine;
    engine.setSampleRate(11025);
    engine.setMaxFrequency(5512);
    SpectrogramPicture picture;
    picture.resize(QSize(7, 20));
    const auto samples = sine(700.0, 11025, 11025);
    std::vector<int> told;
    picture.compute(
        engine, samples, 0, 11025, 11025, [&told](int done) { told.push_back(done); }, 0);
    // After columns 0, 2, 4 and 6, and once more at the end.
    QCOMPARE(told, (std::vector<int>{1, 3, 5, 7, 7}));
}

void SpectrogramPictureTest::theLiveColumnIsPaintedWhereItIsAsked() {
    Spectrogram engine;
    engine.setSampleRate(11025);
    engine.setMaxFrequency(5512);
    SpectrogramPicture picture;
    picture.resize(QSize(30, 64));
    const auto block = sine(2756.0, 11025, 1024);  // half the upper frequency: the middle row
    engine.pushSamples(block);
    picture.paintLiveColumn(engine, 12);
    QCOMPARE(picture.columnsDone(), 13);
    QVERIFY(std::abs(strongestRow(picture.image(), 12) - 32) <= 1);
    QCOMPARE(int(picture.image().scanLine(32)[11]), kBackgroundEntry);
}

void SpectrogramPictureTest::equalsThePictureOfTheCommandLineTool() {
    const std::filesystem::path demo = std::filesystem::path(SONALYS_SOURCE_DIR) / "demo/pac001/wv001.wav";
    TempDir dir;
    const auto out = dir / "cli.png";
    const CommandResult run = runCommand(std::string(SONALYS_CLI_PATH) + " spectrogram " + quoted(demo) + " --out " +
                                         quoted(out) + " --width 240 --height 130");
    QCOMPARE(run.exitCode, 0);
    const WaveLoadResult loaded = WaveLoad(demo);
    QCOMPARE(loaded.code, kWaveOk);
    // The panels' defaults: band entry 1 and Limit entry 2 of the rate's list.
    Spectrogram engine;
    engine.setSampleRate(22050);
    engine.setBandwidth(kBandEntries[kDefaultBandEntry]);
    engine.setMaxFrequency(*DefaultLimit(22050));
    SpectrogramPicture picture;
    picture.resize(QSize(240, 130));
    picture.compute(engine, loaded.samples, 0, static_cast<std::int64_t>(loaded.samples.size()), 22050);
    const QImage ours = picture.image().convertToFormat(QImage::Format_RGB32);
    const QImage theirs = QImage(QString::fromStdString(out.string())).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(theirs.size(), ours.size());
    QVERIFY(ours == theirs);
}

QTEST_MAIN(SpectrogramPictureTest)
#include "SpectrogramPicture_test.moc"
