// The signal kernels of the F0 tracker's stationarity measure: analysis windows, windowed RMS, autocorrelation,
// the Levinson-Durbin recursion and LPC analysis. All work on 32-bit floats on the 16-bit sample scale.
#pragma once

#include <string_view>
#include <vector>

inline constexpr int BIGSORD = 50;  // the highest LPC order; LPC arrays hold BIGSORD + 1 values

inline constexpr std::string_view kUnknownWindowType = "Unknown window type (%d)\n";
inline constexpr std::string_view kEnergyMemoryError = "Memory error in Energy\n";
inline constexpr std::string_view kLpcScratchError = "Can't allocate scratch memory in lpc()\n";
inline constexpr std::string_view kLpcWindowError = "Can't allocate window memory in lpc()\n";

// Prints one of the tracker's messages on the standard error stream, its "%d" replaced by `number` and its "%s"
// by `text`. Every unit of the tracker prints through here.
void f0Message(std::string_view message, int number = 0, std::string_view text = {});

// The windows and the scratch array that Energy and lpc build for one size and keep while the size stays. A
// tracker owns one, so that trackers on different threads share nothing. The window type is not part of the key:
// the first type used with a size stays in force for that size (the tracker uses one type only).
struct SigprocCache {
    std::vector<float> energyWindow;
    int energySize = 0;
    std::vector<float> lpcWindow;
    std::vector<float> lpcScratch;
    int lpcSize = 0;
};

// Correlation sums for blocks of kLagBlock consecutive lags, computed side by side so that vector units can work on
// them, each sum still formed term by term in its own order: out[kLagBlock * b + l] = x[0] * starts[b][l] +
// x[1] * starts[b][l + 1] + ... over `size` terms. Reads starts[b][0] to starts[b][size + kLagBlock - 2].
inline constexpr int kLagBlock = 8;
void correlateBlocks(const float* x, int size, const float* const* starts, int nBlocks, float* out);

// Window types: 0 Hamming, 1 Hanning, both periodic (n, not n - 1, in the denominator), so that the sample at 0 is
// the minimum. Returns `size` values, or nothing for an unknown type (after a message) or when memory runs out.
std::vector<float> makeWindow(int type, int size);

// The RMS of `size` samples seen through a window of `type`; 0.0 if the window cannot be built.
float Energy(SigprocCache& cache, const float* data, int size, int type);

// Normalised autocorrelation of `n` samples to order `p`: r[0] is 1, r[1..p] the lags over the energy (all 0 when
// the energy is 0).
void autoc(const float* s, int n, int p, float* r);

// The Levinson-Durbin recursion on r[0..p]: reflection coefficients into k[0..p-1], the predictor polynomial
// without its leading 1 into a[0..p-1], and the residual into *ex unless it is null.
void durbin(const float* r, float* k, float* a, int p, float* ex);

// LPC analysis of `wsize` + 1 samples: pre-emphasis and window in one pass, autocorrelation, a noise floor `stabl`
// dB down when `stabl` is above 1, then the recursion. `lpca` (order values), `autoc` (order + 1) and `k` (order)
// may be null. Returns 1, or 0 when the scratch array or the window cannot be allocated.
int lpc(SigprocCache& cache, const float* data, int wsize, int order, int type, float preemp, float stabl, float* lpca,
        float* autoc, float* k, float* err);
