// Capture on a real PulseAudio server: sound written into the test pipe source must come out of the take sample for
// sample, across a change of buffer size in the middle, and the capture must listen to the server's default input.
// Captures end by the count of samples received, never by a clock.
#include <gtest/gtest.h>

#include <QTimer>
#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/QtWaveInDevice.h"
#include "audio/WaveRecorder.h"
#include "store/WaveFile.h"

namespace {

// A counting signal that is never 0: sample i holds 1 + i % 30000.
std::int16_t counting(std::size_t i) { return static_cast<std::int16_t>(1 + i % 30000); }

class RealCaptureTest : public ::testing::Test {
protected:
    void SetUp() override {
        devices = findTestDevices();
        if (!devices) GTEST_SKIP() << "no PulseAudio server with a test pipe source (scripts/pulse-test-server.sh)";
        ASSERT_EQ(devices->rate, 11025) << "the test pipe must run at the take's rate";
        drainPipe(devices->fifo);
    }
    // Captures until `values` samples have come in, calling `midway` once half of them have.
    std::vector<std::int16_t> captureValues(std::int64_t values, std::function<void()> midway = {}) {
        window.onBuffer = [&, values, midway](const WaveHeader&) {
            if (midway && window.bytePosition >= values && !std::exchange(midwayDone, true))
                QTimer::singleShot(0, midway);
            if (window.bytePosition >= values * 2 && !recorder.stopRequested()) recorder.Stop();
        };
        recorder.SetOutputPath(root / "take.wav");
        EXPECT_EQ(recorder.Start(&window), 1) << prompt.last();
        PipeFeeder feeder(devices->fifo, 11025, counting, static_cast<std::size_t>(values) * 4);
        recorder.WaitClosed();
        feeder.stop();
        return WaveLoad(root / "take.wav").samples;
    }

    std::optional<TestDevices> devices;
    TempDir root;
    FakePrompt prompt;
    QtWaveInDevice device;
    WaveRecorder recorder{device, prompt, root.path()};
    BasicRecordWindow window{recorder};
    bool midwayDone = false;
};

TEST_F(RealCaptureTest, ATakeArrivesSampleForSampleAcrossANewBufferSize) {
    recorder.SetUpdateRateBytes(458);  // the spectrogram page's default at 11025 Hz: the most buffers a second
    const std::vector<std::int16_t> got = captureValues(3 * 11025, [&] { recorder.ChangeUpdateRate(734); });
    ASSERT_GE(got.size(), 3u * 11025);
    // One unbroken stretch of what was fed, from near its start.
    EXPECT_LT(static_cast<std::size_t>(got[0]), 11025u / 2);
    for (std::size_t i = 1; i < got.size(); ++i)
        ASSERT_EQ(got[i], counting(static_cast<std::size_t>(got[0]) + i - 1)) << i;
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(RealCaptureTest, TheServersDefaultInputIsOpenedNotTheFirstListed) {
    // A silent source made the default: what the pipe carries must not reach the take.
    const CommandResult loaded = runCommand(
        "pactl load-module module-null-source source_name=sonalys_silent "
        "format=s16le rate=11025 channels=1");
    ASSERT_EQ(loaded.exitCode, 0);
    runCommand("pactl set-default-source sonalys_silent");
    const std::vector<std::int16_t> got = captureValues(11025);
    runCommand("pactl set-default-source " + devices->source + "; pactl unload-module " + loaded.output);
    ASSERT_GE(got.size(), 11025u);
    EXPECT_EQ(std::count(got.begin(), got.end(), 0), static_cast<std::ptrdiff_t>(got.size()));
}

}  // namespace
