// The picture shown in the middle of the main window while the program starts. It goes after two seconds, or at
// once when a key or a mouse button goes down anywhere in the program; that key or click does nothing else.
#pragma once

#include <string_view>

#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <QtGlobal>

#include "app/SettingsFiles.h"

inline constexpr std::string_view kSplashWait = QT_TRANSLATE_NOOP("Sonalys", "Wait, Please...");
inline constexpr int kSplashMilliseconds = 2000;

class CSplashWnd : public QWidget {
    Q_OBJECT
public:
    // Shows the splash centred on `mainWindow`; it deletes itself when it closes.
    static CSplashWnd* ShowSplashScreen(QWidget* mainWindow, LanguageId language);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CSplashWnd(QWidget* mainWindow, LanguageId language);
    // In the middle of the main window, again whenever that window changes size.
    void centre();

    QPixmap m_picture;
    QPoint m_textAt;
    QTimer m_timer;
};
