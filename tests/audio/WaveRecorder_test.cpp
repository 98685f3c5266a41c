// The capture engine against a scripted device: the order of its calls, what reaches the scratch file and the take,
// and refused starts with their messages. Sound arriving sample for sample is the real-server test's.
#include "audio/WaveRecorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "FakePrompt.h"
#include "FakeWaveDevices.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/CrashMarker.h"

namespace {

class WaveRecorderTest : public ::testing::Test {
protected:
    TempDir root;
    FakePrompt prompt;
    FakeWaveInDevice device;
    WaveRecorder recorder{device, prompt, root.path()};
    BasicRecordWindow window{recorder};

    void start(int bufferBytes) {
        recorder.SetUpdateRateBytes(bufferBytes);
        recorder.SetOutputPath(root / "take.wav");
        ASSERT_EQ(recorder.Start(&window), 1);
        pumpDeviceEvents();
    }
    void capture(std::size_t values, int first) {
        device.capture(std::span<const std::int16_t>(counting(values, first)));
        pumpDeviceEvents();
    }
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
    // A second copy of the program recording into the same data root at the same time takes a scratch file of its own.
    FakeWaveInDevice otherDevice;
    WaveRecorder other{otherDevice, prompt, root.path()};
    BasicRecordWindow otherWindow{other};
    other.SetOutputPath(root / "other.wav");
    ASSERT_EQ(other.Start(&otherWindow), 1);
    EXPECT_EQ(other.scratchPath(), root / "grav2.tmp");
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
    EXPECT_EQ(WaveLoad(root / "take.wav").samples,
              counting(525, 1));  // the reset handed back the half-filled buffer first
    EXPECT_EQ(recorder.finishState(), WaveRecorder::kFinished);
    EXPECT_EQ(window.closeEvents, 1);
    EXPECT_EQ(readCrashMarker(root.path())->state, kCaptureClosed);
    EXPECT_TRUE(prompt.shown.empty());
    other.Stop();
    other.WaitClosed();
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

}  // namespace
