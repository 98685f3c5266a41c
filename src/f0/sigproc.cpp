#include "f0/sigproc.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <new>
#include <string>

#include "base/Assert.h"

void f0Message(std::string_view message, int number, std::string_view text) {
    std::string line;
    for (std::size_t i = 0; i < message.size(); ++i) {
        if (message[i] == '%' && i + 1 < message.size() && message[i + 1] == 'd') {
            line += std::to_string(number);
            ++i;
        } else if (message[i] == '%' && i + 1 < message.size() && message[i + 1] == 's') {
            line += text;
            ++i;
        } else {
            line += message[i];
        }
    }
    std::cerr << line << std::flush;
}

namespace {

#if defined(__GNUC__)
// Four floats in one vector register; every operation works lane by lane in IEEE single precision, so a lane's sum
// is the same as the one formed alone. A block of kLagBlock lags takes two of them.
typedef float Quad __attribute__((vector_size(4 * sizeof(float))));

[[gnu::always_inline]] inline Quad loadQuad(const float* p) {
    Quad v;
    __builtin_memcpy(&v, p, sizeof v);
    return v;
}

// Up to four blocks at once: independent sums keep the adder busy while each one waits for its previous term.
template <int N>
[[gnu::always_inline]] inline void correlateGroup(const float* x, int size, const float* const* starts, float* out) {
    Quad acc[2 * N] = {};
    const float* y[N];
#pragma GCC unroll 4
    for (int b = 0; b < N; ++b) y[b] = starts[b];
    for (int i = 0; i < size; ++i) {
        const Quad xi = Quad{} + x[i];
#pragma GCC unroll 4
        for (int b = 0; b < N; ++b) {
            acc[2 * b] += xi * loadQuad(y[b] + i);
            acc[2 * b + 1] += xi * loadQuad(y[b] + i + 4);
        }
    }
#pragma GCC unroll 8
    for (int q = 0; q < 2 * N; ++q) __builtin_memcpy(out + 4 * q, &acc[q], sizeof acc[q]);
}
#endif

}  // namespace

void correlateBlocks(const float* x, int size, const float* const* starts, int nBlocks, float* out) {
#if defined(__GNUC__)
    int b = 0;
    for (; b + 4 <= nBlocks; b += 4) correlateGroup<4>(x, size, starts + b, out + kLagBlock * b);
    if (nBlocks - b == 3) correlateGroup<3>(x, size, starts + b, out + kLagBlock * b);
    if (nBlocks - b == 2) correlateGroup<2>(x, size, starts + b, out + kLagBlock * b);
    if (nBlocks - b == 1) correlateGroup<1>(x, size, starts + b, out + kLagBlock * b);
#else
    for (int b = 0; b < nBlocks; ++b) {
        for (int l = 0; l < kLagBlock; ++l) {
            float s = 0.0f;
            for (int i = 0; i < size; ++i) s += x[i] * starts[b][l + i];
            out[kLagBlock * b + l] = s;
        }
    }
#endif
}

std::vector<float> makeWindow(int type, int size) {
    SONALYS_ASSERT(size > 0);
    if (type != 0 && type != 1) {
        f0Message(kUnknownWindowType, type);
        return {};
    }
    std::vector<float> window;
    try {
        window.resize(static_cast<std::size_t>(size));
    } catch (const std::bad_alloc&) {
        return {};
    }
    const double scale = 6.283185307179586 / size;
    const double base = type == 0 ? 0.54 : 0.5;
    const double swing = type == 0 ? 0.46 : 0.5;
    for (int i = 0; i < size; ++i) window[i] = static_cast<float>(base - swing * std::cos(i * scale));
    return window;
}

float Energy(SigprocCache& cache, const float* data, int size, int type) {
    SONALYS_ASSERT(data);
    if (size != cache.energySize) {
        cache.energySize = 0;
        cache.energyWindow = makeWindow(type, size);
        if (cache.energyWindow.empty()) {
            f0Message(kEnergyMemoryError);
            return 0.0f;
        }
        cache.energySize = size;
    }
    const float* w = cache.energyWindow.data();
    float sum = 0.0f;
    for (int i = 0; i < size; ++i) {
        const float v = data[i] * w[i];
        sum += v * v;
    }
    return std::sqrt(sum / static_cast<float>(size));
}

