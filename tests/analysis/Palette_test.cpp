#include "analysis/Palette.h"

#include <gtest/gtest.h>

// Expected colours are worked out by hand in integer arithmetic: m2, m1, each hue channel, then v * 255 + 120
// over 240.

TEST(HlsToRgb, GreyRedAndBlueShadesWorkedByHand) {
    EXPECT_EQ(HlsToRgb(0, 120, 0), (Rgb{127, 127, 127}));  // 120 * 255 / 240 = 127.5, truncated
    EXPECT_EQ(HlsToRgb(0, 0, 240), (Rgb{0, 0, 0}));
    // m2 = (480 * 120 + 120) / 240 = 240, m1 = 0; red takes m2, green (20 / 40) and blue take m1.
    EXPECT_EQ(HlsToRgb(0, 120, 240), (Rgb{255, 0, 0}));
    // Lightness 160: m2 = 400 - (38400 + 120) / 240 = 240, m1 = 80. Green at hue 150: 80 + (160 * 10 + 20) / 40
    // = 120, which scales to 128; red at 230 takes m1 (85), blue at 70 takes m2.
    EXPECT_EQ(HlsToRgb(150, 160, 240), (Rgb{85, 128, 255}));
    // Hue 200: red at 280 comes back to 40 (m2), green at 200 is m1, blue at 120: (240 * 40 + 20) / 40 = 240.
    EXPECT_EQ(HlsToRgb(200, 120, 240), (Rgb{255, 0, 255}));
}

TEST(HlsToRgb, AHueBelowZeroWrapsAsA16BitNumberAndFallsInTheLastBand) {
    // A true turn would bring -200 to 40 and give m2; the 16-bit value stays above 240 and gives m1.
    EXPECT_EQ(HueChannel(10, 200, -200), 10);
    EXPECT_EQ(HueChannel(10, 200, 40), 200);
    EXPECT_EQ(HueChannel(10, 200, 300), 200);  // 300 - 240 = 60
}

TEST(BuildPalette, GreySchemeRunsFromBlackAtTheStrongestToWhiteBeyondTheRange) {
    const Palette p = BuildPalette(70, 0);
    EXPECT_EQ(p[0], (Rgb{0, 0, 0}));
    EXPECT_EQ(p[35], (Rgb{127, 127, 127}));  // lightness 35 * 240 / 70 = 120
    EXPECT_EQ(p[69], (Rgb{250, 250, 250}));  // lightness 236, 236 * 255 / 240 = 250.75
    EXPECT_EQ(p[70], (Rgb{255, 255, 255}));
    EXPECT_EQ(p[kBackgroundEntry], (Rgb{255, 255, 255}));
    EXPECT_EQ(p[399], (Rgb{255, 255, 255}));
}

TEST(BuildPalette, SecondSchemeClimbsFromRedAndDarkensInBlueTowardTheWeakest) {
    const Palette p = BuildPalette(70, 1);  // half = 35
    EXPECT_EQ(p[0], (Rgb{255, 85, 85}));    // hue 0 at lightness 160
    EXPECT_EQ(p[34], (Rgb{85, 149, 255}));  // hue 34 * 150 / 35 = 145: green 80 + (160 * 15 + 20) / 40 = 140
    EXPECT_EQ(p[35], (Rgb{74, 120, 255}));  // hue 150 at lightness 34 * 160 / 35 = 155: m2 240, m1 70
    EXPECT_EQ(p[69], (Rgb{0, 0, 0}));       // lightness 0
    EXPECT_EQ(p[70], (Rgb{0, 0, 0}));
    EXPECT_EQ(p[kBackgroundEntry], (Rgb{0, 0, 0}));
}

TEST(BuildPalette, ThirdSchemeFallsFromBlueToRedAndDarkensInRedTowardTheWeakest) {
    const Palette p = BuildPalette(70, 2);
    EXPECT_EQ(p[0], (Rgb{85, 128, 255}));   // hue (35 - 0) * 150 / 35 = 150
    EXPECT_EQ(p[34], (Rgb{255, 102, 85}));  // hue 150 / 35 = 4: green 80 + (160 * 4 + 20) / 40 = 96
    EXPECT_EQ(p[35], (Rgb{255, 74, 74}));   // hue 0 at lightness 155: m2 240, m1 70
    EXPECT_EQ(p[69], (Rgb{0, 0, 0}));
    EXPECT_EQ(p[399], (Rgb{0, 0, 0}));
}

TEST(BuildPalette, RangeZeroIsAllBackgroundAndRangeOneHasOneEntry) {
    for (const Rgb& c : BuildPalette(0, 0)) EXPECT_EQ(c, (Rgb{255, 255, 255}));
    for (int scheme : {1, 2})
        for (const Rgb& c : BuildPalette(0, scheme)) EXPECT_EQ(c, (Rgb{0, 0, 0}));
    const Palette one = BuildPalette(1, 1);
    EXPECT_EQ(one[0], (Rgb{255, 85, 85}));
    EXPECT_EQ(one[1], (Rgb{0, 0, 0}));
}

TEST(PaletteEntry, LevelsSaturateAt100AndSignedNegativesShowAsBackground) {
    // 128 and 255 are -128 and -1 as signed bytes.
    const std::pair<int, int> rows[] = {
        {0, kBackgroundEntry},  {1, 99}, {30, 70}, {100, 0}, {101, 0}, {127, 0}, {128, kBackgroundEntry},
        {255, kBackgroundEntry}};
    for (const auto& [level, entry] : rows) EXPECT_EQ(paletteEntryForLevel(level), entry) << level;
}
