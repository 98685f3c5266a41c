// What the analysis tests share: a sine and uniform white noise as 16-bit samples, and polynomials of given roots.
#pragma once

#include <cmath>
#include <complex>
#include <cstdint>
#include <numbers>
#include <random>
#include <vector>

inline std::vector<std::int16_t> sineWave(double hz, int rate, int n, double amplitude) {
    std::vector<std::int16_t> s(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        s[i] = static_cast<std::int16_t>(std::lround(amplitude * std::sin(2.0 * std::numbers::pi * hz * i / rate)));
    return s;
}

// Values drawn evenly from -amplitude to amplitude.
inline std::vector<std::int16_t> noise(int n, int amplitude, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> sample(-amplitude, amplitude);
    std::vector<std::int16_t> s(static_cast<std::size_t>(n));
    for (auto& v : s) v = static_cast<std::int16_t>(sample(random));
    return s;
}

// The coefficients, constant term first, of the monic polynomial with these roots. Reversed, they are the
// coefficients of the product of (1 - r x), whose reciprocal roots are the r.
inline std::vector<double> fromRoots(const std::vector<std::complex<double>>& roots) {
    std::vector<std::complex<double>> c{1.0};
    for (const std::complex<double>& r : roots) {
        std::vector<std::complex<double>> next(c.size() + 1, 0.0);
        for (std::size_t i = 0; i < c.size(); ++i) {
            next[i + 1] += c[i];
            next[i] -= r * c[i];
        }
        c = next;
    }
    std::vector<double> a;
    for (const std::complex<double>& v : c) a.push_back(v.real());
    return a;
}
