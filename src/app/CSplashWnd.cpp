#include "app/CSplashWnd.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>

#include "controls/UiText.h"

namespace {
constexpr QSize kPictureSize(480, 300);
}

CSplashWnd* CSplashWnd::ShowSplashScreen(QWidget* mainWindow, LanguageId language) {
    auto* splash = new CSplashWnd(mainWindow, language);
    splash->show();
    splash->raise();  // over the view and the bars
    return splash;
}

// The splash lies inside the main window rather than in a window of its own: a desktop places a new window where
// it likes (often the screen's corner) and the main window is maximised only after it is shown, so only a picture
// that the main window carries stays centred on it.
CSplashWnd::CSplashWnd(QWidget* mainWindow, LanguageId language)
    : QWidget(mainWindow, mainWindow != nullptr ? Qt::Widget : Qt::SplashScreen | Qt::FramelessWindowHint),
      m_picture(QIcon(":/app/splash.svg").pixmap(kPictureSize, devicePixelRatioF())),
      // The Spanish text is longer; it is written higher up and further left.
      m_textAt(language == LanguageId::Spanish ? QPoint(200, 40) : QPoint(300, 190)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(kPictureSize);
    centre();
    qApp->installEventFilter(this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &QWidget::close);
    m_timer.start(kSplashMilliseconds);
}

void CSplashWnd::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    painter.setPen(Qt::black);
    const QFontMetrics metrics(painter.font());
    painter.drawText(m_textAt + QPoint(0, metrics.ascent()), uiText(kSplashWait));
}

void CSplashWnd::centre() {
    if (parentWidget() != nullptr) move(parentWidget()->rect().center() - rect().center());
}

bool CSplashWnd::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == parentWidget()) centre();
        return false;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
        qApp->removeEventFilter(this);
        close();
        return true;
    default: return QWidget::eventFilter(watched, event);
    }
}
