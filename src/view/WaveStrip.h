// The overview strip under the graph: the waveform of the shown range, eight points per pixel column joined by
// one continuous line (not a minimum and maximum, so a long file can miss peaks between the points), on white
// with three grey guide lines. While audio runs, the strip instead shows the newest points of the live trace.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <QColor>
#include <QPolygon>

#include "view/ViewLayout.h"

class QPainter;

inline constexpr int kPointsPerColumn = 8;
inline constexpr QRgb kGuideLineColour = 0xff808080;

// The y of a sample in the strip: the centre less sample / 32768 of half the height, truncated, and held one pixel
// inside the strip's top and bottom.
int StripY(const ViewLayout& layout, float sample);

// The trace of samples [first, last) of `samples`: GraphWidth columns from GraphLeft, eight points in each, taken
// at the column's start plus 0, 1/8, ... 7/8 of the samples per column. A range shorter than the width repeats
// samples.
QPolygon StripTrace(const ViewLayout& layout, std::span<const std::int16_t> samples, std::int64_t first,
                    std::int64_t last);

// The white strip with its black outline and its three guide lines, at a quarter, half and three quarters down.
void DrawStripFrame(QPainter& painter, const ViewLayout& layout);
// The frame and, when `trace` is not empty, the trace over it in `colour`.
void DrawStrip(QPainter& painter, const ViewLayout& layout, const QPolygon& trace, const QColor& colour);

// The newest points of the live strip while recording or playing: GraphWidth x 8 values at most, filling from the
// left; once full, the oldest are dropped and the strip scrolls.
class LiveTrace {
public:
    explicit LiveTrace(int graphWidth);

    // Adds one block of captured or played samples as `columns` new columns of eight points each, taken at even
    // fractions of the block.
    void addBlock(std::span<const std::int16_t> block, int columns = 4);
    void clear() { m_points.clear(); }

    int count() const { return static_cast<int>(m_points.size()); }
    int capacity() const { return m_capacity; }
    std::span<const float> points() const { return m_points; }
    // The trace as drawn: column k of the points at GraphLeft + k, from the left.
    QPolygon trace(const ViewLayout& layout) const;

private:
    int m_capacity;
    std::vector<float> m_points;
};
