// For tests on a real PulseAudio server: the test devices scripts/pulse-test-server.sh sets up, sound fed into the
// pipe source at a microphone's pace, and what the null sink plays.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "RunCommand.h"

// The default source when it is a pipe, and the default sink.
struct TestDevices {
    std::filesystem::path fifo;
    std::string source;
    std::string sink;
    int rate = 0;  // of the pipe: the sound written is what a capture at this rate receives
};
std::optional<TestDevices> findTestDevices();

// A counting signal that is never 0: sample i holds 1 + i % 30000, so that any sample lost, doubled or moved shows.
inline std::int16_t countingSample(std::size_t i) { return static_cast<std::int16_t>(1 + i % 30000); }

// Throws away what an earlier test left in the pipe, so that a capture starts with what this test feeds.
void drainPipe(const std::filesystem::path& fifo);

// Writes sound into a named pipe a millisecond at a time at the pace of real time, as a microphone delivers it,
// until stopped or the sound runs out. Notes when each millisecond went in.
class PipeFeeder {
public:
    using Clock = std::chrono::steady_clock;
    PipeFeeder(std::filesystem::path fifo, int rate, std::function<std::int16_t(std::size_t)> sound,
               std::size_t length);
    ~PipeFeeder() { stop(); }
    void stop();
    Clock::time_point writtenAt(std::size_t index) const;  // when the sample at `index` went into the pipe
    double cpuSeconds() const { return m_cpuSeconds; }     // the feeder's own processor time

private:
    void run();

    std::filesystem::path m_fifo;
    int m_rate;
    std::function<std::int16_t(std::size_t)> m_sound;
    std::size_t m_length;
    std::atomic<bool> m_stop{false};
    mutable std::mutex m_timesLock;
    std::vector<Clock::time_point> m_blockTimes;  // one per millisecond block
    std::atomic<double> m_cpuSeconds{0.0};
    std::thread m_thread;
};

// What the monitor of a sink hears while `play` runs, recorded with parec, raw 16-bit mono at `rate` into `file`;
// nothing when parec cannot start.
std::vector<std::int16_t> recordMonitor(const std::string& sink, int rate, const std::filesystem::path& file,
                                        const std::function<void()>& play);

// Runs the event loop for `milliseconds`.
void runEventLoop(int milliseconds);
