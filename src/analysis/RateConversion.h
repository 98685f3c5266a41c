// Sample-rate conversion of imported sound: the ratio of the two rates becomes a fraction, the fraction is split
// into stages of small whole factors, and each stage zero-stuffs, filters forward and backward with an elliptic
// low-pass, and decimates. The result goes to a 16-bit mono WAV file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

#include "ZeroPhaseResampler.h"
#include "store/DeclaredText.h"

struct Prompt;

inline constexpr std::string_view kNoSimpleFactors = SONALYS_TEXT("Sonalys", "No simple factors for ratio");
inline constexpr std::string_view kCannotAllocateInterpolated =
    SONALYS_TEXT("Sonalys", "cannot allocate space for interpolated data");
inline constexpr std::string_view kErrorAllocatingBuffer = SONALYS_TEXT("Sonalys", "Error Allocating Buffer");

inline constexpr int kLargestRatioDenominator = 999;
inline constexpr double kRatioTolerance = 1e-06;
inline constexpr int kLargestStageFactor = 41;
inline constexpr int kPrimeTableSize = 175;

// toRate / fromRate = num / den. Both 0 when no fraction was found.
struct RateFraction {
    std::int64_t num = 0;
    std::int64_t den = 0;
    bool operator==(const RateFraction&) const = default;
};

// The first fraction, by denominator from 1 to 999, that lies within 1e-06 of toRate / fromRate.
RateFraction rateFraction(int fromRate, int toRate);

// The first 175 primes, 2 to 1039.
std::span<const int> primeTable();

// `value` (1 or more) as factors over the prime table, smallest first; 1 gives the single factor 1. A remainder
// that no prime of the table divides stays as one last factor.
std::vector<std::int64_t> primeFactors(std::int64_t value);

// One stage: zero-stuff by `up`, filter, keep every `down`-th value.
struct ConversionStage {
    int up = 1;
    int down = 1;
    bool operator==(const ConversionStage&) const = default;
};

// The stages that multiply a rate by `fraction`, in the order they run. Empty when num or den has a prime factor
// above 41, which no stage can take. The fraction 1/1 gives the one stage 1/1, which has no filter.
std::vector<ConversionStage> planStages(RateFraction fraction);

// A stage's stop edge as a fraction of its working rate (up times its input rate).
double stageStopEdge(ConversionStage stage);

// Converts `nSamples` 16-bit mono values from `fromRate` to `toRate` and writes them, 16-bit mono at `toRate`, to
// `outputPath`. The result has num * nSamples / den values and is not delayed. Returns 1, or 0 after telling the
// user why; a prime factor above 41 and a run cancelled through `progress` return 0 without a message. Equal
// rates are refused: the caller copies such a sound instead.
int convertSampleRate(const std::int16_t* samples, int nSamples, int fromRate, int toRate,
                      const std::filesystem::path& outputPath, int bitsPerSample, Prompt& prompt,
                      const ConversionProgress& progress = {});
