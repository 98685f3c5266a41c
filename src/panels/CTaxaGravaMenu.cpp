#include "panels/CTaxaGravaMenu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "controls/UiText.h"

namespace {

// The ball stands from x 5 to 10, centred in its line; the text starts at x 15.
constexpr int kBallLeft = 5;
constexpr int kBallSize = 5;
constexpr int kTextLeft = 15;

QFont menuFont() {
    QFont font("Tahoma");
    font.setPixelSize(12);
    font.setWeight(QFont::Bold);  // weight 700
    return font;
}

}  // namespace

CTaxaGravaMenu::CTaxaGravaMenu(int currentRate, QWidget* parent)
    : QWidget(parent, Qt::Popup), m_marked(MarkedLine(currentRate)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setMouseTracking(true);
    setFixedSize(kLineWidth, kLineHeight * kLineCount);
}

int CTaxaGravaMenu::MarkedLine(int rate) {
    for (int line = 0; line < kLineCount; ++line) {
        if (kRates[static_cast<std::size_t>(line)] == rate) return line;
    }
    return -1;
}

void CTaxaGravaMenu::popUpUnder(const QWidget& button) {
    move(button.mapToGlobal(QPoint(0, button.height())));
    show();
}

int CTaxaGravaMenu::lineAt(int y) const {
    const int line = y / kLineHeight;
    return y >= 0 && line < kLineCount ? line : -1;
}

void CTaxaGravaMenu::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(menuFont());
    for (int line = 0; line < kLineCount; ++line) {
        const QRect row(0, line * kLineHeight, kLineWidth, kLineHeight);
        const bool highlighted = line == m_highlighted;
        painter.fillRect(row, palette().color(highlighted ? QPalette::Highlight : QPalette::Window));
        if (line == m_marked) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::black);
            painter.drawEllipse(QRect(kBallLeft, row.top() + (kLineHeight - kBallSize) / 2, kBallSize, kBallSize));
        }
        painter.setPen(palette().color(highlighted ? QPalette::HighlightedText : QPalette::WindowText));
        painter.drawText(row.adjusted(kTextLeft, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         uiText(kTexts[static_cast<std::size_t>(line)]));
    }
}

void CTaxaGravaMenu::mouseMoveEvent(QMouseEvent* event) {
    const int line = rect().contains(event->position().toPoint()) ? lineAt(event->position().toPoint().y()) : -1;
    if (line == m_highlighted) return;
    m_highlighted = line;
    update();
}

void CTaxaGravaMenu::leaveEvent(QEvent*) {
    m_highlighted = -1;
    update();
}

void CTaxaGravaMenu::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (!rect().contains(at)) {
        close();
        return;
    }
    choose(lineAt(at.y()));
}

void CTaxaGravaMenu::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up: m_highlighted = m_highlighted <= 0 ? kLineCount - 1 : m_highlighted - 1; break;
    case Qt::Key_Down: m_highlighted = (m_highlighted + 1) % kLineCount; break;
    case Qt::Key_Return:
    case Qt::Key_Enter: choose(m_highlighted); return;
    case Qt::Key_Escape: close(); return;
    default: QWidget::keyPressEvent(event); return;
    }
    update();
}

void CTaxaGravaMenu::choose(int line) {
    if (line < 0) return;
    close();
    emit formatChosen(kFormats[static_cast<std::size_t>(line)]);
}
