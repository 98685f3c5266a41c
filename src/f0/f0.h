// The fundamental-frequency tracker: float samples on the 16-bit scale in, one F0 value per frame out. Each frame
// gets pitch candidates from normalised cross-correlation plus one voiceless candidate, and a dynamic programme
// links them; frames are released, oldest first, once all surviving paths agree on them.
//
// Calling order: f0Create, any number of f0SetParam, f0Init once, then per buffer f0Process followed by
// f0NumOutput and f0GetOutput. One tracker serves one sampling frequency and one continuous signal.
#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "f0/downsample.h"
#include "f0/sigproc.h"
#include "f0/stationarity.h"

inline constexpr int f0NumParams = 13;
inline constexpr int MAX_CAND = 12;

// The parameter table, in the order of F0Obj::pars. Every value is held as a 32-bit float, n_cands too.
struct F0ParamDefault {
    std::string_view name;
    float value;
};
inline constexpr std::array<F0ParamDefault, f0NumParams> f0ParamDefaults{{
    {"cand_thresh", 0.3f},   // fraction of the frame's largest correlation that a peak must exceed, 0.01 to 0.99
    {"lag_weight", 0.3f},    // bias against long lags, used over lastLag
    {"freq_weight", 0.02f},  // voiced-to-voiced transition weight, used over the frame step in seconds
    {"trans_cost", 0.005f},  // fixed cost of a voicing change
    {"trans_amp", 0.5f},     // weight of the amplitude ratio in a voicing change
    {"trans_spec", 0.5f},    // weight of the stationarity measure in a voicing change
    {"voice_bias", 0.0f},    // added to the voiceless candidate's cost
    {"double_cost", 0.35f},  // cost of an octave jump between voiced frames
    {"min_f0", 50.0f},       // lowest F0 searched, Hz
    {"max_f0", 550.0f},      // highest F0 searched, Hz
    {"frame_step", 0.01f},   // seconds, 1/sampFreq to 0.1
    {"wind_dur", 0.0075f},   // correlation window, seconds, 0.0001 to 0.1
    {"n_cands", 20.0f},      // most candidates per frame, the voiceless one included, 3 to 100
}};
enum F0ParamIndex {
    kCandThresh = 0,
    kLagWeight,
    kFreqWeight,
    kTransCost,
    kTransAmp,
    kTransSpec,
    kVoiceBias,
    kDoubleCost,
    kMinF0,
    kMaxF0,
    kFrameStep,
    kWindDur,
    kNCands,
};

inline constexpr std::string_view kCandThreshRange = "F0: cand_thresh parameter must be between [0.01, 0.99].\n";
inline constexpr std::string_view kWindDurRange = "F0: wind_dur parameter must be between [0.0001, 0.1].\n";
inline constexpr std::string_view kNCandsRange = "F0: n_cands parameter must be between [3,100].\n";
inline constexpr std::string_view kMinMaxF0Inconsistent =
    "F0: min(max)_f0 parameter inconsistent with record frequency\n";
inline constexpr std::string_view kFrameStepRange = "F0: frame_step parameter must be between [1/sampFreq, 0.1]\n";
inline constexpr std::string_view kInvalidParameters = "F0: invalid/inconsistent parameters -- exiting.\n";
inline constexpr std::string_view kOrderLimited = "F0: Optimum order limited to %d\n";
inline constexpr std::string_view kFilterDesignFailed = "Error computing downsampling filter\n";
inline constexpr std::string_view kWindStatAllocFailed = "windstat malloc failed\n";
inline constexpr std::string_view kStatBufferAllocFailed = "Error allocating memory for stat buffer\n";
inline constexpr std::string_view kFilteredAllocFailed = "Can't allocate memory for dowsampled signal\n";
inline constexpr std::string_view kStabilityAllocFailed = "Error allocating memory for stability\n";
inline constexpr std::string_view kFrameAllocFailed = "Error allocating frame";
inline constexpr std::string_view kPathcandsAllocFailed = "can't allocate pathcands\n";
inline constexpr std::string_view kOutputAllocFailed = "Error allocating output buffer\n";
inline constexpr std::string_view kPeakValsAllocFailed = "peakVals malloc failed\n";
inline constexpr std::string_view kPeakLagsAllocFailed = "peakLags malloc failed\n";
inline constexpr std::string_view kXcorDataAllocFailed = "Error allocating xcorData\n";
inline constexpr std::string_view kDownsampleFailed = "F0: can't get downsampled data.\n";
inline constexpr std::string_view kStationarityFailed = "F0: can't get stationarity\n";
inline constexpr std::string_view kOutputReallocFailed = "Error reallocating output frames\n";
inline constexpr std::string_view kTooManyRequests = "F0: too many requests (%d) for space allocation\n %s";
inline constexpr std::string_view kConvergenceProblem = "There may be a problem in finding converged path\n";
// Ours: settings whose analysis windows do not fit in the tracker's buffers are refused before any buffer is read.
inline constexpr std::string_view kWindowsDoNotFit =
    "F0: frame_step, min_f0 and max_f0 leave the analysis windows no room in a buffer\n";

