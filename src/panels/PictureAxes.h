// The scales beside the two pictures: on the power-spectrum page the level in dB at the left and the frequency in
// kHz underneath, on the spectrogram page the frequency in kHz at the left. Each label states the value of the
// scale at its own position, so that the labels, the curve and the read-out always agree.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <QFont>

#include "panels/SpectrumPicture.h"

class QPainter;

inline constexpr std::string_view kDbLabel = "%.2d dB";  // whole decibels, at least two digits
inline constexpr std::string_view kKhzUnit = " kHz";     // after a frequency with one decimal

struct AxisLabel {
    int at = 0;  // y of a vertical scale, x of a horizontal one, in pixels
    std::string text;
};

// Arial, lines 11 pixels high and bold; 10 and regular when two views share the window.
QFont AxisFont(bool twoViews = false);

// Labels up the height: 9, or 5 when the graph is under 300 pixels high, at equal steps over the height less 6.
int VerticalLabelCount(const SpectrumArea& area);
std::vector<AxisLabel> DbAxisLabels(const SpectrumArea& area);
// Seven labels under the spectrum: six at i x width / 5.5 showing i x (top frequency / 5.5), and the top
// frequency itself at the right end. `topHz` is half the rate over the frequency ratio.
std::vector<AxisLabel> KhzAxisLabels(const SpectrumArea& area, double topHz);
// The spectrogram's frequency scale up its left side, 0 at the bottom and `topHz` at the top, labelled at round
// frequencies: every 0.5, 1, 2 or 5 kHz, the finest step that needs no more labels than the dB scale.
std::vector<AxisLabel> FrequencyAxisLabels(const SpectrumArea& area, double topHz);

// Clears the margins and draws the scales; `twoViews` for the smaller type of a comparison.
void DrawSpectrumAxes(QPainter& painter, const SpectrumArea& area, double topHz, bool twoViews = false);
void DrawFrequencyAxis(QPainter& painter, const SpectrumArea& area, double topHz, bool twoViews = false);
