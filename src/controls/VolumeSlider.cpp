#include "controls/VolumeSlider.h"

#include <QSignalBlocker>

VolumeSlider::VolumeSlider(QWidget* parent) : QSlider(Qt::Vertical, parent) {
    // The smallest position stands at the top, so that the top is the loudest level.
    setInvertedAppearance(true);
    setInvertedControls(true);
    setTickPosition(QSlider::TicksBothSides);
    setNoLine();
    connect(this, &QSlider::valueChanged, this, [this] { emit levelMoved(level()); });
}

void VolumeSlider::setLine(int minimum, int maximum) {
    const QSignalBlocker quiet(this);
    setRange(minimum, maximum);
    setTickInterval((maximum - minimum) / 7);
    setPageStep(std::max(1, (maximum - minimum) / 7));
    setEnabled(true);
}

void VolumeSlider::setNoLine() {
    const QSignalBlocker quiet(this);
    setRange(0, 0);
    setEnabled(false);
}

void VolumeSlider::setLevel(int level) {
    if (level < minimum()) return;
    const QSignalBlocker quiet(this);
    setValue(maximum() - level);
}
