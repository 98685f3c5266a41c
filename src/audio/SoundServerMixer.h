// Where the desktop's sound server keeps the levels of the speakers and of the recording input. A build for a
// desktop with no sound server known to the program has none, and its users set levels in the desktop's own mixer.
#pragma once

#include <memory>

#include "audio/IVolume.h"

// The record inputs, by the number that cfr.dat keeps.
inline constexpr int kMicrophoneInput = 0;
inline constexpr int kLineInput = 1;

// The three levels the program sets.
enum class MixerLine { Master, Wave, Input };

// The sound server's object for the master or the input line (`input` 0 microphone, 1 line in), not yet enabled;
// null for the wave line, which is our own stream's, and where there is no sound server.
std::unique_ptr<IVolume> makeSoundServerVolume(MixerLine line, int input);
