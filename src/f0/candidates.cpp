#include "f0/candidates.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Assert.h"
#include "f0/f0.h"
#include "f0/rounding.h"

void correlateLags(const float* x, const float* y, int size, int count, float* out) {
    constexpr int kGroup = 16;
    const float* starts[kGroup];
    int firstLags[kGroup];
    float sums[kGroup * kLagBlock];
    for (int lag = 0; lag < count;) {
        int n = 0;
        // With eight lags or more the last block moves down so as to end at the last lag.
        for (; n < kGroup && lag < count; ++n, lag += kLagBlock) {
            firstLags[n] = count >= kLagBlock ? std::min(lag, count - kLagBlock) : lag;
            starts[n] = y + firstLags[n];
        }
        correlateBlocks(x, size, starts, n, sums);
        for (int b = 0; b < n; ++b)
            for (int l = 0; l < kLagBlock && firstLags[b] + l < count; ++l)
                out[firstLags[b] + l] = sums[kLagBlock * b + l];
    }
}

namespace {

// Takes the window's mean off the window and everything after it that a lag can reach; returns the window's energy.
double removeMean(const float* data, float* xcorData, int size, int total) {
    float sum = 0.0f;
    for (int i = 0; i < size; ++i) sum += data[i];
    const float mean = sum / static_cast<float>(size);
    for (int i = 0; i < total; ++i) xcorData[i] = data[i] - mean;
    double e0 = 0.0;
    for (int i = 0; i < size; ++i) e0 += xcorData[i] * xcorData[i];
    return e0;
}

double laggedEnergy(const float* x, int size) {
    double e1 = 0.0;
    for (int i = 0; i < size; ++i) e1 += x[i] * x[i];
    return e1;
}

// The energies of `n` windows at once, each summed in its own order; interleaving the sums lets them overlap.
void laggedEnergies(const float* const* windows, int size, int n, double* e1) {
    int k = 0;
    for (; k + 4 <= n; k += 4) {
        const float* w0 = windows[k];
        const float* w1 = windows[k + 1];
        const float* w2 = windows[k + 2];
        const float* w3 = windows[k + 3];
        double s0 = 0.0, s1 = 0.0, s2 = 0.0, s3 = 0.0;
        for (int i = 0; i < size; ++i) {
            s0 += w0[i] * w0[i];
            s1 += w1[i] * w1[i];
            s2 += w2[i] * w2[i];
            s3 += w3[i] * w3[i];
        }
        e1[k] = s0;
        e1[k + 1] = s1;
        e1[k + 2] = s2;
        e1[k + 3] = s3;
    }
    for (; k < n; ++k) e1[k] = laggedEnergy(windows[k], size);
}

// Keeps the best nBest - 1 when a pass found as many peaks as a frame has candidates, leaving room for the
// voiceless one.
void trimPeaks(F0Obj& t, int& nCand) {
    if (nCand >= t.pars[kNCands]) {
        const int kept = f0Trunc(t.pars[kNCands]) - 1;
        sortPeaks(t.peakLags.data(), t.peakVals.data(), nCand, kept);
        nCand = kept;
    }
}

}  // namespace

int crossCorrLow(const float* data, float* xcorData, int size, int firstLag, int nLags, float* normCorrel,
                 float* maxval) {
    SONALYS_ASSERT(data);
    SONALYS_ASSERT(xcorData);
    SONALYS_ASSERT(size > 0);
    SONALYS_ASSERT(normCorrel);
    SONALYS_ASSERT(maxval);
    const double e0 = removeMean(data, xcorData, size, size + firstLag + nLags);
    if (!(e0 > 0)) {
        for (int l = 0; l < nLags; ++l) normCorrel[l] = 0.0f;
        *maxval = 0.0f;
        return 1;
    }
    const float* lagged = xcorData + firstLag;
    double e1 = laggedEnergy(lagged, size);
    correlateLags(xcorData, lagged, size, nLags, normCorrel);
    float best = 0.0f;
    for (int l = 0; l < nLags; ++l) {
        if (e1 < 1.0) e1 = 1.0;
        normCorrel[l] = static_cast<float>(normCorrel[l] / std::sqrt(e0 * e1));
        if (normCorrel[l] > best) best = normCorrel[l];
        // Move the energy on by one lag (needless after the last).
        if (l + 1 < nLags) {
            e1 -= lagged[l] * lagged[l];
            e1 += lagged[l + size] * lagged[l + size];
        }
    }
    *maxval = best;
    return 1;
}

