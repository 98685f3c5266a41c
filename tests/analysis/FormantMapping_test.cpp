#include "analysis/FormantMapping.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

PoleFrame frameWith(std::vector<float> freqs, float rms = 100.0f) {
    PoleFrame frame;
    frame.rms = rms;
    frame.nPoles = static_cast<int>(freqs.size());
    for (std::size_t p = 0; p < freqs.size(); ++p) frame.poles[p] = Pole{freqs[p], 40.0f, 60.0f};
    return frame;
}

std::vector<Mapping> rowsOf(const MappingTable& table) {
    return {table.rows.begin(), table.rows.begin() + table.count};
}

}  // namespace

TEST(BuildCandidates, EnumeratesTheWaysWorkedByHand) {
    // 300 Hz fits F1 only; 1200 Hz fits F1, F2 and F3; 2600 Hz fits F2 to F5. When the poles run out below a
    // slot, the search goes on from the pole of the nearest filled slot, which can place it a second time.
    // A pole of exactly 1500 Hz fits both F1 and F2 (bounds included): with 300 Hz below it, it takes F2 in
    // the first row and F1 in the second.
    const std::pair<std::vector<float>, std::vector<Mapping>> rows[] = {
        {{300.0f, 1200.0f, 2600.0f}, {{0, 1, 2, -1, 2}, {0, 2, -1, 2, -1}, {1, 2, -1, 2, -1}}},
        {{300.0f}, {{0, -1, -1, -1, -1}}},
        {{300.0f, 1500.0f}, {{0, 1, -1, -1, -1}, {1, -1, 1, -1, -1}}},
    };
    for (const auto& [freqs, expected] : rows) {
        MappingTable table;
        EXPECT_EQ(buildCandidates(static_cast<int>(freqs.size()), freqs, 5, kDefaultSlots, table),
                  static_cast<int>(expected.size()));
        EXPECT_EQ(rowsOf(table), expected) << freqs.back();
    }
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

TEST(DpFormants, FramesWithoutPolesTakeTheNominalValues) {
    std::vector<PoleFrame> frames{frameWith({500, 1500, 2500, 3500, 4500}), frameWith({}),
                                  frameWith({500, 1500, 2500, 3500, 4500})};
    MappingTable table;
    dpFormants(frames, 100.0, 5, -10.0, kDefaultSlots, table);
    for (const PoleFrame& frame : frames) EXPECT_EQ(frame.nPoles, 5);
    for (int s = 0; s < 5; ++s) {
        EXPECT_EQ(frames[1].poles[s].freq, kDefaultSlots[s].nominal);
        EXPECT_EQ(frames[1].poles[s].band, 1000.0f);
        EXPECT_EQ(frames[1].poles[s].power, 0.0f);
        EXPECT_EQ(frames[0].poles[s].band, 60.0f);  // the frames around keep their own poles
        EXPECT_EQ(frames[2].poles[s].freq, kDefaultSlots[s].nominal);
    }
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

TEST(DpFormants, ContinuityDecidesBetweenTwoPolesForOneSlot) {
    // The middle frame offers 1300 and 1700 Hz for F2, either as costly alone (both 200 Hz from the nominal
    // 1500). The neighbours sit at 1700 Hz, so the transition cost picks 1700.
    auto frame = [](float f2) { return frameWith({500, f2, 2500, 3500, 4500}); };
    std::vector<PoleFrame> frames{frame(1700), frame(1700)};
    frames.insert(frames.begin() + 1, frameWith({500, 1300, 1700, 2500, 3500, 4500}));
    MappingTable table;
    dpFormants(frames, 100.0, 5, -10.0, kDefaultSlots, table);
    EXPECT_EQ(frames[1].poles[1].freq, 1700.0f);
    EXPECT_EQ(frames[1].poles[2].freq, 2500.0f);
}
