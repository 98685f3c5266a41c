#include "ZeroPhaseResampler.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/Assert.h"

// How the stage runs fast. Written plainly, the stage runs its filter twice over up * n working-rate steps, most of
// them fed with stuffed zeros and most of their outputs thrown away. Both passes are linear, so over a block of
// whole periods (a period is up * down working steps: `down` inputs in, `up` outputs out) they reduce to matrices:
//   forward:  the forward filter's state at the block's end, from its state at the start and the block's inputs;
//   backward: the block's outputs and the backward filter's state at the block's start, from the backward state at
//             the block's end, the forward state at the block's start and the block's inputs.
// The matrices are built once per stage by running the sections themselves on unit signals, so they are exactly
// the forward-then-backward filter at the working rate, only evaluated without the wasted steps. A first sweep runs
// the forward matrix over the blocks and keeps the forward state at the start of every segment; the second sweep
// goes from the end back to the start, recomputing each segment's forward states from the kept one.

namespace {

constexpr long long kSegmentBlocks = 256;  // blocks between two kept forward states
constexpr double kDecayLevel = 1e-13;      // a response this small, relative to the impulse, counts as gone

// One working-rate step of the cascade in transposed direct form II; `state` holds two values per section.
double stepCascade(const std::vector<BiquadSection>& sections, double* state, double value) {
    for (const BiquadSection& f : sections) {
        const double y = f.b0 * value + state[0];
        state[0] = f.b1 * value - f.a1 * y + state[1];
        state[1] = f.b2 * value - f.a2 * y;
        value = y;
        state += 2;
    }
    return value;
}

// Rows of the matrices are stored in whole groups of four (the extra rows are zeros), so that the products can be
// formed four or eight rows at a time with every partial sum held in a register.
int paddedRows(int rows) { return (rows + 3) / 4 * 4; }

void multiplyEightRows(const double* m, int stride, std::span<const double> in, double* out) {
    double s0 = 0.0, s1 = 0.0, s2 = 0.0, s3 = 0.0, s4 = 0.0, s5 = 0.0, s6 = 0.0, s7 = 0.0;
    for (const double v : in) {
        s0 += m[0] * v, s1 += m[1] * v, s2 += m[2] * v, s3 += m[3] * v;
        s4 += m[4] * v, s5 += m[5] * v, s6 += m[6] * v, s7 += m[7] * v;
        m += stride;
    }
    out[0] = s0, out[1] = s1, out[2] = s2, out[3] = s3, out[4] = s4, out[5] = s5, out[6] = s6, out[7] = s7;
}

void multiplyFourRows(const double* m, int stride, std::span<const double> in, double* out) {
    double s0 = 0.0, s1 = 0.0, s2 = 0.0, s3 = 0.0;
    for (const double v : in) {
        s0 += m[0] * v, s1 += m[1] * v, s2 += m[2] * v, s3 += m[3] * v;
        m += stride;
    }
    out[0] = s0, out[1] = s1, out[2] = s2, out[3] = s3;
}

// out = matrix * in, the matrix held column by column with `rows` (a multiple of four) rows; each sum runs over the
// columns in order.
void multiply(const double* matrix, int rows, std::span<const double> in, double* out) {
    int r = 0;
    for (; r + 8 <= rows; r += 8) multiplyEightRows(matrix + r, rows, in, out + r);
    for (; r < rows; r += 4) multiplyFourRows(matrix + r, rows, in, out + r);
}

double largestPoleRadius(const std::vector<BiquadSection>& sections) {
    double radius = 0.0;
    for (const BiquadSection& f : sections) {
        const double discriminant = f.a1 * f.a1 - 4.0 * f.a2;
        if (discriminant < 0.0) {
            radius = std::max(radius, std::sqrt(f.a2));
        } else {
            const double root = std::sqrt(discriminant);
            radius = std::max({radius, std::fabs(-f.a1 + root) / 2.0, std::fabs(-f.a1 - root) / 2.0});
        }
    }
    return radius;
}

// Multiply-adds of one block of `periods` periods: the backward matrix, and the forward matrix run twice.
double workPerBlock(int up, int down, int states, int periods) {
    const double inputs = static_cast<double>(periods) * down;
    const double backwardRows = paddedRows(periods * up + states);
    return backwardRows * (2.0 * states + inputs) + 2.0 * paddedRows(states) * (states + inputs);
}

// Longer blocks share the state terms among more inputs, but the input-to-output term grows with the square of the
// length; this is the block length with the least work per input.
int bestPeriods(int up, int down, int states) {
    int best = 1;
    for (int periods = 2; periods <= 64; ++periods) {
        if (workPerBlock(up, down, states, periods) / periods < workPerBlock(up, down, states, best) / best) {
            best = periods;
        }
    }
    return best;
}

// Calls the progress callback whenever another hundredth of the work is done.
class ProgressSteps {
public:
    ProgressSteps(const ConversionProgress& progress, double total) : m_progress(progress), m_total(total) {}
    bool advance(double work) {
        m_done += work;
        if (!m_progress || m_done * 100.0 < m_nextHundredth * m_total) return true;
        while (m_nextHundredth * m_total <= m_done * 100.0) ++m_nextHundredth;
        return m_progress(std::min(1.0, m_done / m_total));
    }

private:
    const ConversionProgress& m_progress;
    double m_total;
    double m_done = 0.0;
    int m_nextHundredth = 1;
};

}  // namespace

