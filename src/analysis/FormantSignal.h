// Brings a recording to the 10 kHz of formant tracking: zero-stuffing, a Butterworth low-pass at 4750 Hz and
// linear interpolation at the new sample times.
#pragma once

#include <cstdint>
#include <span>

#include "store/Prompt.h"

// The whole factor by which the signal is first raised: 4 below 20000 Hz, 3 below 30000, 2 below 40000, else 1.
int upsamplingFactor(double rate);

// Works in place on `samples`, taken at 1 / sampleInterval Hz, and returns the count of 10 kHz samples now at
// its start: trunc(n * 10000 / rate). No gain makes up for the stuffed zeros, so the level falls by the factor;
// values beyond 16 bits are held at the limits. At 10000 Hz or below nothing changes. Returns 0 if the filter
// cannot be made (its message shown through `prompt`).
int resampleTo10k(double sampleInterval, std::span<std::int16_t> samples, Prompt& prompt);
