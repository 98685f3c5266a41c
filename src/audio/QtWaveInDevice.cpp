#include "audio/QtWaveInDevice.h"

#include <QAudioDevice>
#include <QAudioSource>
#include <QIODevice>
#include <array>
#include <utility>

#include "audio/DefaultInput.h"
#include "audio/QtAudioFormat.h"
#include "store/WaveFile.h"

namespace {

// Qt's own delivery of captured bytes comes in bursts of a fifth of a second; asking every few milliseconds hands
// each buffer back soon after its last sample was captured.
constexpr int kPollMilliseconds = 10;
// The sound system hands captured bytes over in fragments of about this length.
constexpr int kFragmentsPerSecond = 100;

}  // namespace

QtWaveInDevice::QtWaveInDevice() {
    m_pollTimer.setTimerType(Qt::PreciseTimer);
    m_pollTimer.setInterval(kPollMilliseconds);
    QObject::connect(&m_pollTimer, &QTimer::timeout, [this] { poll(); });
}

QtWaveInDevice::~QtWaveInDevice() {
    // Deleting a Qt stream runs the event loop for a moment: nothing of this device may be delivered then.
    m_eventQueue.clear();
    m_pollTimer.stop();
    if (m_source) {
        m_source->disconnect();
        m_source->stop();
    }
    m_source.reset();
    // Deleting a stream runs the event loop, where the retirement of an earlier close may come due: the list is
    // emptied before anything in it is deleted, so that no stream is deleted twice.
    std::exchange(m_retired, {}).clear();
}

int QtWaveInDevice::open(const WaveFormat& format, WaveInEvents& events) {
    if (m_source) return MMSYSERR_ALLOCATED;
    const std::optional<QAudioFormat> qtFormat = toQAudioFormat(format);
    if (!qtFormat) return WAVERR_BADFORMAT;
    const QAudioDevice device = defaultCaptureDevice();
    if (device.isNull()) return MMSYSERR_BADDEVICEID;
    if (!device.isFormatSupported(*qtFormat)) return WAVERR_BADFORMAT;

    m_source = std::make_unique<QAudioSource>(device, *qtFormat);
    const int frame = qtFormat->bytesPerFrame();
    m_source->setBufferSize(
        std::max(frame, qtFormat->bytesForDuration(1'000'000 / kFragmentsPerSecond) / frame * frame));
    m_stream = m_source->start();
    if (!m_stream || m_source->error() != QAudio::NoError) {
        retireSource();
        return MMSYSERR_NODRIVER;
    }
    watchForFailure();
    m_events = &events;
    m_queue.clear();
    m_started = false;
    m_failed = false;
    m_pollTimer.start();
    m_eventQueue.post(DeviceEventQueue::Kind::Other, [this, target = m_events] { target->waveInOpened(); });
    return MMSYSERR_NOERROR;
}

// A stream that stops with an error has lost its device (a sound server that went away, a microphone unplugged).
void QtWaveInDevice::watchForFailure() {
    QObject::connect(m_source.get(), &QAudioSource::stateChanged, m_source.get(), [this](QAudio::State state) {
        if (state != QAudio::StoppedState || m_source->error() == QAudio::NoError || m_failed) return;
        m_failed = true;
        m_eventQueue.post(DeviceEventQueue::Kind::Other,
                          [target = m_events] { target->waveInFailed(WAVERR_DEVICELOST); });
    });
}

int QtWaveInDevice::prepareHeader(WaveHeader& header) {
    if (!m_source) return MMSYSERR_INVALHANDLE;
    if (!header.lpData || header.dwBufferLength == 0) return MMSYSERR_INVALPARAM;
    header.dwFlags |= WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

int QtWaveInDevice::unprepareHeader(WaveHeader& header) {
    if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
    header.dwFlags &= ~WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

int QtWaveInDevice::addBuffer(WaveHeader& header) {
    if (!m_source) return MMSYSERR_INVALHANDLE;
    if (!(header.dwFlags & WHDR_PREPARED)) return WAVERR_UNPREPARED;
    if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
    header.dwFlags = (header.dwFlags | WHDR_INQUEUE) & ~WHDR_DONE;
    header.dwBytesRecorded = 0;
    m_queue.push_back(&header);
    return MMSYSERR_NOERROR;
}

int QtWaveInDevice::start() {
    if (!m_source) return MMSYSERR_INVALHANDLE;
    m_started = true;
    poll();
    return MMSYSERR_NOERROR;
}

int QtWaveInDevice::reset() {
    if (!m_source) return MMSYSERR_INVALHANDLE;
    if (m_started) poll();  // what was captured up to this moment still goes into the buffers
    m_started = false;
    while (!m_queue.empty()) {
        WaveHeader* header = m_queue.front();
        m_queue.pop_front();
        handBack(*header);
    }
    return MMSYSERR_NOERROR;
}

int QtWaveInDevice::close() {
    if (!m_source) return MMSYSERR_INVALHANDLE;
    if (!m_queue.empty()) return WAVERR_STILLPLAYING;
    m_pollTimer.stop();
    m_started = false;
    m_eventQueue.dropBufferEvents();
    m_eventQueue.post(DeviceEventQueue::Kind::Other, [target = m_events] { target->waveInClosed(); });
    retireSource();
    return MMSYSERR_NOERROR;
}

void QtWaveInDevice::retireSource() {
    m_source->disconnect();
    m_source->stop();
    m_stream = nullptr;
    m_retired.push_back(std::move(m_source));
    QTimer::singleShot(0, &m_retirement, [this] {
        std::vector<std::unique_ptr<QAudioSource>> going;
        going.swap(m_retired);
    });
}

void QtWaveInDevice::poll() {
    // Before a start, and between a reset and the next start, the bytes wait in the sound system.
    if (!m_stream || !m_started) return;
    while (!m_queue.empty()) {
        WaveHeader& header = *m_queue.front();
        const qint64 want = header.dwBufferLength - header.dwBytesRecorded;
        const qint64 got = m_stream->read(reinterpret_cast<char*>(header.lpData + header.dwBytesRecorded), want);
        if (got <= 0) return;
        header.dwBytesRecorded += static_cast<std::uint32_t>(got);
        if (got < want) return;
        m_queue.pop_front();
        handBack(header);
    }
    // A started device with no buffer queued has nowhere to put what it captures: that sound is lost, which is how
    // a paused capture lets its queue run dry.
    discardCaptured();
}

void QtWaveInDevice::discardCaptured() {
    std::array<char, 4096> scratch;
    while (m_stream && m_stream->read(scratch.data(), scratch.size()) > 0) {
    }
}

void QtWaveInDevice::handBack(WaveHeader& header) {
    header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
    m_eventQueue.post(DeviceEventQueue::Kind::Buffer, [target = m_events, h = &header] { target->waveInData(*h); });
}
