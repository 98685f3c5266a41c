#include <gtest/gtest.h>

#include <cmath>

#include "F0TestSupport.h"
#include "f0/sigproc.h"

TEST(Windows, ArePeriodicWithTheMinimumAtTheFirstSample) {
    EXPECT_EQ(makeWindow(0, 1), std::vector<float>{0.08f});
    EXPECT_EQ(makeWindow(1, 1), std::vector<float>{0.0f});
    const std::vector<float> hanning = makeWindow(1, 8);
    EXPECT_EQ(hanning[0], 0.0f);
    EXPECT_EQ(hanning[4], 1.0f);
    EXPECT_EQ(hanning[2], static_cast<float>(0.5 - 0.5 * std::cos(2 * (6.283185307179586 / 8))));
    CerrCapture capture;
    EXPECT_TRUE(makeWindow(7, 8).empty());
    EXPECT_EQ(capture.text(), "Unknown window type (7)\n");
}

TEST(Energy, TheFirstWindowTypeStaysForItsSize) {
    SigprocCache cache;
    const std::vector<float> ones(16, 1.0f);
    const float hanning = Energy(cache, ones.data(), 16, 1);
    EXPECT_EQ(Energy(cache, ones.data(), 16, 0), hanning);  // same size: the Hanning window is kept
    EXPECT_GT(Energy(cache, ones.data(), 15, 0), hanning);  // a new size builds a Hamming window
    CerrCapture capture;
    EXPECT_EQ(Energy(cache, ones.data(), 8, 3), 0.0f);
    EXPECT_EQ(capture.text(), "Unknown window type (3)\nMemory error in Energy\n");
}

TEST(Lpc, AutocorrelationSummedSideBySideEqualsThePlainLoop) {
    const std::vector<float> s = whiteNoise(661, 30000.0, 9);
    for (int p : {1, 7, 13, 24, 46, 50}) {
        float r[BIGSORD + 1];
        autoc(s.data(), 660, p, r);
        float e = 0.0f;
        for (int j = 0; j < 660; ++j) e += s[j] * s[j];
        for (int i = 1; i <= p; ++i) {
            float sum = 0.0f;
            for (int j = 0; j < 660 - i; ++j) sum += s[j] * s[j + i];
            ASSERT_EQ(r[i], sum / e) << "order " << p << " lag " << i;
        }
    }
}

TEST(Lpc, TheNoiseFloorShrinksTheCorrelationsOnlyAboveOneDecibel) {
    const std::vector<float> s = whiteNoise(300, 3000.0, 4);
    SigprocCache cache;
    float plain[BIGSORD + 1], floored[BIGSORD + 1], err = 0.0f;
    ASSERT_EQ(lpc(cache, s.data(), 299, 8, 1, 0.4f, 1.0f, nullptr, plain, nullptr, &err), 1);
    ASSERT_EQ(lpc(cache, s.data(), 299, 8, 1, 0.4f, 30.0f, nullptr, floored, nullptr, &err), 1);
    const double f = 1 / (1 + std::exp(std::log(10.0) * (-30.0 / 20.0)));
    EXPECT_EQ(floored[0], plain[0]);
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(floored[i], static_cast<float>(plain[i] * f));
}
