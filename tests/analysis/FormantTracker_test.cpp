#include "analysis/FormantTracker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <thread>
#include <vector>

#include "AnalysisTestSupport.h"
#include "FakePrompt.h"
#include "analysis/FormantSignal.h"

// A pulse train at f0 through four second-order resonators in cascade, each with unit gain at DC, scaled to a
// peak of 12000.
static std::vector<std::int16_t> vowel(int rate, double f0, const double (&formants)[4], double seconds) {
    const double bandwidths[4] = {60.0, 80.0, 120.0, 150.0};
    const int n = static_cast<int>(rate * seconds);
    std::vector<double> x(static_cast<std::size_t>(n), 0.0);
    for (double t = 0.0; t < n; t += rate / f0) x[static_cast<std::size_t>(t)] = 1.0;
    for (int k = 0; k < 4; ++k) {
        const double r = std::exp(-std::numbers::pi * bandwidths[k] / rate);
        const double c = 2.0 * r * std::cos(2.0 * std::numbers::pi * formants[k] / rate);
        const double gain = 1.0 - c + r * r;
        double y1 = 0.0, y2 = 0.0;
        for (double& v : x) {
            const double y = gain * v + c * y1 - r * r * y2;
            y2 = y1;
            y1 = y;
            v = y;
        }
    }
    double peak = 0.0;
    for (double v : x) peak = std::max(peak, std::fabs(v));
    std::vector<std::int16_t> s(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) s[i] = static_cast<std::int16_t>(x[i] / peak * 12000.0);
    return s;
}

