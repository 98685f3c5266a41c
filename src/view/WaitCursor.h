// The wait cursor for the time of a computation or a load, put back however the work ends.
#pragma once

#include <QApplication>
#include <QCursor>

class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { restore(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

    // Puts the cursor back early, before a message is shown.
    void restore() {
        if (!m_active) return;
        m_active = false;
        QApplication::restoreOverrideCursor();
    }

private:
    bool m_active = true;
};
