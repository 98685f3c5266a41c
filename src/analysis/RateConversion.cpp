#include "RateConversion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <new>
#include <optional>
#include <utility>

#include "base/Assert.h"
#include "store/Prompt.h"
#include "store/WaveFile.h"

namespace {

constexpr std::array<int, kPrimeTableSize> makePrimeTable() {
    std::array<int, kPrimeTableSize> primes{};
    int count = 0;
    for (int candidate = 2; count < kPrimeTableSize; ++candidate) {
        bool prime = true;
        for (int i = 0; i < count && primes[i] * primes[i] <= candidate; ++i) {
            if (candidate % primes[i] == 0) prime = false;
        }
        if (prime) primes[count++] = candidate;
    }
    return primes;
}

constexpr std::array<int, kPrimeTableSize> kPrimes = makePrimeTable();

// A WAV file counts its data in 32-bit bytes, so no result may have more 16-bit values than this.
constexpr std::int64_t kLargestResult = std::numeric_limits<std::uint32_t>::max() / 2;

// Extra work charged for every stage, in multiply-adds per input value: it makes fewer stages win a near tie.
constexpr double kWorkPerStage = 16.0;

// How the stages are chosen.
//
// Stop edge: each stage's stop edge is the Nyquist frequency of the lower of its input and output rates, that is
// 1 / (2 max(up, down)) of its working rate. Above it the filter takes 80 dB off (160 dB forward and backward), so
// decimation folds nothing back into the band that is kept, and interpolation leaves no image of the zero-stuffing
// in it. The passband ends at 0.9 of the stop edge, and its 0.2 dB of ripple is shared among all the passes of all
// the stages, so that the conversion as a whole keeps within it.
//
// Pairing: the stages pass the signal through intermediate rates, and a stage's stop edge can be no higher than the
// Nyquist frequency of the rates around it. So that the band of the lower of the two rates survives the whole
// conversion, no intermediate rate may fall below the lower of the two rates. Among the stages that keep to that,
// each an up factor and a down factor of at most 41 made of the fraction's primes, the plan with the least
// estimated work is taken: a stage costs its input rate times the multiply-adds per input value of its filter at
// its factors (see ZeroPhaseResampler), so large factors are worth taking together and a high working rate is
// avoided. For 48000 to 44100 Hz (147/160) this gives 21/20 and then 7/8; for 8000 to 11025 Hz (441/320),
// 21/20 and then 21/16.
class StagePlanner {
public:
    explicit StagePlanner(RateFraction fraction) : m_fraction(fraction) {}

    std::vector<ConversionStage> plan() {
        std::vector<ConversionStage> stages;
        std::int64_t up = m_fraction.num, down = m_fraction.den;
        while (up != 1 || down != 1) {
            const ConversionStage stage = best(up, down).first;
            stages.push_back(stage);
            up /= stage.up;
            down /= stage.down;
        }
        return stages;
    }

private:
    struct Choice {
        ConversionStage first;  // the stage to run next
        double work = 0.0;      // estimated work of it and all that follow
    };

    // The cheapest way to finish when `up` and `down` of the fraction are still to be done.
    Choice best(std::int64_t up, std::int64_t down) {
        if (up == 1 && down == 1) return {};
        const auto known = m_best.find({up, down});
        if (known != m_best.end()) return known->second;
        const std::int64_t upDone = m_fraction.num / up;
        const std::int64_t downDone = m_fraction.den / down;
        const double inputRate = static_cast<double>(upDone) / static_cast<double>(downDone);  // of the original
        Choice choice{{}, std::numeric_limits<double>::infinity()};
        for (int u = 1; u <= kLargestStageFactor && u <= up; ++u) {
            if (up % u != 0) continue;
            for (int d = 1; d <= kLargestStageFactor && d <= down; ++d) {
                if (down % d != 0 || (u == 1 && d == 1)) continue;
                if (!keepsLowerRate(upDone * u, downDone * d)) continue;
                const double work =
                    inputRate * (ZeroPhaseResampler::workPerInput(u, d, states(std::max(u, d))) + kWorkPerStage) +
                    best(up / u, down / d).work;
                if (work < choice.work) choice = {{u, d}, work};
            }
        }
        m_best[{up, down}] = choice;
        return choice;
    }