// One candidate of a frame.
struct F0Cand {
    int lag = 0;      // lag in samples at the full rate, -1 for the voiceless candidate
    float cost = 0;   // local cost, then the accumulated cost of the best path through it
    int prevIdx = 0;  // index of the best predecessor in the previous frame's cands
};

// A frame of the ring of pending frames. The tracker owns every frame; next and prev only link them, so that
// frames are reused in ring order.
struct F0Frame {
    float rms = 0.0f;           // windowed RMS of the frame, from the stationarity stage
    std::vector<float> correl;  // nLags normalised correlations (and a little slack), lag L at L - firstLag
    std::vector<F0Cand> cands;  // room for n_cands candidates
    int nCands = 0;             // candidates in use, 0 in a new frame
    F0Frame* next = nullptr;
    F0Frame* prev = nullptr;
};

// One released frame.
struct F0Output {
    float f0 = 0.0f;  // Hz, exactly 0.0 when voiceless
    float rms = 0.0f;
};

// The tracker. Sizes are in samples at the full rate unless named low (the decimated rate).
struct F0Obj {
    std::array<float, f0NumParams> pars{};
    double sampFreq = 0.0;  // Hz
    int lpcOrder = 0;       // LPC order of the stationarity measure

    std::vector<F0Output> output;  // released records, newest first
    int outputCap = 0;
    int nOutput = 0;  // records released by the last f0Process

    int decimate = 0;                          // decimation factor of the low-rate signal
    std::unique_ptr<DownsampleFilter> filter;  // null when decimate is 1
    std::vector<float> filtered;               // the low-rate signal of the current buffer
    int nFiltered = 0;

    int statWindow = 0;  // stationarity window
    int statLag = 0;     // distance between the two stationarity windows
    std::vector<WindStat> windStat;
    int windStatLim = 0;
    int windStatCount = 0;
    std::vector<float> statMem;  // samples carried between buffers, zero at start
    int statMemSize = 0;
    int statPrimed = 0;  // 1 once a buffer has been through the stationarity stage
    std::vector<F0Stat> stat;
    int statCap = 0;

    F0Frame* curFrm = nullptr;  // the newest frame processed
    F0Frame* head = nullptr;    // the oldest frame not yet released
    int frameAlloc = 0;         // frames per allotment of the ring
    int nExtensions = 0;        // times the ring was extended
    int minConvFrames = 0;      // pending frames before convergence is looked for
    int maxConvFrames = 0;      // pending frames at which release is forced
    int nPending = 0;           // frames processed and not yet released

    std::vector<int> pathcands;
    int peakCap = 0;
    std::vector<int> peakLags;
    std::vector<float> peakVals;

    int buffSize = 0;               // samples that a full f0Process call takes
    int buffStep = 0;               // samples by which the caller moves between full calls
    int tailSize = 0;               // samples at a buffer's end that start no frame
    float freqWeightScaled = 0.0f;  // freq_weight over the frame step in seconds
    float lagWeightScaled = 0.0f;   // lag_weight over lastLag
    std::vector<float> xcorData;    // mean-removed copy of the samples for correlation
    int windowSize = 0;             // correlation window
    int frameStep = 0;
    int nLags = 0;
    int firstLag = 0;
    int lastLag = 0;
    int xcorSize = 0;
    int framesPerBuff = 0;
    int filteredSize = 0;
    int lowBlock = 0;  // low-rate samples that one frame needs
    int lowFirstLag = 0;
    int lowNLags = 0;
    int lowWindowSize = 0;
    int lowFrameStep = 0;

    std::vector<std::unique_ptr<F0Frame>> frames;  // every frame of the ring, in allocation order
    SigprocCache sigproc;                          // the windows of Energy and lpc
};

