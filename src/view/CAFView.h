// The main view of the window: the pictures of the recording on screen, or, with nothing loaded, the empty view
// with the program's logo and its line of text.
#pragma once

#include <string_view>

#include <QPixmap>
#include <QWidget>
#include <QtGlobal>

#include "view/DisplayMode.h"

inline constexpr std::string_view kEmptyViewLine =
    QT_TRANSLATE_NOOP("Sonalys", "Voice and speech analysis for speech therapy");

class CAFView : public QWidget {
    Q_OBJECT
public:
    explicit CAFView(QWidget* parent = nullptr);

    DisplayMode displayMode() const { return m_displayMode; }
    // Back to the empty view, repainted at once.
    void ShowEmpty();

    // Idle means neither recording nor playing; the commands of the frame follow these.
    bool Recording = false;
    bool Playing = false;
    bool isIdle() const { return !Recording && !Playing; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DisplayMode m_displayMode = DisplayMode::ModeEmpty;
    QPixmap m_logo;
};
