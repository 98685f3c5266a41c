#include "analysis/FormantMapping.h"

#include <gtest/gtest.h>

#include <vector>

static PoleFrame frameWith(std::vector<float> freqs, float rms = 100.0f) {
    PoleFrame frame;
    frame.rms = rms;
    frame.nPoles = static_cast<int>(freqs.size());
    for (std::size_t p = 0; p < freqs.size(); ++p) frame.poles[p] = Pole{freqs[p], 40.0f, 60.0f};
    return frame;
}

TEST(BuildCandidates, TheEnumerationStopsAtTheTableSize) {
    const std::vector<float> freqs{1000, 1100, 1200, 1300, 1400, 2000, 2100, 2200, 2300, 2400};
    MappingTable large;
    large.rows.resize(100000);
    const int all = buildCandidates(10, freqs, 5, kDefaultSlots, large);
    ASSERT_GT(all, formant::maxMappings);
    MappingTable bounded;
    EXPECT_EQ(buildCandidates(10, freqs, 5, kDefaultSlots, bounded), formant::maxMappings);
    // The rows it keeps are the first rows of the whole enumeration.
    for (int i = 0; i < formant::maxMappings; ++i) EXPECT_EQ(bounded.rows[i], large.rows[i]) << i;
}

TEST(DpFormants, AnUnfilledSlotTakesTheFollowingFrameOrTheNominalAtTheEnd) {
    std::vector<PoleFrame> frames{frameWith({300}), frameWith({480, 1400, 2450, 3600, 4400})};
    MappingTable table;
    dpFormants(frames, 100.0, 5, -10.0, kDefaultSlots, table);
    EXPECT_EQ(frames[0].poles[0].freq, 300.0f);
    for (int s = 1; s < 5; ++s) EXPECT_EQ(frames[0].poles[s].freq, frames[1].poles[s].freq);
    EXPECT_EQ(frames[1].poles[1].freq, 1400.0f);

    std::vector<PoleFrame> reversed{frameWith({480, 1400, 2450, 3600, 4400}), frameWith({300})};
    dpFormants(reversed, 100.0, 5, -10.0, kDefaultSlots, table);
    EXPECT_EQ(reversed[1].poles[0].freq, 300.0f);
    for (int s = 1; s < 5; ++s) {
        EXPECT_EQ(reversed[1].poles[s].freq, kDefaultSlots[s].nominal);
        EXPECT_EQ(reversed[1].poles[s].band, 1000.0f);
    }
}
