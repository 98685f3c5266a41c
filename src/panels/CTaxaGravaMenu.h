// The small popup of the record-rate button: three lines, "11025 Hz", "22050 Hz" and "44100 Hz", with a black ball
// before the rate in use. Choosing a line gives the record-format index of that rate at 16 bits.
#pragma once

#include <QWidget>
#include <array>
#include <string_view>

class CTaxaGravaMenu : public QWidget {
    Q_OBJECT
public:
    static constexpr int kLineWidth = 60;
    static constexpr int kLineHeight = 15;
    static constexpr int kLineCount = 3;
    static constexpr std::array<int, kLineCount> kCommands{40124, 40125, 40126};
    static constexpr std::array<int, kLineCount> kRates{11025, 22050, 44100};
    static constexpr std::array<int, kLineCount> kFormats{3, 5, 7};  // 16-bit mono at each rate
    static constexpr std::array<std::string_view, kLineCount> kTexts{QT_TRANSLATE_NOOP("Sonalys", "11025 Hz"),
                                                                     QT_TRANSLATE_NOOP("Sonalys", "22050 Hz"),
                                                                     QT_TRANSLATE_NOOP("Sonalys", "44100 Hz")};

    // `currentRate` in Hz; a rate not on the list marks no line.
    explicit CTaxaGravaMenu(int currentRate, QWidget* parent = nullptr);

    // The line that carries the ball for a rate: 0 to 2, or -1.
    static int MarkedLine(int rate);
    // Opens just under `button`, on its left edge.
    void popUpUnder(const QWidget& button);

signals:
    // The user chose a line: the record-format index to give the recorder (3, 5 or 7).
    void formatChosen(int formatIndex);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int lineAt(int y) const;
    void choose(int line);

    int m_marked;
    int m_highlighted = -1;
};
