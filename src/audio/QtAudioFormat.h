// The WAV format record as Qt Multimedia describes a stream: 8-bit samples are unsigned and 16-bit signed, as in a
// WAV file.
#pragma once

#include <QAudioFormat>
#include <optional>

struct WaveFormat;

// The same format for Qt, or nothing for a format no sound device takes (not PCM, not 8 or 16 bits, no channel).
std::optional<QAudioFormat> toQAudioFormat(const WaveFormat& format);
