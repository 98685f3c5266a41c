#include "f0/f0.h"

#include <algorithm>
#include <atomic>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <limits>
#include <new>
#include <string>
#include <system_error>
#include <thread>

#include "base/Assert.h"
#include "f0/candidates.h"
#include "f0/rounding.h"

// ---------------------------------------------------------------------------------------------------------------
// Creation and parameters

std::unique_ptr<F0Obj> f0Create() noexcept {
    SONALYS_ASSERT(f0NumParams == MAX_CAND + 1);
    try {
        auto f0Obj = std::make_unique<F0Obj>();
        for (int i = 0; i < f0NumParams; ++i) f0Obj->pars[i] = f0ParamDefaults[i].value;
        return f0Obj;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void f0Destroy(std::unique_ptr<F0Obj>* f0Obj) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(*f0Obj);
    f0Obj->reset();
}

namespace {

int paramIndex(std::string_view name) {
    for (int i = 0; i < f0NumParams; ++i)
        if (f0ParamDefaults[i].name == name) return i;
    return -1;
}

// The value of a text as atof reads it in the C locale: leading white space, a sign, a decimal or hexadecimal
// number, inf or nan; 0.0 when no number starts the text. Independent of the program's locale.
double readNumber(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && (text[at] == ' ' || (text[at] >= '\t' && text[at] <= '\r'))) ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) negative = text[at++] == '-';
    auto format = std::chars_format::general;
    if (text.size() - at > 2 && text[at] == '0' && (text[at + 1] == 'x' || text[at + 1] == 'X')) {
        format = std::chars_format::hex;
        at += 2;
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), value, format);
    if (error == std::errc::result_out_of_range) {
        // Too large or too small for a double: atof gives infinity or zero.
        value = std::abs(value) > 1.0 ? std::numeric_limits<double>::infinity() : 0.0;
    } else if (error != std::errc{}) {
        value = 0.0;
    }
    (void)end;
    return negative ? -value : value;
}

// A double too large for a float becomes an infinity, as the conversion does on every IEEE machine.
float toFloat(double value) {
    if (value > FLT_MAX) return std::numeric_limits<float>::infinity();
    if (value < -FLT_MAX) return -std::numeric_limits<float>::infinity();
    return static_cast<float>(value);
}

}  // namespace

int f0SetParam(F0Obj* f0Obj, const char* str) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(str);
    try {
        const std::string text(str);
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos) return 0;
        const int index = paramIndex(std::string_view(text).substr(0, equals));
        if (index < 0) return 0;
        f0Obj->pars[index] = toFloat(readNumber(std::string_view(text).substr(equals + 1)));
        return 1;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

float f0GetParam(F0Obj* f0Obj, const char* name) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(name);
    const int index = paramIndex(name);
    return index < 0 ? 0.0f : f0Obj->pars[index];
}

bool f0CheckParams(float* pars, double sampFreq) {
    // Each float parameter is compared with double constants.
    int failures = 0;
    const auto fail = [&failures](std::string_view message) {
        f0Message(message);
        ++failures;
    };
    if (pars[kCandThresh] < 0.01 || pars[kCandThresh] > 0.99) fail(kCandThreshRange);
    if (pars[kWindDur] < 0.0001 || pars[kWindDur] > 0.1) fail(kWindDurRange);
    if (pars[kNCands] < 3 || pars[kNCands] > 100) fail(kNCandsRange);
    if (pars[kMaxF0] <= pars[kMinF0] || pars[kMaxF0] >= sampFreq / 2 || pars[kMinF0] < sampFreq / 10000)
        fail(kMinMaxF0Inconsistent);
    // The frame step is snapped to whole samples, silently, before its range is tested.
    const float snapped = static_cast<float>(f0Trunc(pars[kFrameStep] * sampFreq + 0.5) / sampFreq);
    if (snapped != pars[kFrameStep]) pars[kFrameStep] = snapped;
    if (pars[kFrameStep] < 1 / sampFreq || pars[kFrameStep] > 0.1) fail(kFrameStepRange);
    return failures == 0;
}

