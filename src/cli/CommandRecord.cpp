// sonalys-analyze record: a take from the default sound input through the capture engine, as the Record button makes
// it, stopped after the given time.
#include <QCoreApplication>
#include <QTimer>
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

// The record-rate button's three choices.
int formatIndexFor(long long rate) {
    switch (rate) {
    case 11025: return 3;
    case 22050: return 5;
    case 44100: return 7;
    default: return -1;
    }
}

// Records for `seconds`, then prints what was recorded. The sound devices are gone when it returns.
int recordTake(const std::filesystem::path& output, int formatIndex, int updateBytes, double seconds) {
    StreamPrompt prompt(std::cerr);
    QtWaveInDevice device;
    // The scratch file lies beside the take; no crash marker outside the program's data root.
    WaveRecorder recorder(device, prompt, output.parent_path());
    recorder.SetCrashMarkerEnabled(false);
    recorder.SetFormat(formatIndex);
    recorder.SetUpdateRateBytes(updateBytes);
    recorder.SetOutputPath(output);
    BasicRecordWindow window(recorder);
    window.onClosed = [] { QCoreApplication::quit(); };
    if (!recorder.Start(&window)) return 2;
    QTimer::singleShot(static_cast<int>(std::lround(seconds * 1000.0)), [&] { recorder.Stop(); });
    QCoreApplication::exec();

    if (prompt.shown() > 0 || !std::filesystem::exists(output)) return 2;
    std::error_code ignored;
    std::filesystem::remove(recorder.scratchPath(), ignored);
    const WaveFormat& format = recorder.format();
    std::cout << "file," << output.string() << "\nsample_rate," << format.nSamplesPerSec << "\nvalues,"
              << recorder.capturedBytes() / 2 << "\nbuffer_bytes," << recorder.bufferBytes() << "\n";
    return 0;
}

}  // namespace

int runRecord(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({"seconds", "rate", "update-bytes"});
    const double seconds = args.number("seconds", -1.0);
    const int formatIndex = formatIndexFor(args.integer("rate", 11025));
    const long long updateBytes = args.integer("update-bytes", kDefaultUpdateRateBytes);
    if (!args.ok() || args.positional().size() != 1 || !(seconds > 0.0 && seconds <= 24.0 * 3600.0) ||
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
    const int status = recordTake(output, formatIndex, static_cast<int>(updateBytes), seconds);
    letSoundSystemSettle();
    return status;
}
