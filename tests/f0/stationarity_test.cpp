#include <gtest/gtest.h>

#include <cmath>

#include "F0TestSupport.h"
#include "f0/stationarity.h"

TEST(Stationarity, TheFirstFramesHaveNoPastThenAFixedDistance) {
    auto t = systemTracker(22050);  // statWindow 661, statLag 441: curPos starts at -110, prevPos at -551
    const std::vector<float> noise = whiteNoise(static_cast<std::size_t>(t->buffSize), 5000.0);
    ASSERT_EQ(stationarityCompute(t.get(), noise.data(), t->buffSize, t->framesPerBuff), 1);
    EXPECT_EQ(t->stat[0].stat, 0.002f);
    EXPECT_EQ(t->stat[0].rms, 0.0f);
    EXPECT_EQ(t->stat[0].rmsRatio, 1.0f);
    for (int i : {1, 2}) {  // curPos 135 and 380: a current window but no earlier one
        EXPECT_EQ(t->stat[i].stat, static_cast<float>(0.2 / 10.0f));
        EXPECT_EQ(t->stat[i].rmsRatio, 1.0f);
        EXPECT_GT(t->stat[i].rms, 0.0f);
    }
    EXPECT_NE(t->stat[3].stat, static_cast<float>(0.2 / 10.0f));
    EXPECT_EQ(t->statPrimed, 1);
    // The lower half of the carry-over ends where the next buffer's first frame starts.
    const int half = t->statMemSize / 2;
    EXPECT_EQ(t->statMem[half - 1], noise[static_cast<std::size_t>(t->buffStep) - 1]);
    EXPECT_EQ(t->statMem[0], noise[static_cast<std::size_t>(t->buffStep - half)]);
}

TEST(Stationarity, AnOnsetRaisesTheRmsRatio) {
    const std::vector<float> silence(661, 0.0f);
    const std::vector<float> tone = sine(22050, 200, 0.03);
    std::vector<float> soft = tone;
    for (float& s : soft) s = std::round(s / 10);
    const auto ratio = [](const std::vector<float>& before, const std::vector<float>& now) {
        return stationarityFrame(systemTracker(22050).get(), before.data(), now.data(), 661).rmsRatio;
    };
    EXPECT_EQ(ratio(silence, tone), 2.0f);  // earlier RMS 0, current above 0
    EXPECT_EQ(ratio(silence, silence), 1.0f);
    EXPECT_NEAR(ratio(soft, tone), 10.0f, 0.1f);
}

TEST(Stationarity, ASpectrumMeasuredAgainstItselfHasAnItakuraRatioOfOne) {
    // The inverse filter of a window's own LPC leaves exactly its residual: the ratio is 1 and dist is 0.2.
    SigprocCache cache;
    const std::vector<float> data = whiteNoise(700, 3000.0, 11);
    std::vector<float> smooth(data.size());
    for (std::size_t i = 1; i < data.size(); ++i) smooth[i] = std::round(0.9f * smooth[i - 1] + data[i]);
    float a[BIGSORD + 1], r[BIGSORD + 1], err = 0.0f;
    ASSERT_EQ(lpc(cache, smooth.data(), 660, 24, 1, 0.4f, 30.0f, a, r, nullptr, &err), 1);
    EXPECT_NEAR(itakuraRatio(a, r, err, 24), 1.0f, 1e-3);
}
