#include <gtest/gtest.h>

#include "F0TestSupport.h"
#include "f0/candidates.h"

TEST(Correlation, LagsSummedSideBySideEqualThePlainLoopBitForBit) {
    const std::vector<float> x = whiteNoise(2000, 30000.0, 3);
    for (int count : {1, 7, 8, 9, 33, 40, 177}) {
        for (int size : {1, 16, 165, 331}) {
            std::vector<float> out(static_cast<std::size_t>(count) + 1, -1.0f);
            correlateLags(x.data(), x.data() + 20, size, count, out.data());
            for (int l = 0; l < count; ++l) {
                float plain = 0.0f;  // the sum as the plain loop forms it
                for (int i = 0; i < size; ++i) plain += x[i] * x[20 + l + i];
                ASSERT_EQ(out[l], plain) << count << " lags, size " << size;
            }
            EXPECT_EQ(out[count], -1.0f);  // nothing written past the last lag
        }
    }
}

TEST(CrossCorrLow, AFlatWindowGivesNoCorrelationAndAPeriodicOneGivesOneAtItsPeriod) {
    std::vector<float> data(60, 500.0f);
    std::vector<float> work(60 + kCorrelationSlack);
    std::vector<float> correl(30, -1.0f);
    float maxval = -1.0f;
    ASSERT_EQ(crossCorrLow(data.data(), work.data(), 16, 1, 30, correl.data(), &maxval), 1);
    EXPECT_EQ(maxval, 0.0f);
    for (float c : correl) EXPECT_EQ(c, 0.0f);

    // Period 10 of small whole numbers: every sum is exact, so lag 10 correlates exactly 1.
    for (int i = 0; i < 60; ++i) data[i] = static_cast<float>((i % 10) * 3 - 13);
    ASSERT_EQ(crossCorrLow(data.data(), work.data(), 20, 1, 30, correl.data(), &maxval), 1);
    EXPECT_EQ(correl[10 - 1], 1.0f);
    EXPECT_EQ(maxval, 1.0f);
}

TEST(GetPeaks, PlateausGiveTwoPeaksAndTheEndsGiveNone) {
    const float correl[] = {0.9f, 0.5f, 0.8f, 0.8f, 0.2f, 0.31f, 0.1f, 0.4f, 0.6f, 0.7f};
    float peaks[10];
    int lags[10];
    int n = -1;
    getPeaks(correl, 10, 5, 1.0f, 0.3f, peaks, lags, &n);
    // Position 0 is never a peak, 0.31 just clears 0.3, and the rise to the last two positions gives none.
    ASSERT_EQ(n, 3);
    EXPECT_EQ(std::vector<int>(lags, lags + 3), (std::vector<int>{7, 8, 10}));
    EXPECT_EQ(peaks[2], 0.31f);
    getPeaks(correl, 10, 5, 1.0f, 0.31f, peaks, lags, &n);  // the limit itself is not above it
    EXPECT_EQ(n, 2);
}

TEST(RefinePeak, TheVertexMovesTheLagWithTheHalfAddedWhateverTheSign) {
    // y0, y1, y2 with curvature a = -1 put the vertex at (y0 - y2) / (4a) = offset. Offsets of +0.3 and -0.3 at
    // decimate 11: +3.3 + 0.5 truncates to 3, -3.3 + 0.5 to -2.
    int lag = 0;
    float peak = 0.0f;
    for (const auto& [offset, expected] : {std::pair{0.3f, 220 + 3}, std::pair{-0.3f, 220 - 2}}) {
        const float y[] = {-1.0f - 2 * offset, 0.0f, -1.0f + 2 * offset};
        lag = 20;
        refinePeak(y, 11, 0.0f, &lag, &peak);
        EXPECT_EQ(lag, expected);
    }
    // The value is weighted against the new lag.
    const float flat[] = {0.5f, 0.5f, 0.5f};
    lag = 10;
    refinePeak(flat, 11, 0.001f, &lag, &peak);
    EXPECT_EQ(lag, 110);
    EXPECT_EQ(peak, static_cast<float>((1.0 - 110 * 0.001f) * 0.5f));
}

TEST(GetCandidates, SilenceHasTheVoicelessCandidateAloneAndNoiseIsCappedAtNCands) {
    auto t = initTracker(22050, {"frame_step=0.011111", "min_f0=60", "max_f0=1400", "voice_bias=0.25", "n_cands=3"});
    ASSERT_TRUE(t);
    std::vector<float> silence(static_cast<std::size_t>(t->buffSize), 0.0f);
    ASSERT_EQ(downsample(t.get(), silence.data(), t->buffSize), 1);
    F0Frame* frame = t->head;
    ASSERT_EQ(getCandidates(t.get(), silence.data(), 0, frame), 1);
    ASSERT_EQ(frame->nCands, 1);
    EXPECT_EQ(frame->cands[0].lag, -1);
    EXPECT_EQ(frame->cands[0].cost, 0.25f);

    const std::vector<float> noise = whiteNoise(static_cast<std::size_t>(t->buffSize), 20000.0);
    ASSERT_EQ(downsample(t.get(), noise.data(), t->buffSize), 1);
    for (int i = 0; i < t->framesPerBuff; ++i) {
        ASSERT_EQ(getCandidates(t.get(), noise.data(), i, frame), 1);
        ASSERT_LE(frame->nCands, 3);
        EXPECT_EQ(frame->cands[frame->nCands - 1].lag, -1);
        for (int c = 0; c + 1 < frame->nCands; ++c) {
            EXPECT_GE(frame->cands[c].lag, t->firstLag + 1);
            EXPECT_LE(frame->cands[c].lag, t->lastLag - 2);
        }
    }
}
