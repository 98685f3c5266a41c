// The rules every mixer line keeps, whatever mixer stands behind it, and the wave line over our own stream.
#include <gtest/gtest.h>

#include "FakeVolume.h"
#include "audio/CVolumeOutWave.h"

TEST(Volume, ValuesOutsideTheRangeAreIgnoredEveryChannelGetsTheSameLevelAndAMissingLineReadsMinusOne) {
    FakeVolume line(10, 200, {30, 70});
    ASSERT_EQ(line.Enable(), 1);
    EXPECT_EQ(line.GetMinimum(), 10);
    EXPECT_EQ(line.GetMaximum(), 200);
    EXPECT_EQ(line.GetCurrent(), 30);  // the first channel speaks for the line
    for (const int outside : {9, 201, -1}) line.SetCurrent(outside);
    EXPECT_TRUE(line.writes.empty());
    line.SetCurrent(10);
    line.SetCurrent(200);
    EXPECT_EQ(line.writes, (std::vector<std::vector<int>>{{10, 10}, {200, 200}}));
    line.readFails = true;
    EXPECT_EQ(line.GetCurrent(), -1);

    FakeVolume missing;
    missing.found = false;
    EXPECT_EQ(missing.Enable(), 0);
    EXPECT_EQ(missing.GetCurrent(), -1);
    missing.SetCurrent(0);
    EXPECT_TRUE(missing.writes.empty());
}

TEST(Volume, OnlyAChangeFromOutsideReachesTheCallback) {
    FakeVolume line(0, 100, {50});
    ASSERT_EQ(line.Enable(), 1);
    std::vector<int> heard;
    line.SetCallback([&heard](int value) { heard.push_back(value); });
    line.SetCurrent(60);
    line.changeFromOutside(60);  // our own level echoed back by the mixer
    line.changeFromOutside(20);
    EXPECT_EQ(heard, std::vector<int>{20});
    EXPECT_EQ(line.GetCurrent(), 20);
}

namespace {
struct FakeStream : StreamVolume {
    double volume = 1.0;
    double streamVolume() const override { return volume; }
    void setStreamVolume(double value) override { volume = value; }
};
}  // namespace

TEST(Volume, TheWaveLineIsTheStreamsVolumeOnTheMixerScale) {
    FakeStream stream;
    CVolumeOutWave wave(stream);
    ASSERT_EQ(wave.Enable(), 1);
    EXPECT_EQ(wave.GetMaximum(), 65535);
    EXPECT_EQ(wave.GetCurrent(), 65535);
    wave.SetCurrent(13107);  // a fifth of 65535
    EXPECT_DOUBLE_EQ(stream.volume, 0.2);
    stream.volume = 0.5;
    EXPECT_EQ(wave.GetCurrent(), 32768);  // 32767.5 rounds up
}
