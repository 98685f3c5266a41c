#include "panels/CurveOverlays.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "controls/DecimalText.h"
#include "store/TextFormat.h"

namespace {

struct SchemeColours {
    QRgb f0;
    std::array<QRgb, 4> formants;
};

// Scheme 0 grey: blue, then orange, dark violet, dark green and red. Scheme 1: red, then white, orange, pink and
// yellow. Scheme 2: blue, then white, cyan, light grey and green.
constexpr std::array<SchemeColours, 3> kSchemeColours = {{
    {0xff0000ff, {0xffff8000, 0xff800040, 0xff008040, 0xffff0000}},
    {0xffff0000, {0xffffffff, 0xffff8000, 0xffff80c0, 0xffffff00}},
    {0xff0000ff, {0xffffffff, 0xff00ffff, 0xffdcdcdc, 0xff00ff00}},
}};

const SchemeColours& schemeColours(int scheme) {
    return kSchemeColours[static_cast<std::size_t>(std::clamp(scheme, 0, 2))];
}

constexpr int kAxisLabelWidth = 42;
constexpr int kAxisLabelHeight = 20;
constexpr int kAxisLabelIndent = 4;  // from the strip's left edge to its labels' boxes
constexpr int kReadoutWidth = 110;
constexpr int kReadoutHeight = 20;

// A dot of `size` pixels whose box starts at `corner`, the box held inside the graph on all four sides. The pen
// and the brush share the colour the painter holds.
void drawDot(QPainter& dc, QRect graph, QPoint corner, int size) {
    const QRect box = QRect(corner, QSize(size, size)).intersected(graph);
    if (box.isEmpty()) return;
    // A painter's ellipse with a pen covers one pixel more than its rectangle each way.
    dc.drawEllipse(box.adjusted(0, 0, -1, -1));
}

void useColour(QPainter& dc, const QColor& colour) {
    dc.setPen(QPen(colour, 1));
    dc.setBrush(colour);
}

// The frame read at column `c` when a range starts at frame `first` and `step` frames go by per column.
int frameAt(double first, double step, int c, int count) {
    const double frame = std::trunc(first + c * step);
    return frame >= 0.0 && frame < count ? static_cast<int>(frame) : -1;
}

// The start and the frames per column of a track of `count` frames over a range.
struct FrameWalk {
    double first = 0.0;
    double step = 0.0;
};

FrameWalk walkOf(int count, std::int64_t totalSamples, std::int64_t rangeStart, std::int64_t rangeEnd, int width) {
    const double perSample = static_cast<double>(count) / static_cast<double>(totalSamples);
    const double first = static_cast<double>(rangeStart) * perSample;
    const double inRange = static_cast<double>(rangeEnd) * perSample - first;
    return {first, inRange / width};
}

bool canWalk(int count, std::int64_t totalSamples, int width) { return count > 0 && totalSamples > 0 && width > 0; }

}  // namespace

QColor F0DotColour(int scheme) { return QColor::fromRgb(schemeColours(scheme).f0); }

QColor FormantDotColour(int scheme, int formant) {
    return QColor::fromRgb(schemeColours(scheme).formants[static_cast<std::size_t>(std::clamp(formant, 0, 3))]);
}

int F0FrameAtColumn(const F0Track& track, std::int64_t totalSamples, std::int64_t rangeStart, std::int64_t rangeEnd,
                    int width, int c) {
    if (!canWalk(track.count(), totalSamples, width)) return -1;
    const FrameWalk walk = walkOf(track.count(), totalSamples, rangeStart, rangeEnd, width);
    return frameAt(walk.first, walk.step, c, track.count());
}

bool F0HasDot(const F0Range& range, float value) {
    return value != 0.0f && value >= static_cast<float>(range.minimum) && value <= static_cast<float>(range.maximum);
}

QPoint F0DotPosition(QRect graph, const F0Range& range, float value, int c) {
    const int bottom = graph.y() + graph.height();
    const int right = graph.x() + graph.width();
    // The percentage of the scale, never below its bottom.
    const double p =
        std::max(0.0, (static_cast<double>(value) - range.minimum) * 100.0 / (range.maximum - range.minimum));
    int y = bottom - static_cast<int>(p * graph.height() / 100.0);
    if (y >= bottom) y = bottom - kF0DotSize;
    int x = graph.x() + c;
    if (x >= right) x -= kF0DotSize;
    return {x, y};
}

