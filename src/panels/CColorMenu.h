// The two colour popups of the side panels: CColorMenu offers the spectrogram's three colour schemes, each line a
// bar of its palette; CColorMenu2 the fifteen colours of the spectrum's curve. The current choice has a black ball.
#pragma once

#include <QColor>
#include <QSize>
#include <QWidget>

class QEventLoop;

// A popup of lines one under the other, chosen with the mouse or the arrow keys and Return. Line k gives command
// kFirstColourCommand + k.
class ColourPopup : public QWidget {
    Q_OBJECT
public:
    // Shows the popup with its top left at `globalPosition` and waits: the command chosen, or 0 when it closes
    // without a choice.
    int exec(QPoint globalPosition);
    // Chooses line `line` and closes.
    void choose(int line);
    int lineCount() const { return m_lines; }
    int current() const { return m_current; }

protected:
    // `lineSize` in page pixels; `scale` widget pixels per page pixel.
    ColourPopup(int lines, QSize lineSize, int current, double scale, QWidget* parent);
    // Draws what line `line` shows, in page pixels with the line's top left at (0, 0).
    virtual void drawLine(QPainter& painter, int line) const = 0;

    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    int lineAt(QPoint widget) const;

    int m_lines;
    QSize m_lineSize;
    int m_current;
    double m_scale;
    int m_hover;
    int m_chosen = 0;
    QEventLoop* m_loop = nullptr;
};

class CColorMenu : public ColourPopup {
    Q_OBJECT
public:
    CColorMenu(int currentScheme, double scale, QWidget* parent);

protected:
    void drawLine(QPainter& painter, int line) const override;
};

class CColorMenu2 : public ColourPopup {
    Q_OBJECT
public:
    CColorMenu2(int currentIndex, double scale, QWidget* parent);
    // The colour of line `line`: the system palette's colours, or `windowText` for a line that has none.
    static QColor LineColour(int line, const QColor& windowText);

protected:
    void drawLine(QPainter& painter, int line) const override;
};
