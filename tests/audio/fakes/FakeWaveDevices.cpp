#include "FakeWaveDevices.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <cstring>

void ScriptedResults::failAt(int call, int result) {
    if (static_cast<int>(m_results.size()) < call) m_results.resize(static_cast<std::size_t>(call), MMSYSERR_NOERROR);
    m_results[static_cast<std::size_t>(call - 1)] = result;
}

int ScriptedResults::next() {
    if (m_results.empty()) return MMSYSERR_NOERROR;
    const int result = m_results.front();
    m_results.pop_front();
    return result;
}

namespace {

std::size_t countOf(const std::vector<std::string>& calls, const std::string& call) {
    return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), call));
}

int prepare(WaveHeader& header, bool open, int scripted) {
    if (scripted != MMSYSERR_NOERROR) return scripted;
    if (!open) return MMSYSERR_INVALHANDLE;
    if (!header.lpData || header.dwBufferLength == 0) return MMSYSERR_INVALPARAM;
    header.dwFlags |= WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

int unprepare(WaveHeader& header, int scripted) {
    if (scripted != MMSYSERR_NOERROR) return scripted;
    if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
    header.dwFlags &= ~WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

int enqueue(std::deque<WaveHeader*>& queue, WaveHeader& header, bool open, int scripted) {
    if (scripted != MMSYSERR_NOERROR) return scripted;
    if (!open) return MMSYSERR_INVALHANDLE;
    if (!(header.dwFlags & WHDR_PREPARED)) return WAVERR_UNPREPARED;
    if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
    header.dwFlags = (header.dwFlags | WHDR_INQUEUE) & ~WHDR_DONE;
    queue.push_back(&header);
    return MMSYSERR_NOERROR;
}

}  // namespace

// ---- capture

int FakeWaveInDevice::open(const WaveFormat& format, WaveInEvents& events) {
    calls.emplace_back("open");
    if (const int result = openResults.next(); result != MMSYSERR_NOERROR) return result;
    if (m_open) return MMSYSERR_ALLOCATED;
    m_open = true;
    m_target = &events;
    openedFormat = format;
    started = false;
    m_waiting.clear();
    m_events.post(DeviceEventQueue::Kind::Other, [target = m_target] { target->waveInOpened(); });
    return MMSYSERR_NOERROR;
}

int FakeWaveInDevice::prepareHeader(WaveHeader& header) {
    calls.emplace_back("prepare");
    return prepare(header, m_open, prepareResults.next());
}

int FakeWaveInDevice::unprepareHeader(WaveHeader& header) {
    calls.emplace_back("unprepare");
    return unprepare(header, unprepareResults.next());
}

int FakeWaveInDevice::addBuffer(WaveHeader& header) {
    calls.emplace_back("add");
    const int result = enqueue(m_queue, header, m_open, addResults.next());
    if (result == MMSYSERR_NOERROR) {
        header.dwBytesRecorded = 0;
        queuedLengths.push_back(header.dwBufferLength);
    }
    return result;
}

int FakeWaveInDevice::start() {
    calls.emplace_back("start");
    if (const int result = startResults.next(); result != MMSYSERR_NOERROR) return result;
    if (!m_open) return MMSYSERR_INVALHANDLE;
    started = true;
    deliver();
    return MMSYSERR_NOERROR;
}

int FakeWaveInDevice::reset() {
    calls.emplace_back("reset");
    if (const int result = resetResults.next(); result != MMSYSERR_NOERROR) return result;
    if (!m_open) return MMSYSERR_INVALHANDLE;
    started = false;
    if (resetDelayMilliseconds > 0) {
        QTimer::singleShot(resetDelayMilliseconds, &m_timers, [this] { handBackAll(); });
    } else {
        handBackAll();
    }
    return MMSYSERR_NOERROR;
}

void FakeWaveInDevice::handBackAll() {
    while (!m_queue.empty()) {
        WaveHeader* header = m_queue.front();
        m_queue.pop_front();
        handBack(*header);
    }
}

int FakeWaveInDevice::close() {
    calls.emplace_back("close");
    if (const int result = closeResults.next(); result != MMSYSERR_NOERROR) return result;
    if (!m_open) return MMSYSERR_INVALHANDLE;
    if (!m_queue.empty()) return WAVERR_STILLPLAYING;
    m_open = false;
    started = false;
    m_events.dropBufferEvents();
    m_events.post(DeviceEventQueue::Kind::Other, [target = m_target] { target->waveInClosed(); });
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
        m_queue.pop_front();
        handBack(header);
    }
    if (m_queue.empty()) used = m_waiting.size();  // nowhere to put the rest
    m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(used));
}

