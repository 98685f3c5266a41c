#include "panels/SpectrumPicture.h"

#include <algorithm>
#include <span>

#include <QPainter>
#include <QPen>

#include "analysis/PowerSpectrum.h"

int SpectrumPointCount(int fftSize, float frequencyRatio) {
    if (!(frequencyRatio > 0.0f)) return 0;
    return static_cast<int>((fftSize / 2) / frequencyRatio);
}

int SpectrumStep(const SpectrumArea& area, int points) {
    if (points <= 0) return 0;
    const int width = area.right - area.left;
    return (width + points - 1) / points;
}

int SpectrumBaseLine(const SpectrumArea& area) { return area.bottom - area.height() / 11; }

int SpectrumY(const SpectrumArea& area, float dB) {
    int y = static_cast<int>(SpectrumBaseLine(area) - (dB / 100.0) * area.height());
    y = std::min(y, area.bottom - 1);
    return std::max(y, kSpectrumTopMargin);
}

QPolygon SpectrumPoints(const SpectrumArea& area, std::span<const float> values, int points) {
    const int step = SpectrumStep(area, points);
    const int count = std::min(points, static_cast<int>(values.size()));
    QPolygon polygon(count);
    for (int i = 0; i < count; ++i) {
        const int x = std::min(area.left + i * step, area.right - 1);
        polygon[i] = QPoint(x, SpectrumY(area, values[static_cast<std::size_t>(i)]));
    }
    return polygon;
}

double SpectrumLevelAt(const SpectrumArea& area, double y) {
    if (area.height() <= 0) return 0.0;
    return (SpectrumBaseLine(area) - y) * 100.0 / area.height();
}

double SpectrumFrequencyAt(const SpectrumArea& area, double x, double topHz) {
    const int width = area.right - area.left;
    if (width <= 0) return 0.0;
    return (x - area.left) / width * topHz;
}

QColor AverageColour(const QColor& curve) {
    return curve.rgb() == qRgb(255, 0, 0) ? QColor(Qt::black) : QColor(255, 0, 0);
}

namespace {

// The area under the curve in the curve's colour, white above it: between two points the height steps linearly.
void drawSolid(QPainter& painter, const QPolygon& curve, const SpectrumArea& area, const QColor& colour) {
    const int lastX = curve.isEmpty() ? area.left : curve.last().x() + 1;
    painter.fillRect(QRect(QPoint(area.left, area.top), QPoint(lastX - 1, area.bottom - 1)), Qt::white);
    QPolygon under = curve;
    under << QPoint(curve.last().x(), area.bottom) << QPoint(curve.first().x(), area.bottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(under);
    painter.setBrush(Qt::NoBrush);
}

}  // namespace

void DrawSpectrum(QPainter& painter, const PowerSpectrum& spectrum, const SpectrumSettings& settings,
                  const SpectrumArea& area) {
    const int points = SpectrumPointCount(spectrum.fftSize(), spectrum.zoom());
    if (points <= 0 || area.height() <= 0) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const QPolygon curve = SpectrumPoints(area, spectrum.current(), points);
    if (settings.style == SpectrumStyle::Line) {
        painter.fillRect(QRect(QPoint(area.left, area.top), QPoint(area.right - 1, area.bottom - 1)), Qt::white);
        painter.setPen(QPen(settings.colour, 0));
        painter.drawPolyline(curve);
    } else {
        drawSolid(painter, curve, area, settings.colour);
    }
    if (settings.ltas) {
        QPolygon average = SpectrumPoints(area, spectrum.average(), points);
        // A point on the left edge moves one pixel right, clear of the frame.
        for (QPoint& p : average) {
            if (p.x() == area.left) p.setX(area.left + 1);
        }
        painter.setPen(QPen(AverageColour(settings.colour), 2));
        painter.drawPolyline(average);
    }
    painter.restore();
}
