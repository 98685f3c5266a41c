#include "view/ViewLayout.h"

#include <algorithm>

ViewLayout ViewLayout::forScreen(QSize screen) {
    ViewLayout layout;
    layout.Screen = screen;
    if (screen.width() == 800 || screen.height() == 600) return layout;  // the small layout, as initialised
    layout.LargeLayout = true;
    layout.XOffset = std::max(0, static_cast<int>((screen.width() - 1024) * 0.5));
    layout.YOffset = std::max(0, static_cast<int>((screen.height() - 768) * 0.5));
    layout.GraphLeft = 140 + layout.XOffset;
    layout.GraphWidth = 800;
    layout.GraphTop = 150 + layout.YOffset;
    layout.GraphHeight = 300;
    layout.StripHeight = 70;
    layout.TitleTop = 70;
    layout.TitleHeight = 60;
    layout.PanelSplit = 500 + layout.XOffset;
    layout.StripTop = layout.GraphTop + layout.GraphHeight + 45;
    return layout;
}

QSizeF ViewLayout::pageSize() const {
    const double width = std::max(Screen.width(), 800);
    const double height = std::max(Screen.height() - kWindowChromeHeight, 498) / verticalStretch();
    // Never shorter than what is drawn: the strip and a margin under it.
    return {width, std::max(height, static_cast<double>(stripBottom() + 3))};
}

QTransform ViewLayout::toWidget(QSizeF widget) const {
    // One scale for both directions, the largest at which the whole page fits, so that the text keeps its shape
    // in a window of any proportions; the page stands in the middle of what is left over.
    const QSizeF page(pageSize().width(), pageSize().height() * verticalStretch());
    const double scale = std::min(widget.width() / page.width(), widget.height() / page.height());
    const double dx = (widget.width() - page.width() * scale) / 2.0;
    const double dy = (widget.height() - page.height() * scale) / 2.0;
    return QTransform(scale, 0.0, 0.0, scale * verticalStretch(), dx, dy);
}

QPointF ViewLayout::toPage(QPointF widgetPosition, QSizeF widget) const {
    return toWidget(widget).inverted().map(widgetPosition);
}

QRect ViewLayout::frameRect() const {
    const int right = GraphLeft + GraphWidth + (LargeLayout ? 3 : 2);
    return QRect(QPoint(GraphLeft, GraphTop - 1), QPoint(right - 1, graphBottom()));
}

QRect ViewLayout::pictureRect() const { return QRect(GraphLeft + 1, GraphTop, GraphWidth, GraphHeight); }

QRect ViewLayout::stripRect() const {
    return QRect(QPoint(GraphLeft, StripTop), QPoint(GraphLeft + GraphWidth + 1, stripBottom() - 1));
}

QRect ViewLayout::contextMenuArea() const {
    QRect area = stripRect().adjusted(-10, -10, 40, 10);
    if (LargeLayout) area.adjust(-40, -50, 40, 50);
    return area;
}