// ---------------------------------------------------------------------------------------------------------------
// Initialisation

namespace {

// A candidate array needs room for every voiced candidate the trim lets through plus the voiceless one. The trim
// keeps trunc(n_cands) - 1 once a frame has n_cands peaks, so a fractional n_cands lets one more through untrimmed.
int candidateRoom(const F0Obj& t) {
    const float nCands = t.pars[kNCands];
    const int whole = f0Trunc(nCands);
    return static_cast<float>(whole) < nCands ? whole + 1 : whole;
}

// Derives the sizes of the correlation, decimation and stationarity stages, and designs the filter. Returns false
// only if the filter cannot be made.
bool deriveSizes(F0Obj& t) {
    const double sampFreq = t.sampFreq;
    const float* pars = t.pars.data();
    t.frameStep = f0Round(pars[kFrameStep] * sampFreq);
    t.windowSize = f0Round(pars[kWindDur] * sampFreq);
    t.firstLag = f0Round(sampFreq / pars[kMaxF0]);  // the shortest lag comes from the highest F0
    t.lastLag = f0Round(sampFreq / pars[kMinF0]);
    t.nLags = t.lastLag - t.firstLag + 1;
    t.xcorSize = t.windowSize + 1 + t.lastLag;

    t.lpcOrder = f0Trunc(sampFreq / 1000 + 2.5);
    if (t.lpcOrder > BIGSORD) {
        t.lpcOrder = BIGSORD;
        f0Message(kOrderLimited, BIGSORD);
    }
    t.decimate = std::max(1, f0Trunc(sampFreq / 2000));
    if (t.decimate > 1 && !downsampleFilterDesign(static_cast<float>(sampFreq), t.decimate, &t.filter)) {
        f0Message(kFilterDesignFailed);
        return false;
    }
    t.lowFirstLag = std::max(1, t.firstLag / t.decimate);
    t.lowFrameStep = t.frameStep / t.decimate;
    t.lowNLags = t.nLags / t.decimate + 1;
    t.lowWindowSize = t.windowSize / t.decimate + 1;
    t.lowBlock = t.lowWindowSize + t.lowFirstLag + t.lowNLags;
    t.xcorSize = std::max(t.xcorSize, t.lowBlock * t.decimate);
    t.statWindow = f0Trunc(0.03 * sampFreq);
    t.statLag = f0Trunc(0.02 * sampFreq);
    t.statMemSize = t.statWindow + t.statLag;
    return true;
}

// Derives the buffer layout: about 200 ms of frames, and a tail that holds the last frame's windows.
void deriveBuffers(F0Obj& t) {
    const float stepSec = static_cast<float>(t.frameStep / t.sampFreq);
    t.lagWeightScaled = t.pars[kLagWeight] / static_cast<float>(t.lastLag);
    t.freqWeightScaled = t.pars[kFreqWeight] / stepSec;
    const double b = 0.2 * t.sampFreq;
    t.framesPerBuff =
        t.xcorSize >= t.frameStep ? f0Trunc((b - t.xcorSize) / t.frameStep) + 1 : f0Trunc(b / t.frameStep);
    // Below 4000 Hz there is no filter and this fails its assertion; computeF0Curve never comes here so.
    t.tailSize = downsampleFilterLength(t.filter.get()) / 2 + std::max(t.xcorSize, t.statMemSize / 2);
    t.buffSize = t.framesPerBuff * t.frameStep + t.tailSize;
    t.buffStep = t.framesPerBuff * t.frameStep;
    t.filteredSize = (t.framesPerBuff - 1) * t.lowFrameStep + t.lowBlock;
    t.frameAlloc = f0Trunc(1.5 / stepSec);
    t.minConvFrames = f0Trunc(0.5 / stepSec);
    t.maxConvFrames = f0Trunc(1.0 / stepSec);
}

// Fills `array` with `count` values, or prints `failure`. A count below 1 cannot hold what the array is for and
// counts as a failed allocation, as asking for it would be.
template <typename T>
bool allocate(std::vector<T>& array, long long count, std::string_view failure, std::size_t slack = 0) {
    if (count < 1) {
        f0Message(failure);
        return false;
    }
    try {
        array.assign(static_cast<std::size_t>(count) + slack, T{});
        return true;
    } catch (const std::bad_alloc&) {
        f0Message(failure);
        return false;
    }
}

bool buildRing(F0Obj& t) {
    const int nCands = candidateRoom(t);
    if (t.frameAlloc < 1 || t.nLags < 1 || nCands < 1) {
        f0Message(kFrameAllocFailed);
        return false;
    }
    try {
        t.frames.reserve(static_cast<std::size_t>(t.frameAlloc));
        for (int i = 0; i < t.frameAlloc; ++i) {
            t.frames.push_back(frameCreate(t.nLags, nCands));
            if (i == 0) {
                t.head = t.frames.back().get();
                t.curFrm = t.head;
            } else {
                frameInsert(&t.curFrm, t.frames.back().get());
            }
        }
    } catch (const std::bad_alloc&) {
        f0Message(kFrameAllocFailed);
        return false;
    }
    return true;
}

bool allocateArrays(F0Obj& t) {
    if (!windStatInit(&t, t.statLag / t.frameStep)) {
        f0Message(kWindStatAllocFailed);
        return false;
    }
    if (!allocate(t.statMem, t.statMemSize, kStatBufferAllocFailed)) return false;
    t.statPrimed = 0;
    if (!allocate(t.filtered, t.filteredSize, kFilteredAllocFailed)) return false;
    if (!allocate(t.stat, t.framesPerBuff, kStabilityAllocFailed)) return false;
    t.statCap = t.framesPerBuff;
    if (!buildRing(t)) return false;
    if (!allocate(t.pathcands, candidateRoom(t), kPathcandsAllocFailed)) return false;
    t.outputCap = t.frameAlloc;
    if (!allocate(t.output, t.outputCap, kOutputAllocFailed)) return false;
    // Room for a peak at every lag: a plateau of equal correlations gives adjacent peaks, so peaks need not
    // alternate with non-peaks.
    t.peakCap = std::max(t.nLags / 2 + 2, t.nLags);
    if (!allocate(t.peakVals, t.peakCap, kPeakValsAllocFailed)) return false;
    if (!allocate(t.peakLags, t.peakCap, kPeakLagsAllocFailed)) return false;
    return allocate(t.xcorData, t.xcorSize, kXcorDataAllocFailed, kCorrelationSlack);
}

}  // namespace

