#include "view/CAFDoc.h"

void CAFDoc::SetTitle(const QString& title) {
    if (title == m_title) return;
    m_title = title;
    emit titleChanged(m_title);
}