ZeroPhaseResampler::ZeroPhaseResampler(int up, int down, std::vector<BiquadSection> sections)
    : m_up(up), m_down(down), m_sections(std::move(sections)) {
    SONALYS_ASSERT(up >= 1 && down >= 1);
    m_states = 2 * static_cast<int>(m_sections.size());
    m_periods = bestPeriods(up, down, m_states);
    m_blockInputs = m_periods * down;
    m_blockOutputs = m_periods * up;
    const double radius = largestPoleRadius(m_sections);
    // Twice the single-pole decay time covers the slower decay of poles repeated by a cascade.
    m_decaySteps = radius > 0.0 ? 2 * static_cast<long long>(std::ceil(std::log(kDecayLevel) / std::log(radius))) : 0;
    buildMaps();
}

double ZeroPhaseResampler::workPerInput(int up, int down, int stateSize) {
    const int periods = bestPeriods(up, down, stateSize);
    return workPerBlock(up, down, stateSize, periods) / (static_cast<double>(periods) * down);
}

void ZeroPhaseResampler::simulateBlock(std::span<const double> s0, std::span<const double> x,
                                       std::span<const double> qEnd, std::span<double> sEnd, std::span<double> y,
                                       std::span<double> qStart) const {
    const int steps = m_periods * m_up * m_down;
    std::vector<double> forward(static_cast<std::size_t>(steps));
    std::copy(s0.begin(), s0.end(), sEnd.begin());
    for (int t = 0; t < steps; ++t) {
        // Stuffing up - 1 zeros after each value divides the signal's level by up; the value goes in up times as
        // large so that the passband keeps its level.
        forward[t] = stepCascade(m_sections, sEnd.data(), t % m_up == 0 ? m_up * x[t / m_up] : 0.0);
    }
    std::copy(qEnd.begin(), qEnd.end(), qStart.begin());
    for (int t = steps - 1; t >= 0; --t) {
        const double value = stepCascade(m_sections, qStart.data(), forward[t]);
        if (t % m_down == 0) y[t / m_down] = value;
    }
}

void ZeroPhaseResampler::buildMaps() {
    const int n = m_states;
    const int columns = 2 * n + m_blockInputs;  // [backward state at end; forward state at start; inputs]
    m_forwardRows = paddedRows(n);
    m_backwardRows = paddedRows(m_blockOutputs + n);  // [outputs; backward state at start]
    m_forward.assign(static_cast<std::size_t>(m_forwardRows) * (n + m_blockInputs), 0.0);
    m_backward.assign(static_cast<std::size_t>(m_backwardRows) * columns, 0.0);
    std::vector<double> unit(columns), sEnd(n), result(m_blockOutputs + n);
    const std::span<const double> all(unit);
    for (int c = 0; c < columns; ++c) {
        std::fill(unit.begin(), unit.end(), 0.0);
        unit[c] = 1.0;
        simulateBlock(all.subspan(n, n), all.subspan(2 * n), all.first(n), sEnd,
                      std::span(result).first(m_blockOutputs), std::span(result).subspan(m_blockOutputs));
        std::copy(result.begin(), result.end(), m_backward.begin() + static_cast<std::ptrdiff_t>(c) * m_backwardRows);
        if (c >= n) {
            std::copy(sEnd.begin(), sEnd.end(), m_forward.begin() + static_cast<std::ptrdiff_t>(c - n) * m_forwardRows);
        }
    }
}