int f0Init(F0Obj* f0Obj, double sampFreq, int* buffSize, int* buffStep) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(buffSize);
    SONALYS_ASSERT(buffStep);
    F0Obj& t = *f0Obj;
    if (!f0CheckParams(t.pars.data(), sampFreq)) {
        f0Message(kInvalidParameters);
        return 0;
    }
    t.sampFreq = sampFreq;
    if (!deriveSizes(t)) return 0;
    deriveBuffers(t);
    if (!allocateArrays(t)) return 0;
    t.nPending = 0;
    *buffSize = t.buffSize;
    *buffStep = t.buffStep;
    return 1;
}

// ---------------------------------------------------------------------------------------------------------------
// The frame ring

std::unique_ptr<F0Frame> frameCreate(int nlags, int nCands) {
    SONALYS_ASSERT(nlags > 0);
    SONALYS_ASSERT(nCands > 0);
    auto frm = std::make_unique<F0Frame>();
    frm->correl.assign(static_cast<std::size_t>(nlags) + kCorrelationSlack, 0.0f);
    frm->cands.assign(static_cast<std::size_t>(nCands), F0Cand{});
    frm->next = frm.get();
    frm->prev = frm.get();
    return frm;
}

void frameInsert(F0Frame** head, F0Frame* frm) {
    SONALYS_ASSERT(head);
    SONALYS_ASSERT(*head);
    SONALYS_ASSERT(frm);
    F0Frame* before = *head;
    frm->prev = before;
    frm->next = before->next;
    before->next->prev = frm;
    before->next = frm;
    *head = frm;
}

