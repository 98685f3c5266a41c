#include "view/ReadOut.h"

#include <algorithm>

#include "controls/DecimalText.h"

QRect ReadOutBox(const ViewLayout& layout, QPoint pointer, int lines) {
    const int height = kReadOutLineHeight * std::max(lines, 1) + 4;
    int left = pointer.x() + 8;
    if (pointer.x() > layout.graphRight() - 200) left = pointer.x() - 8 - kReadOutWidth;
    int top = pointer.y() - 15;
    left = std::clamp(left, layout.GraphLeft + 1, layout.graphRight() + 1 - kReadOutWidth);
    top = std::clamp(top, layout.GraphTop, layout.graphBottom() - height);
    return QRect(left, top, kReadOutWidth, height);
}

double ReadOutSeconds(const ViewLayout& layout, double x, std::int64_t firstShown, std::int64_t lastShown, int rate) {
    if (rate <= 0) return 0.0;
    const double sample =
        firstShown + (x - layout.GraphLeft) * static_cast<double>(lastShown - firstShown) / layout.GraphWidth;
    return sample / rate;
}

double ReadOutHertz(const ViewLayout& layout, double y, double topHz) {
    return (1.0 - (y - layout.GraphTop) / layout.GraphHeight) * topHz;
}

std::string ReadOutText(std::string_view format, double first, double second) {
    std::string text;
    const double values[2] = {first, second};
    int next = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format.substr(i, 4) == "%.2f" && next < 2) {
            text += DecimalText(values[next++], 2);
            i += 3;
        } else {
            text += format[i];
        }
    }
    return text;
}
