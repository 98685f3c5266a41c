#include "analysis/IirFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "FakePrompt.h"

// Gains worked out from each kind of design: unit gain in the pass band, half power at each edge, none in the stop
// band; a band's centre is where tan(omega / 2) is the geometric mean of the warped edges; a fourth-order low pass
// falls as the eighth power of the warped frequency ratio. A bad type or order shows its message and gives no filter.
TEST(IirFilter, DesignsHaveTheirGainsWhereExpectedAndBadOnesAreRefused) {
    const double half = std::sqrt(0.5);
    const double pi = std::numbers::pi;
    const double centre = std::atan(std::sqrt(std::tan(pi * 0.1) * std::tan(pi * 0.2))) / pi * 10000.0;
    const double octaves =
        1.0 / std::sqrt(1.0 + std::pow(std::tan(pi * 19000 / 66150) / std::tan(pi * 4750 / 66150), 8));
    const auto band = [&](double pass) {
        return std::vector<std::pair<double, double>>{
            {1000, half}, {2000, half}, {centre, pass}, {0, 1 - pass}, {5000, 1 - pass}};
    };
    const struct {
        int type, order;
        double f1, f2, rate;
        std::vector<std::pair<double, double>> gains;
        std::string message;
    } rows[] = {
        {kLowPass, 4, 4750, 0, 66150, {{0, 1}, {4750, half}, {19000, octaves}}, ""},  // the formant chain's
        {kHighPass, 6, 1000, 0, 10000, {{5000, 1}, {1000, half}, {0, 0}}, ""},
        {kBandPass, 4, 1000, 2000, 10000, band(1), ""},
        {kBandPass, 6, 1000, 2000, 10000, band(1), ""},
        {kBandStop, 4, 1000, 2000, 10000, band(0), ""},
        {kBandStop, 6, 1000, 2000, 10000, band(0), ""},
        {0, 4, 1000, 2000, 10000, {}, "filter: unknown filter type"},
        {5, 4, 1000, 2000, 10000, {}, "filter: unknown filter type"},
        {kLowPass, 11, 1000, 2000, 10000, {}, "filter: order of filter too large"},
        {kHighPass, 3, 1000, 2000, 10000, {}, "filter: filter order must be even"},
        {kBandPass, 5, 1000, 2000, 10000, {}, "filter: filter order must be even"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(testing::Message() << "type " << r.type << ", order " << r.order);
        FakePrompt prompt;
        const auto filter = designFilter(r.type, r.order, r.f1, r.f2, r.rate, prompt);
        EXPECT_EQ(prompt.shown, r.message.empty() ? std::vector<std::string>{} : std::vector{r.message});
        ASSERT_EQ(filter.has_value(), r.message.empty());
        for (const auto& [hz, gain] : r.gains) EXPECT_NEAR(filter->gainAt(hz, r.rate), gain, 1e-9) << hz << " Hz";
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