void autoc(const float* s, int n, int p, float* r) {
    float e = 0.0f;
    for (int j = 0; j < n; ++j) e += s[j] * s[j];
    r[0] = 1.0f;
    if (e == 0.0f) {
        for (int i = 1; i <= p; ++i) r[i] = 0.0f;
        return;
    }
    // Lag i sums n - i products. All lags share the first n - p terms, which go through correlateBlocks; blocks
    // cover lags 1 to p, the last one moved down so as not to read past s. Each sum then takes its own last terms.
    constexpr int kMaxBlocks = (BIGSORD + kLagBlock - 1) / kLagBlock;
    float sums[kMaxBlocks * kLagBlock];
    int firstLags[kMaxBlocks];
    const float* starts[kMaxBlocks];
    const int shared = n - p > 0 ? n - p : 0;
    int nBlocks = 0;
    if (p >= kLagBlock) {
        for (int lag = 1; lag <= p; lag += kLagBlock) {
            firstLags[nBlocks] = std::min(lag, p - kLagBlock + 1);
            starts[nBlocks] = s + firstLags[nBlocks];
            ++nBlocks;
        }
        correlateBlocks(s, shared, starts, nBlocks, sums);
    }
    for (int b = 0; b < nBlocks; ++b)
        for (int l = 0; l < kLagBlock; ++l) r[firstLags[b] + l] = sums[kLagBlock * b + l];
    for (int i = 1; i <= p; ++i) {
        float sum = nBlocks > 0 ? r[i] : 0.0f;
        for (int j = nBlocks > 0 ? shared : 0; j < n - i; ++j) sum += s[j] * s[j + i];
        r[i] = sum / e;
    }
}

void durbin(const float* r, float* k, float* a, int p, float* ex) {
    SONALYS_ASSERT(r);
    SONALYS_ASSERT(k);
    SONALYS_ASSERT(a);
    SONALYS_ASSERT(p > 0);
    float b[BIGSORD + 1];
    float e = r[0];
    k[0] = -r[1] / e;
    a[0] = k[0];
    e = (1 - k[0] * k[0]) * e;
    for (int i = 1; i < p; ++i) {
        float sum = 0.0f;
        for (int j = 0; j < i; ++j) sum += a[j] * r[i - j];
        const float s = -sum;
        k[i] = (s - r[i + 1]) / e;
        a[i] = k[i];
        for (int j = 0; j <= i; ++j) b[j] = a[j];
        for (int j = 0; j < i; ++j) a[j] += k[i] * b[i - j - 1];
        e = (1 - k[i] * k[i]) * e;
    }
    if (ex) *ex = e;
}

namespace {

// Rebuilds the scratch array and the window of lpc when the window size changes.
bool prepareLpcCache(SigprocCache& cache, int wsize, int type) {
    if (wsize == cache.lpcSize) return true;
    try {
        cache.lpcScratch.resize(static_cast<std::size_t>(wsize));
    } catch (const std::bad_alloc&) {
        f0Message(kLpcScratchError);
        return false;
    }
    cache.lpcSize = 0;
    cache.lpcWindow = makeWindow(type, wsize);
    if (cache.lpcWindow.empty()) {
        f0Message(kLpcWindowError);
        return false;
    }
    cache.lpcSize = wsize;
    return true;
}

}  // namespace

int lpc(SigprocCache& cache, const float* data, int wsize, int order, int type, float preemp, float stabl, float* lpca,
        float* autocOut, float* k, float* err) {
    SONALYS_ASSERT(data);
    SONALYS_ASSERT(wsize > 0);
    SONALYS_ASSERT(order > 0);
    SONALYS_ASSERT(order <= BIGSORD);
    float localA[BIGSORD + 1];
    float localR[BIGSORD + 1];
    float localK[BIGSORD + 1];
    float* a = lpca ? lpca : localA;
    float* r = autocOut ? autocOut : localR;
    float* kk = k ? k : localK;
    if (!prepareLpcCache(cache, wsize, type)) return 0;

    // Pre-emphasis and window in one pass; so lpc reads wsize + 1 samples.
    float* scratch = cache.lpcScratch.data();
    const float* w = cache.lpcWindow.data();
    for (int i = 0; i < wsize; ++i) scratch[i] = (data[i + 1] - preemp * data[i]) * w[i];
    autoc(scratch, wsize, order, r);

    // Shrinking the correlations adds a noise floor `stabl` decibels down, which keeps the recursion stable.
    if (stabl > 1.0) {
        const double f = 1 / (1 + std::exp(std::log(10.0) * (-stabl / 20.0)));
        for (int i = 1; i <= order; ++i) r[i] = static_cast<float>(r[i] * f);
    }
    durbin(r, kk, a, order, err);
    return 1;
}