void DrawF0(QPainter& dc, QRect graph, const F0Track& track, std::int64_t totalSamples, std::int64_t rangeStart,
            std::int64_t rangeEnd, const F0Range& range, int scheme) {
    if (!track.valid || !canWalk(track.count(), totalSamples, graph.width()) || range.minimum >= range.maximum) return;
    const FrameWalk walk = walkOf(track.count(), totalSamples, rangeStart, rangeEnd, graph.width());
    dc.save();
    useColour(dc, F0DotColour(scheme));
    for (int c = 0; c < graph.width(); ++c) {
        const int frame = frameAt(walk.first, walk.step, c, track.count());
        if (frame < 0) continue;
        const float value = track.values[static_cast<std::size_t>(frame)];
        if (F0HasDot(range, value)) drawDot(dc, graph, F0DotPosition(graph, range, value, c), kF0DotSize);
    }
    dc.restore();
}

int F0FrameOfSample(const F0Track& track, std::int64_t totalSamples, std::int64_t sample) {
    if (sample < 0 || !track.valid || totalSamples <= 0) return -1;
    const auto frame = static_cast<std::int64_t>(static_cast<double>(track.count()) * sample / totalSamples);
    return frame < track.count() ? static_cast<int>(frame) : -1;
}

int DrawF0Point(QPainter& dc, QRect graph, const F0Track& track, int column, std::int64_t totalSamples,
                std::int64_t sample, const F0Range& range, int scheme) {
    if (range.minimum >= range.maximum) return -1;
    const int frame = F0FrameOfSample(track, totalSamples, sample);
    if (frame < 0) return -1;
    const float value = track.values[static_cast<std::size_t>(frame)];
    if (F0HasDot(range, value)) {
        dc.save();
        useColour(dc, F0DotColour(scheme));
        drawDot(dc, graph, F0DotPosition(graph, range, value, column - kF0DotSize), kF0DotSize);
        dc.restore();
    }
    return frame;
}

int F0AxisX(int graphLeft, int graphWidth, bool largeLayout) { return graphLeft + graphWidth + (largeLayout ? 10 : 1); }

std::vector<AxisLabel> F0AxisLabels(const F0Range& range, int bottom, int height) {
    const int steps = height < 300 ? 4 : 8;
    std::vector<AxisLabel> labels;
    for (int i = 0; i <= steps; ++i) {
        const int value = range.minimum + i * (range.maximum - range.minimum) / steps;
        const int at = bottom - 8 - i * (height - 6) / steps;
        labels.push_back({at, value < 1000 ? formatText(kF0HzLabel.data(), value)
                                           : DecimalText(value / 1000.0, 2) + std::string(kF0KiloUnit)});
    }
    return labels;
}

void DrawF0Axis(QPainter& dc, int x, int y, int height, const F0Range& range, int scheme) {
    dc.save();
    dc.fillRect(QRect(x + 1, y, kF0AxisWidth, height), Qt::white);
    dc.setFont(AxisFont());
    dc.setPen(F0DotColour(scheme));
    for (const AxisLabel& label : F0AxisLabels(range, y + height, height)) {
        dc.drawText(QRect(x + 1 + kAxisLabelIndent, label.at, kAxisLabelWidth, kAxisLabelHeight),
                    Qt::AlignRight | Qt::AlignTop, QString::fromStdString(label.text));
    }
    dc.restore();
}

int FormantFrameAtColumn(const FormantTrack& track, std::int64_t totalSamples, std::int64_t rangeStart,
                         std::int64_t rangeEnd, int width, int c) {
    if (!canWalk(track.count(), totalSamples, width)) return -1;
    const FrameWalk walk = walkOf(track.count(), totalSamples, rangeStart, rangeEnd, width);
    return frameAt(walk.first, walk.step, c, track.count());
}

