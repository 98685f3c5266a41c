#include "analysis/InputLevel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "AnalysisTestSupport.h"

static double db(double amplitude) { return 20.0 * std::log10(amplitude / 32768.0); }

// Peak and RMS in dB below 32768. A sine of amplitude A has an RMS of A / sqrt(2): 3.01 dB under its peak; at four
// samples a period its samples are 0, A, 0, -A exactly. A square wave's RMS is its amplitude.
TEST(InputLevel, PeakAndRmsOfMadeSignalsAndTheirZone) {
    const struct {
        const char* what;
        std::vector<std::int16_t> samples;
        double peak, rms;
        LevelZone zone;
        bool clipped;
    } rows[] = {
        {"silence", std::vector<std::int16_t>(512, 0), -96.0, -96.0, LevelZone::Normal, false},
        {"one step above silence", std::vector<std::int16_t>(512, 1), -90.31, -90.31, LevelZone::Normal, false},
        {"full-scale square",
         {32767, -32768, 32767, -32768},
         0.0,
         db(std::sqrt((32767.0 * 32767 + 32768.0 * 32768) / 2)),
         LevelZone::Clipped,
         true},
        {"half-scale sine, 4 samples a period", sineWave(1, 4, 4 * 128, 16384), db(16384), db(16384 / std::sqrt(2.0)),
         LevelZone::Normal, false},
        {"sine just over -6 dBFS", sineWave(1, 100, 100 * 10, 16500), db(16500), db(16500 / std::sqrt(2.0)),
         LevelZone::NearFullScale, false},
        {"a single sample at 32767", {0, 0, 32767, 0}, db(32767), db(32767 / 2.0), LevelZone::Clipped, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        InputLevel level;
        level.addBlock(row.samples);
        EXPECT_NEAR(level.peakDb(), row.peak, 0.01);
        EXPECT_NEAR(level.rmsDb(), row.rms, 0.01);
        EXPECT_EQ(level.zone(), row.zone);
        EXPECT_EQ(level.clipped(), row.clipped);
    }
}

TEST(InputLevel, ClippingStaysWithTheTakeAndTheHoldFallsBackUntilReset) {
    InputLevel level;
    level.addBlock(std::vector<std::int16_t>{-32768, 0});
    EXPECT_DOUBLE_EQ(level.peakDb(), 0.0);  // -32768 is full scale exactly
    level.addBlock(sineWave(1, 4, 4 * 16, 16384));
    EXPECT_EQ(level.zone(), LevelZone::Normal);  // the meter follows the block...
    EXPECT_TRUE(level.clipped());                // ...the take keeps its clipping
    EXPECT_DOUBLE_EQ(level.holdDb(), -InputLevel::kHoldFallDb);
    level.addBlock({});  // nothing captured: nothing measured
    EXPECT_DOUBLE_EQ(level.holdDb(), -InputLevel::kHoldFallDb);
    level.reset();
    EXPECT_FALSE(level.clipped());
    EXPECT_EQ(level.holdDb(), InputLevel::kFloorDb);
}
