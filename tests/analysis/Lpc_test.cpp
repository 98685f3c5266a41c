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
