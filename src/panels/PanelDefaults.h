// The settings of the two side panels that the pictures read, and the values each panel shows when it opens:
// the Band and Limit lists of the spectrogram page, the FFT sizes, the curve style and colour of the spectrum page.
// The side panels keep these in memory only; every start begins from the defaults.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QColor>

#include "analysis/Palette.h"

// The Band list, in Hz, and the line selected when the panel opens (40 Hz).
inline constexpr std::array<int, 6> kBandEntries = {10, 40, 80, 150, 300, 400};
inline constexpr int kDefaultBandEntry = 1;

// Filling the Limit list for a rate always selects this line and applies its number as the upper frequency.
inline constexpr int kDefaultLimitEntry = 2;

// The "FFT Size" list of the spectrum page and the line selected when the panel opens (512).
inline constexpr std::array<int, 3> kFftSizeEntries = {256, 512, 1024};
inline constexpr int kDefaultFftSizeEntry = 1;

// The upper frequencies the Limit list offers at `rate`, in Hz: none at a rate other than 11025, 22050 and 44100.
std::vector<int> LimitEntries(int rate);
// The upper frequency that filling the Limit list applies at `rate`, or nothing when the list stays empty and the
// upper frequency stays as it was.
std::optional<int> DefaultLimit(int rate);

// How the power spectrum is drawn: the area under the curve filled, or the curve as a line.
enum class SpectrumStyle { Solid = 0, Line = 1 };

// The colours offered for the spectrum's curve, in the order of the colour menu: the entries 0 to 6, 12, 7 and
// 13 to 18 of the system's standard 20-colour palette.
inline constexpr std::array<QRgb, 15> kCurveColours = {
    0xff000000, 0xff800000, 0xff008000, 0xff808000, 0xff000080, 0xff800080, 0xff008080, 0xff808080,
    0xffc0c0c0, 0xffff0000, 0xff00ff00, 0xffffff00, 0xff0000ff, 0xffff00ff, 0xff00ffff,
};
inline constexpr int kDefaultCurveColour = 4;  // dark blue, which the red long-term average stands out against

struct SpectrogramSettings {
    int bandwidth = kBandEntries[kDefaultBandEntry];  // Hz
    int dynamicRange = kDefaultDynamicRange;          // palette steps in use, shown as dB: 0 to 100
    int colourScheme = kDefaultColourScheme;          // 0 grey, 1 and 2 the two colour scales
};

struct SpectrumSettings {
    int fftSize = kFftSizeEntries[kDefaultFftSizeEntry];
    SpectrumStyle style = SpectrumStyle::Solid;
    bool ltas = false;  // draw the long-term average over the spectrum
    QColor colour = QColor::fromRgb(kCurveColours[kDefaultCurveColour]);
};
