// What the subcommands share about reading their input files.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "store/WaveFile.h"

// A clear sentence for a reader result code.
std::string describeWaveResult(int code);

// A 16-bit input file as one channel: a stereo file is folded by mixing the two channels.
struct MonoInput {
    WaveFormat format;  // after the fold: one channel
    std::vector<std::int16_t> samples;
    bool wasStereo = false;
};

// Loads `path` for analysis. Refuses, with a clear message on `errors`, a file the reader rejects, a file that is
// not 16-bit, or one with more than two channels.
std::optional<MonoInput> loadMonoInput(const std::string& path, std::ostream& errors);
