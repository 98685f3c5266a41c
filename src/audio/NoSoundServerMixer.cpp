#include "audio/SoundServerMixer.h"

std::unique_ptr<IVolume> makeSoundServerVolume(MixerLine, int) { return nullptr; }
