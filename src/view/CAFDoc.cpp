#include "view/CAFDoc.h"

void CAFDoc::SetTitle(const QString& title) {
    // Announced even when unchanged: the window may have shown another title meanwhile.
    m_title = title;
    emit titleChanged(m_title);
}
