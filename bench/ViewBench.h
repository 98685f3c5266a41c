// What the benchmarks of the main view share: a view laid out for a screen and shown at the size of its page.
#pragma once

#include <cmath>

#include <QApplication>
#include <QSize>

#include "view/CAFView.h"

inline void ShowAtPageSize(CAFView& view, QSize screen) {
    view.setScreenSize(screen);
    const QSizeF page = view.layout().pageSize();
    view.resize(static_cast<int>(page.width()),
                static_cast<int>(std::lround(page.height() * view.layout().verticalStretch())));
    view.show();
    QApplication::processEvents();
}
