#include "analysis/FormantPoles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

namespace {

using Complex = std::complex<double>;

// The prediction polynomial 1 + a1 x + ... whose reciprocal roots are the given poles of the z plane.
std::vector<double> polynomialOfPoles(const std::vector<Complex>& poles) {
    std::vector<Complex> c{1.0};
    for (const Complex& z : poles) {  // multiply by (1 - z x)
        std::vector<Complex> next(c.size() + 1, 0.0);
        for (std::size_t i = 0; i < c.size(); ++i) {
            next[i] += c[i];
            next[i + 1] -= z * c[i];
        }
        c = next;
    }
    std::vector<double> a;
    for (const Complex& v : c) a.push_back(v.real());
    return a;
}

// A resonance of `hz` and `bandwidth` Hz at 10 kHz, as a conjugate pair of poles.
void addResonance(std::vector<Complex>& poles, double hz, double bandwidth) {
    const Complex z =
        std::polar(std::exp(-std::numbers::pi * bandwidth / 10000.0), 2.0 * std::numbers::pi * hz / 10000.0);
    poles.push_back(z);
    poles.push_back(std::conj(z));
}

}  // namespace

TEST(PolesToFormants, FrequenciesAndBandwidthsComeBackRisingWithUnusableRootsBehind) {
    std::vector<Complex> poles;
    addResonance(poles, 2500.0, 150.0);
    addResonance(poles, 500.0, 60.0);
    poles.push_back(0.6);  // a real pole at 0 Hz: not a formant
    addResonance(poles, 1500.0, 100.0);
    poles.push_back(-0.5);  // a real pole at the Nyquist frequency: not a formant either
    const std::vector<double> a = polynomialOfPoles(poles);
    const int order = static_cast<int>(poles.size());

    RootEstimates estimates;
    ClassicRand random;
    std::vector<double> freq(order);
    std::vector<double> band(order);
    int nForm = -1;
    ASSERT_EQ(polesToFormants(order, 10000.0, a, nForm, freq, band, 1, estimates, random), 1);
    ASSERT_EQ(nForm, 3);
    const double expectedFreq[] = {500.0, 1500.0, 2500.0};
    const double expectedBand[] = {60.0, 100.0, 150.0};
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(freq[i], expectedFreq[i], 1e-3);
        EXPECT_NEAR(band[i], expectedBand[i], 1e-3);
    }
}

TEST(PolesToFormants, FailedRootsGiveNoPoles) {
    std::vector<double> one(13, 0.0);
    one[0] = 1.0;
    RootEstimates estimates;
    ClassicRand random;
    std::vector<double> freq(12);
    std::vector<double> band(12);
    int nForm = 7;
    EXPECT_EQ(polesToFormants(12, 10000.0, one, nForm, freq, band, 1, estimates, random), 0);
    EXPECT_EQ(nForm, 0);
}

TEST(PoleLevel, IsRmsOverThePolynomialAtThePoleFrequency) {
    PoleFrame frame;
    frame.rms = 10.0f;
    EXPECT_DOUBLE_EQ(poleLevel(frame, 12, 1e-4, 1234.0), 20.0);  // A = 1: 20 log10(10)
    frame.coef[0] = -0.5f;                                       // A(f) = 1 - 0.5 e^(-i 2 pi f T)
    EXPECT_NEAR(poleLevel(frame, 12, 1e-4, 0.0), 20.0 * std::log10(10.0 / 0.5), 1e-12);
    EXPECT_NEAR(poleLevel(frame, 12, 1e-4, 5000.0), 20.0 * std::log10(10.0 / 1.5), 1e-12);
    EXPECT_NEAR(poleLevel(frame, 12, 1e-4, 2500.0), 20.0 * std::log10(10.0 / std::sqrt(1.25)), 1e-12);
}

TEST(RootEstimates, SeedsLieOnTheUpperHalfOfACircleOfRadiusTwo) {
    RootEstimates estimates;
    seedRootEstimates(estimates, 12);
    for (int i = 0; i <= 12; ++i) {
        EXPECT_NEAR(std::hypot(estimates.real[i], estimates.imag[i]), 2.0, 1e-12);
        EXPECT_GT(estimates.imag[i], 0.0);
    }
    // Position i at angle (12 - i + 0.5) pi / 13: the top position lies nearest the positive real axis.
    EXPECT_NEAR(std::atan2(estimates.imag[12], estimates.real[12]), 0.5 * std::numbers::pi / 13, 1e-12);
    EXPECT_NEAR(std::atan2(estimates.imag[0], estimates.real[0]), 12.5 * std::numbers::pi / 13, 1e-12);
}
