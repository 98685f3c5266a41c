// Playback on a real PulseAudio server, heard through the monitor of the test null sink: a chunked play sounds the
// file sample for sample and ends one chunk short. The play ends by the count of samples handed back, never by a clock.
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/ChunkedPlayback.h"
#include "audio/QtWaveOutDevice.h"
#include "audio/WavePlayer.h"
#include "store/WaveFile.h"

namespace {

TEST(RealPlayback, AChunkedPlaySoundsTheFileAndEndsOneChunkShort) {
    const std::optional<TestDevices> devices = findTestDevices();
    if (!devices || !toolAvailable("parec")) GTEST_SKIP() << "no test PulseAudio server, or no parec";
    TempDir root;
    FakePrompt prompt;
    QtWaveOutDevice device;
    ChunkedPlayback play;  // outlives the player, which may still hand its headers back when it goes
    WavePlayer player{device, prompt};
    // Silence first, so that the moment the sink wakes up costs no sound; then a count that is never 0, so that any
    // sample lost, doubled or moved shows.
    std::vector<std::int16_t> file(3000, 0);
    for (int i = 0; i < 4 * 11025; ++i) file.push_back(countingSample(static_cast<std::size_t>(i)));
    const auto count = static_cast<std::int64_t>(file.size());
    // A chunk of 1024 samples: past the first 1500 samples there are (count - 1500) / 1024 chunks of
    // (count - 1500) / chunks samples each, and the last of them is not played.
    const std::int64_t chunks = (count - 1500) / 1024;
    const std::int64_t played = 1500 + (chunks - 1) * ((count - 1500) / chunks);

    BasicPlayWindow window(player, play, prompt, file.data(), count);
    WaveWriter mono;
    mono.SetRecordFormat(3);  // 16-bit mono at 11025 Hz
    std::vector<std::int16_t> got = recordMonitor(devices->sink, 11025, root / "heard.raw", [&] {
        ASSERT_EQ(player.Open(mono.format, &window), 1);
        play.clearCounters();
        ASSERT_EQ(PlayChunked(play, player, file.data(), count, 1024, {}, prompt), 1);
        player.WaitClosed();
    });

    std::erase(got, 0);
    EXPECT_EQ(got, std::vector<std::int16_t>(file.begin() + 3000, file.begin() + played));
    EXPECT_EQ(play.bytePosition, played * 2);
    EXPECT_TRUE(prompt.shown.empty());
}

}  // namespace
