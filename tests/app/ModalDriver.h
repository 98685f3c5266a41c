// Drives the modal windows a test opens: the action given runs on the next modal window once it is up, from
// inside its own event loop, the way a person at the screen would answer it.
#pragma once

#include <functional>

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class ModalDriver {
public:
    // `act` gets the modal window once it is shown and must close it. A window up before this call is skipped.
    static void whenModal(std::function<void(QWidget*)> act) {
        auto* timer = new QTimer;
        QPointer<QWidget> before = QApplication::activeModalWidget();
        timer->setInterval(5);
        QObject::connect(timer, &QTimer::timeout, [timer, act, before] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr || modal == before || !modal->isVisible()) return;
            timer->stop();
            timer->deleteLater();
            act(modal);
        });
        timer->start();
    }
};
