// One stage of a sample-rate conversion: the signal is zero-stuffed by `up` to the working rate, passed through the
// stage's low-pass forward and then backward (so that nothing is delayed), and every `down`-th value is kept.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "EllipticFilter.h"

// Called now and then with the fraction of the work done, 0 to 1. Returning false asks for the work to stop.
using ConversionProgress = std::function<bool(double fractionDone)>;

class ZeroPhaseResampler {
public:
    // `sections` run in the given order at the working rate, `up` times the input rate. 1 <= up, down.
    ZeroPhaseResampler(int up, int down, std::vector<BiquadSection> sections);

    // Fills `output` with the converted signal: output value i stands at time i * down / up input samples, and
    // input values past the end count as silence, so outputs beyond up * n / down hold the filters' decaying tail.
    // Returns false, leaving `output` incomplete, when `progress` asks to stop.
    bool run(std::span<const float> input, std::span<float> output, const ConversionProgress& progress) const;

    // Steps of the working rate after which the filter's response to a value has died away (below 1e-13 of it).
    long long decaySteps() const noexcept { return m_decaySteps; }

    // Estimated multiply-adds per input value for a stage with these factors and this many filter state values.
    static double workPerInput(int up, int down, int stateSize);

private:
    class Sweeps;
    void buildMaps();
    void simulateBlock(std::span<const double> s0, std::span<const double> x, std::span<const double> qEnd,
                       std::span<double> sEnd, std::span<double> y, std::span<double> qStart) const;

    int m_up;
    int m_down;
    std::vector<BiquadSection> m_sections;
    int m_states;            // two per section
    int m_periods;           // a block spans this many times up * down working steps
    int m_blockInputs;       // input values a block takes
    int m_blockOutputs;      // output values a block gives
    long long m_decaySteps;  // see decaySteps()
    int m_forwardRows;       // rows of the matrices as stored: whole groups of four
    int m_backwardRows;
    std::vector<double> m_forward;   // [state; inputs] -> state at the block's end, column by column
    std::vector<double> m_backward;  // [backward state at end; forward state at start; inputs] -> [outputs; backward
                                     // state at start], column by column
};
