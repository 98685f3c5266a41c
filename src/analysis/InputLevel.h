// The level of the sound coming in while a take is recorded: the peak and the RMS of the last captured block in
// dBFS, a peak hold that falls back slowly, and whether any sample of the take so far reached full scale.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "store/DeclaredText.h"

// Added to the save question when a sample of the take reached full scale: the voice was cut there, and measures
// taken on it (jitter, shimmer, spectrum) are no longer trustworthy.
inline constexpr std::string_view kTakeClipped =
    SONALYS_TEXT("Sonalys", "Attention: the sound reached full scale (clipping) in this take.");

// How the level of a block stands against full scale: comfortable, close to it, or cut by it.
enum class LevelZone { Normal, NearFullScale, Clipped };

struct InputLevel {
    // Full scale is 32768, the size of the most negative 16-bit sample; a block of silence reads this floor, about
    // the range of 16-bit samples.
    static constexpr double kFullScale = 32768.0;
    static constexpr double kFloorDb = -96.0;
    // A block whose peak reaches this is close to full scale.
    static constexpr double kNearFullScaleDb = -6.0;
    // The peak hold falls by this much for each block that does not reach it; a block lasts 10 to 50 ms.
    static constexpr double kHoldFallDb = 0.5;

    // The start of a take: nothing measured, nothing clipped.
    void reset();
    // Measures one captured block of mono 16-bit samples; an empty block changes nothing.
    void addBlock(std::span<const std::int16_t> block);

    double peakDb() const { return m_peakDb; }
    double rmsDb() const { return m_rmsDb; }
    double holdDb() const { return m_holdDb; }
    // A sample stood at -32768 or 32767: in the last block, or in any block since the take began.
    bool blockClipped() const { return m_blockClipped; }
    bool clipped() const { return m_clipped; }
    // Clipped when the last block clipped, near full scale from a peak of kNearFullScaleDb.
    LevelZone zone() const;

private:
    double m_peakDb = kFloorDb;
    double m_rmsDb = kFloorDb;
    double m_holdDb = kFloorDb;
    bool m_blockClipped = false;
    bool m_clipped = false;
};
