// Type sized as the program's drawing sizes it: by the height of a line of text, ascent plus descent, the way a
// font is asked for with a positive height. A pixel size in Qt is the height of the em square, a fifth or so less
// than a line, so the same number there would draw text too large for the boxes laid out for it.
#pragma once

#include <QFont>

// `face` with lines `cellHeight` pixels high or just under, bold or regular.
QFont CellHeightFont(const char* face, int cellHeight, bool bold);
