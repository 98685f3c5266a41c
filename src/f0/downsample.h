// The decimation stage of the F0 tracker: a windowed-sinc low-pass of about 5 ms and the low-rate copy of each
// buffer that the coarse candidate pass searches.
#pragma once

#include <memory>
#include <vector>

struct F0Obj;

struct DownsampleFilter {
    int length = 0;             // number of taps, always odd
    std::vector<float> coef;    // `length` taps
    std::vector<float> memory;  // `length`/2 input samples carried over from the previous buffer, zero at start
    // Working store of the filter: the buffer split into its `decimate` phases, so that outputs can be computed
    // side by side, and where each tap reads in it. Sized at the first buffer.
    std::vector<float> phases;
    std::vector<int> tapOffsets;
    int phaseStride = 0;
};

// Designs the filter for a decimation by `decimate` at `sampFreq` Hz into *filter. Returns 1, or 0 if memory runs
// out (*filter is then empty).
int downsampleFilterDesign(float sampFreq, int decimate, std::unique_ptr<DownsampleFilter>* filter);
void downsampleFilterFree(std::unique_ptr<DownsampleFilter>* filter);
int downsampleFilterLength(const DownsampleFilter* filter);

// Filters `nInput` samples of one buffer into f0Obj->filtered, one whole-numbered output per `decimate` inputs, and
// keeps the samples that the next buffer's first outputs need. Returns 1.
int downsample(F0Obj* f0Obj, const float* input, int nInput);
