#include "audio/IVolume.h"

int IVolume::Enable() {
    LineInfo info;
    m_available = openLine(info) && info.channels > 0 && info.minimum < info.maximum;
    m_enabled = m_available;
    if (!m_available) return 0;
    m_minimum = info.minimum;
    m_maximum = info.maximum;
    m_channels = info.channels;
    return 1;
}

void IVolume::Disable() {
    if (m_enabled) closeLine();
    m_enabled = false;
}

int IVolume::GetCurrent() {
    if (!m_enabled) return -1;
    const std::vector<int> levels = readLevels();
    if (levels.empty()) return -1;
    m_current = levels.front();
    return m_current;
}

void IVolume::SetCurrent(int value) {
    if (!m_enabled || value < m_minimum || value > m_maximum) return;
    if (writeLevels(std::vector<int>(static_cast<std::size_t>(m_channels), value))) m_current = value;
}

void IVolume::levelChangedOutside(int value) {
    if (value == m_current) return;  // our own change coming back from the mixer
    m_current = value;
    if (m_callback) m_callback(value);
}