// Median of formant `k` (0 for F1) over the steady part: the records after the first and before the last 0.1 s.
static float steadyMedian(const FormantTrack& track, int k) {
    std::vector<float> values;
    for (int i = 10; i < track.count() - 10; ++i) {
        const FormantRecord& r = track.records[i];
        values.push_back(k == 0 ? r.f1 : k == 1 ? r.f2 : k == 2 ? r.f3 : r.f4);
    }
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

static std::vector<std::array<float, 4>> formantsOf(const FormantTrack& track) {
    std::vector<std::array<float, 4>> values;
    for (const FormantRecord& r : track.records) values.push_back({r.f1, r.f2, r.f3, r.f4});
    return values;
}

TEST(FormantTracker, SyntheticVowelsAt120HzGiveTheirFormantsWithin5Percent) {
    // Of the close front vowel only F1 is checked: the order-12 fit of this vowel puts a broad pole (about
    // 1800 Hz, 1500 Hz wide) in the gap between F1 and F2, and the slot costs, which charge an unfilled slot
    // more than a wide pole, give it F2; 2290 and 3010 Hz then come out as F3 and F4.
    const struct {
        double truth[4];
        int checked;
    } vowels[] = {{{730.0, 1090.0, 2440.0, 3400.0}, 3}, {{270.0, 2290.0, 3010.0, 3500.0}, 1}};
    for (const auto& v : vowels) {
        FakePrompt prompt;
        FormantTracker tracker(prompt);
        FormantTrack track;
        tracker.computeFormants(track, vowel(22050, 120.0, v.truth, 1.0), 22050);
        ASSERT_TRUE(track.valid);
        ASSERT_EQ(track.count(), 96);  // (10000 - 490) / 100 + 1
        for (int k = 0; k < v.checked; ++k)
            EXPECT_NEAR(steadyMedian(track, k), v.truth[k], 0.05 * v.truth[k]) << "F" << k + 1 << " of " << v.truth[0];
    }
}

TEST(FormantTracker, SilenceGivesTheNominalFormantsInEveryFrame) {
    FakePrompt prompt;
    FormantTracker tracker(prompt);
    FormantTrack track;
    tracker.computeFormants(track, std::vector<std::int16_t>(11025, 0), 11025);
    ASSERT_TRUE(track.valid);
    EXPECT_EQ(formantsOf(track), (std::vector<std::array<float, 4>>(96, {500.0f, 1500.0f, 2500.0f, 3500.0f})));
    for (int i = 0; i < track.count(); ++i) {
        EXPECT_EQ(track.records[i].start, 100 * i);
        EXPECT_EQ(track.records[i].flag, 1);
    }
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(FormantTracker, FrameCountAtTheEdgeOfOneWindow) {
    FakePrompt prompt;
    FormantTracker tracker(prompt);
    FormantTrack track;
    // 48 ms at 22050 Hz is 480 samples at 10 kHz: no frame, yet a valid, empty track.
    tracker.computeFormants(track, noise(1058, 32767, 1), 22050);
    EXPECT_TRUE(track.valid);
    EXPECT_EQ(track.count(), 0);
    // Exactly one window at 10 kHz: one frame, whose pre-emphasis reads one sample past the end.
    tracker.computeFormants(track, noise(490, 32767, 2), 10000);
    EXPECT_EQ(track.count(), 1);
    tracker.computeFormants(track, noise(589, 32767, 2), 10000);
    EXPECT_EQ(track.count(), 1);
    tracker.computeFormants(track, noise(590, 32767, 2), 10000);
    EXPECT_EQ(track.count(), 2);
    // At 10 kHz and below the samples are used as they are, and read as 10 kHz.
    tracker.computeFormants(track, std::vector<std::int16_t>(8000, 0), 8000);
    EXPECT_EQ(track.count(), 76);
}

TEST(FormantTracker, ThreadsDoNotChangeTheResultAndRunsGoOnFromThePreviousRoots) {
    // Noise with a vowel makes frames whose root search needs restarts; those are drawn in frame order.
    const double truth[4] = {730.0, 1090.0, 2440.0, 3400.0};
    std::vector<std::int16_t> signal = vowel(22050, 180.0, truth, 3.0);
    const auto hiss = noise(static_cast<int>(signal.size()), 32767, 4);
    for (std::size_t i = 0; i < signal.size(); ++i)
        signal[i] = static_cast<std::int16_t>(signal[i] / 2 + (i > signal.size() / 2 ? hiss[i] / 3 : 0));

    auto run = [&](int threads, int runs) {
        FakePrompt prompt;
        FormantTracker tracker(prompt);
        tracker.setThreadCount(threads);
        FormantTrack track;
        for (int i = 0; i < runs; ++i) tracker.computeFormants(track, signal, 22050);
        return std::make_pair(formantsOf(track), tracker.rootEstimates());
    };
    const auto [oneThread, oneRoots] = run(1, 1);
    const auto [threeThreads, threeRoots] = run(3, 1);
    EXPECT_EQ(oneThread, threeThreads);
    EXPECT_EQ(oneRoots.real, threeRoots.real);
    // A fresh tracker starts from zeros; after a run it keeps the roots of the last frame, and the next run
    // starts its first frame from them, with one thread or several alike.
    EXPECT_EQ(FormantTracker(*std::make_unique<FakePrompt>()).rootEstimates().real, RootEstimates{}.real);
    EXPECT_NE(oneRoots.real, RootEstimates{}.real);
    const auto [again, againRoots] = run(1, 2);
    const auto [againThreads, againThreadsRoots] = run(2, 2);
    EXPECT_EQ(again, againThreads);
    EXPECT_EQ(againRoots.real, againThreadsRoots.real);
}

TEST(FormantTracker, TwoTrackersRunAtOnce) {
    const double truth[4] = {730.0, 1090.0, 2440.0, 3400.0};
    const auto signal = vowel(11025, 120.0, truth, 2.0);
    FakePrompt prompt;
    FormantTracker reference(prompt);
    FormantTrack expected;
    reference.computeFormants(expected, signal, 11025);
    FormantTrack a, b;
    {
        FormantTracker first(prompt);
        FormantTracker second(prompt);
        std::jthread one([&] { first.computeFormants(a, signal, 11025); });
        std::jthread two([&] { second.computeFormants(b, signal, 11025); });
    }
    EXPECT_EQ(formantsOf(a), formantsOf(expected));
    EXPECT_EQ(formantsOf(b), formantsOf(expected));
}

TEST(ResampleTo10k, FactorsByRateAndTheLengthAtTenKilohertz) {
    const std::pair<int, int> factors[] = {{11025, 4}, {19999, 4}, {20000, 3}, {22050, 3},
                                           {30000, 2}, {39999, 2}, {40000, 1}, {44100, 1}};
    for (const auto& [rate, up] : factors) EXPECT_EQ(upsamplingFactor(rate), up) << rate;

    std::vector<std::int16_t> odd(1001, 0);
    FakePrompt prompt;
    EXPECT_EQ(resampleTo10k(1.0 / 22050, odd, prompt), 453);  // trunc(1001 * 10000 / 22050)
}
