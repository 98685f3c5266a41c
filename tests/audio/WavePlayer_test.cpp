// The playback engine and the cutting of a play into headers, played through a scripted device header by header:
// which samples sound, how many headers wait in the device, and failures with their messages.
#include "audio/ChunkedPlayback.h"

#include <gtest/gtest.h>

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
        if (player.Open(recordFormat(3), window.get()) != 1) return 0;
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
};

struct Cut {
    const char* what;
    std::int64_t sampleCount, chunk;
    PlayLayout layout;
    std::int64_t headers, played;  // played: samples sounded, always from the first
};

class PlaybackCuts : public PlaybackTest, public ::testing::WithParamInterface<Cut> {};

TEST_P(PlaybackCuts, PlaysUpToTheLastWholeChunkAndEndsCleanly) {
    const Cut& cut = GetParam();
    ASSERT_EQ(begin(cut.sampleCount, cut.chunk, cut.layout), 1);
    playToTheEnd();

    EXPECT_EQ(device.queuedLengths.size(), static_cast<std::size_t>(cut.headers));
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(samples.data());
    EXPECT_EQ(device.sounded, std::vector<std::uint8_t>(bytes, bytes + cut.played * 2));
    EXPECT_EQ(play.bytePosition, cut.played * 2);
    const std::size_t queueLimit = cut.layout.zoomed ? cut.headers : std::min<std::int64_t>(cut.headers, 100);
    EXPECT_EQ(mostQueued, queueLimit);
    // Over: the device closed, every header was taken back and the table freed.
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(std::ranges::count(device.calls, "unprepare"), std::ranges::count(device.calls, "prepare"));
    EXPECT_TRUE(play.ChunkTable.empty());
    EXPECT_TRUE(prompt.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cuts, PlaybackCuts,
    ::testing::Values(
        // Fewer samples than the first header: one header of all of them.
        Cut{"short", 1000, 1024, {}, 1, 1000},
        // 1524 past the first 1500 is one chunk of 1524: one header of 1524, the last 1500 are never heard.
        Cut{"oneChunk", 3024, 1024, {}, 1, 1524},
        // Zoomed, every header is queued at the start. 154300 past the first 1500: 150 chunks of 154300 / 150 =
        // 1028; 1500 + 149 x 1028 = 154672 are heard, the last chunk and the 100 left over are not.
        Cut{"zoomed", 155800, 1024, {false, true, 600}, 150, 154672},
        // Zoomed on the spectrogram page: one step per two pixels, 60000 / (600 / 2) = 200 samples a chunk,
        // 300 chunks, 1500 + 299 x 200 = 61300 heard.
        Cut{"zoomedSpectrogram", 61500, 1024, {true, true, 600}, 300, 61300},
        // Not zoomed the spectrogram page keeps the Update Rate's chunk.
        Cut{"spectrogramNotZoomed", 61500, 1024, {true, false, 600}, 58, 1500 + 57 * 1034},
        // A chunk of nothing plays everything in one header.
        Cut{"noChunk", 5000, 0, {}, 1, 5000}),
    [](const ::testing::TestParamInfo<Cut>& info) { return std::string(info.param.what); });

TEST_F(PlaybackTest, FailuresTellWhyAndLeaveTheDeviceClosedWithNothingQueued) {
    struct Failure {
        const char* call;  // nullptr: the device stops working once the play runs
        int nth, result;
        std::string_view shown;
    };
    const std::string lost = waveErrorText(WAVERR_DEVICELOST);
    const Failure failures[] = {
        {"query", 1, WAVERR_BADFORMAT, kCannotOpenPlayback},
        {"prepare", 3, MMSYSERR_NOMEM, kErrorLoadingBuffer},
        {"write", 1, MMSYSERR_ERROR, kErrorPlayingSoundFile},
        // The first hundred headers are prepared at the start; a chunk later is skipped and the play goes on.
        {"prepare", 105, MMSYSERR_NOMEM, kErrorWaveOutPrepareHeader},
        {nullptr, 0, WAVERR_DEVICELOST, lost},
    };
    for (const Failure& failure : failures) {
        prompt.shown.clear();
        if (failure.call) device.failAt(failure.call, failure.nth, failure.result);
        if (begin(155800, 1024) == 1) {
            if (!failure.call) device.fail(failure.result);
            playToTheEnd();
        }
        player.Close();  // as the view does after a failed start
        pumpDeviceEvents();
        EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(failure.shown)}) << failure.shown;
        EXPECT_FALSE(player.deviceOpen());
        EXPECT_EQ(device.queued(), 0u);
        EXPECT_TRUE(play.ChunkTable.empty());
    }
}

}  // namespace