    // Whether the rate reached after multiplying by upDone / downDone is at least the lower of the two rates.
    bool keepsLowerRate(std::int64_t upDone, std::int64_t downDone) const {
        return upDone >= downDone || upDone * m_fraction.den >= downDone * m_fraction.num;
    }

    // State values of a stage filter with this factor: two per section. The ripple is shared as in a conversion of
    // two stages; how it is shared hardly changes the order.
    int states(int factor) {
        int& known = m_states[factor];
        if (known == 0) {
            known = 2 * static_cast<int>(designStageLowPass(stageStopEdge({factor, 1}), 4).sections.size());
        }
        return known;
    }

    RateFraction m_fraction;
    std::map<std::pair<std::int64_t, std::int64_t>, Choice> m_best;
    std::array<int, kLargestStageFactor + 1> m_states{};
};

bool hasLargePrime(std::int64_t value) {
    const std::vector<std::int64_t> factors = primeFactors(value);
    return std::any_of(factors.begin(), factors.end(), [](std::int64_t f) { return f > kLargestStageFactor; });
}

// The stage filters, designed before any work starts; on a failure the user is told and nothing is returned.
std::optional<std::vector<StageLowPass>> designStages(std::span<const ConversionStage> stages, Prompt& prompt) {
    std::vector<StageLowPass> designs;
    const int passes = 2 * static_cast<int>(stages.size());  // forward and backward through every stage
    for (const ConversionStage& stage : stages) {
        designs.push_back(designStageLowPass(stageStopEdge(stage), passes));
        switch (designs.back().result) {
        case FilterDesignResult::Ok: break;
        case FilterDesignResult::TooDifficult: prompt.showOk(kFilterDesignTooDifficult); return std::nullopt;
        // Ringing on by itself would spoil the result, but it is no reason to end a program that may hold unsaved
        // work: the conversion fails like any other.
        case FilterDesignResult::LimitCycles: prompt.showOk(kLimitCycles); return std::nullopt;
        }
    }
    return designs;
}

// Values each stage gives. The last stage gives exactly num * n / den. An earlier one gives every value up to the
// end of its signal and then its filters' tail, so that the next stage filters the end as if nothing were cut.
std::vector<std::int64_t> stageLengths(std::span<const ConversionStage> stages,
                                       std::span<const ZeroPhaseResampler> resamplers, std::int64_t n) {
    std::vector<std::int64_t> lengths;
    std::int64_t up = 1, down = 1;
    for (std::size_t i = 0; i < stages.size(); ++i) {
        up *= stages[i].up;
        down *= stages[i].down;
        if (i + 1 == stages.size()) {
            lengths.push_back(n * up / down);
        } else {
            const std::int64_t tail = (resamplers[i].decaySteps() + stages[i].down - 1) / stages[i].down;
            lengths.push_back((n * up + down - 1) / down + tail);
        }
    }
    return lengths;
}

std::vector<std::int16_t> toSixteenBits(std::span<const float> values) {
    std::vector<std::int16_t> result(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        result[i] = static_cast<std::int16_t>(std::clamp(values[i], -32767.0f, 32767.0f));  // truncates
    }
    return result;
}

WaveWriter monoWriter(int rate) {
    WaveWriter writer;
    writer.format.wFormatTag = 1;
    writer.format.nChannels = 1;
    writer.format.nSamplesPerSec = static_cast<std::uint32_t>(rate);
    writer.format.wBitsPerSample = 16;
    writer.format.nBlockAlign = 2;
    writer.format.nAvgBytesPerSec = 2u * static_cast<std::uint32_t>(rate);
    return writer;
}

// Runs the stages one after the other; false when the user cancelled or memory ran out (the user is told).
bool runStages(std::span<const ConversionStage> stages, std::span<const StageLowPass> designs,
               std::vector<float>& signal, std::int64_t n, Prompt& prompt, const ConversionProgress& progress) {
    std::vector<ZeroPhaseResampler> resamplers;
    std::vector<double> work;
    double totalWork = 0.0;
    for (std::size_t i = 0; i < stages.size(); ++i) {
        resamplers.emplace_back(stages[i].up, stages[i].down, designs[i].sections);
    }
    const std::vector<std::int64_t> lengths = stageLengths(stages, resamplers, n);
    for (std::size_t i = 0; i < stages.size(); ++i) {
        const double inputs = static_cast<double>(i == 0 ? n : lengths[i - 1]);
        const int states = 2 * static_cast<int>(designs[i].sections.size());
        work.push_back(inputs * ZeroPhaseResampler::workPerInput(stages[i].up, stages[i].down, states));
        totalWork += work.back();
    }

    double workDone = 0.0;
    for (std::size_t i = 0; i < stages.size(); ++i) {
        std::vector<float> next;
        try {
            next.assign(static_cast<std::size_t>(lengths[i]), 0.0f);
        } catch (const std::bad_alloc&) {
            prompt.showOk(kCannotAllocateInterpolated);
            return false;
        }
        const ConversionProgress stageProgress = [&](double fraction) {
            return !progress || progress((workDone + fraction * work[i]) / totalWork);
        };
        if (!resamplers[i].run(signal, next, stageProgress)) return false;
        workDone += work[i];
        signal = std::move(next);  // the stage's input is freed here
    }
    return !progress || progress(1.0);
}

}  // namespace