int crossCorrHigh(const float* data, float* xcorData, int size, int start0, int nlags0, int nlags, const int* locs,
                  int nlocs, float* normCorrel, float* maxval) {
    SONALYS_ASSERT(data);
    SONALYS_ASSERT(xcorData);
    SONALYS_ASSERT(size > 0);
    SONALYS_ASSERT(start0 >= 0);
    SONALYS_ASSERT(nlags0 > 0);
    SONALYS_ASSERT(nlags > 0);
    SONALYS_ASSERT(locs);
    SONALYS_ASSERT(nlocs >= 0);
    SONALYS_ASSERT(normCorrel);
    SONALYS_ASSERT(maxval);
    for (int l = 0; l < nlags0; ++l) normCorrel[l] = 0.0f;
    const double e0 = removeMean(data, xcorData, size, size + start0 + nlags0);
    float best = 0.0f;
    *maxval = 0.0f;
    if (!(e0 > 0)) return 1;
    // Locations go in groups: first every neighbourhood's sums and starting energy, side by side, then the
    // normalisation in location order, since overlapping neighbourhoods write the same positions again.
    constexpr int kGroup = 16;
    const float* starts[kGroup];
    double energies[kGroup];
    std::vector<float> wide;
    float sums[kGroup * kLagBlock];
    for (int first = 0; first < nlocs; first += kGroup) {
        const int n = std::min(kGroup, nlocs - first);
        for (int k = 0; k < n; ++k) {
            int start = locs[first + k] - nlags / 2;
            if (start < start0) start = start0;
            // This upper clamp compares nlags with nlags0 only, so it never fires at the tracker's 7 lags: a location
            // close to the last lag is not pushed down, and its neighbourhood may reach past it.
            if (start + nlags > start + nlags0) start = start0 + nlags0 - nlags;
            starts[k] = xcorData + start;
        }
        if (nlags <= kLagBlock) correlateBlocks(xcorData, size, starts, n, sums);
        laggedEnergies(starts, size, n, energies);
        for (int k = 0; k < n; ++k) {
            const float* lagged = starts[k];
            const float* s = sums + kLagBlock * k;
            if (nlags > kLagBlock) {
                wide.resize(static_cast<std::size_t>(nlags));
                correlateLags(xcorData, lagged, size, nlags, wide.data());
                s = wide.data();
            }
            double e1 = energies[k];
            float* out = normCorrel + (lagged - xcorData - start0);
            for (int l = 0; l < nlags; ++l) {
                if (e1 < 1.0) e1 = 1.0;
                out[l] = static_cast<float>(s[l] / std::sqrt(e0 * e1 + 10000.0));
                if (out[l] > best) best = out[l];
                if (l + 1 < nlags) {
                    e1 -= lagged[l] * lagged[l];
                    e1 += lagged[l + size] * lagged[l + size];
                }
            }
        }
    }
    *maxval = best;
    return 1;
}

void getPeaks(const float* correl, int nLags, int firstLag, float maxval, float threshold, float* peaks, int* lags,
              int* nCand) {
    SONALYS_ASSERT(correl);
    SONALYS_ASSERT(peaks);
    SONALYS_ASSERT(lags);
    SONALYS_ASSERT(nCand);
    SONALYS_ASSERT(firstLag >= 0);
    SONALYS_ASSERT(nLags > 0);
    SONALYS_ASSERT(threshold >= 0.0);
    const float limit = threshold * maxval;
    int n = 0;
    // Equal neighbours both count, so a plateau gives two adjacent peaks.
    for (int i = 1; i < nLags - 2; ++i) {
        const float c = correl[i];
        if (c > limit && c >= correl[i - 1] && c >= correl[i + 1]) {
            peaks[n] = c;
            lags[n] = firstLag + i;
            ++n;
        }
    }
    *nCand = n;
}

