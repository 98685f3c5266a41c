#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "F0TestSupport.h"

namespace {

// The share of `values` (frames first to last) within 2% of the true F0 at each frame's time.
struct Agreement {
    int voiced = 0, total = 0, close = 0;
};

template <typename TrueF0>
Agreement agreement(const std::vector<float>& values, int first, int last, double frameSeconds, TrueF0 trueF0) {
    Agreement a;
    for (int i = first; i < last; ++i) {
        ++a.total;
        if (values[i] <= 0.0f) continue;
        ++a.voiced;
        const double expected = trueF0(i * frameSeconds);
        if (std::abs(values[i] - expected) <= 0.02 * expected) ++a.close;
    }
    return a;
}

std::vector<float> track(const std::vector<float>& samples, int rate) {
    std::vector<float> out;
    int nOut = 0;
    EXPECT_EQ(f0TrackBuffer(samples.data(), static_cast<int>(samples.size()), rate, 60, 1400, 90, out, nOut), 1);
    EXPECT_EQ(out.size(), static_cast<std::size_t>(nOut) + 1);
    out.resize(static_cast<std::size_t>(nOut));
    return out;
}

}  // namespace

TEST(F0Signals, AGlidingPulseTrainIsTrackedWithinTwoPercent) {
    for (int rate : {11025, 22050, 44100}) {
        SCOPED_TRACE(rate);
        const Glide glide{static_cast<double>(rate), 80.0, 400.0, 4.0};
        const std::vector<float> values = track(glide.samples(), rate);
        ASSERT_EQ(values.size(), 360u);
        // A frame's correlation window begins at its step; its F0 is taken half a window and half a period on.
        const double frameSeconds = systemTracker(rate)->frameStep / static_cast<double>(rate);
        const auto trueF0 = [&](double t) { return glide.trueF0(t + 0.0075 / 2 + 0.5 / glide.trueF0(t)); };
        const Agreement a = agreement(values, 5, 350, frameSeconds, trueF0);
        EXPECT_GE(a.voiced, a.total * 95 / 100);
        EXPECT_GE(a.close, a.voiced * 95 / 100) << a.close << " of " << a.voiced;
    }
}

TEST(F0Signals, SilenceAndNoiseAreVoiceless) {
    const std::vector<float> silence = track(std::vector<float>(22050, 0.0f), 22050);
    for (float v : silence) EXPECT_EQ(v, 0.0f);
    for (float v : track(whiteNoise(44100, 10000.0), 22050)) EXPECT_EQ(v, 0.0f);
}

TEST(F0TrackBuffer, GivesOneValuePerFrameAndNeverReadsPastShortInput) {
    // 700 samples give no frame; 3000 give a first call of a full buffer and no last call; 4200 give both.
    for (int n : {1, 700, 3000, 3920, 4200, 4525}) {
        const std::vector<float> values = track(sine(22050, 200, n / 22050.0 + 1e-9), 22050);
        EXPECT_EQ(values.size(), static_cast<std::size_t>(n / 22050.0 * 90 + 0.5)) << n;
        if (n <= 3920) {
            EXPECT_EQ(std::count(values.begin(), values.end(), 0.0f), std::ssize(values)) << n;
        }
    }
    // One second: 5 full buffers and a last one of 2450 samples yield 87 frames for 90 values.
    const std::vector<float> values = track(sine(22050, 180, 1.0), 22050);
    ASSERT_EQ(values.size(), 90u);
    EXPECT_GT(values[86], 0.0f);
    for (int i = 87; i < 90; ++i) EXPECT_EQ(values[i], values[86]);
}

TEST(F0TrackBuffer, SettingsWhoseWindowsDoNotFitAreRefused) {
    CerrCapture capture;
    std::vector<float> out;
    int nOut = 0;
    const std::vector<float> samples(22050, 0.0f);
    EXPECT_EQ(f0TrackBuffer(samples.data(), 22050, 22050, 60, 1400, 1000, out, nOut), 0);
    EXPECT_TRUE(out.empty());
    EXPECT_EQ(capture.text(), "F0: frame_step, min_f0 and max_f0 leave the analysis windows no room in a buffer\n");
    EXPECT_EQ(f0TrackBuffer(samples.data(), 22050, 22050, 60, 20000, 90, out, nOut), 0);
}

TEST(F0Curve, ChunksAreTenSecondsWithALastOfTenToTwenty) {
    for (const auto& [n, expected] : std::vector<std::pair<int, std::vector<int>>>{
             {5000, {5000}}, {19999, {19999}}, {20000, {10000, 10000}}, {35500, {10000, 10000, 15500}}}) {
        std::vector<int> lengths;
        for (const F0Chunk& c : f0CurveChunks(n, 1000)) lengths.push_back(c.length);
        EXPECT_EQ(lengths, expected) << n;
    }
    EXPECT_EQ(f0CurveChunks(35500, 1000).back().start, 20000);
}

TEST(F0Curve, ChunksTrackedOnSeveralThreadsGiveTheSingleThreadedCurve) {
    const Glide glide{22050, 90.0, 300.0, 35.0};
    const std::vector<float> floats = glide.samples();
    const std::vector<short> samples(floats.begin(), floats.end());
    F0Curve one, many;
    computeF0Curve(one, samples.data(), static_cast<int>(samples.size()), 22050, {60, 1400, 90, 1});
    computeF0Curve(many, samples.data(), static_cast<int>(samples.size()), 22050, {60, 1400, 90, 3});
    ASSERT_TRUE(one.valid);
    EXPECT_EQ(one.count(), 900 + 900 + 1350);
    EXPECT_EQ(one.values, many.values);
    // Each chunk restarts the tracker: the second chunk equals tracking its samples alone.
    std::vector<float> second(samples.begin() + 220500, samples.begin() + 441000);
    const std::vector<float> alone = track(second, 22050);
    EXPECT_TRUE(std::equal(alone.begin(), alone.end(), one.values.begin() + 900));
}

TEST(F0Curve, ShortAndLowRateRecordingsGiveVoicelessCurvesOfTheRightLength) {
    const std::vector<short> samples(25 * 3000, 1000);
    F0Curve curve;
    computeF0Curve(curve, samples.data(), static_cast<int>(samples.size()), 3000);  // no filter below 4000 Hz
    EXPECT_TRUE(curve.valid);
    ASSERT_EQ(curve.count(), 900 + 1350);
    for (float v : curve.values) EXPECT_EQ(v, 0.0f);
    computeF0Curve(curve, samples.data(), 0, 22050);
    EXPECT_TRUE(curve.valid);
    EXPECT_EQ(curve.count(), 0);
}

TEST(LiveF0, TheMeterReadsTheFirstFrameOfTheBufferGiven) {
    for (int rate : {11025, 22050, 44100}) {
        const std::vector<float> tone = sine(rate, 250, 1024.0 / rate + 1e-9);
        const std::vector<short> samples(tone.begin(), tone.end());
        EXPECT_NEAR(liveF0Value(samples.data(), 1024, rate), 250.0f, 5.0f) << rate;
    }
    const std::vector<short> silence(1024, 0);
    EXPECT_EQ(liveF0Value(silence.data(), 1024, 22050), 0.0f);
    EXPECT_EQ(liveF0Value(silence.data(), 1024, 3000), 0.0f);
}
