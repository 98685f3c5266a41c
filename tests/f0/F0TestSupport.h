// What the F0 tests share: a capture of the standard error stream, trackers set up with this system's settings,
// and synthetic signals of known F0.
#pragma once

#include <cmath>
#include <iostream>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "f0/f0.h"

// Collects what is printed on std::cerr while it lives.
struct CerrCapture {
    std::ostringstream buffer;
    std::streambuf* old = std::cerr.rdbuf(buffer.rdbuf());
    ~CerrCapture() { std::cerr.rdbuf(old); }
    std::string text() const { return buffer.str(); }
};

// A tracker with the parameters given as "name=value" texts, initialised at `rate`; null if f0Init refuses.
inline std::unique_ptr<F0Obj> initTracker(double rate, std::vector<std::string> settings) {
    std::unique_ptr<F0Obj> tracker = f0Create();
    for (const std::string& setting : settings)
        if (!f0SetParam(tracker.get(), setting.c_str())) return nullptr;
    int buffSize = 0, buffStep = 0;
    if (!f0Init(tracker.get(), rate, &buffSize, &buffStep)) return nullptr;
    return tracker;
}

// This system's settings: 60 to 1400 Hz, 90 frames a second written with six decimals.
inline std::unique_ptr<F0Obj> systemTracker(double rate) {
    return initTracker(rate, {"frame_step=0.011111", "min_f0=60", "max_f0=1400"});
}

constexpr double kPi = 3.141592653589793;

inline std::vector<float> sine(double rate, double hz, double seconds, double amplitude = 8000.0) {
    std::vector<float> samples(static_cast<std::size_t>(rate * seconds));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<float>(std::round(amplitude * std::sin(2 * kPi * hz * static_cast<double>(i) / rate)));
    return samples;
}

inline std::vector<float> whiteNoise(std::size_t count, double amplitude, unsigned seed = 7) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> uniform(-amplitude, amplitude);
    std::vector<float> samples(count);
    for (float& s : samples) s = static_cast<float>(std::round(uniform(random)));
    return samples;
}

// A glottal-like pulse train whose F0 glides exponentially from `fromHz` to `toHz` over the signal, through a
// two-pole resonator at 700 Hz (100 Hz bandwidth). trueF0(t) is the pulse rate at time t seconds.
struct Glide {
    double rate, fromHz, toHz, seconds;
    double trueF0(double t) const { return fromHz * std::pow(toHz / fromHz, t / seconds); }
    std::vector<float> samples() const {
        const std::size_t n = static_cast<std::size_t>(rate * seconds);
        const double radius = std::exp(-kPi * 100.0 / rate);
        const double a1 = 2 * radius * std::cos(2 * kPi * 700.0 / rate);
        const double a2 = -radius * radius;
        std::vector<double> y(n, 0.0);
        double phase = 0.0;
        double peak = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            phase += trueF0(static_cast<double>(i) / rate) / rate;
            const double pulse = phase >= 1.0 ? 1.0 : 0.0;
            if (phase >= 1.0) phase -= 1.0;
            y[i] = pulse + (i >= 1 ? a1 * y[i - 1] : 0.0) + (i >= 2 ? a2 * y[i - 2] : 0.0);
            peak = std::max(peak, std::abs(y[i]));
        }
        std::vector<float> out(n);
        for (std::size_t i = 0; i < n; ++i) out[i] = static_cast<float>(std::round(y[i] / peak * 12000.0));
        return out;
    }
};
