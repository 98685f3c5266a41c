#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "F0TestSupport.h"
#include "f0/rounding.h"

TEST(F0Init, DerivedSizesAtTheSystemSettingsMatchTheTable) {
    // The ring holds 1.5 s of frames: the float step 245/22050 s lies just above 1/90, so 134 frames, not 135.
    // frameStep, windowSize, firstLag, lastLag, nLags, lpcOrder, decimate, filter length, framesPerBuff, buffStep,
    // buffSize, frameAlloc
    const std::pair<double, std::array<int, 12>> rows[] = {
        {11025, {122, 83, 8, 184, 177, 13, 5, 55, 16, 1952, 2254, static_cast<int>(1.5 / float(122 / 11025.0))}},
        {22050, {245, 165, 16, 368, 353, 24, 11, 111, 16, 3920, 4526, 134}},
        {44100, {490, 331, 32, 735, 704, 46, 22, 221, 16, 7840, 9052, static_cast<int>(1.5 / float(490 / 44100.0))}},
    };
    for (const auto& [rate, sizes] : rows) {
        SCOPED_TRACE(rate);
        const auto t = systemTracker(rate);
        ASSERT_TRUE(t);
        EXPECT_EQ((std::array{t->frameStep, t->windowSize, t->firstLag, t->lastLag, t->nLags, t->lpcOrder, t->decimate,
                              downsampleFilterLength(t->filter.get()), t->framesPerBuff, t->buffStep, t->buffSize,
                              t->frameAlloc}),
                  sizes);
        // The layers pass 1/90 s through six decimals: at 11025 Hz 122.5 samples would round to 123.
        EXPECT_EQ(f0CreateTracker(static_cast<int>(rate), 60, 1400, 90)->frameStep, sizes[0]);
    }
}

TEST(F0Params, TextsAreParsedByExactNameAndStoredAsFloats) {
    auto t = f0Create();
    EXPECT_EQ(f0SetParam(t.get(), "min_f0=75.5"), 1);
    EXPECT_EQ(f0GetParam(t.get(), "min_f0"), 75.5f);
    EXPECT_EQ(f0SetParam(t.get(), "n_cands= 7.9junk"), 1);  // as atof reads it
    EXPECT_EQ(f0GetParam(t.get(), "n_cands"), 7.9f);
    EXPECT_EQ(f0SetParam(t.get(), "voice_bias=abc"), 1);
    EXPECT_EQ(f0GetParam(t.get(), "voice_bias"), 0.0f);
    EXPECT_EQ(f0SetParam(t.get(), "MIN_F0=10"), 0);   // names are case-sensitive
    EXPECT_EQ(f0SetParam(t.get(), "min_f0"), 0);      // no '='
    EXPECT_EQ(f0SetParam(t.get(), "min_f0 =10"), 0);  // the name is everything before the '='
    EXPECT_EQ(f0GetParam(t.get(), "min_f0"), 75.5f);
    EXPECT_EQ(f0GetParam(t.get(), "nothing"), 0.0f);
    EXPECT_EQ(f0GetParam(t.get(), "cand_thresh"), 0.3f);  // defaults stay
}

TEST(F0Params, EveryBrokenRuleIsReportedThenInitRefuses) {
    CerrCapture capture;
    EXPECT_FALSE(
        initTracker(22050, {"cand_thresh=1", "wind_dur=0.2", "n_cands=2", "max_f0=40", "min_f0=50", "frame_step=0.2"}));
    EXPECT_EQ(capture.text(),
              "F0: cand_thresh parameter must be between [0.01, 0.99].\n"
              "F0: wind_dur parameter must be between [0.0001, 0.1].\n"
              "F0: n_cands parameter must be between [3,100].\n"
              "F0: min(max)_f0 parameter inconsistent with record frequency\n"
              "F0: frame_step parameter must be between [1/sampFreq, 0.1]\n"
              "F0: invalid/inconsistent parameters -- exiting.\n");
}

