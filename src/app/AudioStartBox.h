// The small box that stands while the main window sets up the mixer lines at start: reaching the sound server can
// take a moment, and the window is not yet there to show that the program is working.
#pragma once

#include <string_view>

#include <QtGlobal>

#include "app/MixerVolumes.h"

class QWidget;
struct Prompt;

inline constexpr std::string_view kStartingAudioDevices =
    QT_TRANSLATE_NOOP("Sonalys", "Wait, starting audio devices...");

// Sets the mixer up as MixerVolumes::SetUp does, with the box shown over `parent` meanwhile. The box goes before the
// first question of the set-up, so that it never hides one, and is gone when this returns.
bool SetUpMixerWithWaitBox(MixerVolumes& mixer, MixerVolumes::Factory make, int recordInput, Prompt& prompt,
                           QWidget* parent);
