#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "analysis/EllipticFilter.h"

namespace {

// Gain of the whole cascade at `frequency`, a fraction of the working rate, in dB.
double gainDb(const StageLowPass& design, double frequency) {
    const std::complex<double> z = std::polar(1.0, -2.0 * std::numbers::pi * frequency);  // z^-1
    std::complex<double> response = 1.0;
    for (const BiquadSection& s : design.sections) {
        response *= (s.b0 + s.b1 * z + s.b2 * z * z) / (1.0 + s.a1 * z + s.a2 * z * z);
    }
    return 20.0 * std::log10(std::abs(response));
}

}  // namespace

TEST(StageLowPass, EveryFactorMeetsItsFiguresOverTheWholeCascade) {
    for (int factor = 2; factor <= 41; ++factor) {
        SCOPED_TRACE(factor);
        const double w = 0.5 / factor;
        for (const int passes : {1, 4}) {
            const StageLowPass design = designStageLowPass(w, passes);
            ASSERT_EQ(design.result, FilterDesignResult::Ok);
            EXPECT_EQ(design.order % 2, 0);
            EXPECT_EQ(design.cascade, factor < 20 ? 1 : factor < 30 ? 2 : 3);
            ASSERT_EQ(design.sections.size(), static_cast<std::size_t>(design.order / 2 * design.cascade));
            for (const BiquadSection& s : design.sections) {
                EXPECT_NEAR((s.b0 + s.b1 + s.b2) / (1.0 + s.a1 + s.a2), 1.0, 1e-12);  // DC passes unchanged
                EXPECT_LT(s.a2, 1.0);                                                 // poles inside the circle
                EXPECT_LT(std::fabs(s.a1), 1.0 + s.a2);
            }
            // The passband may only rise, by at most its share of 0.2 dB.
            for (int i = 0; i <= 400; ++i) {
                const double gain = gainDb(design, 0.9 * w * i / 400);
                EXPECT_GE(gain, -1e-9);
                EXPECT_LE(gain, 0.2 / passes + 1e-6);
            }
            for (int i = 0; i <= 4000; ++i) EXPECT_LE(gainDb(design, w + (0.5 - w) * i / 4000), -80.0);
        }
    }
}

TEST(StageLowPass, FactorsOutsideTwoToFortyOneAreTooDifficult) {
    EXPECT_EQ(stageFilterFactor(0.5 / 41), 41);  // the small margin keeps 0.5 / (0.5 / f) from rounding down
    EXPECT_EQ(stageFilterFactor(0.5 / 3), 3);
    EXPECT_EQ(designStageLowPass(0.5).result, FilterDesignResult::TooDifficult);  // factor 1: nothing to filter
    EXPECT_EQ(designStageLowPass(0.4).result, FilterDesignResult::TooDifficult);
    EXPECT_EQ(designStageLowPass(0.5 / 42).result, FilterDesignResult::TooDifficult);
    EXPECT_TRUE(designStageLowPass(0.5 / 42).sections.empty());
}

TEST(StageLowPass, SectionsWithPolesHuggingTheUnitCircleRiskLimitCycles) {
    const auto section = [](double radius, double angle) {
        BiquadSection s;
        s.a1 = -2.0 * radius * std::cos(angle);
        s.a2 = radius * radius;
        return s;
    };
    // (1 - k1^2)(1 - k2^2) with k2 = -r^2 and k1 = 2 r cos(a) / (1 + r^2), against the limit 1e-5:
    EXPECT_TRUE(sectionRisksLimitCycles(section(0.9999, 0.05)));  // 1.0e-6
    EXPECT_TRUE(sectionRisksLimitCycles(section(0.99, 0.001)));   // 4.0e-6: a pole pair close to DC
    EXPECT_FALSE(sectionRisksLimitCycles(section(0.999, 0.5)));   // 9.2e-4
    EXPECT_FALSE(sectionRisksLimitCycles(section(0.9, 0.3)));     // 3.3e-2
}
