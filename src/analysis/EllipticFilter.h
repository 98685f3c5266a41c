// The elliptic low-pass filter of one sample-rate conversion stage: designed for a stop edge, held as second-order
// sections in double precision.
#pragma once

#include <string_view>
#include <vector>

#include "store/DeclaredText.h"

inline constexpr std::string_view kFilterDesignTooDifficult = SONALYS_TEXT("Sonalys", "Filter design too difficult! ");
inline constexpr std::string_view kLimitCycles = SONALYS_TEXT("Sonalys", "Filter will suffer from limit cycles...\n");

// Figures every stage filter meets.
inline constexpr double kPassbandEdgeFraction = 0.9;  // passband edge as a fraction of the stop edge
inline constexpr double kPassbandRippleDb = 0.2;
inline constexpr double kStopbandAttenuationDb = 80.0;
inline constexpr double kSectionStabilityLimit = 1e-05;

// One second-order section, b0 + b1 z^-1 + b2 z^-2 over 1 + a1 z^-1 + a2 z^-2.
struct BiquadSection {
    double b0 = 1.0, b1 = 0.0, b2 = 0.0;
    double a1 = 0.0, a2 = 0.0;
};

enum class FilterDesignResult { Ok, TooDifficult, LimitCycles };

struct StageLowPass {
    std::vector<BiquadSection> sections;  // in the order a signal passes them, repeats of a cascade included
    int order = 0;                        // order of the designed elliptic filter, before any repeat
    int cascade = 0;                      // how many times the designed filter runs in a row: 1, 2 or 3
    FilterDesignResult result = FilterDesignResult::TooDifficult;
};

// The stage's "factor" for a stop edge `w` given as a fraction of the working rate: about 0.5 / w. It decides how
// hard the design is: 2 to 19 one filter, 20 to 29 two in cascade, 30 to 41 three; anything else is refused.
int stageFilterFactor(double w);

// The smallest even order at which an elliptic low-pass with selectivity `k` (passband edge over stop edge, both
// pre-warped) reaches `rippleDb` in the passband and `attenuationDb` in the stopband.
int ellipticOrder(double k, double rippleDb, double attenuationDb);

// Designs the stage filter for stop edge `w` (0 < w < 0.5, a fraction of the working rate): passband edge 0.9 w,
// 80 dB attenuation over the cascade, each section scaled to a gain of exactly 1 at DC. `passes` is how many times
// the signal goes through this cascade or others like it in the whole conversion (forward and backward, stage
// after stage): the 0.2 dB of passband ripple is shared among them, so that the conversion as a whole stays within
// it. Every section lifts the passband, never lowers it, so the shares simply add up.
StageLowPass designStageLowPass(double w, int passes = 1);

// True when the section's poles lie so close to the unit circle that rounding could make it ring on by itself.
bool sectionRisksLimitCycles(const BiquadSection& section);
