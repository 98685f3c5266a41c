// Folding an interleaved stereo recording to one channel, as the person chooses when such a file is opened:
// the left channel, the right channel, or both mixed.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "WaveFile.h"

enum class StereoChoice { Left, Right, Mix };

// Output k is value 2k (left), 2k+1 (right), or (left + right) / 2 in 32-bit integers, truncated toward zero.
// An odd last value (half a frame) is dropped.
std::vector<std::int16_t> foldToMono(std::span<const std::int16_t> interleaved, StereoChoice choice);

// The format record of the folded samples: one channel, block align and byte rate recomputed from the bits.
void foldFormatToMono(WaveFormat& format);
