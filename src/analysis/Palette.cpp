#include "analysis/Palette.h"

#include "base/Assert.h"

int HueChannel(int m1, int m2, int hue) {
    // The hue arrives as a 16-bit value: above 240 it is brought back by one turn. A negative hue has wrapped
    // to a large number, stays above 240 after that, and so falls in the last band.
    int h = static_cast<std::uint16_t>(hue);
    if (h > 240) h -= 240;
    if (h < 40) return m1 + ((m2 - m1) * h + 20) / 40;
    if (h < 120) return m2;
    if (h >= 160) return m1;
    return m1 + ((m2 - m1) * (160 - h) + 20) / 40;
}

Rgb HlsToRgb(int hue, int lightness, int saturation) {
    if (saturation == 0) {
        const int grey = lightness * 255 / 240;
        return {grey, grey, grey};
    }
    const int m2 = lightness < 121 ? ((saturation + 240) * lightness + 120) / 240
                                   : lightness + saturation - (lightness * saturation + 120) / 240;
    const int m1 = 2 * lightness - m2;
    const auto scale = [](int v) { return (v * 255 + 120) / 240; };
    return {scale(HueChannel(m1, m2, hue + 80)), scale(HueChannel(m1, m2, hue)), scale(HueChannel(m1, m2, hue - 80))};
}

namespace {

// The colour scales run over the range in two halves. The weaker half (the last `half` entries in use) darkens
// toward the weakest level at one hue; the stronger half keeps the lightness where the weaker half ends and moves
// through the hues. `hueOf(j)` gives the hue of entry j of the stronger half.
template <typename HueOf>
void fillColourScale(Palette& palette, int range, int weakHue, HueOf hueOf) {
    const int half = static_cast<int>(range * 0.5);
    for (int i = 0; i < half; ++i) palette[range - 1 - i] = HlsToRgb(weakHue, i * 160 / half, 240);
    // half * 160 / half is 160 whenever half is not 0; a range of 1 has no weaker half and takes 160 as well.
    for (int j = 0; j < range - half; ++j) palette[j] = HlsToRgb(hueOf(j, range - half), 160, 240);
    for (int i = range; i < kPaletteSize; ++i) palette[i] = Rgb{0, 0, 0};
}

}  // namespace

Palette BuildPalette(int dynamicRange, int scheme) {
    SONALYS_ASSERT(0 <= dynamicRange && dynamicRange <= kPaletteSize);
    SONALYS_ASSERT(0 <= scheme && scheme <= 2);
    Palette palette{};
    const int r = dynamicRange;
    switch (scheme) {
    case 0:
        for (int i = 0; i < r; ++i) palette[i] = HlsToRgb(0, i * 240 / r, 0);
        for (int i = r; i < kPaletteSize; ++i) palette[i] = Rgb{255, 255, 255};
        break;
    case 1: fillColourScale(palette, r, 150, [](int j, int n) { return j * 150 / n; }); break;
    case 2: fillColourScale(palette, r, 0, [](int j, int n) { return (n - j) * 150 / n; }); break;
    }
    return palette;
}

int paletteEntryForLevel(std::uint8_t level) {
    const int c = static_cast<std::int8_t>(level);
    if (c < 1) return kBackgroundEntry;
    const int entry = kBackgroundEntry - c;
    return entry < 0 ? 0 : entry;
}
