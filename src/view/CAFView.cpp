#include "view/CAFView.h"

#include <algorithm>

#include <QIcon>
#include <QPainter>

#include "controls/UiText.h"

CAFView::CAFView(QWidget* parent) : QWidget(parent) {
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::white);
    setPalette(colours);
    setMinimumSize(320, 240);
}

void CAFView::ShowEmpty() {
    m_displayMode = DisplayMode::ModeEmpty;
    repaint();
}

void CAFView::paintEvent(QPaintEvent*) {
    if (m_displayMode != DisplayMode::ModeEmpty) return;
    QPainter painter(this);
    // The logo grows with the window from its size on a 1024 x 768 screen, up to about twice that, and is drawn
    // from its vector picture at the device's resolution so that it stays sharp.
    const qreal scale = std::clamp(std::min(width() / 1024.0, height() / 768.0), 1.0, 1.8);
    const QSize logoSize = (QSizeF(420, 140) * scale).toSize();
    const qreal ratio = devicePixelRatioF();
    if (m_logo.isNull() || m_logo.devicePixelRatio() != ratio || m_logo.deviceIndependentSize().toSize() != logoSize) {
        m_logo = QIcon(":/view/logo.svg").pixmap(logoSize, ratio);
    }
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 1.3 * scale);
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const int gap = metrics.height();
    const int top = (height() - (logoSize.height() + gap + metrics.height())) / 2;
    painter.drawPixmap((width() - logoSize.width()) / 2, top, m_logo);
    painter.setPen(QColor(0x0b, 0x3c, 0x49));
    painter.drawText(QRect(0, top + logoSize.height() + gap, width(), metrics.height()), Qt::AlignHCenter,
                     uiText(kEmptyViewLine));
}
