#include <gtest/gtest.h>

#include <cmath>

#include "F0TestSupport.h"
#include "f0/downsample.h"

TEST(DownsampleFilter, TheSincIsWindowedAtTapCentresAndVanishesAtMultiplesOfTheFactor) {
    std::unique_ptr<DownsampleFilter> filter;
    ASSERT_EQ(downsampleFilterDesign(11025, 5, &filter), 1);
    const int half = 27;
    const auto window = [](int i) { return 0.5 - 0.5 * std::cos((i + 0.5) * 6.283185307179586 / 55); };
    EXPECT_EQ(filter->coef[half], static_cast<float>(static_cast<float>(1.0 / 5) * window(half)));
    for (int i = 1; i <= half; ++i) {
        EXPECT_EQ(filter->coef[half - i], filter->coef[half + i]);
        if (i % 5 == 0)
            EXPECT_LT(std::fabs(filter->coef[half + i]), 1e-9f) << i;
        else
            EXPECT_GT(std::fabs(filter->coef[half + i]), 1e-6f) << i;
    }
}

TEST(Downsample, OutputsAreWholeNumbersAtTheLowRateKeepTheLevelAndCarryOverTheNextStart) {
    auto t = systemTracker(22050);
    std::vector<float> dc(static_cast<std::size_t>(t->buffSize), 1000.0f);
    ASSERT_EQ(downsample(t.get(), dc.data(), t->buffSize), 1);
    EXPECT_EQ(t->nFiltered, t->filteredSize);
    for (int k = 0; k < t->nFiltered; ++k) EXPECT_EQ(t->filtered[k], std::round(t->filtered[k]));
    EXPECT_NEAR(t->filtered[100], 1000.0f, 20.0f);
    EXPECT_LT(t->filtered[0], 600.0f);  // the first outputs span the zeros carried in at the start
    // The carry-over lies just before the next buffer's start.
    for (float m : t->filter->memory) EXPECT_EQ(m, 1000.0f);
    // A short last buffer: the next start lies beyond the input, so the carry-over is zeros.
    ASSERT_EQ(downsample(t.get(), dc.data(), 1000), 1);
    for (float m : t->filter->memory) EXPECT_EQ(m, 0.0f);
}

TEST(Downsample, SideBySideOutputsEqualTheTapByTapSum) {
    auto t = systemTracker(22050);
    const std::vector<float> noise = whiteNoise(static_cast<std::size_t>(t->buffSize), 30000.0, 5);
    ASSERT_EQ(downsample(t.get(), noise.data(), t->buffSize), 1);
    const DownsampleFilter& filter = *t->filter;
    const int half = filter.length / 2;
    for (int k = 0; k < t->nFiltered; ++k) {
        const int i = k * t->decimate;
        if (i < half) continue;
        float sum = 0.0f;
        for (int j = 0; j < filter.length && i + j < t->buffSize; ++j) sum += noise[i - half + j] * filter.coef[j];
        ASSERT_EQ(t->filtered[k],
                  static_cast<float>(sum >= 0 ? static_cast<int>(sum + 0.5) : static_cast<int>(sum - 0.5)))
            << k;
    }
}
