#include "analysis/PowerSpectrum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "AnalysisTestSupport.h"

TEST(PowerSpectrum, LevelIsTheMeanFramePowerLessTheFixedReference) {
    // Amplitude A exactly on bin 32 with no window: |X| = A * 512 / 2 in every frame, so the level is
    // 20 log10(A * 256) - 18 log10(512).
    PowerSpectrum p;
    p.setUseWindow(false);
    p.computeSpectrum(sineWave(32.0 * 11025 / 512, 11025, 4000, 1000.0));
    EXPECT_NEAR(p.current()[32], 20.0 * std::log10(1000.0 * 256) - 18.0 * std::log10(512.0), 0.01);
}

TEST(PowerSpectrum, FramesAreFftSizeLongAnd200Apart) {
    // An impulse in the first frame only: its power is divided by the number of frames.
    auto levelWith = [](int n) {
        std::vector<std::int16_t> s(static_cast<std::size_t>(n), 0);
        s[0] = 1000;
        PowerSpectrum p;
        p.setUseWindow(false);
        p.computeSpectrum(s);
        return p.current()[10];
    };
    const double oneFrame = 20.0 * std::log10(1000.0) - 18.0 * std::log10(512.0);
    EXPECT_NEAR(levelWith(711), oneFrame, 1e-4);                           // 512 + 199: one frame
    EXPECT_NEAR(levelWith(712), oneFrame - 10.0 * std::log10(2.0), 1e-4);  // 512 + 200: two
}

TEST(PowerSpectrum, NoWholeFrameLeavesEveryBinAtZero) {
    PowerSpectrum p;
    for (int n : {300, 511}) {  // below 512 - 200, and one short of a frame
        p.computeSpectrum(sineWave(1000.0, 11025, n, 8000.0));
        for (float v : p.current()) EXPECT_EQ(v, 0.0f) << n;
    }
}

TEST(PowerSpectrum, AverageIsTheRunningMeanUntilReset) {
    PowerSpectrum p;
    const auto tone = sineWave(1000.0, 11025, 4000, 8000.0);
    p.computeSpectrum(tone);
    const std::vector<float> first(p.current().begin(), p.current().end());
    EXPECT_EQ(p.nAveraged(), 1);
    for (std::size_t k = 0; k < first.size(); ++k) EXPECT_EQ(p.average()[k], first[k]);
    p.computeSpectrum(std::vector<std::int16_t>(4000, 0));  // silence: every bin exactly 0
    EXPECT_EQ(p.nAveraged(), 2);
    for (std::size_t k = 0; k < first.size(); ++k) EXPECT_FLOAT_EQ(p.average()[k], first[k] / 2);
    p.setValid(true);
    p.resetAverage();
    EXPECT_EQ(p.nAveraged(), 0);
    EXPECT_FALSE(p.valid());
    for (float v : p.average()) EXPECT_EQ(v, 0.0f);
}

TEST(PowerSpectrum, ASavedResultComesBackOnlyUnderTheSettingsItWasMadeWith) {
    const auto tone = sineWave(1000.0, 22050, 22050, 8000.0);
    PowerSpectrum spectrum;
    spectrum.computeSpectrum(tone);
    const PowerSpectrum::Result whole = spectrum.result();
    const std::vector<float> wholeAverage(spectrum.average().begin(), spectrum.average().end());

    spectrum.resetAverage();
    spectrum.computeSpectrum(std::span(tone).first(2000));
    ASSERT_TRUE(spectrum.restore(whole));
    EXPECT_TRUE(std::equal(wholeAverage.begin(), wholeAverage.end(), spectrum.average().begin()));
    EXPECT_EQ(spectrum.nAveraged(), 1);

    spectrum.setFftSize(1024);
    EXPECT_FALSE(spectrum.restore(whole));
    spectrum.setFftSize(512);
    spectrum.setUseWindow(false);
    EXPECT_FALSE(spectrum.restore(whole));
}
