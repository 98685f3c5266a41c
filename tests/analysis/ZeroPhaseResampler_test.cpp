#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "analysis/ZeroPhaseResampler.h"

namespace {

// The stage written plainly: zero-stuff to the working rate (each value up times as large), run the sections
// forward over every step and far past the end, then backward from rest, and keep every down-th value.
std::vector<double> plainStage(int up, int down, const std::vector<BiquadSection>& sections,
                               const std::vector<float>& input, std::size_t outputs, long long tail) {
    const long long steps = std::max<long long>(up * static_cast<long long>(input.size()), outputs * down) + tail;
    std::vector<double> state(2 * sections.size());
    const auto step = [&](double value) {
        for (std::size_t i = 0; i < sections.size(); ++i) {
            const BiquadSection& f = sections[i];
            const double y = f.b0 * value + state[2 * i];
            state[2 * i] = f.b1 * value - f.a1 * y + state[2 * i + 1];
            state[2 * i + 1] = f.b2 * value - f.a2 * y;
            value = y;
        }
        return value;
    };
    std::vector<double> forward(steps);
    for (long long k = 0; k < steps; ++k) {
        const bool stuffed = k % up != 0 || k / up >= static_cast<long long>(input.size());
        forward[k] = step(stuffed ? 0.0 : up * static_cast<double>(input[k / up]));
    }
    std::fill(state.begin(), state.end(), 0.0);
    std::vector<double> output(outputs);
    for (long long k = steps - 1; k >= 0; --k) {
        const double value = step(forward[k]);
        if (k % down == 0 && k / down < static_cast<long long>(outputs)) output[k / down] = value;
    }
    return output;
}

std::vector<float> noise(std::size_t n) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> uniform(-20000.0f, 20000.0f);
    std::vector<float> values(n);
    for (float& v : values) v = uniform(random);
    return values;
}

}  // namespace

TEST(ZeroPhaseResampler, GivesWhatThePlainForwardBackwardPassGives) {
    // Long enough for several kept forward states, and outputs asked for past the end of the signal.
    const struct {
        int up, down;
        std::size_t inputs;
    } cases[] = {{1, 2, 20000}, {3, 2, 12000}, {2, 1, 9000}, {7, 8, 11000}, {21, 20, 25000}, {1, 1, 500}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.up << "/" << c.down);
        const int factor = std::max({c.up, c.down, 2});
        const std::vector<BiquadSection> sections = designStageLowPass(0.5 / factor).sections;
        const ZeroPhaseResampler stage(c.up, c.down, sections);
        const std::vector<float> input = noise(c.inputs);
        const std::size_t outputs = c.inputs * c.up / c.down + 37;
        std::vector<float> output(outputs + 1, 12345.0f);  // the last one must stay untouched
        ASSERT_TRUE(stage.run(input, std::span(output).first(outputs), {}));
        EXPECT_EQ(output.back(), 12345.0f);
        const std::vector<double> expected = plainStage(c.up, c.down, sections, input, outputs, 3 * stage.decaySteps());
        double worst = 0.0;
        for (std::size_t i = 0; i < outputs; ++i) worst = std::max(worst, std::fabs(output[i] - expected[i]));
        EXPECT_LT(worst, 0.01);  // float output of values up to about 20000
    }
}
