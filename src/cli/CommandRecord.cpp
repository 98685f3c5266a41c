// sonalys-analyze record: a take from the default sound input through the capture engine, as the Record button makes
// it, stopped once it holds the given length.
#include <QCoreApplication>
#include <QTemporaryFile>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <string>

#include "Args.h"
#include "StreamPrompt.h"
#include "audio/BasicWindows.h"
#include "audio/QtWaveInDevice.h"
#include "audio/SoundSystemExit.h"
#include "audio/WaveRecorder.h"

namespace {

constexpr const char* kUsage =
    "usage: sonalys-analyze record OUT.wav --seconds N [--rate 11025|22050|44100] [--update-bytes N]\n";

// Three hours at 44100 Hz still fit the 32-bit sizes of a WAV file and of the engine's byte count.
constexpr double kLongestTakeSeconds = 3.0 * 3600.0;
// Time allowed past twice the take's length before a sound input that went quiet is given up on.
constexpr int kDevicePatienceMilliseconds = 5000;

// The record-rate button's three choices.
int formatIndexFor(long long rate) {
    switch (rate) {
    case 11025: return 3;
    case 22050: return 5;
    case 44100: return 7;
    default: return -1;
    }
}

// Cuts each buffer so that the take holds exactly `wanted` bytes, and stops the capture when they are in: the
// length of a take is counted in samples, never measured by a clock.
void stopAtLength(BasicRecordWindow& window, WaveRecorder& recorder, std::uint32_t wanted) {
    window.onBuffer = [&recorder, wanted, kept = std::uint32_t{0}](WaveHeader& header) mutable {
        header.dwBytesRecorded = std::min(header.dwBytesRecorded, wanted - kept);
        kept += header.dwBytesRecorded;
        if (kept == wanted && !recorder.stopRequested()) recorder.Stop();
    };
}

// A sound input that stops delivering would otherwise keep the tool waiting for ever.
void watchForSilentDevice(WaveRecorder& recorder, StreamPrompt& prompt, double seconds) {
    const int patience = static_cast<int>(std::lround(seconds * 2000.0)) + kDevicePatienceMilliseconds;
    QTimer::singleShot(patience, [&recorder, &prompt] {
        if (recorder.stopRequested()) return;
        prompt.showOk("the sound input stopped delivering sound; the take is cut short");
        recorder.Stop();
    });
}

// Records `seconds` of sound, then prints what was recorded. The sound devices are gone when it returns.
int recordTake(const std::filesystem::path& output, const std::filesystem::path& scratch, int formatIndex,
               int updateBytes, double seconds) {
    StreamPrompt prompt(std::cerr);
    QtWaveInDevice device;
    // No crash marker outside the program's data root.
    WaveRecorder recorder(device, prompt, output.parent_path());
    recorder.SetCrashMarkerEnabled(false);
    recorder.SetScratchPath(scratch);
    recorder.SetFormat(formatIndex);
    recorder.SetUpdateRateBytes(updateBytes);
    recorder.SetOutputPath(output);
    BasicRecordWindow window(recorder);
    window.onClosed = [] { QCoreApplication::quit(); };
    const WaveFormat& format = recorder.format();
    const auto wanted = static_cast<std::uint32_t>(std::llround(seconds * format.nSamplesPerSec)) * 2u;
    stopAtLength(window, recorder, wanted);
    if (!recorder.Start(&window)) return 2;
    watchForSilentDevice(recorder, prompt, seconds);
    QCoreApplication::exec();

    if (prompt.shown() > 0 || !std::filesystem::exists(output)) return 2;
    std::cout << "file," << output.string() << "\nsample_rate," << format.nSamplesPerSec << "\nvalues,"
              << recorder.capturedBytes() / 2 << "\nbuffer_bytes," << recorder.bufferBytes() << "\n";
    return 0;
}

// Each run has a scratch file of its own beside the take, so that two runs into one folder never share one; it is
// removed whatever happens.
int recordInto(const std::filesystem::path& output, int formatIndex, int updateBytes, double seconds) {
    const std::filesystem::path folder = output.parent_path();
    if (!std::filesystem::is_directory(folder)) {
        std::cerr << folder.string() << ": no such folder\n";
        return 2;
    }
    QTemporaryFile scratch(QString::fromStdString((folder / "grav-XXXXXX.tmp").string()));
    if (!scratch.open()) {
        std::cerr << folder.string() << ": cannot create a scratch file here (" << scratch.errorString().toStdString()
                  << ")\n";
        return 2;
    }
    scratch.close();  // the capture engine opens it again by name; closing keeps the name ours
    return recordTake(output, scratch.fileName().toStdString(), formatIndex, updateBytes, seconds);
}

}  // namespace

int runRecord(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({"seconds", "rate", "update-bytes"});
    const double seconds = args.number("seconds", -1.0);
    const int formatIndex = formatIndexFor(args.integer("rate", 11025));
    const long long updateBytes = args.integer("update-bytes", kDefaultUpdateRateBytes);
    if (!args.ok() || args.positional().size() != 1 || !(seconds > 0.0 && seconds <= kLongestTakeSeconds) ||
        formatIndex < 0 || updateBytes < 2 || updateBytes > 1 << 20) {
        if (!args.ok()) std::cerr << args.error() << "\n";
        std::cerr << kUsage;
        return 1;
    }
    const std::filesystem::path output = std::filesystem::absolute(std::string(args.positional()[0]));

    int argc = 1;
    char name[] = "sonalys-analyze";
    char* argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    const int status = recordInto(output, formatIndex, static_cast<int>(updateBytes), seconds);
    letSoundSystemSettle();
    return status;
}