namespace {

// The four dots of one formant frame at pixel column `x` of the graph. A formant at 0 Hz or at the top of the
// scale or above has no dot.
void drawFormantDots(QPainter& dc, QRect graph, const FormantRecord& record, int x, double upperHz, int scheme) {
    const std::array<float, 4> frequencies = {record.f1, record.f2, record.f3, record.f4};
    for (int k = 0; k < 4; ++k) {
        const int offset = static_cast<int>(frequencies[static_cast<std::size_t>(k)] * graph.height() / upperHz);
        if (offset >= graph.height() || offset == 0) continue;
        const int y = std::max(graph.y() + graph.height() - offset, graph.y());
        useColour(dc, FormantDotColour(scheme, k));
        drawDot(dc, graph, QPoint(x, y), kFormantDotSize);
    }
}

}  // namespace

void DrawFormants(QPainter& dc, QRect graph, const FormantTrack& track, std::int64_t totalSamples, double upperHz,
                  std::int64_t rangeStart, std::int64_t rangeEnd, int scheme, const F0Track& f0) {
    if (!track.valid || !canWalk(track.count(), totalSamples, graph.width()) || !(upperHz > 0.0)) return;
    const FrameWalk walk = walkOf(track.count(), totalSamples, rangeStart, rangeEnd, graph.width());
    const bool gated = f0.valid && canWalk(f0.count(), totalSamples, graph.width());
    FrameWalk f0Walk;
    if (gated) {
        f0Walk = walkOf(f0.count(), totalSamples, rangeStart, rangeEnd, graph.width());
        // A range that does not start at the recording's start takes as its first F0 frame the first formant
        // frame times the F0 step, as the program has always gated zoomed formants.
        f0Walk.first = rangeStart != 0 ? walk.first * f0Walk.step : 0.0;
    }
    dc.save();
    for (int c = 0; c < graph.width(); ++c) {
        const int frame = frameAt(walk.first, walk.step, c, track.count());
        if (frame < 0 || track.records[static_cast<std::size_t>(frame)].flag == 0) continue;
        if (gated) {
            const int f0Frame = frameAt(f0Walk.first, f0Walk.step, c, f0.count());
            if (f0Frame < 0 || f0.values[static_cast<std::size_t>(f0Frame)] == 0.0f) continue;
        }
        drawFormantDots(dc, graph, track.records[static_cast<std::size_t>(frame)], graph.x() + c, upperHz, scheme);
    }
    dc.restore();
}

int DrawFormantPoint(QPainter& dc, QRect graph, const FormantTrack& track, int column, std::int64_t totalSamples,
                     std::int64_t sample, double upperHz, int scheme) {
    if (sample < 0 || !track.valid || totalSamples <= 0 || !(upperHz > 0.0)) return -1;
    const auto frame = static_cast<std::int64_t>(static_cast<double>(track.count()) * sample / totalSamples);
    if (frame >= track.count()) return -1;
    const FormantRecord& record = track.records[static_cast<std::size_t>(frame)];
    if (record.flag != 0) {
        dc.save();
        drawFormantDots(dc, graph, record, graph.x() + column - kF0DotSize, upperHz, scheme);
        dc.restore();
    }
    return static_cast<int>(frame);
}

QRect F0ReadoutBox(QPoint at) { return QRect(at.x(), at.y() - 2, kReadoutWidth, kReadoutHeight); }

// The trailing spaces wipe out the end of a longer value written before.
std::string F0ReadoutValueText(float hz) { return ": " + DecimalText(hz, 2) + "     "; }

void DrawF0Readout(QPainter& dc, QPoint at, float hz, const QColor& face) {
    dc.save();
    dc.fillRect(F0ReadoutBox(at), face);
    QFont font = AxisFont();
    dc.setFont(font);
    dc.setPen(QColor::fromRgb(kF0ReadoutColour));
    const int line = QFontMetrics(font).ascent();
    dc.drawText(at + QPoint(0, line), QStringLiteral("F"));
    dc.drawText(at + QPoint(7, line + 5), QStringLiteral("0"));
    dc.drawText(at + QPoint(20, line), QString::fromStdString(F0ReadoutValueText(hz)));
    dc.restore();
}

void BlankReadout(QPainter& dc, QPoint at, const QColor& face) { dc.fillRect(F0ReadoutBox(at), face); }