F0Frame* frameNext(F0Frame* frm) {
    SONALYS_ASSERT(frm);
    SONALYS_ASSERT(frm->next);
    return frm->next;
}

F0Frame* framePrev(F0Frame* frm) {
    SONALYS_ASSERT(frm);
    SONALYS_ASSERT(frm->prev);
    return frm->prev;
}

F0Frame* frameAdvance(F0Frame** frm) {
    SONALYS_ASSERT(frm);
    SONALYS_ASSERT(*frm);
    SONALYS_ASSERT((*frm)->next);
    *frm = (*frm)->next;
    return *frm;
}

F0Frame* frameRewind(F0Frame** frm) {
    SONALYS_ASSERT(frm);
    SONALYS_ASSERT(*frm);
    SONALYS_ASSERT((*frm)->prev);
    *frm = (*frm)->prev;
    return *frm;
}

int f0ExtendFrames(F0Obj* f0Obj) {
    SONALYS_ASSERT(f0Obj);
    F0Obj& t = *f0Obj;
    if (t.nExtensions >= 6) {
        f0Message(kTooManyRequests, t.nExtensions, kConvergenceProblem);
        return 0;
    }
    try {
        F0Frame* cursor = t.curFrm;
        for (int i = 0; i < t.frameAlloc; ++i) {
            t.frames.push_back(frameCreate(t.nLags, candidateRoom(t)));
            frameInsert(&cursor, t.frames.back().get());
        }
    } catch (const std::bad_alloc&) {
        return 0;
    }
    ++t.nExtensions;
    return 1;
}

// ---------------------------------------------------------------------------------------------------------------
// The path search

namespace {

constexpr double kLn2 = 0.6931471824645996;  // log(2) as a float, widened to double

// The cost of going from candidate p of the previous frame to candidate c of this one.
float transitionCost(const F0Obj& t, const F0Stat& stat, const F0Cand& c, const F0Cand& p) {
    const bool cVoiced = c.lag >= 1;
    const bool pVoiced = p.lag >= 1;
    if (cVoiced && pVoiced) {
        // An octave jump, up or down, costs double_cost plus its distance from an exact octave.
        const float r = static_cast<float>(std::log(static_cast<double>(c.lag) / p.lag));
        const float doubleCost = t.pars[kDoubleCost];
        float d = std::fabs(r);
        const float d2 = static_cast<float>(doubleCost + std::fabs(r + kLn2));
        if (d2 <= d) d = d2;
        const float d3 = static_cast<float>(doubleCost + std::fabs(r - kLn2));
        if (d3 <= d) d = d3;
        return d * t.freqWeightScaled;
    }
    if (cVoiced) return stat.stat * t.pars[kTransSpec] + t.pars[kTransCost] + t.pars[kTransAmp] / stat.rmsRatio;
    if (pVoiced) return stat.stat * t.pars[kTransSpec] + t.pars[kTransCost] + t.pars[kTransAmp] * stat.rmsRatio;
    return 0.0f;
}

}  // namespace

