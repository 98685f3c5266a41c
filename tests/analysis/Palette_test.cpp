#include "analysis/Palette.h"

#include <gtest/gtest.h>

// Expected colours are worked out by hand in integer arithmetic: m2, m1, each hue channel, then v * 255 + 120 over
// 240. Grey runs from black at the strongest level to white past the range; the second scheme climbs from red and
// darkens in blue, the third falls from blue to red and darkens in red.
TEST(BuildPalette, SchemesGiveTheColoursWorkedByHand) {
    const struct {
        int range, scheme, entry;
        Rgb colour;
    } rows[] = {
        {70, 0, 0, {0, 0, 0}},
        {70, 0, 35, {127, 127, 127}},  // lightness 35 * 240 / 70 = 120; 120 * 255 / 240 = 127.5, truncated
        {70, 0, 69, {250, 250, 250}},  // lightness 236, 236 * 255 / 240 = 250.75
        {70, 0, 70, {255, 255, 255}},
        {70, 0, kBackgroundEntry, {255, 255, 255}},
        {70, 1, 0, {255, 85, 85}},    // hue 0 at lightness 160: m2 = 240, m1 = 80
        {70, 1, 34, {85, 149, 255}},  // hue 34 * 150 / 35 = 145: green 80 + (160 * 15 + 20) / 40 = 140
        {70, 1, 35, {74, 120, 255}},  // hue 150 at lightness 34 * 160 / 35 = 155: m2 240, m1 70
        {70, 1, 69, {0, 0, 0}},
        {70, 1, kBackgroundEntry, {0, 0, 0}},
        {70, 2, 0, {85, 128, 255}},   // hue 150: green 80 + (160 * 10 + 20) / 40 = 120, which scales to 128
        {70, 2, 34, {255, 102, 85}},  // hue 150 / 35 = 4: green 80 + (160 * 4 + 20) / 40 = 96
        {70, 2, 35, {255, 74, 74}},
        {70, 2, 399, {0, 0, 0}},
        {0, 0, 0, {255, 255, 255}},  // range 0: all background
        {0, 2, 0, {0, 0, 0}},
        {1, 1, 0, {255, 85, 85}},
        {1, 1, 1, {0, 0, 0}},
    };
    for (const auto& r : rows)
        EXPECT_EQ(BuildPalette(r.range, r.scheme)[r.entry], r.colour)
            << "range " << r.range << ", scheme " << r.scheme << ", entry " << r.entry;
}

TEST(PaletteEntry, LevelsSaturateAt100AndSignedNegativesShowAsBackground) {
    // 128 and 255 are -128 and -1 as signed bytes.
    const std::pair<int, int> rows[] = {
        {0, kBackgroundEntry},  {1, 99}, {30, 70}, {100, 0}, {101, 0}, {127, 0}, {128, kBackgroundEntry},
        {255, kBackgroundEntry}};
    for (const auto& [level, entry] : rows) EXPECT_EQ(paletteEntryForLevel(level), entry) << level;
}
