// What the analysis tests share: a sine and uniform white noise as 16-bit samples.
#pragma once

#include <cmath>
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

inline std::vector<std::int16_t> noise(int n, int amplitude, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> sample(-amplitude, amplitude);
    std::vector<std::int16_t> s(static_cast<std::size_t>(n));
    for (auto& v : s) v = static_cast<std::int16_t>(sample(random));
    return s;
}
