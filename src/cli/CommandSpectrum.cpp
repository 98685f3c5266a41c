// sonalys-analyze spectrum: the power spectrum of a stretch of a recording, as the spectrum page shows it.
#include <charconv>
#include <iostream>
#include <span>
#include <string>

#include "Args.h"
#include "CsvNumber.h"
#include "SampleRange.h"
#include "WaveInput.h"
#include "analysis/PowerSpectrum.h"

namespace {

constexpr std::string_view kUsage =
    "usage: sonalys-analyze spectrum FILE.wav [--fft 256|512|1024] [--from S] [--to S] [--no-window]\n";

}  // namespace

int runSpectrum(CommandArgs words) {
    Args args(words, {"no-window"});
    args.allowOnly({"fft", "from", "to", "no-window"});
    const long long fft = args.integer("fft", 512);
    if (!args.ok() || args.positional().size() != 1 || (fft != 256 && fft != 512 && fft != 1024)) {
        if (!args.ok()) std::cerr << "sonalys-analyze spectrum: " << args.error() << "\n";
        std::cerr << kUsage;
        return 1;
    }
    const std::string path(args.positional()[0]);
    const auto input = loadMonoInput(path, std::cerr);
    if (!input) return 2;
    const int rate = static_cast<int>(input->format.nSamplesPerSec);
    const auto range = readSampleRange(args, input->samples.size(), rate, std::cerr);
    if (!args.ok()) {
        std::cerr << "sonalys-analyze spectrum: " << args.error() << "\n" << kUsage;
        return 1;
    }
    if (!range) return 2;

    PowerSpectrum spectrum;
    spectrum.setSampleRate(rate);
    spectrum.setFftSize(static_cast<int>(fft));
    spectrum.setUseWindow(!args.has("no-window"));
    spectrum.computeSpectrum(
        std::span<const std::int16_t>(input->samples).subspan(range->first, range->end - range->first));

    std::string out = "freq_hz,db\n";
    const auto db = spectrum.current();
    for (std::size_t k = 0; k < db.size(); ++k) {
        writeNumber(out, static_cast<double>(k) * rate / static_cast<double>(fft));
        out += ',';
        writeNumber(out, db[k]);
        out += '\n';
    }
    std::cout << out;
    return 0;
}