// A new tracker with the defaults in place, or null if memory runs out.
std::unique_ptr<F0Obj> f0Create() noexcept;
// Frees the tracker and empties *f0Obj.
void f0Destroy(std::unique_ptr<F0Obj>* f0Obj);
// "name=value": sets the named parameter, converting the value as atof does, with no range check. Returns 1, or 0 if
// there is no '=', the name is unknown, or memory runs out.
int f0SetParam(F0Obj* f0Obj, const char* str);
// The value of a parameter, 0.0 for an unknown name.
float f0GetParam(F0Obj* f0Obj, const char* name);
// Checks the parameters (printing a message for each broken rule) after snapping frame_step to whole samples.
bool f0CheckParams(float* pars, double sampFreq);
// Validates, derives every size and allocates. Returns 1 with the full buffer's size and the step between full
// buffers, or 0.
int f0Init(F0Obj* f0Obj, double sampFreq, int* buffSize, int* buffStep);
// Tracks one buffer. A buffer shorter than buffSize is the last one and forces out every pending frame. Returns 1,
// or 0 on failure.
int f0Process(F0Obj* f0Obj, const float* data, int nData);
int f0NumOutput(const F0Obj* f0Obj);
// The record at `idx` of the last release, 0 the oldest.
F0Output f0GetOutput(const F0Obj* f0Obj, int idx);

// The frame ring.
std::unique_ptr<F0Frame> frameCreate(int nlags, int nCands);
void frameInsert(F0Frame** head, F0Frame* frm);
F0Frame* frameNext(F0Frame* frm);
F0Frame* framePrev(F0Frame* frm);
F0Frame* frameAdvance(F0Frame** frm);
F0Frame* frameRewind(F0Frame** frm);
// Adds frameAlloc frames after curFrm when the ring is full. Returns 0 after six extensions.
int f0ExtendFrames(F0Obj* f0Obj);

// The path search.
void f0DpStep(F0Obj* f0Obj, F0Stat stat, F0Frame* curFrame, F0Frame* prevFrame);
int f0FindConverged(F0Obj* f0Obj, F0Frame* curFrame, int isLast, F0Frame** convFrame, int* bestPath);
float f0RefineLag(const float* correl, int lag, int firstLag, int lastLag);

// --- The layers that give the tracker this system's settings ---

// Whether an initialised tracker's analysis windows fit in its buffers. The tracker's own checks let through frame
// steps and F0 ranges with which the stationarity window of a buffer's last frame would run past the buffer (its
// assertion), wind_dur values that leave no correlation window, and ranges that leave no frame in a buffer.
bool f0WindowsFit(const F0Obj& t);

// A tracker set up as f0TrackBuffer sets one up (the frame step passing through six decimals of text) and
// initialised, or null, after the tracker's messages, if it cannot run so. Also null when the analysis windows do
// not fit in a buffer, which the tracker's own checks let through.
std::unique_ptr<F0Obj> f0CreateTracker(int sampFreq, int minF0, int maxF0, int frameRate);
// The number of values f0TrackBuffer gives for `nData` samples.
int f0TrackLength(int nData, int sampFreq, int frameRate);
// Tracks one buffer of `nData` samples from start to end. Returns 1 with `nOut` F0 values in `out` (which holds
// nOut + 1), or 0 with `out` empty. Frame rate in frames a second.
int f0TrackBuffer(const float* data, int nData, int sampFreq, int minF0, int maxF0, int frameRate,
                  std::vector<float>& out, int& nOut);

// A whole recording's F0: one value per frame (90 a second unless told otherwise), exactly 0 when voiceless.
struct F0Curve {
    std::vector<float> values;  // Hz
    bool valid = false;         // computed for the samples now loaded
    int count() const { return static_cast<int>(values.size()); }
};

// What a whole-recording analysis runs with: the system's settings by default.
struct F0CurveSettings {
    int minF0 = 60;      // Hz
    int maxF0 = 1400;    // Hz
    int frameRate = 90;  // frames a second
    int threads = 0;     // how many chunks may be tracked at once; 0: one per core
};

// A 10-second piece of a recording, tracked on its own.
struct F0Chunk {
    int start = 0;   // first sample
    int length = 0;  // samples
};
// The chunks of a recording: 10 seconds each, the last holding 10 to 20 seconds (or all of a shorter recording).
std::vector<F0Chunk> f0CurveChunks(int nSamples, int sampRate);

// Tracks a whole recording in 10-second chunks, each with a tracker of its own (so the path search restarts every
// 10 seconds), on up to settings.threads threads; the result does not depend on the number of threads.
void computeF0Curve(F0Curve& curve, const short* samples, int nSamples, int sampRate,
                    const F0CurveSettings& settings = {});

// One F0 value in Hz for the meter during recording, from the first frame of the samples given (1024 of them),
// or 0.0.
float liveF0Value(const short* samples, int nSamples, int sampRate);
