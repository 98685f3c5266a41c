#include "analysis/InputLevel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

// An amplitude on the 16-bit scale in dB below full scale, never under the floor.
double toDb(double amplitude) {
    if (amplitude <= 0.0) return InputLevel::kFloorDb;
    return std::max(InputLevel::kFloorDb, 20.0 * std::log10(amplitude / InputLevel::kFullScale));
}

}  // namespace

void InputLevel::reset() { *this = InputLevel{}; }

void InputLevel::addBlock(std::span<const std::int16_t> block) {
    if (block.empty()) return;
    int peak = 0;
    double energy = 0.0;
    bool clippedHere = false;
    for (const std::int16_t sample : block) {
        const int value = sample;
        peak = std::max(peak, std::abs(value));
        energy += static_cast<double>(value) * value;
        clippedHere = clippedHere || sample == std::numeric_limits<std::int16_t>::min() ||
                      sample == std::numeric_limits<std::int16_t>::max();
    }
    m_peakDb = toDb(peak);
    m_rmsDb = toDb(std::sqrt(energy / static_cast<double>(block.size())));
    m_holdDb = std::max(m_peakDb, std::max(kFloorDb, m_holdDb - kHoldFallDb));
    m_blockClipped = clippedHere;
    m_clipped = m_clipped || clippedHere;
}

LevelZone InputLevel::zone() const {
    if (m_blockClipped) return LevelZone::Clipped;
    return m_peakDb >= kNearFullScaleDb ? LevelZone::NearFullScale : LevelZone::Normal;
}
