// sonalys-analyze convert: brings a WAV file to one of the program's rates, as importing a sound does.
#include <iostream>
#include <limits>
#include <string>

#include "Args.h"
#include "StreamPrompt.h"
#include "WaveInput.h"
#include "analysis/RateConversion.h"
#include "store/Prompt.h"
#include "store/WaveFile.h"

namespace {

constexpr std::string_view kConvertUsage = "usage: sonalys-analyze convert IN.wav OUT.wav --rate 11025|22050|44100\n";

// The record format of each rate the program works at, all 16-bit mono.
int recordFormatIndex(int rate) { return rate == 11025 ? 3 : rate == 22050 ? 5 : 7; }

}  // namespace

int runConvert(CommandArgs words) {
    Args args(words, {});
    const long long rate = args.integer("rate", 0);
    args.allowOnly({"rate"});
    if (!args.ok() || args.positional().size() != 2 || (rate != 11025 && rate != 22050 && rate != 44100)) {
        if (!args.ok()) std::cerr << args.error() << "\n";
        std::cerr << kConvertUsage;
        return 1;
    }
    const std::string inPath(args.positional()[0]);
    const std::string outPath(args.positional()[1]);
    const std::optional<MonoInput> input = loadMonoInput(inPath, std::cerr);
    if (!input) return 2;
    const auto fromRate = input->format.nSamplesPerSec;
    const auto count = input->samples.size();
    if (fromRate == 0 || fromRate > std::numeric_limits<int>::max() ||
        count > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        std::cerr << inPath << ": a rate of " << fromRate << " Hz or " << count << " values cannot be converted\n";
        return 2;
    }

    StreamPrompt prompt(std::cerr);
    const int toRate = static_cast<int>(rate);
    int written = 0;
    if (static_cast<int>(fromRate) == toRate) {
        // Nothing to convert: the values are written as they stand, as an import does.
        WaveWriter writer;
        writer.SetRecordFormat(recordFormatIndex(toRate));
        written = writer.WaveWrite(outPath, static_cast<std::uint32_t>(count * 2), input->samples.data(), prompt);
    } else {
        written = convertSampleRate(input->samples.data(), static_cast<int>(count), static_cast<int>(fromRate), toRate,
                                    outPath, 16, prompt);
    }
    if (written == 0) {
        std::cerr << inPath << ": not converted from " << fromRate << " Hz to " << toRate << " Hz\n";
        return 2;
    }
    const WaveLoadResult result = WaveLoad(outPath);
    std::cout << "input_rate," << fromRate << "\ninput_channels," << (input->wasStereo ? 2 : 1) << "\ninput_values,"
              << count << "\noutput_rate," << toRate << "\noutput_values," << result.samples.size() << "\n";
    return 0;
}
