#include "controls/CellFont.h"

#include <algorithm>

#include <QFontMetricsF>

QFont CellHeightFont(const char* face, int cellHeight, bool bold) {
    QFont font(QString::fromLatin1(face));
    font.setBold(bold);
    font.setPixelSize(cellHeight);
    // The face on this system may be a stand-in with other proportions: measure it rather than assume Windows'.
    const qreal line = QFontMetricsF(font).height();
    if (line > cellHeight) font.setPixelSize(std::max(1, static_cast<int>(cellHeight * cellHeight / line)));
    return font;
}
