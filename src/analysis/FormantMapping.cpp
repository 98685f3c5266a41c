#include "analysis/FormantMapping.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "base/Assert.h"

namespace {

class CandidateBuilder {
public:
    CandidateBuilder(int nPoles, std::span<const float> freqs, int nForm, const SlotTable& slots, MappingTable& table)
        : m_nPoles(nPoles), m_freqs(freqs), m_nForm(nForm), m_slots(slots), m_table(table) {}

    int build() {
        m_row = 0;
        step(0, 0);
        return m_row + 1;
    }

private:
    bool fits(int p, int s) const { return m_freqs[p] >= m_slots[s].lowest && m_freqs[p] <= m_slots[s].highest; }
    int& entry(int s) { return m_table.rows[static_cast<std::size_t>(m_row)][static_cast<std::size_t>(s)]; }

    // Fills slot `s` and those above it in the current row, starting with pole `p`; opens a new row for each
    // pole that could take the same slot instead.
    void step(int p, int s) {
        if (s < m_nForm) entry(s) = -1;
        if (p < m_nPoles && s < m_nForm) {
            if (fits(p, s)) {
                entry(s) = p;
                step(p + 1, s + 1);
                const bool roomLeft = m_row + 1 < static_cast<int>(m_table.rows.size());
                if (p + 1 < m_nPoles && fits(p + 1, s) && roomLeft) {
                    ++m_row;
                    const Mapping& previous = m_table.rows[static_cast<std::size_t>(m_row) - 1];
                    for (int i = 0; i < s; ++i) entry(i) = previous[static_cast<std::size_t>(i)];
                    step(p + 1, s);
                }
                return;
            }
            step(p + 1, s);
            return;
        }
        if (p >= m_nPoles && s < m_nForm - 1 && entry(s) < 0) {
            // No pole left for this slot: go on to the next slot from the pole of the nearest filled slot
            // below. That pole may thus be offered again to a higher slot.
            int j = s - 1;
            while (j >= 0 && entry(j) < 0) --j;
            step(j >= 0 ? entry(j) : 0, s + 1);
        }
    }

    int m_nPoles;
    std::span<const float> m_freqs;
    int m_nForm;
    const SlotTable& m_slots;
    MappingTable& m_table;
    int m_row = 0;
};

// The mappings of every frame side by side, with the frequencies each gives its slots (0 when unfilled: every
// pole lies above 1 Hz), their cumulative error and their best predecessor.
struct Lattice {
    std::vector<std::size_t> first;  // per frame, index of its first mapping; first[i + 1] - first[i] mappings
    std::vector<std::array<std::int8_t, formant::nFormants>> poles;
    std::vector<std::array<float, formant::nFormants>> freqs;
    std::vector<double> cumulative;
    std::vector<int> predecessor;