void f0DpStep(F0Obj* f0Obj, F0Stat stat, F0Frame* curFrame, F0Frame* prevFrame) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(f0Obj->pars.data());
    SONALYS_ASSERT(curFrame);
    SONALYS_ASSERT(prevFrame);
    const F0Obj& t = *f0Obj;
    const F0Cand* prev = prevFrame->cands.data();
    const int nPrev = prevFrame->nCands;
    for (int ci = 0; ci < curFrame->nCands; ++ci) {
        F0Cand& c = curFrame->cands[ci];
        float best = FLT_MAX;
        int bestIdx = 0;
        for (int pi = 0; pi < nPrev; ++pi) {
            const float total = transitionCost(t, stat, c, prev[pi]) + prev[pi].cost;
            if (total < best) {  // strict: the lowest index wins a tie
                best = total;
                bestIdx = pi;
            }
        }
        if (nPrev == 0) {
            c.prevIdx = 0;
        } else {
            c.cost += best;
            c.prevIdx = bestIdx;
        }
    }
}

int f0FindConverged(F0Obj* f0Obj, F0Frame* curFrame, int isLast, F0Frame** convFrame, int* bestPath) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(curFrame);
    SONALYS_ASSERT(convFrame);
    SONALYS_ASSERT(bestPath);
    F0Obj& t = *f0Obj;
    if (t.nPending < t.minConvFrames && !isLast) return 0;
    const int n = curFrame->nCands;
    int best = 0;
    for (int i = 1; i < n; ++i)
        if (curFrame->cands[i].cost < curFrame->cands[best].cost) best = i;
    *bestPath = best;
    int* paths = t.pathcands.data();
    for (int i = 0; i < n; ++i) paths[i] = curFrame->cands[i].prevIdx;
    if (isLast) {
        *convFrame = curFrame;
        return 1;
    }
    // Follow every candidate's path back until they all pass through one candidate.
    F0Frame* frm = curFrame;
    for (;;) {
        frm = framePrev(frm);
        if (std::all_of(paths + 1, paths + n, [paths](int p) { return p == paths[0]; })) {
            *convFrame = frm;
            *bestPath = paths[0];
            return 1;
        }
        if (frm == t.head) {
            if (t.nPending < t.maxConvFrames) return 0;
            // A second of frames without agreement: release them all along the best path of the newest frame.
            *convFrame = curFrame;
            return 1;
        }
        for (int i = 0; i < n; ++i) paths[i] = frm->cands[paths[i]].prevIdx;
    }
}

float f0RefineLag(const float* correl, int lag, int firstLag, int lastLag) {
    SONALYS_ASSERT(correl);
    SONALYS_ASSERT(firstLag < lastLag);
    if (lag == firstLag || lag == lastLag) return static_cast<float>(lag);
    const float* y = correl + (lag - firstLag - 1);
    const float y0 = y[0];
    const float y1 = y[1];
    const float y2 = y[2];
    const float d = (y2 + y0 - 2 * y1) * 2;
    // The vertex of the parabola through the three points.
    if (std::fabs(d) > 1e-06) return static_cast<float>(lag + 2.0 - (5 * y2 + 3 * y0 - 8 * y1) / d);
    return static_cast<float>(lag);
}

// ---------------------------------------------------------------------------------------------------------------
// Processing

namespace {

// Writes the frames from convFrame back to head, following the best path, newest first.
bool releaseFrames(F0Obj& t, F0Frame* convFrame, int bestPath) {
    F0Frame* const stop = framePrev(t.head);
    F0Frame* frm = convFrame;
    int path = bestPath;
    int n = 0;
    for (; frm != stop; frm = framePrev(frm), ++n) {
        if (n == t.outputCap) {
            try {
                t.output.resize(static_cast<std::size_t>(t.outputCap) * 2);
            } catch (const std::bad_alloc&) {
                f0Message(kOutputReallocFailed);
                return false;
            }
            t.outputCap *= 2;
        }
        const F0Cand& cand = frm->cands[path];
        F0Output& out = t.output[n];
        out.rms = frm->rms;
        out.f0 =
            cand.lag < 1
                ? 0.0f
                : static_cast<float>(t.sampFreq / f0RefineLag(frm->correl.data(), cand.lag, t.firstLag, t.lastLag));
        path = cand.prevIdx;
    }
    t.nOutput = n;
    t.head = frameNext(convFrame);
    t.nPending -= t.nOutput;
    return true;
}

}  // namespace

