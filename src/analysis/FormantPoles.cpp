#include "analysis/FormantPoles.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "base/Assert.h"

void seedRootEstimates(RootEstimates& estimates, int order) {
    const double x = std::numbers::pi / (order + 1);
    for (int i = 0; i <= order; ++i) {
        const double angle = (order - i + 0.5) * x;
        estimates.real[i] = 2.0 * std::cos(angle);
        estimates.imag[i] = 2.0 * std::sin(angle);
    }
}

namespace {

bool usable(double freq, double sampleFreq) { return freq > 1.0 && freq < sampleFreq / 2.0; }

// Usable poles to the front, rising in frequency; the others keep their order behind them.
void sortPoles(int n, std::span<double> freq, std::span<double> band, double sampleFreq) {
    for (int pass = 0; pass < n - 1; ++pass) {
        for (int i = 0; i < n - 1 - pass; ++i) {
            const bool rightUsable = usable(freq[i + 1], sampleFreq);
            if (rightUsable && (freq[i] > freq[i + 1] || !usable(freq[i], sampleFreq))) {
                std::swap(freq[i], freq[i + 1]);
                std::swap(band[i], band[i + 1]);
            }
        }
    }
}

}  // namespace

void rootsToFormants(const RootEstimates& roots, int order, double sampleFreq, int& nForm, std::span<double> freq,
                     std::span<double> band) {
    SONALYS_ASSERT(static_cast<int>(freq.size()) >= order && static_cast<int>(band.size()) >= order);
    // A root r e^(i theta) of this polynomial is a pole (1/r) e^(-i theta): its frequency is |theta| in Hz and
    // its bandwidth |ln r| sampleFreq / pi. Of an exact conjugate pair only the first is taken.
    int n = 0;
    for (int i = 0; i < order; ++i) {
        const double re = roots.real[i];
        const double im = roots.imag[i];
        if (re == 0.0 && im == 0.0) continue;
        freq[n] = std::fabs(std::atan2(im, re) / (6.283185307179586 / sampleFreq));
        band[n] = std::fabs(0.5 * sampleFreq * std::log(re * re + im * im) / std::numbers::pi);
        ++n;
        if (i + 1 < order && im != 0.0 && roots.real[i + 1] == re && roots.imag[i + 1] == -im) ++i;
    }
    sortPoles(n, freq, band, sampleFreq);
    nForm = 0;
    for (int i = 0; i < n; ++i)
        if (freq[i] > 1.0 && freq[i] < sampleFreq / 2.0 - 1.0) ++nForm;
}

int polesToFormants(int order, double sampleFreq, std::span<const double> a, int& nForm, std::span<double> freq,
                    std::span<double> band, int seed, RootEstimates& estimates, ClassicRand& random) {
    if (seed != 0) seedRootEstimates(estimates, order);
    nForm = 0;
    if (!polyRoots(a, order, estimates.real, estimates.imag, random)) return 0;
    rootsToFormants(estimates, order, sampleFreq, nForm, freq, band);
    return 1;
}

double poleLevel(const PoleFrame& frame, int order, double sampleInterval, double freq) {
    SONALYS_ASSERT(order >= 1 && order <= formant::lpcOrderFormant);
    const double t = 2.0 * std::numbers::pi * freq * sampleInterval;
    double re = 1.0;
    double im = 0.0;
    for (int k = 1; k <= order; ++k) {
        re += frame.coef[k - 1] * std::cos(k * t);
        im += frame.coef[k - 1] * std::sin(k * t);
    }
    return 20.0 * std::log10(frame.rms / std::sqrt(re * re + im * im));
}
