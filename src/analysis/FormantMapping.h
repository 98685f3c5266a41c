// The assignment of poles to formant slots: the ways of giving a frame's poles to the slots, and the dynamic
// programme over the whole recording that picks one way per frame.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "analysis/FormantPoles.h"
#include "analysis/FormantSettings.h"

struct FormantSlot {
    float nominal;  // Hz
    float lowest;   // Hz; a pole fits the slot from lowest to highest, both included
    float highest;
};

using SlotTable = std::array<FormantSlot, formant::nFormants>;

inline constexpr SlotTable kDefaultSlots{{
    {500.0f, 50.0f, 1500.0f},
    {1500.0f, 400.0f, 3500.0f},
    {2500.0f, 1000.0f, 4500.0f},
    {3500.0f, 2000.0f, 5000.0f},
    {4500.0f, 2000.0f, 6000.0f},
}};

// One way of filling the slots: each entry holds a pole's number, or -1 for an unfilled slot.
using Mapping = std::array<int, formant::nFormants>;

// The table that buildCandidates fills, `maxMappings` rows, made once and reused frame after frame.
struct MappingTable {
    std::vector<Mapping> rows = std::vector<Mapping>(formant::maxMappings);
    int count = 0;
};

// Enumerates the ways of giving `nPoles` poles, rising in frequency, to the first `nForm` slots; returns the
// count, which stops at the table's size.
int buildCandidates(int nPoles, std::span<const float> freqs, int nForm, const SlotTable& slots,
                    MappingTable& mappings);

// Rewrites each frame's poles as exactly `nForm` slots, taking for each frame the mapping on the path of least
// cost through the recording. `frameRate` is in frames a second. A positive `nominalF1` would call for another
// slot table; this system never passes one, and the table given stands.
void dpFormants(std::span<PoleFrame> frames, double frameRate, int nForm, double nominalF1, const SlotTable& slots,
                MappingTable& mappings);
