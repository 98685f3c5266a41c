#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "FakePrompt.h"
#include "TempDir.h"
#include "analysis/RateConversion.h"
#include "store/WaveFile.h"

TEST(RateFraction, TakesTheFirstDenominatorWithinTheTolerance) {
    EXPECT_EQ(rateFraction(44100, 22050), (RateFraction{1, 2}));
    EXPECT_EQ(rateFraction(48000, 44100), (RateFraction{147, 160}));
    EXPECT_EQ(rateFraction(8000, 11025), (RateFraction{441, 320}));
    EXPECT_EQ(rateFraction(22050, 44100), (RateFraction{2, 1}));
    EXPECT_EQ(rateFraction(22050, 22050), (RateFraction{1, 1}));
    // 1000001 / 3000000 is 1/3 + 3.3e-7: close enough. 1000004 / 3000000 is 1/3 + 1.3e-6, and every other
    // fraction with a denominator up to 999 lies farther off.
    EXPECT_EQ(rateFraction(3000000, 1000001), (RateFraction{1, 3}));
    EXPECT_EQ(rateFraction(3000000, 1000004), RateFraction{});
    // 44101 / 44100 needs the denominator 44100; the nearest with at most 999 is 1/1, 2.3e-5 off.
    EXPECT_EQ(rateFraction(44100, 44101), RateFraction{});
    EXPECT_EQ(rateFraction(0, 44100), RateFraction{});
    EXPECT_EQ(rateFraction(44100, 0), RateFraction{});
}

TEST(PrimeTable, HoldsTheFirst175PrimesAndFactorsOverThem) {
    const std::span<const int> primes = primeTable();
    ASSERT_EQ(primes.size(), 175u);
    EXPECT_EQ(primes.front(), 2);
    EXPECT_EQ(primes.back(), 1039);
    int count = 0;
    for (int n = 2; n <= 1039; ++n) {
        bool prime = true;
        for (int d = 2; d * d <= n; ++d) prime = prime && n % d != 0;
        if (prime) {
            EXPECT_EQ(primes[count++], n);
        }
    }
    EXPECT_EQ(primeFactors(1), (std::vector<std::int64_t>{1}));
    EXPECT_EQ(primeFactors(160), (std::vector<std::int64_t>{2, 2, 2, 2, 2, 5}));
    EXPECT_EQ(primeFactors(147), (std::vector<std::int64_t>{3, 7, 7}));
    EXPECT_EQ(primeFactors(1039 * 1039), (std::vector<std::int64_t>{1039, 1039}));
    EXPECT_EQ(primeFactors(2 * 1049), (std::vector<std::int64_t>{2, 1049}));  // 1049 is past the table
}

TEST(ConversionStages, MultiplyToTheFractionWithSmallFactorsAndNeverDropBelowTheLowerRate) {
    const RateFraction fractions[] = {{147, 160}, {1, 2}, {441, 320}, {160, 147}, {147, 640},
                                      {441, 80},  {2, 1}, {1, 4},     {441, 500}, {44100, 1}};
    for (const RateFraction& f : fractions) {
        SCOPED_TRACE(testing::Message() << f.num << "/" << f.den);
        const std::vector<ConversionStage> stages = planStages(f);
        ASSERT_FALSE(stages.empty());
        std::int64_t up = 1, down = 1;
        for (const ConversionStage& s : stages) {
            EXPECT_TRUE(s.up >= 1 && s.up <= 41 && s.down >= 1 && s.down <= 41);
            EXPECT_FALSE(s.up == 1 && s.down == 1);
            up *= s.up;
            down *= s.down;
            // The rate reached, as a multiple of the input rate, stays at least min(1, num / den).
            EXPECT_TRUE(up >= down || up * f.den >= down * f.num);
            EXPECT_DOUBLE_EQ(stageStopEdge(s), 0.5 / std::max(s.up, s.down));
        }
        EXPECT_EQ(up, f.num);
        EXPECT_EQ(down, f.den);
    }
    EXPECT_EQ(planStages({1, 1}), (std::vector<ConversionStage>{{1, 1}}));
    EXPECT_TRUE(planStages({441, 430}).empty());  // 430 = 2 x 5 x 43
    EXPECT_TRUE(planStages({47, 1}).empty());
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
    if (c.written && std::filesystem::file_size(dir / "out.wav") == 46) return c;
    if (c.written) {
        const WaveLoadResult loaded = WaveLoad(dir / "out.wav");
        EXPECT_EQ(loaded.code, kWaveOk);
        EXPECT_EQ(loaded.format.nSamplesPerSec, static_cast<std::uint32_t>(to));
        EXPECT_EQ(loaded.format.nChannels, 1);
        EXPECT_EQ(loaded.format.wBitsPerSample, 16);
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
