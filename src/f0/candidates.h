// The pitch candidates of one frame: a coarse normalised cross-correlation over every lag of the decimated signal,
// then a fine one at the full rate around each coarse peak, then one voiceless candidate at the end.
#pragma once

struct F0Obj;
struct F0Frame;

// Fills curFrame's correlations and candidates for frame `frameNum` of the buffer starting at `data`. Returns 1, or
// 0 if a correlation pass fails.
int getCandidates(F0Obj* f0Obj, const float* data, int frameNum, F0Frame* curFrame);

// Normalised correlation of the first `size` samples with the samples `firstLag` ... `firstLag` + nLags - 1 later,
// the window's mean taken off everything. `xcorData` receives the mean-removed copy. Returns 1.
int crossCorrLow(const float* data, float* xcorData, int size, int firstLag, int nLags, float* normCorrel,
                 float* maxval);
// The same at the full rate, only over `nlags` lags around each of the `nlocs` locations, with 10000.0 (on the
// 16-bit scale) added under the root so that weak signals correlate less. The other entries of the `nlags0` are 0.
// xcorData and normCorrel need kCorrelationSlack spare values. Returns 1.
int crossCorrHigh(const float* data, float* xcorData, int size, int start0, int nlags0, int nlags, const int* locs,
                  int nlocs, float* normCorrel, float* maxval);
// The local maxima above threshold * maxval; the first lag and the last two are never peaks.
void getPeaks(const float* correl, int nLags, int firstLag, float maxval, float threshold, float* peaks, int* lags,
              int* nCand);
// Moves a coarse peak (y[1], with its neighbours) to the full-rate lag of the parabola's vertex and weights its
// value against long lags.
void refinePeak(const float* y, int decimate, float lagWeight, int* lag, float* peak);
// Puts the nBest largest peaks first, in descending order (a partial bubble sort; equal peaks keep their order).
void sortPeaks(int* lags, float* peaks, int nCand, int nBest);

// Correlation sums out[l] = x[0] * y[l] + x[1] * y[l + 1] + ... over `size` terms, for l below `count`, each summed
// in that order. With fewer than 8 lags it reads up to y[size + 6], past the last lag's window.
void correlateLags(const float* x, const float* y, int size, int count, float* out);
// Spare values at the end of the tracker's correlation arrays: the fine pass sums 8 lags where it needs 7, and a
// neighbourhood near the last lag may reach a little past it.
inline constexpr int kCorrelationSlack = 8;
