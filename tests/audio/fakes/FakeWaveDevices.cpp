#include "FakeWaveDevices.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <cstring>

#include "base/ByteOrder.h"

int FakeWaveInDevice::start() {
    if (const int result = scripted("start")) return result;
    if (!m_open) return MMSYSERR_INVALHANDLE;
    m_started = true;
    return MMSYSERR_NOERROR;
}

void FakeWaveInDevice::capture(std::span<const std::uint8_t> bytes) {
    while (m_started && !m_queue.empty() && !bytes.empty()) {
        WaveHeader& header = *m_queue.front();
        const std::size_t take = std::min<std::size_t>(header.dwBufferLength - header.dwBytesRecorded, bytes.size());
        std::memcpy(header.lpData + header.dwBytesRecorded, bytes.data(), take);
        header.dwBytesRecorded += static_cast<std::uint32_t>(take);
        bytes = bytes.subspan(take);
        if (header.dwBytesRecorded == header.dwBufferLength) handBackFirst();
    }
}

void FakeWaveInDevice::capture(std::span<const std::int16_t> samples) {
    std::vector<std::uint8_t> bytes(samples.size() * 2);
    samplesToLE(samples, bytes.data());
    capture(std::span<const std::uint8_t>(bytes));
}

void FakeWaveOutDevice::play(std::size_t headers) {
    while (headers-- > 0 && !m_queue.empty()) {
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