TEST(F0Params, F0LimitsAreTestedAtTheirBoundsAndTheFrameStepSnappedBeforeItsRange) {
    float pars[f0NumParams];
    for (int i = 0; i < f0NumParams; ++i) pars[i] = f0ParamDefaults[i].value;
    CerrCapture capture;
    pars[kMinF0] = 2.0f;  // min_f0 = sampFreq/10000 exactly passes
    EXPECT_TRUE(f0CheckParams(pars, 20000));
    EXPECT_TRUE(capture.text().empty());
    pars[kMinF0] = 1.99f;
    EXPECT_FALSE(f0CheckParams(pars, 20000));
    pars[kMinF0] = 60.0f;
    pars[kMaxF0] = 10000.0f;  // max_f0 = sampFreq/2 exactly fails
    EXPECT_FALSE(f0CheckParams(pars, 20000));
    pars[kMaxF0] = 60.0f;  // and so does max_f0 = min_f0
    EXPECT_FALSE(f0CheckParams(pars, 20000));
    pars[kMaxF0] = 1400.0f;
    pars[kFrameStep] = 0.7f / 8192;  // 0.7 samples: below 1/sampFreq until snapped to one sample
    EXPECT_TRUE(f0CheckParams(pars, 8192));
    EXPECT_EQ(pars[kFrameStep], 1.0f / 8192);
    pars[kFrameStep] = 0.01006f;  // 80.48 samples at 8000 Hz become 80
    EXPECT_TRUE(f0CheckParams(pars, 8000));
    EXPECT_EQ(pars[kFrameStep], static_cast<float>(80 / 8000.0));
}

TEST(F0Init, AnLpcOrderAbove50IsLimitedWithAMessage) {
    CerrCapture capture;
    const auto t = systemTracker(96000);
    ASSERT_TRUE(t);
    EXPECT_EQ(t->lpcOrder, 50);
    EXPECT_EQ(capture.text(), "F0: Optimum order limited to 50\n");
}

using F0DeathTest = ::testing::Test;

TEST_F(F0DeathTest, PreconditionsEndTheProgramNamingTheExpression) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto initBelow4000 = [] {
        auto t = f0Create();
        int size = 0, step = 0;
        f0Init(t.get(), 3000, &size, &step);  // no decimation filter below 4000 Hz
    };
    EXPECT_DEATH(initBelow4000(), "Assertion failed: filter");
    const auto t = systemTracker(22050);
    const float sample = 0.0f;
    EXPECT_DEATH(f0Process(t.get(), &sample, 0), "nData > 0");
    EXPECT_DEATH(f0GetOutput(t.get(), t->nOutput), "0 <= idx && idx < f0Obj->nOutput");
}

TEST(F0Process, AShortFirstBufferIsTheLastAndReleasesEveryFrameOldestFirst) {
    auto t = systemTracker(22050);
    std::vector<float> data = sine(22050, 200, 0.3);  // rising in level, so the records' order shows in their rms
    for (std::size_t i = 0; i < data.size(); ++i) data[i] = std::round(data[i] * static_cast<float>(i) / 6615.0f);
    const int n = t->buffSize - 1;
    ASSERT_EQ(f0Process(t.get(), data.data(), n), 1);
    EXPECT_EQ(f0NumOutput(t.get()), (n - t->tailSize) / t->frameStep);
    EXPECT_EQ(t->nPending, 0);
    for (int i = 3; i < f0NumOutput(t.get()); ++i)
        EXPECT_GT(f0GetOutput(t.get(), i).rms, f0GetOutput(t.get(), i - 1).rms);
}

TEST(F0Process, TheRingGrowsSixTimesAtMostWhenConvergenceIsLate) {
    auto t = systemTracker(22050);
    CerrCapture capture;
    for (int i = 1; i <= 6; ++i) {
        ASSERT_EQ(f0ExtendFrames(t.get()), 1);
        EXPECT_EQ(static_cast<int>(t->frames.size()), (i + 1) * t->frameAlloc);
    }
    EXPECT_EQ(f0ExtendFrames(t.get()), 0);
    EXPECT_EQ(capture.text(),
              "F0: too many requests (6) for space allocation\n There may be a problem in finding converged path\n");
    // The new frames lie between the newest frame and head, in one ring.
    int count = 1;
    for (F0Frame* f = t->head->next; f != t->head; f = f->next) ++count;
    EXPECT_EQ(count, 7 * t->frameAlloc);
}

TEST(F0Rounding, HalvesGoAwayFromZeroAndTruncationTowardIt) {
    EXPECT_EQ(f0Round(2.5), 3);
    EXPECT_EQ(f0Round(-2.5), -3);
    EXPECT_EQ(f0Round(-2.4), -2);
    EXPECT_EQ(f0Trunc(-2.9), -2);
    EXPECT_EQ(f0Trunc(1e300), INT_MAX);
}
