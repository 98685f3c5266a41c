// sonalys-analyze info: what the reader makes of a WAV file, and whether the program would open it from outside
// a client folder.
#include <charconv>
#include <iostream>
#include <string>
#include <string_view>

#include "Args.h"
#include "WaveInput.h"
#include "store/OpenOtherFile.h"
#include "store/WaveFile.h"

namespace {

// Seconds of sound: whole frames of the data chunk over the rate, printed with a point and three decimals.
std::string durationText(const WaveLoadResult& loaded) {
    const WaveFormat& f = loaded.format;
    if (f.nBlockAlign == 0 || f.nSamplesPerSec == 0) return "";
    const std::uint64_t frames = loaded.samples.size() * 2 / f.nBlockAlign;
    const double seconds = static_cast<double>(frames) / f.nSamplesPerSec;
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, seconds, std::chars_format::fixed, 3).ptr;
    return std::string(text, end);
}

std::string csvField(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) quoted += (c == '"') ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

// The verdict of the tests applied to a file opened from outside a client folder, and the reason.
void printOpenVerdict(const WaveFormat& f) {
    if (const auto refusal = CheckOtherFileFormat(f)) {
        std::cout << "opens_as_other_file,no\nreason," << csvField(*refusal) << "\n";
    } else if (f.nChannels == 2) {
        std::cout << "opens_as_other_file,yes\nreason," << csvField("stereo: folded to mono as chosen when opened")
                  << "\n";
    } else {
        std::cout << "opens_as_other_file,yes\nreason,\n";
    }
}

}  // namespace

int runInfo(CommandArgs words) {
    Args args(words, {});
    args.allowOnly({});
    if (!args.ok() || args.positional().size() != 1) {
        std::cerr << "usage: sonalys-analyze info FILE.wav\n";
        return 1;
    }
    const std::string path(args.positional()[0]);
    const WaveLoadResult loaded = WaveLoad(path);
    if (loaded.code != kWaveOk) {
        std::cerr << path << ": " << describeWaveResult(loaded.code) << "\n";
        return 2;
    }
    const WaveFormat& f = loaded.format;
    std::cout << "format_tag," << f.wFormatTag << "\nchannels," << f.nChannels << "\nsample_rate," << f.nSamplesPerSec
              << "\navg_bytes_per_sec," << f.nAvgBytesPerSec << "\nblock_align," << f.nBlockAlign
              << "\nbits_per_sample," << f.wBitsPerSample << "\nextra_size," << f.cbSize << "\nvalues,"
              << loaded.samples.size() << "\nduration_s," << durationText(loaded) << "\n";
    printOpenVerdict(f);
    return 0;
}
