// Measures a real capture on the audio tests' PulseAudio server (scripts/pulse-test-server.sh start): how long after
// its last sample went into the sound server each buffer reaches its handler, and how much processor time the
// capture costs. A counting signal is written into the test pipe at the pace of real time; each buffer's last value
// tells which sample it ends with, and the feeder noted when that sample went in.
//
//   audio_capture_bench [SECONDS]
#include <sys/resource.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "BenchSupport.h"
#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "audio/BasicWindows.h"
#include "audio/QtWaveInDevice.h"
#include "audio/SoundSystemExit.h"
#include "audio/WaveRecorder.h"

namespace {

double percentile(std::vector<double> values, double p) {
    if (values.empty()) return 0.0;
    std::sort(values.begin(), values.end());
    const auto at = static_cast<std::size_t>(p * static_cast<double>(values.size() - 1) + 0.5);
    return values[at];
}

struct Result {
    std::vector<double> latencies;  // milliseconds
    double cpuPercent = 0.0;
    std::size_t buffers = 0;
    std::size_t takeValues = 0;
};

// One capture at `formatIndex` with buffers of `updateBytes`, for `seconds`.
Result capture(const TestDevices& devices, int formatIndex, int updateBytes, int seconds) {
    TempDir root;
    FakePrompt prompt;
    QtWaveInDevice device;
    WaveRecorder recorder(device, prompt, root.path());
    recorder.SetCrashMarkerEnabled(false);
    recorder.SetFormat(formatIndex);
    recorder.SetUpdateRateBytes(updateBytes);
    recorder.SetOutputPath(root / "take.wav");
    BasicRecordWindow window(recorder);
    drainPipe(devices.fifo);

    const double rateRatio = static_cast<double>(recorder.format().nSamplesPerSec) / devices.rate;
    Result result;
    std::size_t received = 0;  // take samples so far
    PipeFeeder* feeding = nullptr;
    window.onBuffer = [&](const WaveHeader& header) {
        received += header.dwBytesRecorded / 2;
        ++result.buffers;
        // Only at the pipe's own rate does a value name a sample exactly.
        if (!feeding || rateRatio != 1.0 || header.dwBytesRecorded == 0) return;
        const auto now = PipeFeeder::Clock::now();
        const auto went = feeding->writtenAt(received - 1);
        if (went == PipeFeeder::Clock::time_point::max()) return;
        result.latencies.push_back(std::chrono::duration<double, std::milli>(now - went).count());
    };

    if (!recorder.Start(&window)) return result;
    PipeFeeder feeder(
        devices.fifo, devices.rate, [](std::size_t i) { return static_cast<std::int16_t>(i); },
        static_cast<std::size_t>(seconds + 5) * static_cast<std::size_t>(devices.rate));
    feeding = &feeder;
    const double before = ProcessSeconds();
    runEventLoop(seconds * 1000);
    recorder.Stop();
    recorder.WaitClosed();
    const double spent = ProcessSeconds() - before;
    feeder.stop();
    result.cpuPercent = 100.0 * (spent - feeder.cpuSeconds()) / seconds;
    result.takeValues = recorder.capturedBytes() / 2;
    if (!prompt.shown.empty()) std::fprintf(stderr, "message: %s\n", prompt.last().c_str());
    return result;
}

void report(const char* what, const Result& result) {
    std::printf("%s\n  buffers %zu, values %zu, CPU %.2f%% of one core\n", what, result.buffers, result.takeValues,
                result.cpuPercent);
    if (!result.latencies.empty()) {
        std::printf("  capture to handler: median %.2f ms, 99th percentile %.2f ms, max %.2f ms\n",
                    percentile(result.latencies, 0.5), percentile(result.latencies, 0.99),
                    percentile(result.latencies, 1.0));
    }
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::stoi(argv[1])) : 20;
    const std::optional<TestDevices> devices = findTestDevices();
    if (!devices) {
        std::fprintf(stderr, "no PulseAudio server with the test devices: run scripts/pulse-test-server.sh start\n");
        return 1;
    }
    // The spectrogram page's default Update Rate at 11025 Hz gives 458-byte buffers, 48 a second.
    report("11025 Hz, 458-byte buffers", capture(*devices, 3, 459, seconds));
    // At 44100 Hz: the engine's default buffer, and the smallest the Update Rate offers (735 bytes, 734 used).
    report("44100 Hz, 2048-byte buffers", capture(*devices, 7, 2048, seconds));
    report("44100 Hz, 734-byte buffers", capture(*devices, 7, 735, seconds));
    letSoundSystemSettle();
    return 0;
}