int f0Process(F0Obj* f0Obj, const float* data, int nData) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(data);
    SONALYS_ASSERT(nData > 0);
    F0Obj& t = *f0Obj;
    // A buffer shorter than a full one is the last: all its whole frames are tracked and every pending frame goes.
    const bool isLast = nData < t.buffSize;
    const int nFrames = isLast ? std::max(0, (nData - t.tailSize) / t.frameStep) : t.framesPerBuff;
    if (!downsample(f0Obj, data, nData)) {
        f0Message(kDownsampleFailed);
        return 0;
    }
    if (nFrames != 0 && !stationarityCompute(f0Obj, data, nData, nFrames)) {
        f0Message(kStationarityFailed);
        return 0;
    }
    for (int i = 0; i < nFrames; ++i) {
        F0Frame* frm = frameAdvance(&t.curFrm);
        frm->rms = t.stat[i].rms;
        if (!getCandidates(f0Obj, data, i, frm)) return 0;
        f0DpStep(f0Obj, t.stat[i], frm, framePrev(frm));
        if (frameNext(frm) == t.head && !f0ExtendFrames(f0Obj)) return 0;
    }
    t.nPending += nFrames;
    F0Frame* convFrame = nullptr;
    int bestPath = 0;
    if (!f0FindConverged(f0Obj, t.curFrm, isLast, &convFrame, &bestPath)) {
        t.nOutput = 0;
        return 1;
    }
    return releaseFrames(t, convFrame, bestPath) ? 1 : 0;
}

int f0NumOutput(const F0Obj* f0Obj) {
    SONALYS_ASSERT(f0Obj);
    return f0Obj->nOutput;
}

F0Output f0GetOutput(const F0Obj* f0Obj, int idx) {
    SONALYS_ASSERT(f0Obj);
    SONALYS_ASSERT(0 <= idx && idx < f0Obj->nOutput);
    return f0Obj->output[f0Obj->nOutput - 1 - idx];
}

// ---------------------------------------------------------------------------------------------------------------
// This system's layers: one buffer, a whole recording, the live meter

namespace {

// "name=%f" as printf writes it in the C locale, six decimals.
std::string paramText(std::string_view name, double value) {
    char digits[400];
    const auto result = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6);
    return std::string(name) + "=" + std::string(digits, result.ptr);
}

// Reads the records of the last release into `out` while there is room.
void collectOutput(const F0Obj& t, std::vector<float>& out, int nOut, int& count, float& last) {
    for (int i = 0; i < f0NumOutput(&t); ++i) {
        last = f0GetOutput(&t, i).f0;
        if (count < nOut) out[count] = last;
        ++count;
    }
}

bool trackBlocks(F0Obj& t, const float* data, int nData, std::vector<float>& out, int nOut) {
    const int buffSize = t.buffSize;
    const int buffStep = t.buffStep;
    // A negative count would start the last call before the data; it takes all of the data instead.
    const int nBlocks = std::max(0, (nData - buffSize) / buffStep + 1);
    const int rest = nData - nBlocks * buffStep;
    int count = 0;
    float last = 0.0f;  // a buffer that yields no record at all reads as voiceless
    std::vector<float> padded;
    for (int b = 0; b < nBlocks; ++b) {
        const float* block = data + static_cast<std::ptrdiff_t>(b) * buffStep;
        // A recording shorter than a full buffer but longer than its step is still handed over as a full buffer.
        // The tracker would read past the recording's end, so it gets a copy padded with zeros instead: a short
        // recording must never end the program or read what is not its own.
        if (static_cast<long long>(b) * buffStep + buffSize > nData) {
            padded.assign(static_cast<std::size_t>(buffSize), 0.0f);
            std::copy(block, data + nData, padded.begin());
            block = padded.data();
        }
        if (!f0Process(&t, block, buffSize)) return false;
        collectOutput(t, out, nOut, count, last);
    }
    // The last call gets what remains. When nothing remains it is not made: the tracker requires samples in every
    // buffer and would end the program, and a short recording must simply give a curve (voiceless if no frame
    // resulted).
    if (rest > 0) {
        if (!f0Process(&t, data + static_cast<std::ptrdiff_t>(nBlocks) * buffStep, rest)) return false;
        collectOutput(t, out, nOut, count, last);
    }
    for (; count < nOut; ++count) out[count] = last;
    return true;
}

}  // namespace

