// A sound server that goes away in the middle of a capture: the user is told, the capture ends as a stop would, and
// everything captured until then is in the scratch file and in the take. The test runs its own server, since it
// stops it, and so has a program of its own: a process talks to the first server it reaches.
#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/QtWaveInDevice.h"
#include "audio/WaveRecorder.h"
#include "store/WaveFile.h"

namespace {

TEST(LostDevice, AServerStoppedDuringCaptureEndsItAndKeepsTheScratchFile) {
    if (!toolAvailable("pulseaudio")) GTEST_SKIP() << "pulseaudio is missing";
    TempDir root;
    TempDir serverFolder;
    PrivatePulseServer server(serverFolder.path());
    ASSERT_TRUE(server.running());

    FakePrompt prompt;
    QtWaveInDevice device;
    WaveRecorder recorder(device, prompt, root.path());
    BasicRecordWindow window(recorder);
    recorder.SetOutputPath(root / "take.wav");
    ASSERT_EQ(recorder.Start(&window), 1) << prompt.last();
    PipeFeeder feeder(
        server.fifo(), 11025, [](std::size_t i) { return static_cast<std::int16_t>(i + 1); }, 30 * 11025);
    runEventLoop(1500);
    server.stop();
    recorder.WaitClosed();  // the engine stops by itself
    feeder.stop();

    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(WAVERR_DEVICELOST)});
    EXPECT_EQ(window.failures, std::vector<int>{WAVERR_DEVICELOST});
    EXPECT_TRUE(recorder.closed());
    EXPECT_FALSE(recorder.deviceOpen());

    // Most of the 1.5 s reached the scratch file before the server went, in one unbroken run from the start.
    const std::uintmax_t scratch = std::filesystem::file_size(root / "grav.tmp");
    EXPECT_EQ(scratch, recorder.capturedBytes());
    EXPECT_GT(scratch, 2u * 11025);
    const std::vector<std::int16_t> got = WaveLoad(root / "take.wav").samples;
    ASSERT_EQ(got.size() * 2, scratch);
    for (std::size_t i = 0; i < got.size(); ++i) ASSERT_EQ(got[i], static_cast<std::int16_t>(got[0] + i)) << i;
}

}  // namespace