void refinePeak(const float* y, int decimate, float lagWeight, int* lag, float* peak) {
    const float y0 = y[0];
    const float y1 = y[1];
    const float y2 = y[2];
    // The curvature of the parabola through the three points, formed in double and stored as a float.
    const float a = static_cast<float>((y2 - y1) + (y0 - y2) * 0.5);
    float offset = 0.0f;
    float value = y1;
    if (std::fabs(a) > 9.999999974752427e-07) {  // a float 1e-6 widened to double
        offset = (y0 - y2) / (4 * a);
        value = y1 - a * offset * offset;
    }
    // The 0.5 is added whatever the sign, so a negative offset rounds toward zero.
    *lag = decimate * *lag + f0Trunc(decimate * offset + 0.5);
    *peak = static_cast<float>((1.0 - *lag * lagWeight) * value);
}

void sortPeaks(int* lags, float* peaks, int nCand, int nBest) {
    SONALYS_ASSERT(lags);
    SONALYS_ASSERT(peaks);
    for (int i = 0; i < nBest; ++i) {
        for (int j = nCand - 1; j > i; --j) {
            if (peaks[j - 1] < peaks[j]) {
                const float p = peaks[j - 1];
                peaks[j - 1] = peaks[j];
                peaks[j] = p;
                const int l = lags[j - 1];
                lags[j - 1] = lags[j];
                lags[j] = l;
            }
        }
    }
}

int getCandidates(F0Obj* f0Obj, const float* data, int frameNum, F0Frame* curFrame) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(data);
    SONALYS_ASSERT(curFrame);
    SONALYS_ASSERT(frameNum >= 0);
    F0Obj& t = *f0Obj;
    float* correl = curFrame->correl.data();
    int* lags = t.peakLags.data();
    float* peaks = t.peakVals.data();
    const float threshold = t.pars[kCandThresh];
    float maxval = 0.0f;
    int nCand = 0;

    // Coarse pass over every lag of the decimated signal; its peaks become full-rate lags, weighted against length.
    if (!crossCorrLow(t.filtered.data() + frameNum * t.lowFrameStep, t.xcorData.data(), t.lowWindowSize, t.lowFirstLag,
                      t.lowNLags, correl, &maxval))
        return 0;
    getPeaks(correl, t.lowNLags, t.lowFirstLag, maxval, threshold, peaks, lags, &nCand);
    for (int i = 0; i < nCand; ++i)
        refinePeak(correl + (lags[i] - t.lowFirstLag - 1), t.decimate, t.lagWeightScaled, &lags[i], &peaks[i]);
    trimPeaks(t, nCand);

    // Fine pass at the full rate around each of them; the trim now goes by raw correlation.
    if (!crossCorrHigh(data + frameNum * t.frameStep, t.xcorData.data(), t.windowSize, t.firstLag, t.nLags, 7, lags,
                       nCand, correl, &maxval))
        return 0;
    getPeaks(correl, t.nLags, t.firstLag, maxval, threshold, peaks, lags, &nCand);
    trimPeaks(t, nCand);

    F0Cand* cands = curFrame->cands.data();
    for (int i = 0; i < nCand; ++i) {
        cands[i].lag = lags[i];
        const float weight = static_cast<float>(1.0 - lags[i] * t.lagWeightScaled);
        cands[i].cost = static_cast<float>(1.0 - weight * peaks[i]);
    }
    // A strongly periodic frame makes voicelessness dear; a frame without peaks has this candidate alone.
    cands[nCand].lag = -1;
    cands[nCand].cost = maxval + t.pars[kVoiceBias];
    curFrame->nCands = nCand + 1;
    return 1;
}
