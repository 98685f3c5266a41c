#include "analysis/Spectrogram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "AnalysisTestSupport.h"

namespace {

class RecordingPainter : public ColumnPainter {
public:
    std::vector<std::vector<std::uint8_t>> columns;
    std::vector<bool> blank;
    void paintColumn(int c, std::span<const std::uint8_t> levels) override {
        EXPECT_EQ(c, static_cast<int>(columns.size()));
        columns.emplace_back(levels.begin(), levels.end());
        blank.push_back(false);
    }
    void blankColumn(int c) override {
        EXPECT_EQ(c, static_cast<int>(columns.size()));
        columns.emplace_back();
        blank.push_back(true);
    }
};

}  // namespace

TEST(SpectrogramWindow, LengthFollowsTheBandAndStopsAtTheFftLength) {
    const struct {
        int band, rate, fft, expected;
    } rows[] = {
        {10, 11025, 1024, 1024},  // 1764 asked for, limited
        {40, 11025, 1024, 441},  {80, 11025, 1024, 220},  {150, 11025, 1024, 117},
        {300, 11025, 1024, 58},  {400, 11025, 1024, 44},  // 0.004 s
        {40, 22050, 1024, 882},  {10, 44100, 8192, 7056},
    };
    for (const auto& r : rows)
        EXPECT_EQ(analysisWindowLength(static_cast<float>(r.band), r.rate, r.fft), r.expected)
            << r.band << " Hz at " << r.rate;
}

TEST(SpectrogramFft, LengthTableByRateHeightAndZoom) {
    const struct {
        int rate, height, zoom, expected;
    } rows[] = {
        {11025, 300, 2, 2048}, {11025, 800, 1, 1024}, {11025, 100, 4, 1024}, {22050, 301, 4, 4096},
        {22050, 301, 2, 2048}, {22050, 301, 1, 2048}, {22050, 301, 3, 2048}, {22050, 300, 2, 2048},
        {22050, 300, 4, 4096}, {22050, 300, 1, 1024}, {22050, 300, 3, 1024},  // a ratio of 3 does not raise the length
        {44100, 300, 8, 8192}, {44100, 900, 2, 4096}, {16000, 300, 2, 1024}, {8000, 900, 1, 1024},
    };
    for (const auto& r : rows)
        EXPECT_EQ(spectrogramFftLength(r.rate, r.height, r.zoom), r.expected)
            << r.rate << " Hz, height " << r.height << ", zoom " << r.zoom;
}

TEST(Spectrogram, A1000HzSinePeaksInTheRowOf1000Hz) {
    for (int rate : {11025, 22050, 44100}) {
        Spectrogram s;
        s.setSampleRate(rate);
        s.setBandwidth(40);
        s.setMaxFrequency(5512);
        const int rows = 200;
        RecordingPainter painter;
        const auto signal = sineWave(1000.0, rate, rate, 10000.0);
        s.computeColumns(20, rows, signal, 0.0, 0.5, rate, painter);
        const std::vector<std::uint8_t>& column = painter.columns[10];
        const int peakRow = static_cast<int>(std::max_element(column.begin(), column.end()) - column.begin());
        // Rows span 5512 Hz evenly from the bottom; the peak row holds 1000 Hz to within one row.
        const double rowHz = 5512.0 / rows;
        const double peakHz = (rows - 1 - peakRow + 0.5) * rowHz;
        EXPECT_NEAR(peakHz, 1000.0, 1.5 * rowHz) << rate << " Hz";
        EXPECT_GT(column[static_cast<std::size_t>(peakRow)], 60);
    }
}

TEST(Spectrogram, RowsNoBinReachesAreZeroInAPictureAndRepeatTheRowBelowLive) {
    // At a ratio of 1, 1000 rows share the 511 bins of a 1024-point transform: about every other row gets none.
    const int rows = 1000;
    const auto signal = noise(1024, 20000, 3);
    Spectrogram live;
    live.setSampleRate(11025);
    live.setMaxFrequency(5512);
    live.pushSamples(signal);
    const auto liveLevels = live.computeLiveColumn(rows);
    const std::vector<std::uint8_t> liveColumn(liveLevels.begin(), liveLevels.end());

    // The same frame in a picture: a 1024-sample window centred so that it starts at sample 0.
    Spectrogram picture;
    picture.setSampleRate(11025);
    picture.setMaxFrequency(5512);
    RecordingPainter painter;
    picture.computeColumns(1, rows, signal, 0.0, 511.0 / 11025.0, 11025, painter);
    const std::vector<std::uint8_t>& pictureColumn = painter.columns[0];

    int empty = 0;
    for (int r = 0; r < rows; ++r) {
        empty += pictureColumn[r] == 0;
        if (pictureColumn[r] != 0 || r + 1 < rows) {
            EXPECT_EQ(liveColumn[r], pictureColumn[r] != 0 ? pictureColumn[r] : liveColumn[r + 1]) << "row " << r;
        }
    }
    EXPECT_GT(empty, 400);
}

TEST(Spectrogram, ColumnsPastTheDataRepeatTheLastOneAndShortStretchesAreBlank) {
    Spectrogram s;
    s.setMaxFrequency(5512);
    s.setBandwidth(40);  // 441 samples
    const auto signal = noise(2000, 20000, 7);
    RecordingPainter painter;
    // 100 columns over one second, 110.25 samples apart: column c ends its 441-sample window at
    // trunc(110.25 (c + 1)) - 219 + 441, within the 2000 samples up to column 15.
    s.computeColumns(100, 128, signal, 0.0, 1.0, 11025, painter);
    ASSERT_EQ(painter.columns.size(), 100u);
    const int lastFitting = 15;
    for (int c = lastFitting + 1; c < 100; ++c) EXPECT_EQ(painter.columns[c], painter.columns[lastFitting]);
    EXPECT_NE(painter.columns[lastFitting], painter.columns[lastFitting - 1]);

    // Shorter than the window: nothing fits, and every column shows zero levels (background).
    RecordingPainter shortPainter;
    const auto shortSignal = noise(100, 20000, 8);
    s.computeColumns(10, 64, shortSignal, 0.0, 1.0, 11025, shortPainter);
    for (const auto& column : shortPainter.columns) EXPECT_EQ(column, std::vector<std::uint8_t>(64, 0));

    // Under 2 samples: blank columns.
    RecordingPainter blankPainter;
    s.computeColumns(5, 64, signal, 0.0, 1.0 / 11025.0, 11025, blankPainter);
    EXPECT_EQ(blankPainter.blank, std::vector<bool>(5, true));
}
