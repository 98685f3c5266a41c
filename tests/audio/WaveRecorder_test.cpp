// The capture engine against a scripted device: the order of its calls, what reaches the scratch file and the WAV
// file, pause, a change of buffer size, and every failure with its message.
#include "audio/WaveRecorder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <filesystem>
#include <vector>

#include "FakePrompt.h"
#include "FakeWaveDevices.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/CrashMarker.h"
#include "base/ByteOrder.h"
#include "store/TextFormat.h"
#include "store/WaveFile.h"

namespace {

// 16-bit values first, first + 1, ...: any value lost, doubled or moved shows.
std::vector<std::int16_t> counting(std::size_t values, int first) {
    std::vector<std::int16_t> out(values);
    for (std::size_t i = 0; i < values; ++i) out[i] = static_cast<std::int16_t>(first + static_cast<int>(i));
    return out;
}

class WaveRecorderTest : public ::testing::Test {
protected:
    TempDir root;
    FakePrompt prompt;
    FakeWaveInDevice device;
    WaveRecorder recorder{device, prompt, root.path()};
    BasicRecordWindow window{recorder};

    std::filesystem::path take() const { return root / "take.wav"; }

    void start(int bufferBytes) {
        recorder.SetUpdateRateBytes(bufferBytes);
        recorder.SetOutputPath(take());
        ASSERT_EQ(recorder.Start(&window), 1);
        pumpDeviceEvents();
    }
    void capture(std::size_t values, int first) {
        std::vector<std::uint8_t> bytes(values * 2);
        samplesToLE(counting(values, first), bytes.data());
        device.capture(bytes);
        pumpDeviceEvents();
    }
    std::vector<std::int16_t> taken() const { return WaveLoad(take()).samples; }
    void stop() {
        recorder.Stop();
        recorder.WaitClosed();
    }
    std::uintmax_t scratchSize() const { return std::filesystem::file_size(root / "grav.tmp"); }
};

TEST_F(WaveRecorderTest, StartFillsAHundredBuffersInSlotOrderThenStartsTheDevice) {
    EXPECT_EQ(recorder.bufferBytes(), 2048);  // until the Update Rate first applies
    recorder.SetUpdateRateIndex(4);
    start(459);  // an odd size loses its last byte

    std::vector<std::string> expected{"open"};
    expected.insert(expected.end(), 100, "prepare");
    expected.insert(expected.end(), 100, "add");
    expected.push_back("start");
    EXPECT_EQ(device.calls, expected);
    EXPECT_EQ(device.queuedLengths, std::vector<std::uint32_t>(100, 458));

    EXPECT_EQ(device.openedFormat.nSamplesPerSec, 11025u);
    EXPECT_EQ(device.openedFormat.wBitsPerSample, 16);
    const auto marker = readCrashMarker(root.path());
    ASSERT_TRUE(marker);
    EXPECT_EQ(marker->state, kCaptureRunning);
    EXPECT_EQ(marker->updateRateIndex, 4);
}

TEST_F(WaveRecorderTest, EveryBufferReachesTheScratchFileAtOnceAndTheTakeAtStop) {
    start(100);
    capture(525, 1);                  // ten full buffers of 50 values and a half-filled eleventh
    EXPECT_EQ(scratchSize(), 1000u);  // flushed buffer by buffer, while the file is still open
    EXPECT_EQ(recorder.capturedBytes(), 1000u);
    EXPECT_EQ(device.queued(), 100u);  // each buffer back was replaced

    stop();
    // The reset handed back the half-filled buffer first: it is in the take too.
    EXPECT_EQ(taken(), counting(525, 1));
    EXPECT_EQ(std::filesystem::file_size(take()), 46u + 1050u);
    EXPECT_EQ(recorder.finishState(), WaveRecorder::kFinished);
    EXPECT_FALSE(device.isOpen());
    EXPECT_EQ(window.closeEvents, 1);
    EXPECT_EQ(readCrashMarker(root.path())->state, kCaptureClosed);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(WaveRecorderTest, TheWaitGoesOnUntilASlowDeviceHasHandedEverythingBack) {
    device.resetDelayMilliseconds = 200;
    start(100);
    capture(75, 1);
    recorder.Stop();
    EXPECT_EQ(device.queued(), 100u);  // nothing back yet
    recorder.WaitClosed();
    EXPECT_TRUE(recorder.closed());
    EXPECT_EQ(taken(), counting(75, 1));
}

TEST_F(WaveRecorderTest, SoundWhilePausedIsThrownAwayAndAPauseByTheButtonDrainsTheQueue) {
    start(100);
    capture(100, 1);             // two buffers kept
    window.recordPaused = true;  // a combo box holds the focus: buffers are replaced, their sound thrown away
    capture(100, 1000);
    EXPECT_EQ(device.queued(), 100u);
    window.pausedByButton = true;  // the pause button: buffers are no longer replaced
    capture(50 * 100, 2000);
    EXPECT_EQ(device.queued(), 0u);
    capture(200, 9000);  // no buffer queued: lost

    // Resuming queues up to ten buffers and goes on appending at the end of the file.
    window.recordPaused = window.pausedByButton = false;
    for (int i = 0; i < 10; ++i) ASSERT_GE(recorder.QueueBuffer(), 0);
    capture(100, 101);
    stop();

    EXPECT_EQ(taken(), counting(200, 1));
    EXPECT_EQ(window.bytePosition, 400);
}

TEST_F(WaveRecorderTest, StopWhilePausedFinishesTheTake) {
    start(100);
    capture(150, 1);
    window.recordPaused = window.pausedByButton = true;
    capture(50 * 100, 5000);
    ASSERT_EQ(device.queued(), 0u);
    ASSERT_EQ(recorder.CapturedSamples(), counting(150, 1));  // what the view shows while paused

    // The view queues one more buffer so that the device has something to hand back.
    ASSERT_GE(recorder.QueueBuffer(), 0);
    stop();
    EXPECT_EQ(taken(), counting(150, 1));

    // Even with nothing queued a stop still finishes and closes.
    window.recordPaused = window.pausedByButton = false;
    start(100);
    capture(60, 7);
    window.recordPaused = window.pausedByButton = true;
    capture(50 * 100, 0);
    stop();
    EXPECT_EQ(taken(), counting(50, 7));
    EXPECT_TRUE(recorder.closed());
}

TEST_F(WaveRecorderTest, ANewBufferSizeWhileRecordingGoesOnWithoutAGap) {
    start(100);
    capture(125, 1);  // two full buffers and 25 values waiting in the third
    const std::size_t startsBefore = device.count("start");
    recorder.ChangeUpdateRate(64);
    pumpDeviceEvents();

    // Every buffer came back, the empty ones were replaced at the new size and started the device again.
    EXPECT_GT(device.count("start"), startsBefore);
    EXPECT_TRUE(device.started);
    EXPECT_EQ(device.queued(), 100u);
    EXPECT_EQ(device.queuedLengths.back(), 64u);
    EXPECT_EQ(recorder.capturedBytes(), 250u);  // empty buffers add nothing

    capture(300, 126);
    stop();
    EXPECT_EQ(taken(), counting(425, 1));
}

TEST_F(WaveRecorderTest, FormatIndicesFollowTheRecordFormatTable) {
    struct Row {
        std::uint32_t rate, average;
        std::uint16_t align, bits;
    };
    const Row table[10] = {{8000, 8000, 1, 8},   {8000, 16000, 2, 16},  {11025, 11025, 1, 8}, {11025, 22050, 2, 16},
                           {22050, 22050, 1, 8}, {22050, 44100, 2, 16}, {44100, 44100, 1, 8}, {44100, 88200, 2, 16},
                           {50000, 50000, 1, 8}, {50000, 100000, 2, 16}};
    EXPECT_EQ(recorder.formatIndex(), 3);
    for (int index = 0; index < 10; ++index) {
        recorder.SetFormat(index);
        const Row& row = table[index];  // always one channel, even at 16 bits
        EXPECT_EQ(recorder.format(), (WaveFormat{1, 1, row.rate, row.average, row.align, row.bits, 0, {}})) << index;
    }

    // An 8-bit take at 50000 Hz records and keeps its format.
    recorder.SetFormat(8);
    start(100);
    capture(60, 0x4142);
    stop();
    const WaveOpenResult opened = WaveOpen(take());
    ASSERT_EQ(opened.code, kWaveOk);
    EXPECT_EQ(opened.format.nSamplesPerSec, 50000u);
    EXPECT_EQ(opened.format.wBitsPerSample, 8);
    EXPECT_EQ(std::filesystem::file_size(take()), 46u + 120u);
}

TEST_F(WaveRecorderTest, RefusedStartsTellWhyAndLeaveTheDeviceClosed) {
    recorder.SetOutputPath(take());
    device.openResults.push(MMSYSERR_BADDEVICEID);
    EXPECT_EQ(recorder.Start(&window), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(MMSYSERR_BADDEVICEID)});
    EXPECT_TRUE(recorder.closed());

    prompt.shown.clear();
    device.prepareResults.failAt(37, MMSYSERR_NOMEM);
    EXPECT_EQ(recorder.Start(&window), 0);
    EXPECT_EQ(prompt.shown,
              (std::vector<std::string>{waveErrorText(MMSYSERR_NOMEM), std::string(kErrorLoadingHeader)}));
    EXPECT_FALSE(device.isOpen());
    EXPECT_EQ(recorder.queuedSlots(), 0);

    // Only "invalid handle" and "busy" mean the device did not start.
    for (const int refusal : {MMSYSERR_INVALHANDLE, MMSYSERR_HANDLEBUSY}) {
        prompt.shown.clear();
        device.startResults.push(refusal);
        EXPECT_EQ(recorder.Start(&window), 0);
        EXPECT_EQ(prompt.last(), kCannotStartRecording);
        EXPECT_FALSE(device.isOpen());
        pumpDeviceEvents();
    }
    prompt.shown.clear();
    device.startResults.push(MMSYSERR_ERROR);
    EXPECT_EQ(recorder.Start(&window), 1);
    EXPECT_TRUE(prompt.shown.empty());
    stop();
}

TEST_F(WaveRecorderTest, FailuresWhileRecordingKeepWhatWasCaptured) {
    // The device stops working: the user is told, and the take keeps what came before.
    start(100);
    capture(120, 1);
    device.fail(WAVERR_DEVICELOST);
    pumpDeviceEvents();
    recorder.WaitClosed();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{waveErrorText(WAVERR_DEVICELOST)});
    EXPECT_EQ(taken(), counting(120, 1));
    EXPECT_TRUE(recorder.closed());

