// Measured quality of whole conversions, through the written file: level and frequency of passband tones, what is
// left of tones the output cannot hold, images and aliases, and timing.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "FakePrompt.h"
#include "TempDir.h"
#include "analysis/RateConversion.h"
#include "store/WaveFile.h"

namespace {

constexpr double kAmplitude = 20000.0;

struct Rates {
    int from, to;
    double lowerNyquist() const { return std::min(from, to) / 2.0; }
};
constexpr Rates kConversions[] = {{48000, 44100}, {44100, 22050}, {8000, 11025}, {16000, 22050}, {32000, 44100}};

struct Tone {
    double frequency, phase;
};

// Half a second of the tone at `from`, converted to `to` and read back.
std::vector<double> convertTone(const Rates& rates, const Tone& tone) {
    std::vector<std::int16_t> input(rates.from / 2);
    for (std::size_t i = 0; i < input.size(); ++i)
        input[i] = static_cast<std::int16_t>(std::lround(
            kAmplitude *
            std::sin(2.0 * std::numbers::pi * tone.frequency * (static_cast<double>(i) / rates.from) + tone.phase)));
    TempDir dir;
    FakePrompt prompt;
    EXPECT_EQ(convertSampleRate(input.data(), static_cast<int>(input.size()), rates.from, rates.to, dir / "o.wav", 16,
                                prompt),
              1);
    const WaveLoadResult loaded = WaveLoad(dir / "o.wav");
    EXPECT_EQ(loaded.samples.size(), input.size() * rates.to / rates.from);
    return {loaded.samples.begin(), loaded.samples.end()};
}

// The middle of the output, away from the switching on and off of the tones.
std::pair<std::size_t, std::size_t> middle(const std::vector<double>& y) {
    return {y.size() / 5, y.size() - y.size() / 5};
}

struct Fit {
    double gainDb;      // of the tone's amplitude
    double phaseError;  // radians; a delay of d output samples shows as 2 pi f d / rate
    double residualDb;  // what is not the tone, against the tone
};

// Least-squares fit of a sin + b cos at exactly `tone`'s frequency over the middle of `y`.
Fit fitTone(const std::vector<double>& y, int rate, const Tone& tone) {
    const auto [first, last] = middle(y);
    double ss = 0, cc = 0, sc = 0, ys = 0, yc = 0;
    const auto angle = [&](std::size_t i) {
        return 2.0 * std::numbers::pi * tone.frequency * static_cast<double>(i) / rate + tone.phase;
    };
    for (std::size_t i = first; i < last; ++i) {
        const double sn = std::sin(angle(i)), cs = std::cos(angle(i));
        ss += sn * sn, cc += cs * cs, sc += sn * cs, ys += y[i] * sn, yc += y[i] * cs;
    }
    const double det = ss * cc - sc * sc;
    const double a = (ys * cc - yc * sc) / det, b = (yc * ss - ys * sc) / det;
    double residual = 0;
    for (std::size_t i = first; i < last; ++i) {
        const double e = y[i] - a * std::sin(angle(i)) - b * std::cos(angle(i));
        residual += e * e;
    }
    residual = std::sqrt(residual / static_cast<double>(last - first));
    return {20.0 * std::log10(std::hypot(a, b) / kAmplitude), std::atan2(b, a),
            20.0 * std::log10(residual / (kAmplitude / std::sqrt(2.0)))};
}

double rmsDbBelowTone(const std::vector<double>& y) {
    const auto [first, last] = middle(y);
    double sum = 0;
    for (std::size_t i = first; i < last; ++i) sum += y[i] * y[i];
    return 20.0 * std::log10(std::sqrt(sum / static_cast<double>(last - first)) / (kAmplitude / std::sqrt(2.0)));
}

}  // namespace

// The phase check also rules out any delay: the forward-backward filtering adds none, and a single sample of
// delay would turn the phase by 2 pi f / rate, far beyond the limit.
// Tones from a tenth of the passband to its edge (0.9 of the lower Nyquist frequency) keep their level within 0.2 dB
// and their frequency and phase, and nothing else comes out: for the upward conversions the tone near the edge puts
// its images inside the output band, and they must be 75 dB down.
TEST(ConversionQuality, PassbandTonesKeepLevelFrequencyAndPhaseAndLeaveNoImages) {
    for (const Rates& rates : kConversions) {
        for (const double place : {0.1, 0.37, 0.64, 0.9, 1.0}) {
            const Tone tone{place * 0.9 * rates.lowerNyquist(), 0.7};
            SCOPED_TRACE(testing::Message() << rates.from << " -> " << rates.to << " at " << tone.frequency << " Hz");
            const Fit fit = fitTone(convertTone(rates, tone), rates.to, tone);
            EXPECT_LE(std::fabs(fit.gainDb), 0.2);
            EXPECT_LT(std::fabs(fit.phaseError), 2e-3);
            EXPECT_LT(fit.residualDb, -75.0);
        }
    }
}

// Tones the output rate cannot hold are removed, not folded back.
TEST(ConversionQuality, TonesAboveTheOutputNyquistFrequencyComeOut75DbDown) {
    const struct {
        Rates rates;
        double frequency;
    } cases[] = {{{48000, 44100}, 22100},
                 {{48000, 44100}, 23900},
                 {{44100, 22050}, 11100},
                 {{44100, 22050}, 16000},
                 {{44100, 22050}, 21000}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.rates.from << " -> " << c.rates.to << " at " << c.frequency << " Hz");
        EXPECT_LT(rmsDbBelowTone(convertTone(c.rates, {c.frequency, 0.0})), -75.0);
    }
}
