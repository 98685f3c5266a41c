#include "analysis/IirFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "FakePrompt.h"

namespace {

constexpr double kHalfPower = 0.70710678118654752;

}  // namespace

TEST(IirFilter, LowPassOfTheFormantChainHasUnitGainAtDcAndHalfPowerAtTheCutOff) {
    FakePrompt prompt;
    const auto filter = designFilter(kLowPass, 4, 4750.0, 0.0, 3 * 22050.0, prompt);
    ASSERT_TRUE(filter);
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(filter->sections().size(), 2u);
    EXPECT_NEAR(filter->gainAt(0.0, 66150.0), 1.0, 1e-12);
    EXPECT_NEAR(filter->gainAt(4750.0, 66150.0), kHalfPower, 1e-9);
    // Fourth order: 24 dB an octave well above the cut-off.
    EXPECT_NEAR(filter->gainAt(19000.0, 66150.0),
                1.0 / std::sqrt(1.0 + std::pow(std::tan(std::numbers::pi * 19000 / 66150) /
                                                   std::tan(std::numbers::pi * 4750 / 66150),
                                               8.0)),
                1e-9);
    for (const FilterSection& s : filter->sections()) {
        EXPECT_EQ(s.a[0], 1.0);
        EXPECT_NEAR(s.b[1], 2.0 * s.b[0], 1e-15);  // both zeros at the Nyquist frequency
    }
}

TEST(IirFilter, RunningASteadyInputSettlesAtTheDcGainAndResetStartsAfresh) {
    FakePrompt prompt;
    auto filter = designFilter(kLowPass, 4, 1000.0, 0.0, 10000.0, prompt);
    ASSERT_TRUE(filter);
    const double first = filter->filter(100.0);
    double y = first;
    for (int i = 0; i < 2000; ++i) y = filter->filter(100.0);
    EXPECT_NEAR(y, 100.0, 1e-9);
    filter->reset();
    EXPECT_EQ(filter->filter(100.0), first);
}

TEST(IirFilter, HighBandPassAndBandStopHaveTheirGainsWhereExpected) {
    FakePrompt prompt;
    const double rate = 10000.0;
    const auto high = designFilter(kHighPass, 6, 1000.0, 0.0, rate, prompt);
    ASSERT_TRUE(high);
    EXPECT_NEAR(high->gainAt(5000.0, rate), 1.0, 1e-12);
    EXPECT_NEAR(high->gainAt(1000.0, rate), kHalfPower, 1e-9);
    EXPECT_NEAR(high->gainAt(0.0, rate), 0.0, 1e-12);

    for (int order : {4, 6}) {
        const auto pass = designFilter(kBandPass, order, 1000.0, 2000.0, rate, prompt);
        ASSERT_TRUE(pass);
        EXPECT_NEAR(pass->gainAt(1000.0, rate), kHalfPower, 1e-9) << order;
        EXPECT_NEAR(pass->gainAt(2000.0, rate), kHalfPower, 1e-9) << order;
        EXPECT_NEAR(pass->gainAt(0.0, rate), 0.0, 1e-12) << order;
        EXPECT_NEAR(pass->gainAt(5000.0, rate), 0.0, 1e-12) << order;

        const auto stop = designFilter(kBandStop, order, 1000.0, 2000.0, rate, prompt);
        ASSERT_TRUE(stop);
        EXPECT_NEAR(stop->gainAt(0.0, rate), 1.0, 1e-12) << order;
        EXPECT_NEAR(stop->gainAt(1000.0, rate), kHalfPower, 1e-9) << order;
        EXPECT_NEAR(stop->gainAt(2000.0, rate), kHalfPower, 1e-9) << order;
    }
    // The band-pass centre, where tan(omega / 2) is the mean of the warped edges, passes at unit gain.
    const double centre = std::atan(std::sqrt(std::tan(std::numbers::pi * 0.1) * std::tan(std::numbers::pi * 0.2))) /
                          std::numbers::pi * rate;
    EXPECT_NEAR(designFilter(kBandPass, 4, 1000.0, 2000.0, rate, prompt)->gainAt(centre, rate), 1.0, 1e-12);
    EXPECT_NEAR(designFilter(kBandStop, 4, 1000.0, 2000.0, rate, prompt)->gainAt(centre, rate), 0.0, 1e-9);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(IirFilter, BadTypeOrOrderShowsItsMessageAndGivesNoFilter) {
    struct Row {
        int type, order;
        std::string_view message;
    };
    const Row rows[] = {
        {0, 4, kFilterUnknownType},           {5, 4, kFilterUnknownType},          {kLowPass, 11, kFilterOrderTooLarge},
        {kLowPass, 12, kFilterOrderTooLarge}, {kHighPass, 3, kFilterOrderNotEven}, {kBandPass, 5, kFilterOrderNotEven},
    };
    for (const Row& r : rows) {
        FakePrompt prompt;
        EXPECT_FALSE(designFilter(r.type, r.order, 1000.0, 2000.0, 10000.0, prompt));
        ASSERT_EQ(prompt.shown.size(), 1u);
        EXPECT_EQ(prompt.shown[0], r.message);
    }
    EXPECT_EQ(kFilterUnknownType, "filter: unknown filter type");
    EXPECT_EQ(kFilterOrderTooLarge, "filter: order of filter too large");
    EXPECT_EQ(kFilterOrderNotEven, "filter: filter order must be even");
    EXPECT_EQ(kFilterOutOfMemory, "filter: out of memory");
}
