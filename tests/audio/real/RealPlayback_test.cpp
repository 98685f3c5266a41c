// Playback on a real PulseAudio server, heard through the monitor of the test null sink: a chunked play sounds the
// file sample for sample and ends one chunk short; pause, restart and a stop in the middle end cleanly.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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

WaveFormat monoFormat() {
    WaveWriter writer;
    writer.SetRecordFormat(3);  // 16-bit mono at 11025 Hz
    return writer.format;
}

// Where `part` first appears in `whole`, if it does.
std::optional<std::size_t> find(const std::vector<std::int16_t>& whole, const std::vector<std::int16_t>& part) {
    const auto at = std::search(whole.begin(), whole.end(), part.begin(), part.end());
    if (at == whole.end() || part.empty()) return std::nullopt;
    return static_cast<std::size_t>(at - whole.begin());
}

class RealPlaybackTest : public ::testing::Test {
protected:
    void SetUp() override {
        devices = findTestDevices();
        if (!devices) GTEST_SKIP() << "no PulseAudio server with the test devices (scripts/pulse-test-server.sh)";
        if (!toolAvailable("parec")) GTEST_SKIP() << "parec is missing";
    }

    std::optional<TestDevices> devices;
    TempDir root;
    FakePrompt prompt;
    QtWaveOutDevice device;
    ChunkedPlayback play;  // outlives the player, which may still hand its headers back when it goes
    WavePlayer player{device, prompt};
};

TEST_F(RealPlaybackTest, AChunkedPlaySoundsTheFileAndEndsOneChunkShort) {
    std::vector<std::int16_t> file = makeSpeech(root.path(), 11025, "Sonalys plays this sentence back.");
    if (file.empty()) GTEST_SKIP() << "espeak-ng or sox is missing";
    // Silence first, so that the moment the sink wakes up costs no sound; a tone last, so that the part never played
    // is not silent.
    file.insert(file.begin(), 3000, 0);
    for (int i = 0; i < 5512; ++i) file.push_back(static_cast<std::int16_t>(8000.0 * std::sin(i * 0.25)));
    const auto count = static_cast<std::int64_t>(file.size());

    // A chunk of half the default Update Rate: 1024 samples. Past the first 1500 samples there are
    // (count - 1500) / 1024 chunks of (count - 1500) / chunks samples, and the last of them is not played.
    const std::int64_t chunks = (count - 1500) / 1024;
    const std::int64_t chunkSize = (count - 1500) / chunks;
    const std::int64_t played = 1500 + (chunks - 1) * chunkSize;
    ASSERT_GE(count - played, 1024);

    MonitorRecording heard(devices->sink, 11025, root / "heard.raw");
    ASSERT_TRUE(heard.started());
    BasicPlayWindow window(player, play, prompt, file.data(), count);
    ASSERT_EQ(player.Open(monoFormat(), &window), 1);
    play.clearCounters();
    ASSERT_EQ(PlayChunked(play, player, file.data(), count, 1024, {}, prompt), 1);
    player.WaitClosed();
    EXPECT_FALSE(player.deviceOpen());
    runEventLoop(300);
    const std::vector<std::int16_t> got = heard.stop();

    // Everything from the first sound up to the end of the last chunk played, exactly, then silence.
    const auto firstSound = static_cast<std::size_t>(
        std::find_if(file.begin(), file.end(), [](std::int16_t v) { return v != 0; }) - file.begin());
    const std::vector<std::int16_t> expected(file.begin() + static_cast<std::ptrdiff_t>(firstSound),
                                             file.begin() + played);
    const std::optional<std::size_t> at = find(got, expected);
    ASSERT_TRUE(at) << "what the sink heard is not the file as played";
    EXPECT_TRUE(std::all_of(got.begin() + static_cast<std::ptrdiff_t>(*at + expected.size()), got.end(),
                            [](std::int16_t v) { return v == 0; }))
        << "more than the played part was heard";
    EXPECT_EQ(play.bytePosition, played * 2);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(RealPlaybackTest, PauseRestartAndAStopInTheMiddleEndCleanly) {
    // Never silent: any sample heard twice or out of order shows.
    std::vector<std::int16_t> file(8 * 11025);
    for (std::size_t i = 0; i < file.size(); ++i) file[i] = static_cast<std::int16_t>(1 + i % 30000);
    const auto count = static_cast<std::int64_t>(file.size());

    MonitorRecording heard(devices->sink, 11025, root / "heard.raw");
    ASSERT_TRUE(heard.started());
    BasicPlayWindow window(player, play, prompt, file.data(), count);
    ASSERT_EQ(player.Open(monoFormat(), &window), 1);
    play.clearCounters();
    ASSERT_EQ(PlayChunked(play, player, file.data(), count, 1024, {}, prompt), 1);
    runEventLoop(1000);
    player.Pause();
    runEventLoop(50);  // a header handed back just before the pause may still be on its way
    const std::int64_t finishedAtPause = play.finished;
    runEventLoop(600);
    EXPECT_EQ(play.finished, finishedAtPause);  // nothing comes back while paused
    player.Restart();
    runEventLoop(1000);
    player.Reset();
    player.WaitClosed();
    EXPECT_FALSE(player.deviceOpen());
    EXPECT_FALSE(player.resetting());
    EXPECT_TRUE(play.ChunkTable.empty());
    runEventLoop(300);
    std::vector<std::int16_t> got = heard.stop();

    // What was heard, silences left out, is the file from its start, with nothing doubled or skipped, and it ends
    // well before the end of the file.
    std::erase(got, 0);
    ASSERT_GT(got.size(), 11025u);
    EXPECT_LT(got.size(), file.size() / 2);
    const auto differ = std::mismatch(got.begin(), got.end(), file.begin());
    EXPECT_EQ(differ.first, got.end()) << "heard " << *differ.first << " for " << *differ.second << " at "
                                       << (differ.first - got.begin()) << " of " << got.size();
    EXPECT_TRUE(prompt.shown.empty());
}

}  // namespace
