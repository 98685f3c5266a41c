#include "f0/downsample.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "base/Assert.h"
#include "f0/f0.h"
#include "f0/rounding.h"

int downsampleFilterDesign(float sampFreq, int decimate, std::unique_ptr<DownsampleFilter>* filter) {
    SONALYS_ASSERT(filter);
    try {
        auto designed = std::make_unique<DownsampleFilter>();
        designed->length = f0Trunc(sampFreq * 0.005) | 1;
        const int half = designed->length / 2;
        designed->coef.assign(static_cast<std::size_t>(designed->length), 0.0f);
        designed->memory.assign(static_cast<std::size_t>(half), 0.0f);
        float* coef = designed->coef.data();
        // The cut-off lies at the Nyquist frequency of the low rate.
        coef[half] = static_cast<float>(1.0 / decimate);
        for (int i = 1; i <= half; ++i) {
            const float tap = static_cast<float>(std::sin(i * 3.141592653589793 / decimate) / (i * 3.141592653589793));
            coef[half - i] = tap;
            coef[half + i] = tap;
        }
        // A Hanning window sampled at the centres of the taps.
        for (int i = 0; i < designed->length; ++i)
            coef[i] =
                static_cast<float>(coef[i] * (0.5 - 0.5 * std::cos((i + 0.5) * 6.283185307179586 / designed->length)));
        *filter = std::move(designed);
        return 1;
    } catch (const std::bad_alloc&) {
        filter->reset();
        return 0;
    }
}

void downsampleFilterFree(std::unique_ptr<DownsampleFilter>* filter) {
    SONALYS_ASSERT(filter);
    filter->reset();
}

int downsampleFilterLength(const DownsampleFilter* filter) {
    SONALYS_ASSERT(filter);
    return filter->length;
}

namespace {

// Splits the buffer into its phases: phase r holds input[r], input[r + decimate], ... Output k then reads tap j
// (sample k * decimate - half + j) at phase (j - half) mod decimate, position k + floor((j - half) / decimate), so
// consecutive outputs read consecutive values of one phase. Returns false if the store cannot grow.
bool splitPhases(DownsampleFilter& filter, int decimate, const float* input, int nInput) {
    constexpr int kSlack = 16;
    const int stride = nInput / decimate + 1 + kSlack;
    try {
        if (stride > filter.phaseStride) {
            filter.phases.assign(static_cast<std::size_t>(stride) * decimate, 0.0f);
            filter.tapOffsets.resize(static_cast<std::size_t>(filter.length));
            filter.phaseStride = stride;
            const int half = filter.length / 2;
            for (int j = 0; j < filter.length; ++j) {
                const int o = j - half;
                const int q = o >= 0 ? o / decimate : -((-o + decimate - 1) / decimate);
                filter.tapOffsets[j] = (o - q * decimate) * stride + q;
            }
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    float* phases = filter.phases.data();
    for (int r = 0; r < decimate; ++r) {
        float* phase = phases + static_cast<std::ptrdiff_t>(r) * filter.phaseStride;
        for (int m = 0, at = r; at < nInput; ++m, at += decimate) phase[m] = input[at];
    }
    return true;
}

#if defined(__GNUC__)
typedef float Quad __attribute__((vector_size(4 * sizeof(float))));

// Outputs k to k + 15 with every tap, each one summed tap by tap in order as the plain loop does.
[[gnu::always_inline]] inline void filterSixteen(const DownsampleFilter& filter, int k, float* out) {
    Quad acc[4] = {};
    const float* base = filter.phases.data() + k;
    const int* offsets = filter.tapOffsets.data();
    const float* coef = filter.coef.data();
    for (int j = 0; j < filter.length; ++j) {
        const float* at = base + offsets[j];
        const Quad c = Quad{} + coef[j];
#pragma GCC unroll 4
        for (int q = 0; q < 4; ++q) {
            Quad x;
            __builtin_memcpy(&x, at + 4 * q, sizeof x);
            acc[q] += x * c;
        }
    }
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) __builtin_memcpy(out + 4 * q, &acc[q], sizeof acc[q]);
}
#endif

// Body outputs whose taps all lie inside the buffer, sixteen at a time; returns the first output not done.
int filterFullOutputs(DownsampleFilter& filter, int decimate, const float* input, int nInput, int k, int limit,
                      float* out) {
#if defined(__GNUC__)
    const auto fullTaps = [&](int last) { return static_cast<long long>(last) * decimate + filter.length <= nInput; };
    if (k + 16 > limit || !fullTaps(k + 15) || !splitPhases(filter, decimate, input, nInput)) return k;
    float sums[16];
    for (; k + 16 <= limit && fullTaps(k + 15); k += 16) {
        filterSixteen(filter, k, sums);
        for (int l = 0; l < 16; ++l) out[k + l] = static_cast<float>(f0Round(sums[l]));
    }
#else
    (void)filter, (void)decimate, (void)input, (void)nInput, (void)limit, (void)out;
#endif
    return k;
}

}  // namespace

int downsample(F0Obj* f0Obj, const float* input, int nInput) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(f0Obj->filter);
    SONALYS_ASSERT(input);
    SONALYS_ASSERT(nInput > 0);
    SONALYS_ASSERT(!f0Obj->filtered.empty());
    F0Obj& t = *f0Obj;
    float* out = t.filtered.data();
    const int decimate = t.decimate;
    if (decimate == 1) {
        const int n = std::min(nInput, t.filteredSize);
        std::copy(input, input + n, out);
        t.nFiltered = n;
        return 1;
    }
    DownsampleFilter& filter = *t.filter;
    const int length = filter.length;
    const int half = length / 2;
    const float* coef = filter.coef.data();
    const float* memory = filter.memory.data();

    // Outputs near the start of the buffer span the carried samples and the new ones.
    int i = 0;
    int k = 0;
    for (; i < half && k < t.filteredSize; i += decimate, ++k) {
        float sum = 0.0f;
        for (int j = i; j < half; ++j) sum += memory[j] * coef[j - i];
        for (int j = 0; j < length - (half - i) && j < nInput; ++j) sum += input[j] * coef[half - i + j];
        out[k] = static_cast<float>(f0Round(sum));
    }
    k = filterFullOutputs(filter, decimate, input, nInput, k, t.filteredSize, out);
    i = k * decimate;
    // The bound tests i + j although the sample read is at i - half + j, so the last half taps drop out early at the
    // end of a buffer; the level of the last outputs drops with them.
    for (; k < t.filteredSize && i < nInput; i += decimate, ++k) {
        float sum = 0.0f;
        const float* x = input + (i - half);
        for (int j = 0; j < length && i + j < nInput; ++j) sum += x[j] * coef[j];
        out[k] = static_cast<float>(f0Round(sum));
    }
    t.nFiltered = k;

    // The next buffer starts buffStep samples on, whatever this buffer's length: a short last buffer leaves zeros.
    for (int m = 0; m < half; ++m) {
        const int position = t.buffStep - half + m;
        filter.memory[m] = position >= 0 && position < nInput ? input[position] : 0.0f;
    }
    return 1;
}
