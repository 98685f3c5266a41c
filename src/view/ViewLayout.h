// The geometry of the main view: where the graph, the overview strip and the read-out row stand, in the page's own
// pixels, fixed once from the size of the screen. Everything is laid out in these pixels and then mapped onto the
// widget, so that the page grows and shrinks with the window and stays sharp on any screen; a mouse position goes
// back through the inverse mapping before it is tested against the page.
#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>
#include <QTransform>

// Title bar, menus, tool bar and status bar of the main window on a screen of the reference sizes, in pixels: the
// page of a layout is the screen less this height.
inline constexpr int kWindowChromeHeight = 102;

struct ViewLayout {
    int GraphLeft = 92;     // left edge of the analysis graph and of the strip
    int GraphWidth = 671;   // width of both, in pixels
    int GraphTop = 100;     // top of the analysis graph
    int GraphHeight = 300;  // height of the analysis graph
    int StripTop = 445;     // top of the overview strip: 45 pixels under the graph
    int StripHeight = 50;
    int TitleTop = 50;  // the read-out row with the caption and the time
    int TitleHeight = 35;
    int PanelSplit = 400;  // right end of a graph when two views share the window
    bool LargeLayout = false;
    int XOffset = 0;  // how far the large layout is moved right and down on screens above 1024 x 768
    int YOffset = 0;
    QSize Screen{800, 600};

    // The small layout on a screen exactly 800 wide or exactly 600 high, the large one on any other, moved right
    // by half the width above 1024 and down by half the height above 768.
    static ViewLayout forScreen(QSize screen);

    // The large layout stretches all drawing vertically by 111 / 100.
    double verticalStretch() const { return LargeLayout ? 111.0 / 100.0 : 1.0; }
    // The page in its own pixels: the screen's width, and its height less the window's chrome, before the
    // vertical stretch.
    QSizeF pageSize() const;
    // From page pixels to the widget's coordinates, for a widget of `widget` size: the page as large as fits, with
    // the same scale across and down (the vertical stretch apart), centred. Everything placed on the page, and its
    // side panels, goes through this one mapping.
    QTransform toWidget(QSizeF widget) const;
    // A widget position in page pixels.
    QPointF toPage(QPointF widgetPosition, QSizeF widget) const;

    int graphRight() const { return GraphLeft + GraphWidth; }
    int graphBottom() const { return GraphTop + GraphHeight; }
    int stripBottom() const { return StripTop + StripHeight; }
    // The frame drawn around the graph.
    QRect frameRect() const;
    // The pixels the picture fills inside the frame: the columns stand one pixel right of GraphLeft.
    QRect pictureRect() const;
    // The strip with its outline, GraphWidth + 2 pixels wide.
    QRect stripRect() const;
    // Where a right click opens the context menu: the strip widened on every side.
    QRect contextMenuArea() const;
};
