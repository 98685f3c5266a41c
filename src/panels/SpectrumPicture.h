// The picture of the power-spectrum page: the spectrum of the shown range as a filled area or a line, with the
// long-term average over it when asked for. Drawn in the page's own pixel coordinates; the painter's transform
// takes it to the screen.
#pragma once

#include <span>

#include <QColor>
#include <QPolygon>
#include <QRect>

#include "panels/PanelDefaults.h"

class PowerSpectrum;
class QPainter;

// Nothing is drawn closer than this to the top of the window, in pixels.
inline constexpr int kSpectrumTopMargin = 18;

// Where the spectrum stands: `left`, `top`, `right`, `bottom` are the graph's edges in pixels.
struct SpectrumArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int height() const { return bottom - top; }
};

// The points drawn: (fftSize / 2) / frequency ratio, truncated.
int SpectrumPointCount(int fftSize, float frequencyRatio);
// Pixels from one point to the next: the width over the points, rounded up.
int SpectrumStep(const SpectrumArea& area, int points);
// The level of 0 dB: a tenth of the height above the bottom (integer division by 11).
int SpectrumBaseLine(const SpectrumArea& area);
// The y of a level in dB: 100 dB spans the height above the base line. Held above the bottom and below the top
// margin of the window.
int SpectrumY(const SpectrumArea& area, float dB);
// The points of `values` as drawn: point i at left + i * step, held left of the right edge.
QPolygon SpectrumPoints(const SpectrumArea& area, std::span<const float> values, int points);
// The level in dB and the frequency in Hz at a position of the graph, on the scales the curve is drawn with.
double SpectrumLevelAt(const SpectrumArea& area, double y);
double SpectrumFrequencyAt(const SpectrumArea& area, double x, double topHz);

// The pen of the long-term average: black over a pure red curve, pure red otherwise.
QColor AverageColour(const QColor& curve);

// Draws the current spectrum of `spectrum` in `area` as `settings` say, and its average when LTAS is on.
void DrawSpectrum(QPainter& painter, const PowerSpectrum& spectrum, const SpectrumSettings& settings,
                  const SpectrumArea& area);
