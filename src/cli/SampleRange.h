// The stretch of a recording named by --from and --to, in seconds, as the spectral subcommands read it.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>

#include "Args.h"

struct SampleRange {
    double from = 0.0;  // seconds
    double to = 0.0;
    std::size_t first = 0;  // samples
    std::size_t end = 0;
};

// The range within a recording of `count` samples at `rate` Hz; the whole recording by default. A range that is
// empty, reaches outside the recording or holds no whole sample is refused with a message on `errors` that says which.
std::optional<SampleRange> readSampleRange(Args& args, std::size_t count, int rate, std::ostream& errors);