// One run over a signal: the buffers, and the two sweeps.
class ZeroPhaseResampler::Sweeps {
public:
    Sweeps(const ZeroPhaseResampler& stage, std::span<const float> input, std::span<float> output,
           const ConversionProgress& progress)
        : m_stage(stage), m_input(input), m_output(output), m_n(stage.m_states) {
        const long long period = static_cast<long long>(stage.m_periods) * stage.m_up * stage.m_down;
        // Work on until the forward pass has rung out after both the last input and the last output wanted; the
        // backward pass starts there from rest.
        const long long lastStep = std::max(static_cast<long long>(input.size()) * stage.m_up,
                                            static_cast<long long>(output.size()) * stage.m_down) +
                                   stage.m_decaySteps;
        m_blocks = (lastStep + period - 1) / period;
        m_segments = (m_blocks + kSegmentBlocks - 1) / kSegmentBlocks;
        m_vector.assign(static_cast<std::size_t>(2 * m_n + stage.m_blockInputs), 0.0);
        m_result.resize(static_cast<std::size_t>(std::max(stage.m_forwardRows, stage.m_backwardRows)));
        m_kept.resize(static_cast<std::size_t>(m_segments * m_n));
        m_segmentStates.resize(static_cast<std::size_t>(kSegmentBlocks * m_n));
        m_forwardWork = static_cast<double>(stage.m_forwardRows) * (m_n + stage.m_blockInputs);
        m_backwardWork = m_forwardWork + static_cast<double>(stage.m_backwardRows) * (2 * m_n + stage.m_blockInputs);
        m_steps.emplace(progress, static_cast<double>(m_blocks) * (m_forwardWork + m_backwardWork));
    }

    // Runs the forward matrix over every block, keeping the state at the start of each segment.
    bool forward() {
        for (long long block = 0; block < m_blocks; ++block) {
            if (block % kSegmentBlocks == 0) {
                std::copy(forwardState().begin(), forwardState().end(),
                          m_kept.begin() + (block / kSegmentBlocks) * m_n);
            }
            stepForward(block);
            if (!m_steps->advance(m_forwardWork)) return false;
        }
        return true;
    }

    // Goes from the last segment to the first: recomputes the segment's forward states from the kept one, then
    // runs the backward matrix over its blocks from the last to the first.
    bool backward() {
        std::fill(m_vector.begin(), m_vector.begin() + m_n, 0.0);
        for (long long segment = m_segments - 1; segment >= 0; --segment) {
            const long long first = segment * kSegmentBlocks;
            const long long count = std::min(kSegmentBlocks, m_blocks - first);
            std::copy(m_kept.begin() + segment * m_n, m_kept.begin() + (segment + 1) * m_n, forwardState().begin());
            for (long long i = 0; i < count; ++i) {
                std::copy(forwardState().begin(), forwardState().end(), m_segmentStates.begin() + i * m_n);
                stepForward(first + i);
            }
            for (long long i = count - 1; i >= 0; --i) {
                std::copy(m_segmentStates.begin() + i * m_n, m_segmentStates.begin() + (i + 1) * m_n,
                          forwardState().begin());
                stepBackward(first + i);
                if (!m_steps->advance(m_backwardWork)) return false;
            }
        }
        return true;
    }

private:
    // The vector the matrices act on is [backward state; forward state; inputs]; the forward matrix takes the last
    // two parts.
    std::span<double> forwardPart() { return std::span(m_vector).subspan(m_n); }
    std::span<double> forwardState() { return forwardPart().first(m_n); }

    void loadInputs(long long block) {
        const int count = m_stage.m_blockInputs;
        const long long first = block * count;
        const std::span<double> inputs = forwardPart().subspan(m_n);
        for (int j = 0; j < count; ++j) {
            inputs[j] = first + j < static_cast<long long>(m_input.size()) ? m_input[first + j] : 0.0;
        }
    }

    void stepForward(long long block) {
        loadInputs(block);
        multiply(m_stage.m_forward.data(), m_stage.m_forwardRows, forwardPart(), m_result.data());
        std::copy(m_result.begin(), m_result.begin() + m_n, forwardState().begin());
    }

    void stepBackward(long long block) {
        loadInputs(block);
        multiply(m_stage.m_backward.data(), m_stage.m_backwardRows, m_vector, m_result.data());
        const int count = m_stage.m_blockOutputs;
        const long long first = block * count;
        for (int j = 0; j < count && first + j < static_cast<long long>(m_output.size()); ++j) {
            m_output[first + j] = static_cast<float>(m_result[j]);
        }
        std::copy(m_result.begin() + count, m_result.begin() + count + m_n, m_vector.begin());
    }

    const ZeroPhaseResampler& m_stage;
    std::span<const float> m_input;
    std::span<float> m_output;
    int m_n;  // state values of the filter
    long long m_blocks = 0;
    long long m_segments = 0;
    std::vector<double> m_vector;
    std::vector<double> m_result;
    std::vector<double> m_kept;           // forward state at the start of every segment
    std::vector<double> m_segmentStates;  // forward state at the start of every block of one segment
    double m_forwardWork = 0.0;
    double m_backwardWork = 0.0;
    std::optional<ProgressSteps> m_steps;
};

bool ZeroPhaseResampler::run(std::span<const float> input, std::span<float> output,
                             const ConversionProgress& progress) const {
    Sweeps sweeps(*this, input, output, progress);
    return sweeps.forward() && sweeps.backward();
}
