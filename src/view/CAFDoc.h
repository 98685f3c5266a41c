// The document of the main view. It holds no data of its own: its title, the name of the client and the
// recording on screen, is what the window shows in its title bar.
#pragma once

#include <QObject>
#include <QString>

class CAFDoc : public QObject {
    Q_OBJECT
public:
    explicit CAFDoc(QObject* parent = nullptr) : QObject(parent) {}

    const QString& title() const { return m_title; }
    void SetTitle(const QString& title);

signals:
    void titleChanged(const QString& title);

private:
    QString m_title;
};
