// Capture on a real PulseAudio server: sound written into the test pipe source must come out of the take sample for
// sample, across a change of buffer size in the middle. The capture ends by the count of samples received, never by
// a clock.
#include <gtest/gtest.h>

#include <QTimer>
#include <optional>
#include <vector>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/QtWaveInDevice.h"
#include "audio/WaveRecorder.h"
#include "store/WaveFile.h"

namespace {

TEST(RealCapture, ATakeArrivesSampleForSampleAcrossANewBufferSize) {
    const std::optional<TestDevices> devices = findTestDevices();
    if (!devices) GTEST_SKIP() << "no PulseAudio server with a test pipe source (scripts/pulse-test-server.sh)";
    ASSERT_EQ(devices->rate, 11025) << "the test pipe must run at the take's rate";
    drainPipe(devices->fifo);
    TempDir root;
    FakePrompt prompt;
    QtWaveInDevice device;
    WaveRecorder recorder{device, prompt, root.path()};
    BasicRecordWindow window{recorder};
    const std::int64_t values = 3 * 11025;
    bool changed = false;
    window.onBuffer = [&](const WaveHeader&) {
        if (window.bytePosition >= values && !std::exchange(changed, true))
            QTimer::singleShot(0, [&] { recorder.ChangeUpdateRate(734); });
        if (window.bytePosition >= values * 2 && !recorder.stopRequested()) recorder.Stop();
    };
    recorder.SetUpdateRateBytes(458);  // the spectrogram page's default at 11025 Hz: the most buffers a second
    recorder.SetOutputPath(root / "take.wav");
    ASSERT_EQ(recorder.Start(&window), 1) << prompt.last();
    PipeFeeder feeder(devices->fifo, 11025, countingSample, static_cast<std::size_t>(values) * 4);
    recorder.WaitClosed();
    feeder.stop();
    const std::vector<std::int16_t> got = WaveLoad(root / "take.wav").samples;
    ASSERT_GE(got.size(), static_cast<std::size_t>(values));
    // One unbroken stretch of what was fed, from near its start.
    EXPECT_LT(static_cast<std::size_t>(got[0]), 11025u / 2);
    for (std::size_t i = 1; i < got.size(); ++i)
        ASSERT_EQ(got[i], countingSample(static_cast<std::size_t>(got[0]) + i - 1)) << i;
    EXPECT_TRUE(prompt.shown.empty());
}

}  // namespace
