// Scripted stand-ins for the sound devices. A test sets the results the coming calls return, makes sound arrive (or
// buffers finish playing) when it chooses, and reads back every call in order. Events travel through the event loop
// exactly as the real devices' do; pumpDeviceEvents() delivers them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include <QObject>
#include <QTimer>

#include "audio/DeviceEventQueue.h"
#include "audio/WaveDevice.h"
#include "store/WaveFile.h"

// Results for the coming calls of one operation, first first; success once the script has run out.
class ScriptedResults {
public:
    void push(int result, int times = 1) { m_results.insert(m_results.end(), times, result); }
    void failAt(int call, int result);  // the `call`-th coming call (1 = the next) returns `result`
    int next();

private:
    std::deque<int> m_results;
};

// What capture and playback fakes share: the call log, the queue of lent headers and the events they send.
template <class Device, class Events>
class FakeWaveDevice : public Device {
    static constexpr bool kCapture = std::is_same_v<Events, WaveInEvents>;

public:
    ScriptedResults openResults, prepareResults, unprepareResults, queueResults, resetResults, closeResults;
    std::vector<std::string> calls;  // "open", "prepare", "add" or "write", "reset", "close", ...
    WaveFormat openedFormat;
    std::vector<std::uint32_t> queuedLengths;  // dwBufferLength of every buffer queued, in order
    int resetDelayMilliseconds = 0;            // a slow device: a reset hands the buffers back only after this long

    int open(const WaveFormat& format, Events& events) override {
        if (const int result = scripted("open", openResults)) return result;
        if (m_open) return MMSYSERR_ALLOCATED;
        m_open = true;
        m_target = &events;
        openedFormat = format;
        stopped();
        post(DeviceEventQueue::Kind::Other, [](Events& e) {
            if constexpr (kCapture)
                e.waveInOpened();
            else
                e.waveOutOpened();
        });
        return MMSYSERR_NOERROR;
    }
    int prepareHeader(WaveHeader& header) override {
        if (const int result = scripted("prepare", prepareResults)) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        if (!header.lpData || header.dwBufferLength == 0) return MMSYSERR_INVALPARAM;
        header.dwFlags |= WHDR_PREPARED;
        return MMSYSERR_NOERROR;
    }
    int unprepareHeader(WaveHeader& header) override {
        if (const int result = scripted("unprepare", unprepareResults)) return result;
        if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
        header.dwFlags &= ~WHDR_PREPARED;
        return MMSYSERR_NOERROR;
    }
    int reset() override {
        if (const int result = scripted("reset", resetResults)) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        stopped();
        if (resetDelayMilliseconds == 0) return handBackAll(), MMSYSERR_NOERROR;
        QTimer::singleShot(resetDelayMilliseconds, &m_timers, [this] { handBackAll(); });
        return MMSYSERR_NOERROR;
    }
    int close() override {
        if (const int result = scripted("close", closeResults)) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        if (!m_queue.empty()) return WAVERR_STILLPLAYING;
        m_open = false;
        stopped();
        m_events.dropBufferEvents();
        post(DeviceEventQueue::Kind::Other, [](Events& e) {
            if constexpr (kCapture)
                e.waveInClosed();
            else
                e.waveOutClosed();
        });
        return MMSYSERR_NOERROR;
    }
    bool isOpen() const override { return m_open; }

    void fail(int code) {  // the device stops working
        post(DeviceEventQueue::Kind::Other, [code](Events& e) {
            if constexpr (kCapture)
                e.waveInFailed(code);
            else
                e.waveOutFailed(code);
        });
    }
    std::size_t queued() const noexcept { return m_queue.size(); }
    std::size_t count(const std::string& call) const {
        return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), call));
    }

protected:
    virtual void stopped() = 0;  // opened, reset or closed: no longer capturing or paused

    int scripted(const char* call, ScriptedResults& results) {
        calls.emplace_back(call);
        return results.next();
    }
    int enqueue(const char* call, WaveHeader& header) {
        if (const int result = scripted(call, queueResults)) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        if (!(header.dwFlags & WHDR_PREPARED)) return WAVERR_UNPREPARED;
        if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
        header.dwFlags = (header.dwFlags | WHDR_INQUEUE) & ~WHDR_DONE;
        header.dwBytesRecorded = 0;
        m_queue.push_back(&header);
        queuedLengths.push_back(header.dwBufferLength);
        return MMSYSERR_NOERROR;
    }
    void handBackFirst() {
        WaveHeader& header = *m_queue.front();
        m_queue.pop_front();
        header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
        post(DeviceEventQueue::Kind::Buffer, [h = &header](Events& e) {
            if constexpr (kCapture)
                e.waveInData(*h);
            else
                e.waveOutDone(*h);
        });
    }
    void handBackAll() {
        while (!m_queue.empty()) handBackFirst();
    }
    template <class Call>
    void post(DeviceEventQueue::Kind kind, Call call) {
        m_events.post(kind, [target = m_target, call] { call(*target); });
    }

    bool m_open = false;
    Events* m_target = nullptr;
    std::deque<WaveHeader*> m_queue;
    QObject m_timers;
    DeviceEventQueue m_events;
};

class FakeWaveInDevice : public FakeWaveDevice<WaveInDevice, WaveInEvents> {
public:
    ScriptedResults& addResults = queueResults;
    ScriptedResults startResults;
    bool started = false;

    int addBuffer(WaveHeader& header) override { return enqueue("add", header); }
    int start() override;

    // Sound arrives: it fills the queued buffers in order and every full buffer is handed back. Before a start, and
    // between a reset and the next start, it waits in the device; with no buffer queued it is lost.
    void capture(std::span<const std::uint8_t> bytes);

private:
    void stopped() override { started = false; }
    void deliver();

    std::vector<std::uint8_t> m_waiting;
};

class FakeWaveOutDevice : public FakeWaveDevice<WaveOutDevice, WaveOutEvents> {
public:
    ScriptedResults& writeResults = queueResults;
    ScriptedResults queryResults;
    std::vector<std::uint8_t> sounded;  // the bytes of every header played to its end, in order
    bool paused = false;

    int query(const WaveFormat&) override { return scripted("query", queryResults); }
    int write(WaveHeader& header) override { return enqueue("write", header); }
    int pause() override { return toggle("pause", true); }
    int restart() override { return toggle("restart", false); }

    // The first `headers` queued headers finish playing and are handed back. Nothing plays while paused.
    void play(std::size_t headers = 1);

private:
    void stopped() override { paused = false; }
    int toggle(const char* call, bool pause);
};

// The record format of `index` (3 is 16-bit mono at 11025 Hz), as the writer knows them.
inline WaveFormat recordFormat(int index) {
    WaveWriter writer;
    writer.SetRecordFormat(index);
    return writer.format;
}

// Runs the event loop until no device event is waiting any more.
void pumpDeviceEvents();
