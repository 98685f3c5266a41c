// A sound server that goes away in the middle of a capture: the user is told, the capture ends as a stop would, and
// everything captured until then is in the take. The test runs a server of its own, since it stops it, and so has a
// program of its own: a process talks to the first server it reaches.
#include <gtest/gtest.h>

#include <cstdlib>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/QtWaveInDevice.h"
#include "audio/WaveRecorder.h"
#include "store/WaveFile.h"

namespace {

TEST(LostDevice, AServerStoppedDuringCaptureEndsItAndKeepsWhatCameBefore) {
    if (!toolAvailable("pulseaudio")) GTEST_SKIP() << "pulseaudio is missing";
    TempDir root, server;
    // The test server's script, on a runtime folder of this test's own.
    for (const char* name : {"SONALYS_PULSE_STATE", "PULSE_RUNTIME_PATH", "HOME"})
        ::setenv(name, server.path().c_str(), 1);
    ::setenv("PULSE_SERVER", ("unix:" + (server / "native").string()).c_str(), 1);
    const std::string script = quoted(std::filesystem::path(SONALYS_SOURCE_DIR) / "scripts/pulse-test-server.sh");
    ASSERT_EQ(runCommand(script + " start lost").exitCode, 0);
    struct StopAtEnd {  // a failing test leaves no server behind
        std::string script;
        ~StopAtEnd() { runCommand(script + " stop lost"); }
    } stopAtEnd{script};

    FakePrompt prompt;
    QtWaveInDevice device;
    WaveRecorder recorder(device, prompt, root.path());
    BasicRecordWindow window(recorder);
    recorder.SetOutputPath(root / "take.wav");
    ASSERT_EQ(recorder.Start(&window), 1) << prompt.last();
    PipeFeeder feeder(
        server / "capture.fifo", 11025, [](std::size_t i) { return static_cast<std::int16_t>(i + 1); }, 30 * 11025);
    window.onBuffer = [&](const WaveHeader&) {
        if (window.bytePosition >= 2 * 11025) runCommand(script + " stop lost");
    };
    recorder.WaitClosed();  // the engine stops by itself
    feeder.stop();

    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(WAVERR_DEVICELOST)});
    EXPECT_FALSE(recorder.deviceOpen());
    // At least the second of sound before the server went, in one unbroken run from the start.
    const std::vector<std::int16_t> got = WaveLoad(root / "take.wav").samples;
    ASSERT_GE(got.size(), 11025u);
    for (std::size_t i = 0; i < got.size(); ++i) ASSERT_EQ(got[i], static_cast<std::int16_t>(got[0] + i)) << i;
}

}  // namespace
