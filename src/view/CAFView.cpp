#include "view/CAFView.h"

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
    // The logo is drawn from its vector picture at the device's resolution, so it stays sharp on any screen.
    const qreal ratio = devicePixelRatioF();
    if (m_logo.isNull() || m_logo.devicePixelRatio() != ratio) {
        m_logo = QIcon(":/view/logo.svg").pixmap(QSize(420, 140), ratio);
    }
    const QString line = uiText(kEmptyViewLine);
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const QSize logoSize = m_logo.deviceIndependentSize().toSize();
    const int gap = metrics.height();
    const int total = logoSize.height() + gap + metrics.height();
    const int top = (height() - total) / 2;
    painter.drawPixmap((width() - logoSize.width()) / 2, top, m_logo);
    painter.setPen(QColor(0x0b, 0x3c, 0x49));
    painter.drawText(QRect(0, top + logoSize.height() + gap, width(), metrics.height()), Qt::AlignHCenter, line);
}
