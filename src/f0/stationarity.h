// How fast the spectrum changes from frame to frame, measured from LPC analyses of two windows of the signal; the
// path search of the F0 tracker prices voicing changes with it.
#pragma once

#include <vector>

struct F0Obj;

// One per frame of the current buffer.
struct F0Stat {
    float stat = 0.0f;      // the stationarity measure: large where the spectrum changes fast
    float rms = 0.0f;       // windowed RMS of the current window
    float rmsRatio = 0.0f;  // RMS of the current window over that of the earlier window
};

// One element of the ring of recent analyses, which stands in for the earlier window's analysis.
struct WindStat {
    std::vector<float> autoc;  // lpcOrder + 1 autocorrelation values
    float err = 0.0f;          // LPC residual of that analysis
    float rms = 0.0f;          // windowed RMS of that analysis
};

// Fills f0Obj->stat for `nFrames` frames of one buffer of `buffSize` samples and carries samples over to the next
// buffer. Returns 1.
int stationarityCompute(F0Obj* f0Obj, const float* data, int buffSize, int nFrames);
// The measure for one frame from a window of `size` samples at `curData` and an earlier one at `prevData` (either
// may be null when there is no past).
F0Stat stationarityFrame(F0Obj* f0Obj, const float* prevData, const float* curData, int size);

// The ring of recent analyses: element 0 the oldest, the last the newest.
int windStatInit(F0Obj* f0Obj, int windStatLim);
void windStatFree(F0Obj* f0Obj);
// Rotates the ring by one and overwrites the newest. Returns 0 if the ring has no elements.
int windStatStore(F0Obj* f0Obj, const float* autoc, int order, float err, float rms);
// Copies out the oldest element if the ring is full; otherwise returns 0.
int windStatOldest(F0Obj* f0Obj, float* autoc, int order, float* err, float* rms);

// The LPC distance of the coefficients `a` from the autocorrelation `r` with residual `err`.
float itakuraRatio(const float* a, const float* r, float err, int order);
// The autocorrelation c[0..p] of the polynomial 1, a[0] ... a[p-1]; c[1..p] count both sides of the symmetric sum.
void polyAutocorr(const float* a, float* c, int p);
