// The default sound input through Qt Multimedia (PulseAudio on Linux). Qt hands captured bytes over on its own
// schedule; this device moves them into the engine's queued buffers, hands each full buffer back as its own event, and
// leaves bytes with the sound system while it is not started, so that a reset and a start lose nothing in between.
#pragma once

#include <QPointer>
#include <QTimer>
#include <deque>
#include <memory>
#include <vector>

#include "audio/DeviceEventQueue.h"
#include "audio/WaveDevice.h"

class QAudioSource;
class QIODevice;

class QtWaveInDevice : public WaveInDevice {
public:
    QtWaveInDevice();
    ~QtWaveInDevice() override;

    int open(const WaveFormat& format, WaveInEvents& events) override;
    int prepareHeader(WaveHeader& header) override;
    int unprepareHeader(WaveHeader& header) override;
    int addBuffer(WaveHeader& header) override;
    int start() override;
    int reset() override;
    int close() override;
    bool isOpen() const override { return m_source != nullptr; }

private:
    void poll();
    void discardCaptured();
    void handBack(WaveHeader& header);
    void watchForFailure();
    void retireSource();

    DeviceEventQueue m_eventQueue;  // first made, last gone: the stream's last signals may still post
    std::unique_ptr<QAudioSource> m_source;
    // Closed streams wait here for their deletion, which runs the event loop and so must not happen inside a call.
    std::vector<std::unique_ptr<QAudioSource>> m_retired;
    QObject m_retirement;
    QPointer<QIODevice> m_stream;  // owned by m_source; gone when the sound system drops the stream
    QTimer m_pollTimer;
    WaveInEvents* m_events = nullptr;
    std::deque<WaveHeader*> m_queue;
    bool m_started = false;
    bool m_failed = false;
};
