#include "StereoFold.h"

std::vector<std::int16_t> foldToMono(std::span<const std::int16_t> interleaved, StereoChoice choice) {
    std::vector<std::int16_t> mono(interleaved.size() / 2);
    for (std::size_t k = 0; k < mono.size(); ++k) {
        const std::int32_t left = interleaved[2 * k];
        const std::int32_t right = interleaved[2 * k + 1];
        switch (choice) {
        case StereoChoice::Left: mono[k] = static_cast<std::int16_t>(left); break;
        case StereoChoice::Right: mono[k] = static_cast<std::int16_t>(right); break;
        case StereoChoice::Mix: mono[k] = static_cast<std::int16_t>((left + right) / 2); break;
        }
    }
    return mono;
}

void foldFormatToMono(WaveFormat& format) {
    format.nChannels = 1;
    format.nBlockAlign = static_cast<std::uint16_t>(format.wBitsPerSample * format.nChannels / 8);
    format.nAvgBytesPerSec = format.nBlockAlign * format.nSamplesPerSec;
}
