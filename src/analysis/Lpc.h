// Linear prediction of the formant chain, in double precision: pre-emphasis and window, autocorrelation with a
// noise floor, and the Levinson-Durbin recursion. Its own kernels, apart from those of the F0 tracker.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

inline constexpr int kMaxLpcOrder = 30;

// Window kinds: 0 none, 1 Hamming, 2 the raised cosine to the fourth power that the formant chain uses.
inline constexpr int kNoWindow = 0;
inline constexpr int kHammingWindow = 1;
inline constexpr int kRaisedWindow = 2;

struct LpcResult {
    std::array<double, kMaxLpcOrder + 1> lpca{};   // 1.0, then the `order` predictor coefficients
    std::array<double, kMaxLpcOrder + 1> autoc{};  // normalised autocorrelation, autoc[0] = 1
    std::array<double, kMaxLpcOrder> k{};          // reflection coefficients
    double normErr = 0.0;                          // prediction error left, relative to autoc[0]
    double rms = 0.0;                              // of the windowed frame, on the 16-bit scale; 1.0 on silence
};

// `size` values of a window kind, or an empty vector for an unknown kind.
std::vector<double> makeLpcWindow(int kind, int size);

// The samples a frame of `wsize` reads: one more than the window when pre-emphasis is on.
inline int lpcFrameReach(int wsize, double preEmphasis) { return preEmphasis != 0.0 ? wsize + 1 : wsize; }

// The analysis of one frame on a window prepared by makeLpcWindow; `work` holds at least window.size() values.
// `data` holds lpcFrameReach(window.size(), preEmphasis) samples. Frames may run side by side, each with its
// own `work`.
void lpcOnWindow(int order, double stabilityDb, std::span<const double> window, const std::int16_t* data,
                 double preEmphasis, std::span<double> work, LpcResult& result);

// The Levinson-Durbin recursion: `a` receives the predictor without its leading 1, `k` the reflection
// coefficients, both from index 0; returns the error left.
double durbin(std::span<const double> r, std::span<double> k, std::span<double> a, int order);

// The analysis with its window and work buffer cached by size between frames.
class LpcAnalysis {
public:
    // Returns 1, or 0 on bad arguments: `wsize` not above 0, `data` shorter than the frame reaches, `order`
    // outside 1 to 30 or an unknown window kind. With `freeFlag` set it releases its caches and returns 0.
    int lpcAnalysis(int order, double stabilityDb, int wsize, std::span<const std::int16_t> data, LpcResult& result,
                    double preEmphasis, int windowKind, bool freeFlag);
    // The cached window of a kind and size, built on first use.
    std::span<const double> window(int kind, int size);

private:
    std::array<std::vector<double>, 3> m_windows;  // by kind
    std::vector<double> m_work;
};
