// The default sound output through Qt Multimedia (PulseAudio on Linux). The engine's buffers are written into Qt's
// stream as room appears, and each is handed back when its last byte is due to sound, as its own event. Once sound
// has been written the stream is kept full with silence, so that a short sound is never left waiting in the sound
// system for more, and the close waits until the last sound has been heard.
#pragma once

#include <QAudioFormat>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <deque>
#include <memory>
#include <vector>

#include "audio/CVolumeOutWave.h"
#include "audio/DeviceEventQueue.h"
#include "audio/WaveDevice.h"

class QAudioSink;
class QIODevice;

// Its volume is the program's wave level: kept while no stream is open, and given to each new stream.
class QtWaveOutDevice : public WaveOutDevice, public StreamVolume {
public:
    QtWaveOutDevice();
    ~QtWaveOutDevice() override;

    int query(const WaveFormat& format) override;
    int open(const WaveFormat& format, WaveOutEvents& events) override;
    int prepareHeader(WaveHeader& header) override;
    int unprepareHeader(WaveHeader& header) override;
    int write(WaveHeader& header) override;
    int pause() override;
    int restart() override;
    int reset() override;
    int close() override;
    bool isOpen() const override { return m_sink != nullptr && !m_closing; }

    double streamVolume() const override { return m_volume; }
    void setStreamVolume(double volume) override;

private:
    using Clock = std::chrono::steady_clock;
    struct Pending {
        WaveHeader* header;
        std::uint32_t written;  // bytes already in the stream
    };
    struct Sounding {
        WaveHeader* header;
        Clock::time_point due;  // when its last byte sounds
    };

    bool ensureStream();
    void watchForFailure();
    void feed(bool topUp);
    void writeSilence(qint64 most);  // at most `most` bytes, as many as fit
    void handBackDue();
    void handBack(WaveHeader& header);
    void finishClose();
    void retireSink();
    Clock::duration queuedDuration() const;

    DeviceEventQueue m_eventQueue;  // first made, last gone: the stream's last signals may still post
    std::unique_ptr<QAudioSink> m_sink;
    // Closed streams wait here for their deletion, which runs the event loop and so must not happen inside a call.
    std::vector<std::unique_ptr<QAudioSink>> m_retired;
    QObject m_retirement;
    QPointer<QIODevice> m_stream;  // owned by m_sink; null after a reset until the next write
    QAudioFormat m_format;
    QTimer m_feedTimer;
    WaveOutEvents* m_events = nullptr;
    std::deque<Pending> m_pending;
    std::deque<Sounding> m_sounding;
    bool m_paused = false;
    bool m_failed = false;
    bool m_closing = false;
    double m_volume = 1.0;
    bool m_primed = false;  // sound has gone into the stream since it started
    Clock::time_point m_pausedAt;
    Clock::time_point m_lastDue;
    Clock::time_point m_closeAt;
};
