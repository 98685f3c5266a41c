// The sound input a capture opens: the sound server's own default. Qt's PulseAudio layer does not always mark the
// server's default source as its default, and then hands out the first source it lists, which may be a silent one;
// so on PulseAudio the server is asked by name.
#pragma once

#include <QAudioDevice>

QAudioDevice defaultCaptureDevice();
