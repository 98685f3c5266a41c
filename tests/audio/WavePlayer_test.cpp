// The playback engine against a scripted device: opening, one-shot plays, pause, stops and their messages.
#include "audio/WavePlayer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "FakePrompt.h"
#include "FakeWaveDevices.h"
#include "audio/BasicWindows.h"
#include "audio/ChunkedPlayback.h"

namespace {

class WavePlayerTest : public ::testing::Test {
protected:
    FakePrompt prompt;
    FakeWaveOutDevice device;
    ChunkedPlayback play;  // outlives the player, which may still hand its headers back when it goes
    WavePlayer player{device, prompt};
    std::vector<std::int16_t> samples = std::vector<std::int16_t>(20000, 1);
    BasicPlayWindow window{player, play, prompt, samples.data(), static_cast<std::int64_t>(samples.size())};

    void startChunked() {
        ASSERT_EQ(player.Open(recordFormat(5), &window), 1);
        play.clearCounters();
        ASSERT_EQ(
            PlayChunked(play, player, samples.data(), static_cast<std::int64_t>(samples.size()), 1024, {}, prompt), 1);
        pumpDeviceEvents();
    }
    std::ptrdiff_t position(const std::string& call, std::size_t from = 0) const {
        const auto found =
            std::find(device.calls.begin() + static_cast<std::ptrdiff_t>(from), device.calls.end(), call);
        return found == device.calls.end() ? -1 : found - device.calls.begin();
    }
};

TEST_F(WavePlayerTest, OpenAsksTheDeviceFirstAndARefusalIsTold) {
    device.queryResults.push(WAVERR_BADFORMAT);
    EXPECT_EQ(player.Open(recordFormat(5), &window), 0);
    EXPECT_EQ(device.calls, std::vector<std::string>{"query"});
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kCannotOpenPlayback)});

    device.openResults.push(MMSYSERR_ALLOCATED);
    EXPECT_EQ(player.Open(recordFormat(5), &window), 0);
    EXPECT_EQ(prompt.shown.size(), 2u);
    EXPECT_FALSE(player.deviceOpen());

    EXPECT_EQ(player.Open(recordFormat(5), &window), 1);
    EXPECT_TRUE(player.deviceOpen());
    EXPECT_EQ(device.openedFormat, recordFormat(5));
}

TEST_F(WavePlayerTest, OpeningAgainStopsTheRunningPlayAndWaitsForItsClose) {
    startChunked();
    device.play(3);
    pumpDeviceEvents();
    const std::size_t before = device.calls.size();
    ASSERT_EQ(player.Open(recordFormat(5), &window), 1);

    const auto pause = position("pause", before), reset = position("reset", before), close = position("close", before);
    const auto open = position("open", before);
    ASSERT_GE(pause, 0);
    EXPECT_LT(pause, reset);
    EXPECT_LT(reset, close);
    EXPECT_LT(close, open);
    EXPECT_TRUE(player.deviceOpen());
    EXPECT_FALSE(player.resetting());
    EXPECT_FALSE(player.paused());
}

TEST_F(WavePlayerTest, PauseHoldsTheDeviceAndRestartLetsItGo) {
    startChunked();
    player.Pause();
    EXPECT_TRUE(player.paused());
    device.play(5);  // a paused device plays nothing
    EXPECT_TRUE(device.sounded.empty());
    player.Restart();
    EXPECT_FALSE(player.paused());
    device.play(1);
    EXPECT_EQ(device.sounded.size(), 3000u);
    EXPECT_EQ(device.calls[position("pause")], "pause");
    EXPECT_GE(position("restart"), 0);
}

TEST_F(WavePlayerTest, AHardStopEndsThePlayAndHoldsTheQueueUntilTheNextOpen) {
    startChunked();
    player.HardReset();
    EXPECT_TRUE(player.stopQueue());
    EXPECT_TRUE(player.resetting());
    player.WaitClosed();
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_FALSE(player.resetting());
    EXPECT_TRUE(device.sounded.empty());
    // Stop queue lasts until the next open.
    EXPECT_TRUE(player.stopQueue());
    ASSERT_EQ(player.Open(recordFormat(5), &window), 1);
    EXPECT_FALSE(player.stopQueue());
}

TEST_F(WavePlayerTest, OneShotFailuresStopTheQueueWithTheirMessages) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(samples.data());
    ASSERT_EQ(player.Open(recordFormat(5), &window), 1);
    device.prepareResults.push(MMSYSERR_NOMEM);
    EXPECT_EQ(player.PlayOnce(bytes, 4000), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(MMSYSERR_NOMEM)});
    EXPECT_TRUE(player.stopQueue());
    EXPECT_GE(position("pause"), 0);
    EXPECT_GE(position("close"), 0);
    pumpDeviceEvents();
    EXPECT_FALSE(player.deviceOpen());

    prompt.shown.clear();
    ASSERT_EQ(player.Open(recordFormat(5), &window), 1);
    device.writeResults.push(MMSYSERR_ERROR);
    const std::size_t before = device.calls.size();
    EXPECT_EQ(player.PlayOnce(bytes, 4000), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorPlayingSoundFile)});
    EXPECT_TRUE(player.stopQueue());
    EXPECT_GE(position("unprepare", before), 0);
}

TEST_F(WavePlayerTest, ADeviceThatStopsWorkingEndsThePlayWithItsMessage) {
    startChunked();
    device.play(2);
    device.fail(WAVERR_DEVICELOST);
    pumpDeviceEvents();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(WAVERR_DEVICELOST)});
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_TRUE(play.ChunkTable.empty());
}

TEST_F(WavePlayerTest, WaitingEndsWhenTheApplicationQuitsWithTheDeviceStillOpen) {
    bool waited = false;
    QTimer::singleShot(0, [&] {
        startChunked();
        QTimer::singleShot(0, [] { QCoreApplication::quit(); });
        player.WaitClosed();  // the device plays nothing by itself: only the quit ends the wait
        waited = true;
    });
    QCoreApplication::exec();
    EXPECT_TRUE(waited);
    EXPECT_TRUE(player.deviceOpen());
}

}  // namespace