RateFraction rateFraction(int fromRate, int toRate) {
    if (fromRate <= 0 || toRate <= 0) return {};
    const double ratio = static_cast<double>(toRate) / fromRate;
    for (int den = 1; den <= kLargestRatioDenominator; ++den) {
        const auto num = static_cast<std::int64_t>(ratio * den + 0.5);
        if (num >= 1 && std::fabs(ratio - static_cast<double>(num) / den) <= kRatioTolerance) return {num, den};
    }
    return {};
}

std::span<const int> primeTable() { return kPrimes; }

std::vector<std::int64_t> primeFactors(std::int64_t value) {
    SONALYS_ASSERT(value >= 1);
    if (value == 1) return {1};
    std::vector<std::int64_t> factors;
    for (const int prime : kPrimes) {
        while (value % prime == 0) {
            factors.push_back(prime);
            value /= prime;
        }
    }
    if (value != 1) factors.push_back(value);
    return factors;
}

std::vector<ConversionStage> planStages(RateFraction fraction) {
    SONALYS_ASSERT(fraction.num >= 1 && fraction.den >= 1);
    if (hasLargePrime(fraction.num) || hasLargePrime(fraction.den)) return {};
    if (fraction.num == 1 && fraction.den == 1) return {ConversionStage{1, 1}};
    return StagePlanner(fraction).plan();
}

double stageStopEdge(ConversionStage stage) { return 0.5 / std::max(stage.up, stage.down); }

int convertSampleRate(const std::int16_t* samples, int nSamples, int fromRate, int toRate,
                      const std::filesystem::path& outputPath, int bitsPerSample, Prompt& prompt,
                      const ConversionProgress& progress) {
    SONALYS_ASSERT(bitsPerSample == 16);
    SONALYS_ASSERT(nSamples >= 0 && (samples != nullptr || nSamples == 0));
    const RateFraction fraction = rateFraction(fromRate, toRate);
    if (fraction.num == 0) {
        prompt.showOk(kNoSimpleFactors);
        return 0;
    }
    try {
        const std::vector<ConversionStage> stages = planStages(fraction);
        if (stages.empty()) return 0;
        const std::optional<std::vector<StageLowPass>> designs = designStages(stages, prompt);
        if (!designs) return 0;
        if (static_cast<double>(fraction.num) * nSamples / static_cast<double>(fraction.den) > kLargestResult) {
            prompt.showOk(kCannotAllocateInterpolated);
            return 0;
        }

        std::vector<float> signal;
        std::vector<std::int16_t> result;
        try {
            signal.assign(samples, samples + nSamples);
        } catch (const std::bad_alloc&) {
            prompt.showOk(kErrorAllocatingBuffer);
            return 0;
        }
        if (!runStages(stages, *designs, signal, nSamples, prompt, progress)) return 0;
        try {
            result = toSixteenBits(signal);
        } catch (const std::bad_alloc&) {
            prompt.showOk(kErrorAllocatingBuffer);
            return 0;
        }
        signal = {};
        return monoWriter(toRate).WaveWrite(outputPath, static_cast<std::uint32_t>(result.size() * 2), result.data(),
                                            prompt);
    } catch (const std::bad_alloc&) {
        prompt.showOk(kErrorAllocatingBuffer);
        return 0;
    }
}
