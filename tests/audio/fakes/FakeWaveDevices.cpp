#include "FakeWaveDevices.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <cstring>

int FakeWaveInDevice::start() {
    if (const int result = scripted("start")) return result;
    if (!m_open) return MMSYSERR_INVALHANDLE;
    started = true;
    deliver();
    return MMSYSERR_NOERROR;
}

void FakeWaveInDevice::capture(std::span<const std::uint8_t> bytes) {
    m_waiting.insert(m_waiting.end(), bytes.begin(), bytes.end());
    if (started) deliver();
}

void FakeWaveInDevice::deliver() {
    std::size_t used = 0;
    while (!m_queue.empty() && used < m_waiting.size()) {
        WaveHeader& header = *m_queue.front();
        const std::size_t take =
            std::min<std::size_t>(header.dwBufferLength - header.dwBytesRecorded, m_waiting.size() - used);
        std::memcpy(header.lpData + header.dwBytesRecorded, m_waiting.data() + used, take);
        header.dwBytesRecorded += static_cast<std::uint32_t>(take);
        used += take;
        if (header.dwBytesRecorded < header.dwBufferLength) break;
        handBackFirst();
    }
    if (m_queue.empty()) used = m_waiting.size();  // nowhere to put the rest
    m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(used));
}

int FakeWaveOutDevice::toggle(const char* call, bool pause) {
    calls.emplace_back(call);
    if (!m_open) return MMSYSERR_INVALHANDLE;
    paused = pause;
    return MMSYSERR_NOERROR;
}

void FakeWaveOutDevice::play(std::size_t headers) {
    while (headers-- > 0 && !paused && !m_queue.empty()) {
        const WaveHeader& header = *m_queue.front();
        sounded.insert(sounded.end(), header.lpData, header.lpData + header.dwBufferLength);
        handBackFirst();
    }
}

void pumpDeviceEvents() {
    // Every event handler may post more; a bounded number of rounds keeps a runaway test from hanging.
    for (int round = 0; round < 100000; ++round) {
        if (!QCoreApplication::instance()->eventDispatcher()->processEvents(QEventLoop::AllEvents)) break;
    }
}
