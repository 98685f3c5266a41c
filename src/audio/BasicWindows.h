// Receivers of the devices' events for a capture or a play with nothing to draw: the command-line tool and the
// tests use them where the program has its view. Each keeps the view's counters and hands every event to the engine
// in the order the view does.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "audio/ChunkedPlayback.h"
#include "audio/WaveDevice.h"

class WavePlayer;
class WaveRecorder;
struct Prompt;

class BasicRecordWindow : public WaveInEvents {
public:
    explicit BasicRecordWindow(WaveRecorder& recorder) : m_recorder(recorder) {}

    bool recordPaused = false;      // captured sound is thrown away
    bool pausedByButton = false;    // with recordPaused: buffers are not replaced, so the queue runs dry
    std::int64_t bytePosition = 0;  // bytes received while not paused
    int closeEvents = 0;
    std::vector<int> failures;
    std::function<void(WaveHeader&)> onBuffer;  // sees each buffer before the engine takes it back, may shorten it
    std::function<void()> onClosed;

    void waveInOpened() override;
    void waveInData(WaveHeader& header) override;
    void waveInClosed() override;
    void waveInFailed(int code) override;

private:
    WaveRecorder& m_recorder;
};

class BasicPlayWindow : public WaveOutEvents {
public:
    // `samples` is the whole of what is being played from, as the view's loaded samples are.
    BasicPlayWindow(WavePlayer& player, ChunkedPlayback& play, Prompt& prompt, const std::int16_t* samples,
                    std::int64_t sampleCount)
        : m_player(player), m_play(play), m_prompt(prompt), m_samples(samples), m_sampleCount(sampleCount) {}

    int closeEvents = 0;
    std::vector<int> failures;
    std::function<void()> onClosed;

    void waveOutOpened() override;
    void waveOutDone(WaveHeader& header) override;
    void waveOutClosed() override;
    void waveOutFailed(int code) override;

private:
    WavePlayer& m_player;
    ChunkedPlayback& m_play;
    Prompt& m_prompt;
    const std::int16_t* m_samples;
    std::int64_t m_sampleCount;
};
