#include "analysis/Lpc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "AnalysisTestSupport.h"

TEST(LpcWindow, KindsAndTheirEndPoints) {
    const auto raised = makeLpcWindow(kRaisedWindow, 490);
    ASSERT_EQ(raised.size(), 490u);
    EXPECT_EQ(raised[0], 0.0);
    EXPECT_NEAR(raised[245], 1.0, 1e-12);  // the middle of the raised cosine
    EXPECT_NEAR(raised[122], std::pow(0.5 * (1.0 - std::cos(122 * 6.2831854 / 490)), 4.0), 1e-15);
    const auto hamming = makeLpcWindow(kHammingWindow, 10);
    EXPECT_NEAR(hamming[0], 0.08, 1e-15);
    EXPECT_NEAR(hamming[5], 0.54 - 0.46 * std::cos(5 * 6.2831854 / 11), 1e-15);  // size + 1 below
    for (double w : makeLpcWindow(kNoWindow, 5)) EXPECT_EQ(w, 1.0);
    EXPECT_TRUE(makeLpcWindow(7, 5).empty());
}

TEST(Lpc, BadArgumentsReturnZeroAndTheFreeFlagReleases) {
    LpcAnalysis lpc;
    LpcResult result;
    const auto frame = noise(491, 8000, 1);
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 490, frame, result, 0.7, kRaisedWindow, false), 1);
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 0, frame, result, 0.7, kRaisedWindow, false), 0);
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 490, {}, result, 0.7, kRaisedWindow, false), 0);
    EXPECT_EQ(lpc.lpcAnalysis(31, 70.0, 490, frame, result, 0.7, kRaisedWindow, false), 0);
    EXPECT_EQ(lpc.lpcAnalysis(30, 70.0, 490, frame, result, 0.7, kRaisedWindow, false), 1);
    // Pre-emphasis reads one sample past the window.
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 491, frame, result, 0.7, kRaisedWindow, false), 0);
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 491, frame, result, 0.0, kRaisedWindow, false), 1);
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 490, frame, result, 0.7, 3, false), 0);
    EXPECT_EQ(lpc.lpcAnalysis(12, 70.0, 490, frame, result, 0.7, kRaisedWindow, true), 0);
}

TEST(Lpc, SilenceGivesUnitRmsAndNoPrediction) {
    LpcAnalysis lpc;
    LpcResult result;
    const std::vector<std::int16_t> silence(491, 0);
    ASSERT_EQ(lpc.lpcAnalysis(12, 70.0, 490, silence, result, 0.7, kRaisedWindow, false), 1);
    EXPECT_EQ(result.rms, 1.0);
    EXPECT_EQ(result.normErr, 1.0);
    for (int i = 0; i <= 12; ++i) {
        EXPECT_EQ(result.autoc[i], i == 0 ? 1.0 : 0.0);
        EXPECT_EQ(result.lpca[i], i == 0 ? 1.0 : 0.0);
    }
}

TEST(Lpc, AutocorrelationIsThePlainSumOfThePreEmphasisedWindowedFrame) {
    LpcAnalysis lpc;
    LpcResult result;
    const auto x = noise(491, 8000, 2);
    ASSERT_EQ(lpc.lpcAnalysis(12, 70.0, 490, x, result, 0.7, kRaisedWindow, false), 1);
    const auto w = makeLpcWindow(kRaisedWindow, 490);
    std::vector<double> s(490);
    for (int i = 0; i < 490; ++i) s[i] = (x[i + 1] - 0.7 * x[i]) * w[i];
    double e = 0.0;
    for (double v : s) e += v * v;
    EXPECT_EQ(result.rms, std::sqrt(e / 490));
    for (int lag = 1; lag <= 12; ++lag) {
        double sum = 0.0;
        for (int j = 0; j < 490 - lag; ++j) sum += s[j] * s[j + lag];
        EXPECT_EQ(result.autoc[lag], sum / e) << "lag " << lag;  // the same sums in the same order
    }
}

TEST(Lpc, DurbinOfAFirstOrderProcessWorkedByHand) {
    // r = 1, 0.5, 0.25: k0 = -0.5, error 0.75; the second reflection is (0.25 - 0.25) / 0.75 = 0.
    const double r[] = {1.0, 0.5, 0.25};
    double k[2] = {};
    double a[2] = {};
    EXPECT_EQ(durbin(r, k, a, 2), 0.75);
    EXPECT_EQ(k[0], -0.5);
    EXPECT_EQ(a[0], -0.5);
    EXPECT_EQ(k[1], 0.0);
    EXPECT_EQ(a[1], 0.0);
}
