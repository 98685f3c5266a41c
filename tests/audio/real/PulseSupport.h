// What the tests against a real PulseAudio server share: finding the test devices that
// scripts/pulse-test-server.sh sets up, feeding sound into the pipe source at a microphone's pace, and recording what
// the null sink plays.
#pragma once

#include <QProcess>
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

// Records the monitor of a sink with parec, raw 16-bit mono at `rate`, until stop() gives what it heard.
class MonitorRecording {
public:
    MonitorRecording(const std::string& sink, int rate, std::filesystem::path file);
    ~MonitorRecording() { stop(); }
    bool started() const { return m_started; }
    std::vector<std::int16_t> stop();

private:
    QProcess m_process;
    std::filesystem::path m_file;
    bool m_started = false;
};

// Runs the event loop for `milliseconds`.
void runEventLoop(int milliseconds);
