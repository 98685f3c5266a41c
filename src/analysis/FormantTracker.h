// Formant tracking: the first four formant frequencies of a recording for every 10 ms, by LPC analysis of
// order 12 at 10 kHz, the roots of each frame's polynomial, and a dynamic programme that gives poles to slots.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "analysis/FormantMapping.h"
#include "analysis/FormantPoles.h"
#include "analysis/Lpc.h"
#include "analysis/PolyRoots.h"
#include "store/DeclaredText.h"
#include "store/Prompt.h"

// Shown in the main frame's message pane while the formants are computed.
inline constexpr std::string_view kCalculatingFormants = SONALYS_TEXT("Sonalys", "Calculating Formants...");
// Shown when the frames of a recording do not fit in memory; the track is then left invalid.
inline constexpr std::string_view kFormantsOutOfMemory =
    SONALYS_TEXT("Sonalys", "Not enough memory to calculate the formants.");

struct FormantRecord {
    float f1 = 0.0f;  // Hz
    float f2 = 0.0f;
    float f3 = 0.0f;
    float f4 = 0.0f;
    std::int32_t start = 0;  // first sample of the frame at 10 kHz
    std::int32_t flag = 1;   // always 1: every frame has formants
};

// A whole recording's formants, one record per 10 ms frame.
struct FormantTrack {
    std::vector<FormantRecord> records;
    bool valid = false;  // computed for the samples now loaded
    int count() const { return static_cast<int>(records.size()); }
};

// The analysis object. It keeps the slot table, the mapping table, the window cache and the root estimates from
// one run to the next, so that two trackers may run at once; within one tracker the first frame of a run starts
// its root search from the roots the previous run ended with.
class FormantTracker {
public:
    explicit FormantTracker(Prompt& prompt);

    // How many threads analyse frames side by side: 1 unless set, at least 1. The result does not depend on it.
    void setThreadCount(int threads) noexcept { m_threads = threads < 1 ? 1 : threads; }
    int threadCount() const noexcept { return m_threads; }

    // Replaces the track's records with those of `samples` at `sampRate` Hz and marks it valid. A recording
    // shorter than one 49 ms window gives no record.
    void computeFormants(FormantTrack& track, std::span<const std::int16_t> samples, int sampRate);

    const RootEstimates& rootEstimates() const noexcept { return m_roots; }

private:
    struct StoppedSearch;
    void analyseFrames(std::vector<PoleFrame>& frames, std::span<const std::int16_t> signal);
    void analyseRange(std::vector<PoleFrame>& frames, std::span<const std::int16_t> signal,
                      std::span<const double> window, std::size_t begin, std::size_t end, const RootEstimates& runStart,
                      std::vector<std::unique_ptr<StoppedSearch>>& stopped, RootEstimates& lastRoots) const;
    static void keepPoles(PoleFrame& frame, const RootEstimates& roots);

    Prompt& m_prompt;
    int m_threads = 1;
    SlotTable m_slots = kDefaultSlots;
    MappingTable m_mappings;
    LpcAnalysis m_lpc;
    RootEstimates m_roots;  // all zero in a fresh tracker
    ClassicRand m_random;
};
