#include <gtest/gtest.h>

#include <algorithm>

#include "FakePrompt.h"
#include "TempDir.h"
#include "analysis/RateConversion.h"
#include "store/WaveFile.h"

// 1000001 / 3000000 is 1/3 + 3.3e-7: close enough. 1000004 / 3000000 is 1/3 + 1.3e-6, and every other fraction with
// a denominator up to 999 lies farther off.
TEST(RateFraction, TakesTheFirstDenominatorWithinTheTolerance) {
    EXPECT_EQ(rateFraction(3000000, 1000001), (RateFraction{1, 3}));
    EXPECT_EQ(rateFraction(3000000, 1000004), RateFraction{});
    EXPECT_EQ(rateFraction(0, 44100), RateFraction{});
}

namespace {

struct Converted {
    int result = 0;
    bool written = false;
    std::vector<std::int16_t> samples;
};

Converted convert(const std::vector<std::int16_t>& input, int from, int to, FakePrompt& prompt,
                  const ConversionProgress& progress = {}) {
    TempDir dir;
    Converted c;
    c.result = convertSampleRate(input.data(), static_cast<int>(input.size()), from, to, dir / "out.wav", 16, prompt,
                                 progress);
    c.written = std::filesystem::exists(dir / "out.wav");
    // A file of no values is its 46-byte header alone.
    if (c.written && std::filesystem::file_size(dir / "out.wav") != 46) {
        const WaveLoadResult loaded = WaveLoad(dir / "out.wav");
        EXPECT_EQ(loaded.code, kWaveOk);
        EXPECT_EQ(loaded.format, (WaveFormat{1, 1, std::uint32_t(to), 2 * std::uint32_t(to), 2, 16, 0, {}}));
        c.samples = loaded.samples;
    }
    return c;
}

}  // namespace

TEST(ConvertSampleRate, RefusalsTellTheUserOnlyWhereTheyShouldAndWriteNothing) {
    // 441/430 holds the prime 43, which is silently refused; a file of the same rate must be copied by the caller.
    const struct {
        int from, to;
        std::vector<std::string> shown;
    } rows[] = {{44100, 44101, {"No simple factors for ratio"}},
                {43000, 44100, {}},
                {22050, 22050, {"Filter design too difficult! "}}};
    for (const auto& r : rows) {
        FakePrompt prompt;
        const Converted c = convert(std::vector<std::int16_t>(1000, 100), r.from, r.to, prompt);
        EXPECT_EQ(c.result, 0) << r.from;
        EXPECT_FALSE(c.written) << r.from;
        EXPECT_EQ(prompt.shown, r.shown) << r.from;
    }
}

TEST(ConvertSampleRate, GivesNumTimesCountOverDenValuesForAnyLength) {
    FakePrompt prompt;
    for (const int n : {0, 1, 7, 160, 1001}) {
        const std::vector<std::int16_t> input(n, 1000);
        EXPECT_EQ(convert(input, 48000, 44100, prompt).samples.size(), static_cast<std::size_t>(147 * n / 160));
        EXPECT_EQ(convert(input, 8000, 11025, prompt).samples.size(), static_cast<std::size_t>(441 * n / 320));
        EXPECT_EQ(convert(input, 44100, 22050, prompt).samples.size(), static_cast<std::size_t>(n / 2));
    }
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(ConvertSampleRate, ClipsToPlusMinus32767) {
    // A full-scale square wave overshoots at every edge once filtered.
    std::vector<std::int16_t> input(4000);
    for (std::size_t i = 0; i < input.size(); ++i) input[i] = (i / 50) % 2 ? -32768 : 32767;
    FakePrompt prompt;
    const Converted c = convert(input, 44100, 22050, prompt);
    ASSERT_EQ(c.result, 1);
    EXPECT_EQ(*std::min_element(c.samples.begin(), c.samples.end()), -32767);
    EXPECT_EQ(*std::max_element(c.samples.begin(), c.samples.end()), 32767);
}

TEST(ConvertSampleRate, ReportsProgressUpToOneAndCancelsWithoutWriting) {
    const std::vector<std::int16_t> input(48000, 500);
    FakePrompt prompt;
    std::vector<double> seen;
    const Converted done = convert(input, 48000, 44100, prompt, [&](double f) {
        seen.push_back(f);
        return true;
    });
    EXPECT_EQ(done.result, 1);
    ASSERT_GE(seen.size(), 100u);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.back(), 1.0);

    const Converted cancelled = convert(input, 48000, 44100, prompt, [](double f) { return f < 0.5; });
    EXPECT_EQ(cancelled.result, 0);
    EXPECT_FALSE(cancelled.written);
    EXPECT_TRUE(prompt.shown.empty());
}
