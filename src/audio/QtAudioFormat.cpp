#include "audio/QtAudioFormat.h"

#include "store/WaveFile.h"

std::optional<QAudioFormat> toQAudioFormat(const WaveFormat& format) {
    constexpr std::uint16_t kPcm = 1;
    if (format.wFormatTag != kPcm || format.nChannels < 1 || format.nChannels > 2 || format.nSamplesPerSec == 0) {
        return std::nullopt;
    }
    QAudioFormat qt;
    qt.setSampleRate(static_cast<int>(format.nSamplesPerSec));
    qt.setChannelCount(format.nChannels);
    if (format.wBitsPerSample == 8) {
        qt.setSampleFormat(QAudioFormat::UInt8);
    } else if (format.wBitsPerSample == 16) {
        qt.setSampleFormat(QAudioFormat::Int16);
    } else {
        return std::nullopt;
    }
    return qt;
}
