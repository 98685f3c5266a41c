// An upright slider for one mixer level, loud at the top as sound cards' mixers show it: the slider's position is the
// line's maximum minus the level, over the line's range, with a tick every seventh of it.
#pragma once

#include <QSlider>

class VolumeSlider : public QSlider {
    Q_OBJECT
public:
    explicit VolumeSlider(QWidget* parent = nullptr);

    // Takes the line's range and enables the slider; a missing line leaves it disabled.
    void setLine(int minimum, int maximum);
    void setNoLine();
    // Shows a level without reporting it as moved; a level that cannot be read (below the range) is not shown.
    void setLevel(int level);
    int level() const { return maximum() - value(); }

signals:
    // The user moved the slider to this level.
    void levelMoved(int level);
};
