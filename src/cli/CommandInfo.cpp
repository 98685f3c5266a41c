// sonalys-analyze info: what the reader makes of a WAV file.
#include <iostream>
#include <string>

#include "Args.h"
#include "WaveInput.h"
#include "store/WaveFile.h"

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
              << loaded.samples.size() << "\n";
    return 0;
}