    // A take that cannot be written says so with its path, and still counts as finished.
    prompt.shown.clear();
    recorder.SetOutputPath(root / "missing" / "take.wav");
    ASSERT_EQ(recorder.Start(&window), 1);
    capture(50, 1);
    stop();
    const std::string path = (root / "missing" / "take.wav").string();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{formatText(kCannotRecordFile.data(), path.c_str())});
    EXPECT_EQ(recorder.finishState(), WaveRecorder::kFinished);
    EXPECT_EQ(scratchSize(), 100u);  // the sound is still in the scratch file
}

TEST_F(WaveRecorderTest, AFullDiskEndsTheCaptureOnceWithItsMessage) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
    std::filesystem::create_symlink("/dev/full", root / "grav.tmp");
    start(100);
    capture(200, 1);
    recorder.WaitClosed();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorWritingFile)});
    EXPECT_TRUE(recorder.closed());
    EXPECT_EQ(recorder.capturedBytes(), 0u);
}

TEST_F(WaveRecorderTest, DeviceRefusalsWhileStoppingAreReported) {
    start(100);
    device.unprepareResults.push(WAVERR_STILLPLAYING);
    capture(50, 1);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorFreeingHeader)});
    EXPECT_EQ(recorder.queuedSlots(), 100);  // the buffer stays in its slot, so no slot was free for a new one
    EXPECT_EQ(device.queued(), 99u);
    EXPECT_EQ(recorder.capturedBytes(), 0u);

    prompt.shown.clear();
    WaveHeader stranger;
    stranger.dwFlags = WHDR_DONE;
    recorder.HandleBuffer(stranger);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorFreeingMemory)});

    prompt.shown.clear();
    device.resetResults.push(MMSYSERR_ERROR);
    recorder.Stop();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kStopRecordingError1)});
}

