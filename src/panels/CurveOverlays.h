// The two overlays of the spectrogram: the fundamental frequency as a row of dots against its own scale on the
// right of the graph, and up to four formants as dots in four colours against the spectrogram's frequency scale,
// with the numeric F0 read-out above the graph. Every function draws with a plain painter from the computed tracks,
// so that the screen and a picture written in batch show the same dots. Positions are in the painter's pixels; a
// graph is the rectangle of the picture's pixels.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <QColor>
#include <QPoint>
#include <QRect>

#include "analysis/FormantTracker.h"
#include "f0/f0.h"
#include "panels/F0Range.h"
#include "panels/PictureAxes.h"

class QPainter;

// A whole recording's F0, one value per frame, 0 where the voice is unvoiced; valid once computed for the samples
// loaded.
using F0Track = F0Curve;

// The colours of the dots in each colour scheme of the spectrogram (0 grey, 1 and 2 the colour scales), chosen to
// stand out from that scheme's picture. Pen and brush of a dot share the colour.
QColor F0DotColour(int scheme);
// Formant 1 to 4 are `formant` 0 to 3.
QColor FormantDotColour(int scheme, int formant);

inline constexpr int kF0DotSize = 4;       // pixels, wide and high
inline constexpr int kFormantDotSize = 3;  // pixels, wide and high

// The frame of `track` drawn at pixel column `c` of a graph `width` columns wide showing samples
// [rangeStart, rangeEnd) of `totalSamples`; -1 when there is none.
int F0FrameAtColumn(const F0Track& track, std::int64_t totalSamples, std::int64_t rangeStart, std::int64_t rangeEnd,
                    int width, int c);
// The top left corner of the dot of `value` Hz at column `c`, before the dot's box is clamped to the graph.
QPoint F0DotPosition(QRect graph, const F0Range& range, float value, int c);
// Whether a value has a dot: voiced, and within the range with its minimum and maximum included. A value above the
// range leaves a gap rather than being held at the top.
bool F0HasDot(const F0Range& range, float value);

// The dots of the F0 curve over samples [rangeStart, rangeEnd) of a recording of `totalSamples`, one column at a
// time across the graph. Nothing connects two dots, so unvoiced frames show as gaps. Nothing is drawn unless the
// track is valid.
void DrawF0(QPainter& dc, QRect graph, const F0Track& track, std::int64_t totalSamples, std::int64_t rangeStart,
            std::int64_t rangeEnd, const F0Range& range, int scheme);
// The frame of `track` that sample `sample` of a recording of `totalSamples` falls in; -1 when it is negative or
// past the track.
int F0FrameOfSample(const F0Track& track, std::int64_t totalSamples, std::int64_t sample);
// The dot of one frame at the live edge of a capture or a play: 4 pixels left of `column`, the frame being the one
// `sample` falls in. Returns that frame, whose value the caller shows in the read-out, or -1 when `sample` is
// negative or past the track.
int DrawF0Point(QPainter& dc, QRect graph, const F0Track& track, int column, std::int64_t totalSamples,
                std::int64_t sample, const F0Range& range, int scheme);

// The F0 scale stands this far right of the graph's left edge plus its width: 1 pixel on the small layout, 10 on
// the larger ones; it is a white strip 50 pixels wide.
int F0AxisX(int graphLeft, int graphWidth, bool largeLayout);
inline constexpr int kF0AxisWidth = 50;
inline constexpr std::string_view kF0HzLabel = "%.1d Hz";  // below 1000 Hz
inline constexpr std::string_view kF0KiloUnit = " k";      // after the value in thousands, with two decimals
// The labels of the F0 scale for a graph whose bottom is `bottom` and height `height`: 9, or 5 when the graph is
// under 300 pixels high, from the minimum at the bottom to the maximum at the top.
std::vector<AxisLabel> F0AxisLabels(const F0Range& range, int bottom, int height);
// Clears the strip right of `x` and writes the labels, in the colour of the scheme's F0 dots so that the scale
// reads as the dots' own.
void DrawF0Axis(QPainter& dc, int x, int y, int height, const F0Range& range, int scheme);

// The frame of the formant track at column `c`, as DrawFormants reads it; -1 when there is none.
int FormantFrameAtColumn(const FormantTrack& track, std::int64_t totalSamples, std::int64_t rangeStart,
                         std::int64_t rangeEnd, int width, int c);
// The formant dots over samples [rangeStart, rangeEnd), on a scale from 0 at the bottom to `upperHz` at the top.
// With a valid `f0` the formants show only where the voice is voiced. Nothing is drawn unless `track` is valid.
void DrawFormants(QPainter& dc, QRect graph, const FormantTrack& track, std::int64_t totalSamples, double upperHz,
                  std::int64_t rangeStart, std::int64_t rangeEnd, int scheme, const F0Track& f0);
// The formant dots of one live column, 4 pixels left of `column`. Returns the frame drawn, or -1.
int DrawFormantPoint(QPainter& dc, QRect graph, const FormantTrack& track, int column, std::int64_t totalSamples,
                     std::int64_t sample, double upperHz, int scheme);

// The numeric read-out of F0 above the graph: "F" with a subscript "0" and the value in Hz with two decimals, in
// navy on the face colour of dialogs. `at` is where the "F" stands.
inline constexpr QRgb kF0ReadoutColour = 0xff000080;
QRect F0ReadoutBox(QPoint at);
std::string F0ReadoutValueText(float hz);
void DrawF0Readout(QPainter& dc, QPoint at, float hz, const QColor& face);
// Clears the read-out, in the face colour, over the same place.
void BlankReadout(QPainter& dc, QPoint at, const QColor& face);
