#include "analysis/FormantPoles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "AnalysisTestSupport.h"

namespace {

using Complex = std::complex<double>;

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
    poles.push_back(-0.5);                     // a real pole at the Nyquist frequency: not a formant either
    std::vector<double> a = fromRoots(poles);  // reversed: the prediction polynomial 1 + a1 x + ...
    std::reverse(a.begin(), a.end());
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

TEST(PoleLevel, IsRmsOverThePolynomialAtThePoleFrequency) {
    PoleFrame frame;
    frame.rms = 10.0f;
    EXPECT_DOUBLE_EQ(poleLevel(frame, 12, 1e-4, 1234.0), 20.0);  // A = 1: 20 log10(10)
    frame.coef[0] = -0.5f;                                       // A(f) = 1 - 0.5 e^(-i 2 pi f T)
    EXPECT_NEAR(poleLevel(frame, 12, 1e-4, 0.0), 20.0 * std::log10(10.0 / 0.5), 1e-12);
    EXPECT_NEAR(poleLevel(frame, 12, 1e-4, 5000.0), 20.0 * std::log10(10.0 / 1.5), 1e-12);
    EXPECT_NEAR(poleLevel(frame, 12, 1e-4, 2500.0), 20.0 * std::log10(10.0 / std::sqrt(1.25)), 1e-12);
}