    int count(std::size_t frame) const { return static_cast<int>(first[frame + 1] - first[frame]); }
};

Lattice buildLattice(std::span<const PoleFrame> frames, int nForm, const SlotTable& slots, MappingTable& table) {
    Lattice lattice;
    lattice.first.reserve(frames.size() + 1);
    lattice.first.push_back(0);
    for (const PoleFrame& frame : frames) {
        int count = 0;
        if (frame.nPoles > 0) {
            std::array<float, formant::maxPoles> freqs{};
            for (int p = 0; p < frame.nPoles; ++p) freqs[static_cast<std::size_t>(p)] = frame.poles[p].freq;
            count =
                buildCandidates(frame.nPoles, std::span<const float>(freqs).first(frame.nPoles), nForm, slots, table);
        }
        for (int m = 0; m < count; ++m) {
            std::array<std::int8_t, formant::nFormants> poles{};
            std::array<float, formant::nFormants> freqs{};
            for (int s = 0; s < formant::nFormants; ++s) {
                const int pole = s < nForm ? table.rows[static_cast<std::size_t>(m)][static_cast<std::size_t>(s)] : -1;
                poles[s] = static_cast<std::int8_t>(pole);
                freqs[s] = pole >= 0 ? frame.poles[pole].freq : 0.0f;
            }
            lattice.poles.push_back(poles);
            lattice.freqs.push_back(freqs);
        }
        lattice.first.push_back(lattice.poles.size());
    }
    lattice.cumulative.assign(lattice.poles.size(), 0.0);
    lattice.predecessor.assign(lattice.poles.size(), -1);
    return lattice;
}

struct Weights {
    double transition;
    double deviation;
    double bandwidth;
};

// The local cost of a mapping: distance of each slot from its nominal frequency and the bandwidths, with fixed
// terms for an unfilled slot.
double localCost(const PoleFrame& frame, const std::array<std::int8_t, formant::nFormants>& poles, int nForm,
                 const SlotTable& slots, const Weights& w) {
    double bandSum = 0.0;
    double deviationSum = 0.0;
    for (int s = 0; s < nForm; ++s) {
        if (poles[s] >= 0) {
            const Pole& pole = frame.poles[poles[s]];
            bandSum += pole.band;
            deviationSum += std::fabs(static_cast<double>(pole.freq) - slots[s].nominal) / slots[s].nominal;
        } else {
            bandSum += formant::noBandwidth;
            deviationSum += formant::missingCost;
        }
    }
    return deviationSum * w.deviation + bandSum * w.bandwidth;
}

// The best predecessor of each mapping of frame i among those of frame i - 1: the change of each slot's
// frequency, weighted by the frame's share of the loudest frame's rms, plus the predecessor's cumulative error.
// A strictly lower cost wins, so the first of equals stays.
void linkFrame(Lattice& lattice, std::size_t i, double rmsShare, int nForm, const Weights& w) {
    const std::size_t begin = lattice.first[i - 1];
    const std::size_t end = lattice.first[i];
    for (std::size_t j = lattice.first[i]; j < lattice.first[i + 1]; ++j) {
        const std::array<float, formant::nFormants>& fj = lattice.freqs[j];
        std::array<double, formant::nFormants> f{};
        for (int s = 0; s < nForm; ++s) f[s] = fj[s];
        double minErr = 2e+30;
        int best = -1;
        for (std::size_t k = begin; k < end; ++k) {
            const std::array<float, formant::nFormants>& gk = lattice.freqs[k];
            double sum = 0.0;
            for (int s = 0; s < nForm; ++s) {
                const double g = gk[s];
                if (f[s] > 0.0 && g > 0.0) {
                    const double change = 2.0 * std::fabs(f[s] - g) / (f[s] + g);
                    sum += change * change;
                } else {
                    sum += formant::missingCost;
                }
            }
            const double cost = sum * rmsShare * w.transition + lattice.cumulative[k];
            if (cost < minErr) {
                minErr = cost;
                best = static_cast<int>(k - begin);
            }
        }
        lattice.cumulative[j] += minErr;
        lattice.predecessor[j] = best;
    }
}

Pole nominalPole(const FormantSlot& slot) { return Pole{slot.nominal, 0.0f, static_cast<float>(formant::noBandwidth)}; }

// Walks back from the last frame along the predecessors, writing each frame's slots; where a path ends, the
// next frame back starts a new one from its cheapest mapping.
void backtrack(std::span<PoleFrame> frames, const Lattice& lattice, int nForm, const SlotTable& slots) {
    int current = -1;  // mapping of the running path in this frame, -1 when no path runs
    for (std::size_t i = frames.size(); i-- > 0;) {
        PoleFrame& frame = frames[i];
        const int count = lattice.count(i);
        if (current < 0 && count > 0) {
            const std::size_t first = lattice.first[i];
            current = 0;
            for (int m = 1; m < count; ++m)
                if (lattice.cumulative[first + m] < lattice.cumulative[first + current]) current = m;
        }
        std::array<Pole, formant::maxPoles> slotted{};
        if (current < 0) {
            for (int s = 0; s < nForm; ++s) slotted[s] = nominalPole(slots[s]);
        } else {
            const std::size_t m = lattice.first[i] + static_cast<std::size_t>(current);
            for (int s = 0; s < nForm; ++s) {
                const int pole = lattice.poles[m][s];
                if (pole >= 0) {
                    slotted[s] = frame.poles[pole];
                } else {
                    // An unfilled slot holds the value the following frame has, or the nominal one at the end.
                    slotted[s] = i + 1 < frames.size() ? frames[i + 1].poles[s] : nominalPole(slots[s]);
                }
            }
            current = lattice.predecessor[m];
        }
        frame.poles = slotted;
        frame.nPoles = nForm;
    }
}

}  // namespace

int buildCandidates(int nPoles, std::span<const float> freqs, int nForm, const SlotTable& slots,
                    MappingTable& mappings) {
    SONALYS_ASSERT(nForm >= 1 && nForm <= formant::nFormants && static_cast<int>(freqs.size()) >= nPoles);
    SONALYS_ASSERT(!mappings.rows.empty());
    mappings.count = CandidateBuilder(nPoles, freqs, nForm, slots, mappings).build();
    return mappings.count;
}

void dpFormants(std::span<PoleFrame> frames, double frameRate, int nForm, double /*nominalF1*/, const SlotTable& slots,
                MappingTable& mappings) {
    SONALYS_ASSERT(nForm >= 1 && nForm <= formant::nFormants);
    if (frames.empty()) return;
    float rmsMax = 0.0f;
    for (const PoleFrame& frame : frames) rmsMax = std::max(rmsMax, frame.rms);
    const Weights w{static_cast<float>(0.01 * formant::transitionFactor * frameRate),
                    formant::deviationFactor / (0.01 * frameRate), formant::bandwidthFactor / (0.01 * frameRate)};

    Lattice lattice = buildLattice(frames, nForm, slots, mappings);
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const std::size_t begin = lattice.first[i];
        for (std::size_t j = begin; j < lattice.first[i + 1]; ++j)
            lattice.cumulative[j] = localCost(frames[i], lattice.poles[j], nForm, slots, w);
        // The first frame, and a frame after one without mappings, start paths of their own.
        if (i > 0 && lattice.count(i - 1) > 0) linkFrame(lattice, i, frames[i].rms / rmsMax, nForm, w);
    }
    backtrack(frames, lattice, nForm, slots);
}
