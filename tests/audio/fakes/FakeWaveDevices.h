// Scripted stand-ins for the sound devices. A test sets the results the coming calls return, makes sound arrive (or
// buffers finish playing) when it chooses, and reads back every call in order. Events travel through the event loop
// exactly as the real devices' do; pumpDeviceEvents() delivers them.
#pragma once

#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <vector>

#include <QObject>

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

class FakeWaveInDevice : public WaveInDevice {
public:
    ScriptedResults openResults, prepareResults, unprepareResults, addResults, startResults, resetResults, closeResults;

    std::vector<std::string> calls;  // "open", "prepare", "unprepare", "add", "start", "reset", "close"
    WaveFormat openedFormat;
    std::vector<std::uint32_t> queuedLengths;  // dwBufferLength of every buffer queued, in order
    bool started = false;
    int resetDelayMilliseconds = 0;  // a slow device: a reset hands the buffers back only after this long

    int open(const WaveFormat& format, WaveInEvents& events) override;
    int prepareHeader(WaveHeader& header) override;
    int unprepareHeader(WaveHeader& header) override;
    int addBuffer(WaveHeader& header) override;
    int start() override;
    int reset() override;
    int close() override;
    bool isOpen() const override { return m_open; }

    // Sound arrives: it fills the queued buffers in order and every full buffer is handed back. Before a start, and
    // between a reset and the next start, it waits in the device; with no buffer queued it is lost.
    void capture(std::span<const std::uint8_t> bytes);
    void fail(int code);  // the device stops working
    std::size_t queued() const noexcept { return m_queue.size(); }
    std::size_t count(const std::string& call) const;
    std::size_t pendingEvents() const noexcept { return m_events.pending(); }

private:
    void deliver();
    void handBack(WaveHeader& header);
    void handBackAll();

    bool m_open = false;
    WaveInEvents* m_target = nullptr;
    std::deque<WaveHeader*> m_queue;
    QObject m_timers;
    std::vector<std::uint8_t> m_waiting;
    DeviceEventQueue m_events;
};

class FakeWaveOutDevice : public WaveOutDevice {
public:
    ScriptedResults queryResults, openResults, prepareResults, unprepareResults, writeResults, closeResults;

    std::vector<std::string> calls;  // "query", "open", "prepare", "unprepare", "write", "pause", "restart", ...
    WaveFormat openedFormat;
    std::vector<std::uint8_t> sounded;  // the bytes of every header played to its end, in order
    std::vector<std::uint32_t> writtenLengths;
    bool paused = false;

    int query(const WaveFormat& format) override;
    int open(const WaveFormat& format, WaveOutEvents& events) override;
    int prepareHeader(WaveHeader& header) override;
    int unprepareHeader(WaveHeader& header) override;
    int write(WaveHeader& header) override;
    int pause() override;
    int restart() override;
    int reset() override;
    int close() override;
    bool isOpen() const override { return m_open; }

    // The first `headers` queued headers finish playing and are handed back. Nothing plays while paused.
    void play(std::size_t headers = 1);
    void fail(int code);
    std::size_t queued() const noexcept { return m_queue.size(); }
    std::size_t count(const std::string& call) const;
    std::size_t pendingEvents() const noexcept { return m_events.pending(); }

private:
    void handBack(WaveHeader& header);

    bool m_open = false;
    WaveOutEvents* m_target = nullptr;
    std::deque<WaveHeader*> m_queue;
    DeviceEventQueue m_events;
};

// Runs the event loop until no device event is waiting any more.
void pumpDeviceEvents();
