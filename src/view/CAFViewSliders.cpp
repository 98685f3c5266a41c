// The two volume sliders beside the graph, placed through the page's mapping so that they grow with the window.
#include <cmath>

#include "view/CAFView.h"
#include "view/GraphCaptions.h"

namespace {

// The sliders stand under the two input captions, which take the box's top 40 pixels, down to the graph's bottom;
// the master slider on the left half of the box, the input slider on the right.
constexpr int kSlidersBelowTop = 45;

QRect roundedRect(const QRectF& area) {
    const QPoint topLeft(static_cast<int>(std::lround(area.left())), static_cast<int>(std::lround(area.top())));
    const QPoint end(static_cast<int>(std::lround(area.right())), static_cast<int>(std::lround(area.bottom())));
    return QRect(topLeft, end - QPoint(1, 1));
}

}  // namespace

void CAFView::placeSliders() {
    // The empty view has no graph beside which they could stand.
    if (m_displayMode == DisplayMode::ModeEmpty) {
        m_masterSlider->hide();
        m_inputSlider->hide();
        return;
    }
    const QRect box = InputBox(m_layout).adjusted(0, kSlidersBelowTop, 0, 0);
    const int half = box.width() / 2;
    const QTransform toWidget = m_layout.toWidget(QSizeF(size()));
    const QRect master(box.left(), box.top(), half, box.height());
    m_masterSlider->setGeometry(roundedRect(toWidget.mapRect(QRectF(master))));
    m_inputSlider->setGeometry(roundedRect(toWidget.mapRect(QRectF(master.translated(half, 0)))));
    m_masterSlider->show();
    m_inputSlider->show();
}
