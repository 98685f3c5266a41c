// The capture engine against a scripted device: the order of its calls, what reaches the scratch file and the take,
// pause, and every failure with its message. A change of buffer size while recording is the real-server test's.
#include "audio/WaveRecorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "FakePrompt.h"
#include "FakeWaveDevices.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/CrashMarker.h"
#include "base/ByteOrder.h"
#include "store/TextFormat.h"

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

    void start(int bufferBytes, const char* take = "take.wav") {
        recorder.SetUpdateRateBytes(bufferBytes);
        recorder.SetOutputPath(root / take);
        ASSERT_EQ(recorder.Start(&window), 1);
        pumpDeviceEvents();
    }
    static void capture(FakeWaveInDevice& into, std::size_t values, int first) {
        std::vector<std::uint8_t> bytes(values * 2);
        samplesToLE(counting(values, first), bytes.data());
        into.capture(bytes);
        pumpDeviceEvents();
    }
    void capture(std::size_t values, int first) { capture(device, values, first); }
    std::vector<std::int16_t> taken(const char* take = "take.wav") const { return WaveLoad(root / take).samples; }
    void stop() {
        recorder.Stop();
        recorder.WaitClosed();
    }
};

TEST_F(WaveRecorderTest, EveryBufferReachesTheScratchFileAtOnceAndTheTakeAtStop) {
    recorder.SetUpdateRateIndex(4);
    start(101);  // an odd size loses its last byte
    std::vector<std::string> expected{"open"};
    expected.insert(expected.end(), 100, "prepare");
    expected.insert(expected.end(), 100, "add");
    expected.push_back("start");
    EXPECT_EQ(device.calls, expected);
    EXPECT_EQ(device.queuedLengths, std::vector<std::uint32_t>(100, 100));
    EXPECT_EQ(readCrashMarker(root.path())->updateRateIndex, 4);
    EXPECT_EQ(readCrashMarker(root.path())->state, kCaptureRunning);

    capture(525, 1);  // ten full buffers of 50 values and a half-filled eleventh
    EXPECT_EQ(std::filesystem::file_size(root / "grav.tmp"), 1000u);  // flushed buffer by buffer
    EXPECT_EQ(device.queued(), 100u);                                 // each buffer back was replaced
    device.calls.clear();
    stop();
    // A reset hands every buffer back, each is let go, and only then does the device close.
    expected.assign(1, "reset");
    expected.insert(expected.end(), 100, "unprepare");
    expected.push_back("close");
    EXPECT_EQ(device.calls, expected);
    EXPECT_EQ(taken(), counting(525, 1));  // the reset handed back the half-filled buffer first
    EXPECT_EQ(recorder.finishState(), WaveRecorder::kFinished);
    EXPECT_EQ(window.closeEvents, 1);
    EXPECT_EQ(readCrashMarker(root.path())->state, kCaptureClosed);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(WaveRecorderTest, SoundWhilePausedIsThrownAwayAndAStopWithNothingQueuedStillFinishes) {
    start(100);
    capture(100, 1);             // two buffers kept
    window.recordPaused = true;  // a combo box holds the focus: buffers are replaced, their sound thrown away
    capture(100, 1000);
    EXPECT_EQ(device.queued(), 100u);
    window.pausedByButton = true;  // the pause button: buffers are no longer replaced
    capture(50 * 100, 2000);
    EXPECT_EQ(device.queued(), 0u);
    EXPECT_EQ(recorder.CapturedSamples(), counting(100, 1));  // what the view shows while paused

    // Resuming queues up to ten buffers and goes on appending at the end of the file.
    window.recordPaused = window.pausedByButton = false;
    for (int i = 0; i < 10; ++i) ASSERT_GE(recorder.QueueBuffer(), 0);
    capture(100, 101);
    window.recordPaused = window.pausedByButton = true;
    capture(50 * 100, 0);
    stop();
    EXPECT_EQ(taken(), counting(200, 1));
    EXPECT_EQ(window.bytePosition, 400);
    EXPECT_TRUE(recorder.closed());
}

TEST_F(WaveRecorderTest, TwoCapturesIntoOneDataRootEachKeepAScratchFileOfTheirOwn) {
    // A second copy of the program recording at the same time into the same data root.
    FakeWaveInDevice otherDevice;
    WaveRecorder other{otherDevice, prompt, root.path()};
    BasicRecordWindow otherWindow{other};
    start(100);
    other.SetUpdateRateBytes(100);
    other.SetOutputPath(root / "other.wav");
    ASSERT_EQ(other.Start(&otherWindow), 1);
    capture(100, 1);
    capture(otherDevice, 150, 5000);
    stop();
    other.Stop();
    other.WaitClosed();
    EXPECT_EQ(taken(), counting(100, 1));
    EXPECT_EQ(taken("other.wav"), counting(150, 5000));
    EXPECT_EQ(other.scratchPath(), root / "grav2.tmp");
    // Once the first take is written its grav.tmp is free again.
    start(100, "third.wav");
    EXPECT_EQ(recorder.scratchPath(), root / "grav.tmp");
}

TEST_F(WaveRecorderTest, RefusedStartsTellWhyAndLeaveTheDeviceClosed) {
    struct Refusal {
        const char* call;
        int nth, result;
        std::vector<std::string> shown;  // empty: the capture starts
    };
    const Refusal refusals[] = {
        {"open", 1, MMSYSERR_BADDEVICEID, {waveErrorText(MMSYSERR_BADDEVICEID)}},
        {"prepare", 37, MMSYSERR_NOMEM, {waveErrorText(MMSYSERR_NOMEM), std::string(kErrorLoadingHeader)}},
        // Only "invalid handle" and "busy" mean the device did not start.
        {"start", 1, MMSYSERR_INVALHANDLE, {std::string(kCannotStartRecording)}},
        {"start", 1, MMSYSERR_HANDLEBUSY, {std::string(kCannotStartRecording)}},
        {"start", 1, MMSYSERR_ERROR, {}},
    };
    for (const Refusal& refusal : refusals) {
        prompt.shown.clear();
        device.failAt(refusal.call, refusal.nth, refusal.result);
        EXPECT_EQ(recorder.Start(&window), refusal.shown.empty() ? 1 : 0) << refusal.call << refusal.result;
        EXPECT_EQ(prompt.shown, refusal.shown);
        EXPECT_EQ(device.isOpen(), refusal.shown.empty());
        pumpDeviceEvents();
    }
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

    // A take that cannot be written says so with its path; the sound is still in the scratch file.
    prompt.shown.clear();
    start(100, "missing/take.wav");
    capture(50, 1);
    stop();
    const std::string path = (root / "missing/take.wav").string();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{formatText(kCannotRecordFile.data(), path.c_str())});
    EXPECT_EQ(recorder.finishState(), WaveRecorder::kFinished);
    EXPECT_EQ(std::filesystem::file_size(root / "grav.tmp"), 100u);

    // A device that will not close is kept open.
    start(100);
    device.failAt("close", 1, MMSYSERR_ERROR);
    recorder.Stop();
    pumpDeviceEvents();
    EXPECT_EQ(prompt.last(), kStopRecordingError2);
    EXPECT_TRUE(recorder.deviceOpen());
}

TEST_F(WaveRecorderTest, AFullDiskEndsTheCaptureOnceWithItsMessage) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
    std::filesystem::create_symlink("/dev/full", root / "grav.tmp");
    start(100);
    capture(200, 1);
    recorder.WaitClosed();
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kErrorWritingFile)});
    EXPECT_EQ(recorder.capturedBytes(), 0u);
}

TEST_F(WaveRecorderTest, DeviceRefusalsWhileStoppingAreReported) {
    start(100);
    device.failAt("unprepare", 1, WAVERR_STILLPLAYING);
    capture(50, 1);
    EXPECT_EQ(recorder.queuedSlots(), 100);  // the buffer stays in its slot, so no slot was free for a new one
    WaveHeader stranger;
    stranger.dwFlags = WHDR_DONE;
    recorder.HandleBuffer(stranger);
    device.failAt("reset", 1, MMSYSERR_ERROR);
    recorder.Stop();
    EXPECT_EQ(prompt.shown,
              (std::vector<std::string>{std::string(kErrorFreeingHeader), std::string(kErrorFreeingMemory),
                                        std::string(kStopRecordingError1)}));
}

}  // namespace