bool f0WindowsFit(const F0Obj& t) {
    return t.windowSize >= 1 && t.framesPerBuff >= 1 && t.statWindow <= t.frameStep + t.tailSize;
}

std::unique_ptr<F0Obj> f0CreateTracker(int sampFreq, int minF0, int maxF0, int frameRate) {
    std::unique_ptr<F0Obj> tracker = f0Create();
    if (!tracker) return nullptr;
    // The step passes through six decimals of text on purpose: 1/90 s becomes 0.011111 s, which fixes the frame
    // step in samples (122 rather than 123 at 11025 Hz).
    if (!f0SetParam(tracker.get(), paramText("frame_step", 1.0 / frameRate).c_str()) ||
        !f0SetParam(tracker.get(), paramText("min_f0", minF0).c_str()) ||
        !f0SetParam(tracker.get(), paramText("max_f0", maxF0).c_str()))
        return nullptr;
    int buffSize = 0;
    int buffStep = 0;
    if (!f0Init(tracker.get(), sampFreq, &buffSize, &buffStep)) return nullptr;
    if (!f0WindowsFit(*tracker)) {
        f0Message(kWindowsDoNotFit);
        return nullptr;
    }
    return tracker;
}

int f0TrackLength(int nData, int sampFreq, int frameRate) {
    return f0Trunc(static_cast<double>(nData) / sampFreq * frameRate + 0.5);
}

int f0TrackBuffer(const float* data, int nData, int sampFreq, int minF0, int maxF0, int frameRate,
                  std::vector<float>& out, int& nOut) {
    out.clear();
    nOut = 0;
    try {
        std::unique_ptr<F0Obj> tracker = f0CreateTracker(sampFreq, minF0, maxF0, frameRate);
        if (!tracker) return 0;
        const int count = std::max(0, f0TrackLength(nData, sampFreq, frameRate));
        out.assign(static_cast<std::size_t>(count) + 1, 0.0f);
        if (!trackBlocks(*tracker, data, nData, out, count)) {
            out.clear();
            return 0;
        }
        nOut = count;
        return 1;
    } catch (const std::bad_alloc&) {
        out.clear();
        return 0;
    }
}

std::vector<F0Chunk> f0CurveChunks(int nSamples, int sampRate) {
    std::vector<F0Chunk> chunks;
    // Whole seconds, then tenths of the 10-second chunk, kept as a float.
    const float blocks = static_cast<float>((nSamples / sampRate) / 10.0);
    const long long chunkLength = 10LL * sampRate;
    long long position = 0;
    long long remaining = nSamples;
    for (int i = 0;; ++i) {
        const bool last = !(blocks - static_cast<float>(i) >= 2.0);
        const long long length = last ? remaining : chunkLength;
        chunks.push_back({static_cast<int>(position), static_cast<int>(length)});
        if (last) break;
        remaining -= chunkLength;
        position += chunkLength;
    }
    return chunks;
}

