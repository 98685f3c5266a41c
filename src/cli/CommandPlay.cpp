// sonalys-analyze play: sounds a WAV file through the playback engine on the default output. The whole file plays
// as the view plays it, in chunks, ending one chunk short; a range given with --from and --to plays as a selection
// does, in one piece.
#include <QCoreApplication>
#include <iostream>
#include <string>

#include "Args.h"
#include "SampleRange.h"
#include "StreamPrompt.h"
#include "WaveInput.h"
#include "audio/BasicWindows.h"
#include "audio/ChunkedPlayback.h"
#include "audio/QtWaveOutDevice.h"
#include "audio/SoundSystemExit.h"
#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"

namespace {

constexpr const char* kUsage =
    "usage: sonalys-analyze play FILE.wav [--from SECONDS --to SECONDS] [--update-bytes N]\n";

void printPlayed(const std::string& path, const MonoInput& input, std::int64_t first, std::int64_t played) {
    std::cout << "file," << path << "\nsample_rate," << input.format.nSamplesPerSec << "\nfirst_value," << first
              << "\nvalues_played," << played << "\n";
}

// Plays samples `first` to `last` of `input`, in one piece for a range and in chunks otherwise, then prints what was
// played. The sound devices are gone when it returns.
int playInput(const std::string& path, MonoInput& input, std::int64_t first, std::int64_t last, bool range,
              long long updateBytes) {
    const auto count = static_cast<std::int64_t>(input.samples.size());
    StreamPrompt prompt(std::cerr);
    QtWaveOutDevice device;
    ChunkedPlayback play;  // outlives the player, which may still hand its headers back when it goes
    WavePlayer player(device, prompt);
    BasicPlayWindow window(player, play, prompt, input.samples.data(), count);
    window.onClosed = [] { QCoreApplication::quit(); };
    if (!player.Open(input.format, &window)) return 2;
    play.clearCounters();
    std::int64_t played = 0;
    if (range) {
        play.oneShot = true;
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(input.samples.data() + first);
        if (!player.PlayOnce(bytes, static_cast<std::uint32_t>((last - first) * 2))) return 2;
        played = last - first;
    } else if (!PlayChunked(play, player, input.samples.data(), count, updateBytes / 2, {}, prompt)) {
        player.Close();
        return 2;
    }
    QCoreApplication::exec();
    if (!range) played = play.bytePosition / 2;
    if (prompt.shown() > 0) return 2;
    printPlayed(path, input, first, played);
    return 0;
}

}  // namespace

int runPlay(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({"from", "to", "update-bytes"});
    const bool range = args.has("from") || args.has("to");
    const long long updateBytes = args.integer("update-bytes", kDefaultUpdateRateBytes);
    if (!args.ok() || args.positional().size() != 1 || updateBytes < 2) {
        if (!args.ok()) std::cerr << args.error() << "\n";
        std::cerr << kUsage;
        return 1;
    }
    const std::string path(args.positional()[0]);
    std::optional<MonoInput> input = loadMonoInput(path, std::cerr);
    if (!input) return 2;
    const auto count = static_cast<std::int64_t>(input->samples.size());
    std::int64_t first = 0;
    std::int64_t last = count;
    if (range) {
        const auto chosen = readSampleRange(args, input->samples.size(), input->format.nSamplesPerSec, std::cerr);
        if (!chosen) return 2;
        first = static_cast<std::int64_t>(chosen->first);
        last = static_cast<std::int64_t>(chosen->end);
    }
    // A play of fewer than one sample ends before any device opens, and says nothing.
    if (last - first < 1) {
        printPlayed(path, *input, first, 0);
        return 0;
    }

    int argc = 1;
    char name[] = "sonalys-analyze";
    char* argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    const int status = playInput(path, *input, first, last, range, updateBytes);
    letSoundSystemSettle();
    return status;
}