TEST_F(WaveRecorderTest, AClosingFailureKeepsTheDeviceOpen) {
    start(100);
    device.closeResults.push(MMSYSERR_ERROR);
    recorder.Stop();
    pumpDeviceEvents();
    EXPECT_EQ(prompt.last(), kStopRecordingError2);
    EXPECT_TRUE(recorder.deviceOpen());
    EXPECT_FALSE(recorder.closed());
}

TEST_F(WaveRecorderTest, WaitingEndsWhenTheApplicationQuitsWithTheDeviceStillOpen) {
    bool waited = false;
    QTimer::singleShot(0, [&] {
        start(100);
        QTimer::singleShot(0, [] { QCoreApplication::quit(); });
        recorder.WaitClosed();  // nothing will close the device: only the quit ends the wait
        waited = true;
    });
    QCoreApplication::exec();
    EXPECT_TRUE(waited);
    EXPECT_TRUE(recorder.deviceOpen());
    EXPECT_FALSE(recorder.closed());
}

TEST_F(WaveRecorderTest, WithoutAWindowTheEngineTakesBuffersBackButWritesNoTake) {
    recorder.SetUpdateRateBytes(100);
    recorder.SetOutputPath(take());
    ASSERT_EQ(recorder.Start(nullptr), 1);
    capture(100, 1);
    EXPECT_EQ(recorder.queuedSlots(), 98);  // nothing replaces the two buffers back
    EXPECT_EQ(recorder.capturedBytes(), 200u);
    stop();
    EXPECT_TRUE(recorder.closed());
    EXPECT_EQ(recorder.finishState(), WaveRecorder::kFinished);
    EXPECT_FALSE(std::filesystem::exists(take()));
}

}  // namespace
