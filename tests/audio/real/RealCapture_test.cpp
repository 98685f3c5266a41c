// Capture on a real PulseAudio server: sound written into the test pipe source must come out of the take sample for
// sample, however the capture is paused, resized or kept waiting by a busy user-interface thread.
#include <gtest/gtest.h>

#include <QElapsedTimer>
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

// A counting signal: sample i holds i, wrapped to 16 bits.
std::int16_t counting(std::size_t index) { return static_cast<std::int16_t>(static_cast<std::uint16_t>(index)); }

// Where a counting signal jumps: the indices i at which take[i] is not take[i - 1] + 1.
std::vector<std::size_t> jumps(const std::vector<std::int16_t>& take) {
    std::vector<std::size_t> at;
    for (std::size_t i = 1; i < take.size(); ++i) {
        if (static_cast<std::uint16_t>(take[i]) != static_cast<std::uint16_t>(take[i - 1] + 1)) at.push_back(i);
    }
    return at;
}

class RealCaptureTest : public ::testing::Test {
protected:
    void SetUp() override {
        devices = findTestDevices();
        if (!devices) GTEST_SKIP() << "no PulseAudio server with a test pipe source (scripts/pulse-test-server.sh)";
        ASSERT_EQ(devices->rate, 11025) << "the test pipe must run at the take's rate";
        drainPipe(devices->fifo);
    }

    std::optional<TestDevices> devices;
    TempDir root;
    FakePrompt prompt;
    QtWaveInDevice device;
    WaveRecorder recorder{device, prompt, root.path()};
    BasicRecordWindow window{recorder};

    void start() {
        recorder.SetOutputPath(root / "take.wav");
        ASSERT_EQ(recorder.Start(&window), 1) << prompt.last();
    }
    void stop() {
        recorder.Stop();
        recorder.WaitClosed();
        ASSERT_TRUE(recorder.closed());
    }
    std::vector<std::int16_t> take() const { return WaveLoad(root / "take.wav").samples; }
};

TEST_F(RealCaptureTest, FiveSecondsOfSpeechArriveSampleForSample) {
    const std::vector<std::int16_t> speech = makeSpeech(
        root.path(), 11025,
        "When the sunlight strikes raindrops in the air, they act as a prism and form a rainbow. The rainbow is "
        "a division of white light into many beautiful colors.");
    if (speech.empty()) GTEST_SKIP() << "espeak-ng or sox is missing";
    ASSERT_GT(speech.size(), 7u * 11025);

    start();
    PipeFeeder feeder(
        devices->fifo, 11025, [&](std::size_t i) { return speech[i]; }, speech.size());
    runEventLoop(5000);
    stop();
    feeder.stop();

    const std::vector<std::int16_t> got = take();
    ASSERT_GT(got.size(), 4u * 11025);
    ASSERT_LT(got.size(), 6u * 11025);
    // The take is one unbroken stretch of what was fed: find where it begins, then every sample must match.
    std::optional<std::size_t> offset;
    for (std::size_t k = 0; k + got.size() <= speech.size() && !offset; ++k) {
        if (std::equal(got.begin(), got.end(), speech.begin() + static_cast<std::ptrdiff_t>(k))) offset = k;
    }
    ASSERT_TRUE(offset) << "the take is not a gapless copy of the speech fed";
    EXPECT_LT(*offset, 11025u / 2);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(RealCaptureTest, AMinuteWithTheUserInterfaceBusyHalfTheTimeLosesNoBuffer) {
    recorder.SetUpdateRateBytes(458);  // the spectrogram page's default at 11025 Hz: the most buffers a second
    start();
    PipeFeeder feeder(devices->fifo, 11025, counting, 70 * 11025);
    // Every 20 ms the thread is kept busy for 10 ms, as heavy drawing would.
    QTimer busy;
    busy.setTimerType(Qt::PreciseTimer);
    QObject::connect(&busy, &QTimer::timeout, [] {
        QElapsedTimer spin;
        spin.start();
        while (spin.nsecsElapsed() < 10'000'000) {
        }
    });
    busy.start(20);
    int buffers = 0;
    window.onBuffer = [&](const WaveHeader& header) {
        if (header.dwBytesRecorded == header.dwBufferLength) ++buffers;
    };
    runEventLoop(60'000);
    busy.stop();
    stop();
    feeder.stop();

    const std::vector<std::int16_t> got = take();
    EXPECT_GT(got.size(), 59u * 11025);
    EXPECT_EQ(jumps(got), std::vector<std::size_t>{});
    EXPECT_GE(buffers, 59 * 11025 * 2 / 458);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(RealCaptureTest, PauseResumeAndANewBufferSizeInTheMiddleEndCleanly) {
    recorder.SetUpdateRateBytes(458);
    start();
    PipeFeeder feeder(devices->fifo, 11025, counting, 20 * 11025);
    runEventLoop(1000);
    // The pause button: what arrives is thrown away and the queue runs dry, after 100 buffers of 20.8 ms.
    window.recordPaused = window.pausedByButton = true;
    runEventLoop(2500);
    EXPECT_EQ(recorder.queuedSlots(), 0);
    const std::vector<std::int16_t> shownWhilePaused = recorder.CapturedSamples();
    window.recordPaused = window.pausedByButton = false;
    for (int i = 0; i < 10; ++i) ASSERT_GE(recorder.QueueBuffer(), 0);
    runEventLoop(1000);
    // A new Update Rate resets the device in the middle of the capture; it goes on at the new size.
    recorder.ChangeUpdateRate(734);
    runEventLoop(1000);
    stop();
    feeder.stop();

    const std::vector<std::int16_t> got = take();
    ASSERT_GT(got.size(), 2u * 11025);
    // One jump only, where the pause was; none at the reset.
    const std::vector<std::size_t> at = jumps(got);
    ASSERT_EQ(at.size(), 1u);
    EXPECT_EQ(at[0], shownWhilePaused.size());
    EXPECT_TRUE(std::equal(shownWhilePaused.begin(), shownWhilePaused.end(), got.begin()));
    EXPECT_TRUE(prompt.shown.empty());
}

}  // namespace
