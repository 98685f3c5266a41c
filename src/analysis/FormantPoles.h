// The poles of one frame of the formant chain: frequencies and bandwidths from the roots of the prediction
// polynomial, and the level of the spectrum at a pole.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "analysis/FormantSettings.h"
#include "analysis/Lpc.h"
#include "analysis/PolyRoots.h"

struct Pole {
    float freq = 0.0f;   // Hz
    float power = 0.0f;  // dB
    float band = 0.0f;   // Hz
};

// One analysed frame: its prediction and its poles, rising in frequency. After the mapping its poles are the
// formant slots.
struct PoleFrame {
    std::int32_t start = 0;  // first sample of the frame at 10 kHz
    std::int32_t size = 0;   // window length
    float rms = 0.0f;
    std::array<float, formant::lpcOrderFormant> coef{};  // the predictor without its leading 1
    std::int32_t nPoles = 0;
    std::array<Pole, formant::maxPoles> poles{};
};

// The starting points of the root search, order + 1 positions, kept from one search to the next.
struct RootEstimates {
    std::array<double, kMaxRootOrder + 1> real{};
    std::array<double, kMaxRootOrder + 1> imag{};
};

// Sets the estimates to points spread over the upper half of a circle of radius 2.
void seedRootEstimates(RootEstimates& estimates, int order);

// The usable poles of the polynomial a[0] + a[1] x + ... + a[order] x^order, whose roots are the reciprocals
// of the predictor's poles. With `seed` not 0 the search first reseeds `estimates`; with 0 it starts from
// what the last search left. Returns 1 with `nForm` poles above 1 Hz and below sampleFreq / 2 - 1 Hz first in
// `freq` and `band`, rising; returns 0 with `nForm` 0 when the roots are not found. `freq` and `band` hold
// `order` values.
int polesToFormants(int order, double sampleFreq, std::span<const double> a, int& nForm, std::span<double> freq,
                    std::span<double> band, int seed, RootEstimates& estimates, ClassicRand& random);

// The usable poles of a polynomial whose roots have been found, as polesToFormants gives them.
void rootsToFormants(const RootEstimates& roots, int order, double sampleFreq, int& nForm, std::span<double> freq,
                     std::span<double> band);

// The level in dB of the frame's spectrum at `freq` Hz: rms over the size of the prediction polynomial there.
double poleLevel(const PoleFrame& frame, int order, double sampleInterval, double freq);
