#include "f0/stationarity.h"

#include <algorithm>
#include <new>

#include "base/Assert.h"
#include "f0/f0.h"
#include "f0/sigproc.h"

namespace {

// The LPC settings of both windows: Hanning window, pre-emphasis 0.4, a noise floor 30 dB down.
constexpr int kWindowType = 1;
constexpr float kPreemphasis = 0.4f;
constexpr float kStabilisation = 30.0f;

}  // namespace

int windStatInit(F0Obj* f0Obj, int windStatLim) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(windStatLim >= 0);
    f0Obj->windStatLim = windStatLim;
    if (windStatLim == 0) return 1;
    try {
        f0Obj->windStat.assign(static_cast<std::size_t>(windStatLim), WindStat{});
        for (WindStat& element : f0Obj->windStat)
            element.autoc.assign(static_cast<std::size_t>(f0Obj->lpcOrder) + 1, 0.0f);
    } catch (const std::bad_alloc&) {
        f0Obj->windStat.clear();
        return 0;
    }
    f0Obj->windStatCount = 0;
    return 1;
}

void windStatFree(F0Obj* f0Obj) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(!f0Obj->windStat.empty());
    f0Obj->windStat.clear();
}

int windStatStore(F0Obj* f0Obj, const float* autoc, int order, float err, float rms) {
    SONALYS_ASSERT(f0Obj);
    F0Obj& t = *f0Obj;
    if (t.windStatLim == 0 || t.windStat.empty()) return 0;
    std::rotate(t.windStat.begin(), t.windStat.begin() + 1, t.windStat.end());
    WindStat& newest = t.windStat.back();
    const int n = std::min(order + 1, static_cast<int>(newest.autoc.size()));
    std::copy(autoc, autoc + n, newest.autoc.begin());
    newest.err = err;
    newest.rms = rms;
    if (t.windStatCount < t.windStatLim) ++t.windStatCount;
    return 1;
}

int windStatOldest(F0Obj* f0Obj, float* autoc, int order, float* err, float* rms) {
    F0Obj& t = *f0Obj;
    if (t.windStatLim == 0 || t.windStatCount != t.windStatLim) return 0;
    const WindStat& oldest = t.windStat.front();
    const int n = std::min(order + 1, static_cast<int>(oldest.autoc.size()));
    std::copy(oldest.autoc.begin(), oldest.autoc.begin() + n, autoc);
    *err = oldest.err;
    *rms = oldest.rms;
    return 1;
}

void polyAutocorr(const float* a, float* c, int p) {
    SONALYS_ASSERT(a);
    SONALYS_ASSERT(c);
    SONALYS_ASSERT(p > 0);
    float s = 1.0f;
    for (int j = 0; j < p; ++j) s += a[j] * a[j];
    c[0] = s;
    for (int i = 1; i <= p; ++i) {
        s = a[i - 1];
        for (int j = 0; j < p - i; ++j) s += a[j] * a[j + i];
        c[i] = 2 * s;
    }
}

float itakuraRatio(const float* a, const float* r, float err, int order) {
    float c[BIGSORD + 1];
    polyAutocorr(a, c, order);
    // r is normalised: r[0] is 1 and is not read.
    float sum = c[0];
    for (int i = 1; i <= order; ++i) sum += r[i] * c[i];
    return sum / err;
}

F0Stat stationarityFrame(F0Obj* f0Obj, const float* prevData, const float* curData, int size) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(size > 0);
    if (!curData) return F0Stat{0.002f, 0.0f, 1.0f};
    F0Obj& t = *f0Obj;
    const int order = t.lpcOrder;
    float a[BIGSORD + 1] = {};
    float r[BIGSORD + 1] = {};
    float err = 0.0f;
    // A failing allocation inside lpc or Energy has printed its message; the measure goes on with what the arrays
    // hold.
    lpc(t.sigproc, curData, size - 1, order, kWindowType, kPreemphasis, kStabilisation, a, r, nullptr, &err);
    const float rms = Energy(t.sigproc, curData, size, kWindowType);

    float rmsRatio = 1.0f;
    float dist = 10.0f;
    if (prevData) {
        float prevR[BIGSORD + 1] = {};
        float prevErr = 0.0f;
        float prevRms = 0.0f;
        if (!windStatOldest(f0Obj, prevR, order, &prevErr, &prevRms)) {
            lpc(t.sigproc, prevData, size - 1, order, kWindowType, kPreemphasis, kStabilisation, nullptr, prevR,
                nullptr, &prevErr);
            prevRms = Energy(t.sigproc, prevData, size, kWindowType);
        }
        dist = static_cast<float>(itakuraRatio(a, prevR, prevErr, order) - 0.8);
        if (prevRms > 0)
            rmsRatio = static_cast<float>((rms + 0.001) / prevRms);
        else
            rmsRatio = rms > 0 ? 2.0f : 1.0f;
    }
    // No guard on dist: 0 gives an infinite measure and a negative distance a negative one, as the costs expect.
    const float stat = static_cast<float>(0.2 / dist);
    windStatStore(f0Obj, r, order, err, rms);
    return F0Stat{stat, rms, rmsRatio};
}

int stationarityCompute(F0Obj* f0Obj, const float* data, int buffSize, int nFrames) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(!f0Obj->stat.empty());
    SONALYS_ASSERT(!f0Obj->statMem.empty());
    SONALYS_ASSERT(data);
    SONALYS_ASSERT(buffSize > 0);
    SONALYS_ASSERT(nFrames > 0);
    F0Obj& t = *f0Obj;
    const int frameStep = t.frameStep;
    const int windowSize = t.statWindow;
    SONALYS_ASSERT(((nFrames - 1) * frameStep + windowSize) <= buffSize);
    const int memSize = t.statMemSize;
    const int memHalf = memSize / 2;
    float* mem = t.statMem.data();

    // statMem holds the samples from memHalf before this buffer's start to memHalf after it.
    std::copy(data, data + memHalf, mem + memHalf);
    // Each frame compares a window at curPos with one statLag samples earlier; the first reach back before the
    // buffer.
    int curPos = (t.statLag - windowSize) / 2;
    int prevPos = curPos - t.statLag;
    for (int i = 0; i < nFrames; ++i) {
        if (prevPos >= 0) {
            t.stat[i] = stationarityFrame(f0Obj, data + prevPos, data + curPos, windowSize);
        } else if (!t.statPrimed) {
            t.stat[i] = stationarityFrame(f0Obj, nullptr, curPos >= 0 ? data + curPos : nullptr, windowSize);
        } else {
            t.stat[i] = stationarityFrame(f0Obj, mem, mem + t.statLag, windowSize);
            if (prevPos + frameStep < 0) {
                std::copy(mem + frameStep, mem + memSize, mem);
                const float* fresh = data + curPos + windowSize;
                std::copy(fresh, fresh + frameStep, mem + memSize - frameStep);
            }
        }
        prevPos += frameStep;
        curPos += frameStep;
    }

    // Keep the samples that end where the next buffer's first frame starts. Positions before this buffer are not
    // ours to read: only a last buffer of a frame or two reaches back that far, and nothing reads statMem after it.
    const int end = nFrames * frameStep;
    for (int m = 0; m < memHalf; ++m) {
        const int position = end - memHalf + m;
        mem[m] = position >= 0 ? data[position] : 0.0f;
    }
    t.statPrimed = 1;
    return 1;
}
