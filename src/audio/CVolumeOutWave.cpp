#include "audio/CVolumeOutWave.h"

#include <cmath>

bool CVolumeOutWave::openLine(LineInfo& info) {
    info = {0, kMaximum, 1};
    return true;
}

std::vector<int> CVolumeOutWave::readLevels() {
    return {static_cast<int>(std::lround(m_stream.streamVolume() * kMaximum))};
}

bool CVolumeOutWave::writeLevels(const std::vector<int>& levels) {
    m_stream.setStreamVolume(static_cast<double>(levels.front()) / kMaximum);
    return true;
}