void FakeWaveInDevice::fail(int code) {
    m_events.post(DeviceEventQueue::Kind::Other, [target = m_target, code] { target->waveInFailed(code); });
}

void FakeWaveInDevice::handBack(WaveHeader& header) {
    header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
    m_events.post(DeviceEventQueue::Kind::Buffer, [target = m_target, h = &header] { target->waveInData(*h); });
}

std::size_t FakeWaveInDevice::count(const std::string& call) const { return countOf(calls, call); }

// ---- playback

int FakeWaveOutDevice::query(const WaveFormat&) {
    calls.emplace_back("query");
    return queryResults.next();
}

int FakeWaveOutDevice::open(const WaveFormat& format, WaveOutEvents& events) {
    calls.emplace_back("open");
    if (const int result = openResults.next(); result != MMSYSERR_NOERROR) return result;
    if (m_open) return MMSYSERR_ALLOCATED;
    m_open = true;
    m_target = &events;
    openedFormat = format;
    paused = false;
    m_events.post(DeviceEventQueue::Kind::Other, [target = m_target] { target->waveOutOpened(); });
    return MMSYSERR_NOERROR;
}

int FakeWaveOutDevice::prepareHeader(WaveHeader& header) {
    calls.emplace_back("prepare");
    return prepare(header, m_open, prepareResults.next());
}

int FakeWaveOutDevice::unprepareHeader(WaveHeader& header) {
    calls.emplace_back("unprepare");
    return unprepare(header, unprepareResults.next());
}

int FakeWaveOutDevice::write(WaveHeader& header) {
    calls.emplace_back("write");
    const int result = enqueue(m_queue, header, m_open, writeResults.next());
    if (result == MMSYSERR_NOERROR) writtenLengths.push_back(header.dwBufferLength);
    return result;
}

int FakeWaveOutDevice::pause() {
    calls.emplace_back("pause");
    if (!m_open) return MMSYSERR_INVALHANDLE;
    paused = true;
    return MMSYSERR_NOERROR;
}

int FakeWaveOutDevice::restart() {
    calls.emplace_back("restart");
    if (!m_open) return MMSYSERR_INVALHANDLE;
    paused = false;
    return MMSYSERR_NOERROR;
}

int FakeWaveOutDevice::reset() {
    calls.emplace_back("reset");
    if (!m_open) return MMSYSERR_INVALHANDLE;
    paused = false;
    while (!m_queue.empty()) {
        WaveHeader* header = m_queue.front();
        m_queue.pop_front();
        handBack(*header);
    }
    return MMSYSERR_NOERROR;
}

int FakeWaveOutDevice::close() {
    calls.emplace_back("close");
    if (const int result = closeResults.next(); result != MMSYSERR_NOERROR) return result;
    if (!m_open) return MMSYSERR_INVALHANDLE;
    if (!m_queue.empty()) return WAVERR_STILLPLAYING;
    m_open = false;
    m_events.dropBufferEvents();
    m_events.post(DeviceEventQueue::Kind::Other, [target = m_target] { target->waveOutClosed(); });
    return MMSYSERR_NOERROR;
}

void FakeWaveOutDevice::play(std::size_t headers) {
    while (headers-- > 0 && !paused && !m_queue.empty()) {
        WaveHeader* header = m_queue.front();
        m_queue.pop_front();
        sounded.insert(sounded.end(), header->lpData, header->lpData + header->dwBufferLength);
        handBack(*header);
    }
}

void FakeWaveOutDevice::fail(int code) {
    m_events.post(DeviceEventQueue::Kind::Other, [target = m_target, code] { target->waveOutFailed(code); });
}

void FakeWaveOutDevice::handBack(WaveHeader& header) {
    header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
    m_events.post(DeviceEventQueue::Kind::Buffer, [target = m_target, h = &header] { target->waveOutDone(*h); });
}

std::size_t FakeWaveOutDevice::count(const std::string& call) const { return countOf(calls, call); }

void pumpDeviceEvents() {
    // Every event handler may post more; a bounded number of rounds keeps a runaway test from hanging.
    for (int round = 0; round < 100000; ++round) {
        if (!QCoreApplication::instance()->eventDispatcher()->processEvents(QEventLoop::AllEvents)) break;
    }
}
