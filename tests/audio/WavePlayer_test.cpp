// The playback engine and the cutting of a play into headers, played through a scripted device header by header:
// which samples sound, how many headers wait in the device, opening, one-shot plays, stops and every failure with its
// message.
#include "audio/ChunkedPlayback.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <vector>

#include "FakePrompt.h"
#include "FakeWaveDevices.h"
#include "audio/BasicWindows.h"
#include "audio/WavePlayer.h"

namespace {

class PlaybackTest : public ::testing::Test {
protected:
    FakePrompt prompt;
    FakeWaveOutDevice device;
    ChunkedPlayback play;  // outlives the player, which may still hand its headers back when it goes
    WavePlayer player{device, prompt};
    std::vector<std::int16_t> samples;
    std::unique_ptr<BasicPlayWindow> window;
    std::size_t mostQueued = 0;

    int begin(std::int64_t count, std::int64_t chunk, PlayLayout layout = {}) {
        samples.resize(static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < samples.size(); ++i) samples[i] = static_cast<std::int16_t>(i * 7 + 3);
        window = std::make_unique<BasicPlayWindow>(player, play, prompt, samples.data(), count);
        EXPECT_EQ(player.Open(recordFormat(3), window.get()), 1);
        pumpDeviceEvents();
        play.clearCounters();
        return PlayChunked(play, player, samples.data(), count, chunk, layout, prompt);
    }
    // The device plays header after header; each one back may bring the next.
    void playToTheEnd() {
        while (device.queued() > 0) {
            mostQueued = std::max(mostQueued, device.queued());
            device.play(1);
            pumpDeviceEvents();
        }
    }
    std::vector<std::uint8_t> firstBytes(std::int64_t values) const {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(samples.data());
        return {bytes, bytes + values * 2};
    }
};

struct Cut {
    const char* what;
    std::int64_t sampleCount;
    std::int64_t chunk;
    PlayLayout layout;
    std::int64_t headers;
    std::int64_t played;  // samples sounded, always from the first
};

void PrintTo(const Cut& cut, std::ostream* out) { *out << cut.what; }

class PlaybackCuts : public PlaybackTest, public ::testing::WithParamInterface<Cut> {};

TEST_P(PlaybackCuts, PlaysUpToTheLastWholeChunkAndEndsCleanly) {
    const Cut& cut = GetParam();
    ASSERT_EQ(begin(cut.sampleCount, cut.chunk, cut.layout), 1);
    playToTheEnd();

    EXPECT_EQ(device.queuedLengths.size(), static_cast<std::size_t>(cut.headers));
    EXPECT_EQ(device.sounded, firstBytes(cut.played));
    EXPECT_EQ(play.bytePosition, cut.played * 2);
    const std::size_t queueLimit = cut.layout.zoomed ? cut.headers : std::min<std::int64_t>(cut.headers, 100);
    EXPECT_EQ(mostQueued, queueLimit);
    // Over: the device closed, every header was taken back and the table freed.
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(device.count("unprepare"), device.count("prepare"));
    EXPECT_TRUE(play.ChunkTable.empty());
    EXPECT_TRUE(prompt.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cuts, PlaybackCuts,
    ::testing::Values(
        // Fewer samples than the first header: one header of all of them.
        Cut{"short", 1000, 1024, {}, 1, 1000},
        // 600 past the first 1500 is no whole chunk: one header of all 2100.
        Cut{"underOneChunk", 2100, 1024, {}, 1, 2100},
        // 1524 past the first 1500 is one chunk of 1524: one header of 1524, the last 1500 are never heard.
        Cut{"oneChunk", 3024, 1024, {}, 1, 1524},
        // 154300 past the first 1500: 150 chunks of 154300 / 150 = 1028; 1500 + 149 x 1028 = 154672 are heard,
        // the last chunk and the 100 left over are not.
        Cut{"long", 155800, 1024, {}, 150, 154672},
        // Zoomed, every header is queued at the start.
        Cut{"zoomed", 155800, 1024, {false, true, 600}, 150, 154672},
        // Zoomed on the spectrogram page: one step per two pixels, 60000 / (600 / 2) = 200 samples a chunk,
        // 300 chunks, 1500 + 299 x 200 = 61300 heard.
        Cut{"zoomedSpectrogram", 61500, 1024, {true, true, 600}, 300, 61300},
        // Not zoomed the spectrogram page keeps the Update Rate's chunk.
        Cut{"spectrogramNotZoomed", 61500, 1024, {true, false, 600}, 58, 1500 + 57 * 1034},
        // A chunk of nothing plays everything in one header.
        Cut{"noChunk", 5000, 0, {}, 1, 5000}),
    [](const ::testing::TestParamInfo<Cut>& info) { return std::string(info.param.what); });

TEST_F(PlaybackTest, AStopInTheMiddleLeavesNothingPreparedAndEndsTheWait) {
    ASSERT_EQ(begin(155800, 1024), 1);
    device.play(10);
    pumpDeviceEvents();
    player.Reset();
    player.WaitClosed();
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_FALSE(player.resetting());
    EXPECT_EQ(device.sounded, firstBytes(1500 + 9 * 1028));
    EXPECT_EQ(device.queuedLengths.size(), 110u);  // the first hundred and one for each of the ten back
    EXPECT_EQ(device.count("unprepare"), device.count("prepare"));
    EXPECT_TRUE(play.ChunkTable.empty());
}

TEST_F(PlaybackTest, AChunkThatCannotBePreparedIsSkippedAndThePlayGoesOn) {
    // The first hundred headers are prepared by PlayChunked; the fifth chunk submitted later fails.
    device.failAt("prepare", 105, MMSYSERR_NOMEM);
    ASSERT_EQ(begin(155800, 1024), 1);
    playToTheEnd();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorWaveOutPrepareHeader)});
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(device.sounded.size(), static_cast<std::size_t>(154672 - 1028) * 2);
}

