#include "view/WaveStrip.h"

#include <algorithm>

#include <QPainter>

int StripY(const ViewLayout& layout, float sample) {
    const int top = layout.StripTop;
    const int bottom = layout.stripBottom();
    const int half = (bottom - top) / 2;
    const int centre = top + half;
    int y = static_cast<int>(centre - sample * (1.0f / 32768.0f) * half);
    if (y >= bottom) y = bottom - 1;
    if (y <= top) y = top + 1;
    return y;
}

QPolygon StripTrace(const ViewLayout& layout, std::span<const std::int16_t> samples, std::int64_t first,
                    std::int64_t last) {
    QPolygon trace;
    const auto total = static_cast<std::int64_t>(samples.size());
    if (total == 0 || layout.GraphWidth <= 0) return trace;
    const float step = static_cast<float>(last - first) / static_cast<float>(layout.GraphWidth);
    if (!(step >= 0.0f)) return trace;
    trace.reserve(layout.GraphWidth * kPointsPerColumn);
    for (int x = 0; x < layout.GraphWidth; ++x) {
        const auto base = static_cast<std::int64_t>(static_cast<float>(x) * step);
        for (float f = 0.0f; f < 1.0f; f += 0.125f) {
            // A float step can round a point onto the end of the range; it reads the last sample there.
            const std::int64_t index =
                std::clamp<std::int64_t>(first + base + static_cast<std::int64_t>(f * step), 0, total - 1);
            trace << QPoint(layout.GraphLeft + x, StripY(layout, samples[static_cast<std::size_t>(index)]));
        }
    }
    return trace;
}

void DrawStripFrame(QPainter& painter, const ViewLayout& layout) {
    const QRect strip = layout.stripRect();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(strip, Qt::white);
    const int top = layout.StripTop;
    const int height = layout.StripHeight;
    painter.setPen(QPen(QColor::fromRgb(kGuideLineColour), 0));
    for (const int y : {top + height / 2, top + height / 4, top + height / 2 + height / 4})
        painter.drawLine(strip.left(), y, strip.right(), y);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(strip.adjusted(0, 0, -1, -1));
    painter.restore();
}

void DrawStrip(QPainter& painter, const ViewLayout& layout, const QPolygon& trace, const QColor& colour) {
    DrawStripFrame(painter, layout);
    if (trace.isEmpty()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(colour, 0));
    painter.drawPolyline(trace);
    painter.restore();
}

LiveTrace::LiveTrace(int graphWidth) : m_capacity(std::max(graphWidth, 1) * kPointsPerColumn) {
    m_points.reserve(static_cast<std::size_t>(m_capacity));
}

void LiveTrace::addBlock(std::span<const std::int16_t> block, int columns) {
    if (block.empty() || columns <= 0) return;
    const float step = static_cast<float>(block.size()) / static_cast<float>(columns);
    for (int x = 0; x < columns; ++x) {
        const auto base = static_cast<std::size_t>(static_cast<float>(x) * step);
        for (float f = 0.0f; f < 1.0f; f += 0.125f) {
            const std::size_t index = std::min(base + static_cast<std::size_t>(f * step), block.size() - 1);
            m_points.push_back(static_cast<float>(block[index]));
        }
    }
    // When full, the oldest values go and the rest move down.
    if (count() > m_capacity) m_points.erase(m_points.begin(), m_points.end() - m_capacity);
}

QPolygon LiveTrace::trace(const ViewLayout& layout) const {
    QPolygon trace;
    trace.reserve(count());
    for (int i = 0; i < count(); ++i)
        trace << QPoint(layout.GraphLeft + i / kPointsPerColumn, StripY(layout, m_points[static_cast<std::size_t>(i)]));
    return trace;
}
