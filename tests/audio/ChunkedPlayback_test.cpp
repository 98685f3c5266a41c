// The cutting of a play into headers, played through a scripted device header by header: which samples sound,
// how many headers wait in the device, and how failures end the play.
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

class ChunkedPlaybackTest : public ::testing::Test {
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

class ChunkedPlaybackCuts : public ChunkedPlaybackTest, public ::testing::WithParamInterface<Cut> {};

TEST_P(ChunkedPlaybackCuts, PlaysUpToTheLastWholeChunkAndEndsCleanly) {
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
    Cuts, ChunkedPlaybackCuts,
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

TEST_F(ChunkedPlaybackTest, AStopInTheMiddleLeavesNothingPreparedAndEndsTheWait) {
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

TEST_F(ChunkedPlaybackTest, AChunkThatCannotBePreparedIsSkippedAndThePlayGoesOn) {
    // The first hundred headers are prepared by PlayChunked; the fifth chunk submitted later fails.
    device.prepareResults.failAt(105, MMSYSERR_NOMEM);
    ASSERT_EQ(begin(155800, 1024), 1);
    playToTheEnd();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorWaveOutPrepareHeader)});
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(device.sounded.size(), static_cast<std::size_t>(154672 - 1028) * 2);
}

TEST_F(ChunkedPlaybackTest, AFailedStartTellsWhyAndHandsBackWhatWasQueued) {
    device.prepareResults.failAt(3, MMSYSERR_NOMEM);
    EXPECT_EQ(begin(155800, 1024), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorLoadingBuffer)});
    player.Close();  // as the view does
    pumpDeviceEvents();
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_EQ(device.queued(), 0u);

    prompt.shown.clear();
    device.writeResults.push(MMSYSERR_ERROR);
    EXPECT_EQ(begin(155800, 1024), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorPlayingSoundFile)});

    prompt.shown.clear();
    EXPECT_EQ(PlayChunked(play, player, samples.data(), -1, 1024, {}, prompt), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kFileTooShort)});
}

TEST_F(ChunkedPlaybackTest, AOneShotPlayKeepsTheBytePosition) {
    samples.assign(4000, 5);
    window = std::make_unique<BasicPlayWindow>(player, play, prompt, samples.data(), 4000);
    ASSERT_EQ(player.Open(recordFormat(3), window.get()), 1);
    play.clearCounters();
    play.bytePosition = 1234;
    play.oneShot = true;
    ASSERT_EQ(player.PlayOnce(reinterpret_cast<const std::uint8_t*>(samples.data()), 8000), 1);
    device.play(1);
    pumpDeviceEvents();
    EXPECT_EQ(play.bytePosition, 1234);
    EXPECT_EQ(play.finished, 1);
    EXPECT_FALSE(player.deviceOpen());  // one header back of none submitted: the play is over
    EXPECT_EQ(player.singleHeaderIndex(), 1);
}

}  // namespace
