#include "panels/CColorMenu.h"

#include <algorithm>
#include <cmath>

#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "analysis/Palette.h"
#include "panels/CMyBarra.h"
#include "panels/PanelDefaults.h"

namespace {

constexpr int kBallLeft = 5;  // the ball of the current line, from x 5 to 10
constexpr int kBallSize = 5;
constexpr int kMenuRange = 70;  // the range the scheme bars are shown at
constexpr int kBarLeft = 15;    // the scheme bar from x 15 to 115, one pixel per palette entry
constexpr int kBarSteps = 100;
constexpr int kSwatchRight = 50;  // the curve colour's rectangle from x 15 to 50

}  // namespace

ColourPopup::ColourPopup(int lines, QSize lineSize, int current, double scale, QWidget* parent)
    : QWidget(parent, Qt::Popup),
      m_lines(lines),
      m_lineSize(lineSize),
      m_current(current),
      m_scale(scale),
      m_hover(std::clamp(current, 0, lines - 1)) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(static_cast<int>(std::lround(lineSize.width() * scale)) + 2,
           static_cast<int>(std::lround(lineSize.height() * lines * scale)) + 2);
}

int ColourPopup::exec(QPoint globalPosition) {
    move(globalPosition);
    show();
    setFocus(Qt::PopupFocusReason);
    QEventLoop loop;
    m_loop = &loop;
    if (isVisible()) loop.exec();
    m_loop = nullptr;
    return m_chosen;
}

void ColourPopup::choose(int line) {
    if (line >= 0 && line < m_lines) m_chosen = kFirstColourCommand + line;
    close();
}

void ColourPopup::hideEvent(QHideEvent*) {
    if (m_loop != nullptr) m_loop->quit();
}

int ColourPopup::lineAt(QPoint widget) const {
    const double y = (widget.y() - 1) / m_scale;
    return std::clamp(static_cast<int>(y / m_lineSize.height()), 0, m_lines - 1);
}

void ColourPopup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.translate(1, 1);
    painter.scale(m_scale, m_scale);
    for (int line = 0; line < m_lines; ++line) {
        painter.save();
        painter.translate(0, line * m_lineSize.height());
        if (line == m_hover) painter.fillRect(QRect(QPoint(0, 0), m_lineSize), palette().color(QPalette::Highlight));
        drawLine(painter, line);
        if (line == m_current) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::black);
            painter.drawEllipse(QRectF(kBallLeft, (m_lineSize.height() - kBallSize) / 2.0, kBallSize, kBallSize));
        }
        painter.restore();
    }
}

void ColourPopup::mouseMoveEvent(QMouseEvent* event) {
    m_hover = lineAt(event->position().toPoint());
    update();
}

void ColourPopup::mouseReleaseEvent(QMouseEvent* event) {
    if (rect().contains(event->position().toPoint())) choose(lineAt(event->position().toPoint()));
}

void ColourPopup::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up: m_hover = std::max(0, m_hover - 1); break;
    case Qt::Key_Down: m_hover = std::min(m_lines - 1, m_hover + 1); break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: choose(m_hover); return;
    case Qt::Key_Escape: close(); return;
    default: QWidget::keyPressEvent(event); return;
    }
    update();
}

CColorMenu::CColorMenu(int currentScheme, double scale, QWidget* parent)
    : ColourPopup(3, QSize(kBarLeft + kBarSteps + 5, 15), currentScheme, scale, parent) {
    setObjectName("colorMenu");
}

void CColorMenu::drawLine(QPainter& painter, int line) const {
    const Palette palette = BuildPalette(kMenuRange, line);
    for (int i = 0; i < kBarSteps; ++i) {
        const Rgb& c = palette[static_cast<std::size_t>(i)];
        painter.fillRect(QRect(kBarLeft + i, 3, 1, 9), QColor(c.red, c.green, c.blue));
    }
}

CColorMenu2::CColorMenu2(int currentIndex, double scale, QWidget* parent)
    : ColourPopup(static_cast<int>(kCurveColours.size()), QSize(60, 15), currentIndex, scale, parent) {
    setObjectName("colorMenu2");
}

QColor CColorMenu2::LineColour(int line, const QColor& windowText) {
    if (line < 0 || line >= static_cast<int>(kCurveColours.size())) return windowText;
    return QColor::fromRgb(kCurveColours[static_cast<std::size_t>(line)]);
}

void CColorMenu2::drawLine(QPainter& painter, int line) const {
    painter.fillRect(QRect(QPoint(kBarLeft, 3), QPoint(kSwatchRight - 1, 11)),
                     LineColour(line, palette().color(QPalette::WindowText)));
}