TEST_F(PlaybackTest, AFailedStartTellsWhyAndHandsBackWhatWasQueued) {
    device.failAt("prepare", 3, MMSYSERR_NOMEM);
    EXPECT_EQ(begin(155800, 1024), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorLoadingBuffer)});
    player.Close();  // as the view does
    pumpDeviceEvents();
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(device.queued(), 0u);

    prompt.shown.clear();
    device.failAt("write", 1, MMSYSERR_ERROR);
    EXPECT_EQ(begin(155800, 1024), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorPlayingSoundFile)});

    prompt.shown.clear();
    EXPECT_EQ(PlayChunked(play, player, samples.data(), -1, 1024, {}, prompt), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kFileTooShort)});
}

TEST_F(PlaybackTest, OpenAsksTheDeviceFirstAndARefusalIsTold) {
    device.failAt("query", 1, WAVERR_BADFORMAT);
    EXPECT_EQ(player.Open(recordFormat(3), window.get()), 0);
    EXPECT_EQ(device.calls, std::vector<std::string>{"query"});
    device.failAt("open", 1, MMSYSERR_ALLOCATED);
    EXPECT_EQ(player.Open(recordFormat(3), window.get()), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(2, std::string(kCannotOpenPlayback)));
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(player.Open(recordFormat(3), window.get()), 1);
    EXPECT_EQ(device.openedFormat, recordFormat(3));
}

TEST_F(PlaybackTest, OpeningAgainPausesResetsAndAwaitsTheRunningPlay) {
    ASSERT_EQ(begin(20000, 1024), 1);
    device.play(3);
    pumpDeviceEvents();
    device.calls.clear();
    ASSERT_EQ(player.Open(recordFormat(3), window.get()), 1);
    // A paused device would never hand its headers back, so it is reset before the wait for its close.
    const std::vector<std::string> order{"pause", "reset", "close", "query", "open"};
    std::vector<std::string> seen;
    for (const std::string& call : device.calls)
        if (std::find(order.begin(), order.end(), call) != order.end()) seen.push_back(call);
    EXPECT_EQ(seen, order);
    EXPECT_FALSE(player.resetting());
}

TEST_F(PlaybackTest, AHardStopEndsThePlayAndHoldsTheQueueUntilTheNextOpen) {
    ASSERT_EQ(begin(20000, 1024), 1);
    player.HardReset();
    player.WaitClosed();
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_TRUE(device.sounded.empty());
    EXPECT_TRUE(player.stopQueue());
    ASSERT_EQ(player.Open(recordFormat(3), window.get()), 1);
    EXPECT_FALSE(player.stopQueue());
}

TEST_F(PlaybackTest, OneShotFailuresStopTheQueueWithTheirMessages) {
    samples.assign(2000, 1);
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(samples.data());
    ASSERT_EQ(player.Open(recordFormat(3), window.get()), 1);
    device.failAt("prepare", 1, MMSYSERR_NOMEM);
    EXPECT_EQ(player.PlayOnce(bytes, 4000), 0);  // the device's own sentence, then it is paused and closed
    pumpDeviceEvents();
    EXPECT_FALSE(player.deviceOpen());
    ASSERT_EQ(player.Open(recordFormat(3), window.get()), 1);
    device.failAt("write", 1, MMSYSERR_ERROR);
    EXPECT_EQ(player.PlayOnce(bytes, 4000), 0);
    EXPECT_EQ(prompt.shown,
              (std::vector<std::string>{waveErrorText(MMSYSERR_NOMEM), std::string(kErrorPlayingSoundFile)}));
    EXPECT_TRUE(player.stopQueue());
    EXPECT_EQ(device.calls.back(), "unprepare");
}

TEST_F(PlaybackTest, ADeviceThatStopsWorkingEndsThePlayWithItsMessage) {
    ASSERT_EQ(begin(20000, 1024), 1);
    device.play(2);
    device.fail(WAVERR_DEVICELOST);
    pumpDeviceEvents();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(WAVERR_DEVICELOST)});
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_TRUE(play.ChunkTable.empty());
}

TEST_F(PlaybackTest, WaitingEndsWhenTheApplicationQuitsWithTheDeviceStillOpen) {
    bool waited = false;
    QTimer::singleShot(0, [&] {
        ASSERT_EQ(begin(20000, 1024), 1);
        QTimer::singleShot(0, [] { QCoreApplication::quit(); });
        player.WaitClosed();  // the device plays nothing by itself: only the quit ends the wait
        waited = true;
    });
    QCoreApplication::exec();
    EXPECT_TRUE(waited);
    EXPECT_TRUE(player.deviceOpen());
}

}  // namespace
