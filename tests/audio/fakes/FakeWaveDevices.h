// Scripted sound devices: a test scripts the result of a coming call, makes sound arrive or buffers finish playing when
// it chooses, and reads back every call in order. Events travel through the event loop as the real devices' do.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "audio/DeviceEventQueue.h"
#include "audio/WaveDevice.h"
#include "store/WaveFile.h"

// The same four events under their capture and playback names.
inline void opened(WaveInEvents& e) { e.waveInOpened(); }
inline void opened(WaveOutEvents& e) { e.waveOutOpened(); }
inline void handedBack(WaveInEvents& e, WaveHeader& h) { e.waveInData(h); }
inline void handedBack(WaveOutEvents& e, WaveHeader& h) { e.waveOutDone(h); }
inline void closed(WaveInEvents& e) { e.waveInClosed(); }
inline void closed(WaveOutEvents& e) { e.waveOutClosed(); }
inline void failed(WaveInEvents& e, int code) { e.waveInFailed(code); }
inline void failed(WaveOutEvents& e, int code) { e.waveOutFailed(code); }

template <class Device, class Events>
class FakeWaveDevice : public Device {
public:
    std::vector<std::string> calls;            // "open", "prepare", "add" or "write", "reset", "close", ...
    std::vector<std::uint32_t> queuedLengths;  // dwBufferLength of every buffer queued, in order

    // The `nth` coming call of `call` returns `result`; calls not scripted succeed.
    void failAt(const std::string& call, int nth, int result) {
        std::deque<int>& results = m_script[call];
        if (static_cast<int>(results.size()) < nth) results.resize(static_cast<std::size_t>(nth), MMSYSERR_NOERROR);
        results[static_cast<std::size_t>(nth - 1)] = result;
    }
    int open(const WaveFormat&, Events& events) override {
        if (const int result = scripted("open")) return result;
        if (m_open) return MMSYSERR_ALLOCATED;
        m_open = true;
        m_target = &events;
        stopped();
        post(DeviceEventQueue::Kind::Other, [](Events& e) { opened(e); });
        return MMSYSERR_NOERROR;
    }
    int prepareHeader(WaveHeader& header) override {
        if (const int result = scripted("prepare")) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        if (!header.lpData || header.dwBufferLength == 0) return MMSYSERR_INVALPARAM;
        header.dwFlags |= WHDR_PREPARED;
        return MMSYSERR_NOERROR;
    }
    int unprepareHeader(WaveHeader& header) override {
        if (const int result = scripted("unprepare")) return result;
        if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
        header.dwFlags &= ~WHDR_PREPARED;
        return MMSYSERR_NOERROR;
    }
    int reset() override {
        if (const int result = scripted("reset")) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        stopped();
        while (!m_queue.empty()) handBackFirst();
        return MMSYSERR_NOERROR;
    }
    int close() override {
        if (const int result = scripted("close")) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        if (!m_queue.empty()) return WAVERR_STILLPLAYING;
        m_open = false;
        m_events.dropBufferEvents();
        post(DeviceEventQueue::Kind::Other, [](Events& e) { closed(e); });
        return MMSYSERR_NOERROR;
    }
    bool isOpen() const override { return m_open; }

    void fail(int code) {  // the device stops working
        post(DeviceEventQueue::Kind::Other, [code](Events& e) { failed(e, code); });
    }
    std::size_t queued() const noexcept { return m_queue.size(); }

protected:
    virtual void stopped() {}  // opened or reset: no longer capturing

    int scripted(const char* call) {
        calls.emplace_back(call);
        std::deque<int>& results = m_script[call];
        if (results.empty()) return MMSYSERR_NOERROR;
        const int result = results.front();
        results.pop_front();
        return result;
    }
    int enqueue(const char* call, WaveHeader& header) {
        if (const int result = scripted(call)) return result;
        if (!m_open) return MMSYSERR_INVALHANDLE;
        if (!(header.dwFlags & WHDR_PREPARED)) return WAVERR_UNPREPARED;
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
        post(DeviceEventQueue::Kind::Buffer, [h = &header](Events& e) { handedBack(e, *h); });
    }
    template <class Call>
    void post(DeviceEventQueue::Kind kind, Call call) {
        m_events.post(kind, [target = m_target, call] { call(*target); });
    }

    bool m_open = false;
    Events* m_target = nullptr;
    std::deque<WaveHeader*> m_queue;
    std::map<std::string, std::deque<int>> m_script;
    DeviceEventQueue m_events;
};

class FakeWaveInDevice : public FakeWaveDevice<WaveInDevice, WaveInEvents> {
public:
    int addBuffer(WaveHeader& header) override { return enqueue("add", header); }
    int start() override;
    // Sound arrives: once started it fills the queued buffers in order and every full buffer is handed back; with no
    // buffer queued it is lost.
    void capture(std::span<const std::uint8_t> bytes);
    void capture(std::span<const std::int16_t> samples);  // the same, of 16-bit samples in file order

private:
    void stopped() override { m_started = false; }
    bool m_started = false;
};

class FakeWaveOutDevice : public FakeWaveDevice<WaveOutDevice, WaveOutEvents> {
public:
    std::vector<std::uint8_t> sounded;  // the bytes of every header played to its end, in order

    int query(const WaveFormat&) override { return scripted("query"); }
    int write(WaveHeader& header) override { return enqueue("write", header); }
    int pause() override { return scripted("pause"); }
    int restart() override { return scripted("restart"); }
    // The first `headers` queued headers finish playing and are handed back.
    void play(std::size_t headers = 1);
};

// The record format of `index` (3 is 16-bit mono at 11025 Hz), as the writer knows them.
inline WaveFormat recordFormat(int index) {
    WaveWriter writer;
    writer.SetRecordFormat(index);
    return writer.format;
}

// 16-bit values first, first + 1, ...: any value lost, doubled or moved shows.
inline std::vector<std::int16_t> counting(std::size_t values, int first) {
    std::vector<std::int16_t> out(values);
    for (std::size_t i = 0; i < values; ++i) out[i] = static_cast<std::int16_t>(first + static_cast<int>(i));
    return out;
}

// Runs the event loop until no device event is waiting any more.
void pumpDeviceEvents();
