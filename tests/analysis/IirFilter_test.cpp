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

    // Both band edges at half power; the centre, where tan(omega / 2) is the geometric mean of the warped edges,
    // passes (or stops) fully, and so do DC and the Nyquist frequency the other way round.
    const double centre = std::atan(std::sqrt(std::tan(std::numbers::pi * 0.1) * std::tan(std::numbers::pi * 0.2))) /
                          std::numbers::pi * rate;
    for (int order : {4, 6}) {
        for (const int type : {kBandPass, kBandStop}) {
            const auto filter = designFilter(type, order, 1000.0, 2000.0, rate, prompt);
            ASSERT_TRUE(filter);
            const double pass = type == kBandPass ? 1.0 : 0.0;
            for (double f : {1000.0, 2000.0}) EXPECT_NEAR(filter->gainAt(f, rate), kHalfPower, 1e-9) << order;
            EXPECT_NEAR(filter->gainAt(centre, rate), pass, 1e-9) << order;
            for (double f : {0.0, 5000.0}) EXPECT_NEAR(filter->gainAt(f, rate), 1.0 - pass, 1e-12) << order;
        }
    }
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(IirFilter, BadTypeOrOrderShowsItsMessageAndGivesNoFilter) {
    struct Row {
        int type, order;
        std::string_view message;
    };
    const Row rows[] = {
        {0, 4, "filter: unknown filter type"},
        {5, 4, "filter: unknown filter type"},
        {kLowPass, 11, "filter: order of filter too large"},
        {kLowPass, 12, "filter: order of filter too large"},
        {kHighPass, 3, "filter: filter order must be even"},
        {kBandPass, 5, "filter: filter order must be even"},
    };
    for (const Row& r : rows) {
        FakePrompt prompt;
        EXPECT_FALSE(designFilter(r.type, r.order, 1000.0, 2000.0, 10000.0, prompt));
        ASSERT_EQ(prompt.shown.size(), 1u);
        EXPECT_EQ(prompt.shown[0], r.message);
    }
    EXPECT_EQ(kFilterOutOfMemory, "filter: out of memory");
}
