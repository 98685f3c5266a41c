#include "controls/LevelMeter.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QPainter>

#include "controls/UiText.h"

namespace {

constexpr QColor kTrough(40, 40, 40);
constexpr QColor kHoldTick(255, 255, 255);
constexpr double kClipMarkShare = 0.08;  // the part of the bar's length at the full-scale end the clip mark takes

}  // namespace

LevelMeter::LevelMeter(QWidget* parent) : QWidget(parent) {
    setObjectName("inputLevel");
    setToolTip(uiText(kTipInputLevel));
    setAccessibleName(uiText(kTipInputLevel));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LevelMeter::setLevel(const InputLevel& level) {
    m_rmsDb = level.rmsDb();
    m_holdDb = level.holdDb();
    m_zone = level.zone();
    m_takeClipped = level.clipped();
    update();
}

void LevelMeter::clear() { setLevel(InputLevel{}); }

QColor LevelMeter::zoneColour(LevelZone zone) {
    switch (zone) {
    case LevelZone::NearFullScale: return QColor(240, 165, 0);
    case LevelZone::Clipped: return QColor(220, 30, 30);
    case LevelZone::Normal: break;
    }
    return QColor(40, 170, 70);
}

double LevelMeter::fraction(double db) { return std::clamp((db - kBottomDb) / -kBottomDb, 0.0, 1.0); }

void LevelMeter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF whole = rect();
    painter.fillRect(whole, kTrough);
    const bool upright = height() > width();
    const double length = upright ? whole.height() : whole.width();
    // A level as the part of the bar from the quiet end: the bottom when upright, the left otherwise.
    const auto span = [&](double from, double to) {
        return upright ? QRectF(0.0, length * (1.0 - to), whole.width(), length * (to - from))
                       : QRectF(length * from, 0.0, length * (to - from), whole.height());
    };
    painter.fillRect(span(0.0, fraction(m_rmsDb)), zoneColour(m_zone));
    if (m_holdDb > kBottomDb) {
        const double at = fraction(m_holdDb);
        const double tick = std::max(1.0, length * 0.03);
        painter.fillRect(span(std::max(0.0, at - tick / length), at), kHoldTick);
    }
    if (m_takeClipped) painter.fillRect(span(1.0 - kClipMarkShare, 1.0), zoneColour(LevelZone::Clipped));
}

void LevelMeter::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        setToolTip(uiText(kTipInputLevel));
        setAccessibleName(uiText(kTipInputLevel));
    }
    QWidget::changeEvent(event);
}