namespace {

// One chunk's values; a chunk the tracker cannot run on reads as voiceless, so that later chunks keep their time.
// The chunk's samples become floats, value for value, in `floats`, which each thread reuses from chunk to chunk.
std::vector<float> trackChunk(const short* samples, const F0Chunk& chunk, int sampRate, const F0CurveSettings& s,
                              std::vector<float>& floats) {
    floats.assign(samples + chunk.start, samples + chunk.start + chunk.length);
    floats.push_back(0.0f);
    std::vector<float> out;
    int nOut = 0;
    if (!f0TrackBuffer(floats.data(), chunk.length, sampRate, s.minF0, s.maxF0, s.frameRate, out, nOut)) {
        out.assign(static_cast<std::size_t>(std::max(0, f0TrackLength(chunk.length, sampRate, s.frameRate))), 0.0f);
        return out;
    }
    out.resize(static_cast<std::size_t>(nOut));
    return out;
}

// Runs work(i, store) for every i below count on up to `threads` threads, the calling thread included; each thread
// has a working store of its own. Returns false if memory ran out on any of them.
template <typename Work>
bool runChunks(std::size_t count, int threads, Work work) {
    std::atomic<std::size_t> next{0};
    std::atomic<bool> failed{false};
    const auto worker = [&] {
        try {
            std::vector<float> store;
            for (std::size_t i = next++; i < count; i = next++) work(i, store);
        } catch (const std::bad_alloc&) {
            failed = true;
        }
    };
    std::vector<std::thread> pool;
    const std::size_t extra = std::min(count, static_cast<std::size_t>(std::max(1, threads))) - 1;
    for (std::size_t i = 0; i < extra; ++i) {
        try {
            pool.emplace_back(worker);
        } catch (const std::system_error&) {
            break;  // fewer threads: the chunks still all get done
        }
    }
    worker();
    for (std::thread& thread : pool) thread.join();
    return !failed;
}

// Below 4000 Hz there would be no decimation filter and f0Init would fail its assertion; a file of such a rate,
// placed by hand in a client folder, must not end the program, so its curve is voiceless throughout.
constexpr int kLowestTrackedRate = 4000;

}  // namespace

void computeF0Curve(F0Curve& curve, const short* samples, int nSamples, int sampRate, const F0CurveSettings& settings) {
    curve.values.clear();
    curve.valid = false;
    if (sampRate <= 0 || nSamples < 0) return;
    try {
        const std::vector<F0Chunk> chunks = f0CurveChunks(nSamples, sampRate);
        std::vector<std::vector<float>> parts(chunks.size());
        if (sampRate < kLowestTrackedRate) {
            for (std::size_t i = 0; i < chunks.size(); ++i)
                parts[i].assign(std::max(0, f0TrackLength(chunks[i].length, sampRate, settings.frameRate)), 0.0f);
        } else {
            const int threads =
                settings.threads > 0 ? settings.threads : static_cast<int>(std::thread::hardware_concurrency());
            const bool done = runChunks(chunks.size(), threads, [&](std::size_t i, std::vector<float>& store) {
                parts[i] = trackChunk(samples, chunks[i], sampRate, settings, store);
            });
            if (!done) return;
        }
        std::size_t total = 0;
        for (const auto& part : parts) total += part.size();
        curve.values.reserve(total);
        for (const auto& part : parts) curve.values.insert(curve.values.end(), part.begin(), part.end());
        curve.valid = true;
    } catch (const std::bad_alloc&) {
        curve.values.clear();
    }
}

float liveF0Value(const short* samples, int nSamples, int sampRate) {
    if (sampRate < kLowestTrackedRate) return 0.0f;  // no decimation filter below 4000 Hz: see computeF0Curve
    const int block = sampRate == 22050 ? 6000 : sampRate == 44100 ? 12000 : 3000;
    try {
        // The samples given, then zeros; the last element stays zero too.
        std::vector<float> data(static_cast<std::size_t>(block) + 1, 0.0f);
        std::copy(samples, samples + std::clamp(nSamples, 0, block), data.begin());
        std::vector<float> out;
        int nOut = 0;
        if (f0TrackBuffer(data.data(), block - 1, sampRate, 70, 1400, 90, out, nOut) && nOut > 0) return out[0];
    } catch (const std::bad_alloc&) {
    }
    return 0.0f;
}
