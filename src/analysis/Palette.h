// The colours of the spectrogram: a palette of 400 entries built from the dynamic range and the colour scheme,
// and the rule that turns a column's level into an entry. Shared by the view and the command-line pictures.
#pragma once

#include <array>
#include <cstdint>

struct Rgb {
    std::int32_t red = 0;  // 0 to 255 each
    std::int32_t green = 0;
    std::int32_t blue = 0;
    friend bool operator==(const Rgb&, const Rgb&) = default;
};

inline constexpr int kPaletteSize = 400;
inline constexpr int kBackgroundEntry = 100;  // the entry of levels of 0 or below, and of blank columns
inline constexpr int kDefaultDynamicRange = 70;
inline constexpr int kDefaultColourScheme = 2;

// Entry 0 holds the strongest signal.
using Palette = std::array<Rgb, kPaletteSize>;

// One channel of the hue-lightness-saturation conversion, on the scale where 240 is a full turn.
int HueChannel(int m1, int m2, int hue);

// Hue, lightness and saturation from 0 to 240 to channels from 0 to 255, in whole numbers throughout.
Rgb HlsToRgb(int hue, int lightness, int saturation);

// `dynamicRange` 0 to 400 (the panel offers 0 to 100 dB), `scheme` 0 grey, 1 and 2 the two colour scales.
Palette BuildPalette(int dynamicRange, int scheme);

// The palette entry of a column byte (decibels above 35). The byte is read as signed: levels of 0 and below
// and levels from 128 up take the background entry; levels above 100 saturate at entry 0.
int paletteEntryForLevel(std::uint8_t level);
