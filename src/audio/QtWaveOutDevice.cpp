#include "audio/QtWaveOutDevice.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>
#include <algorithm>
#include <utility>
#include <vector>

#include "audio/QtAudioFormat.h"
#include "store/WaveFile.h"

namespace {

constexpr int kFeedMilliseconds = 5;
// The stream holds a fifth of a second: a busy moment of the user-interface thread shorter than that is not heard.
constexpr int kStreamMicroseconds = 200'000;
// Time allowed past the moment the last byte was reckoned to sound before the stream is let go.
constexpr auto kCloseMargin = std::chrono::milliseconds(60);
// Silence ahead of the first sound of a stream.
constexpr int kLeadInMicroseconds = 30'000;

}  // namespace

QtWaveOutDevice::QtWaveOutDevice() {
    m_feedTimer.setTimerType(Qt::PreciseTimer);
    m_feedTimer.setInterval(kFeedMilliseconds);
    QObject::connect(&m_feedTimer, &QTimer::timeout, [this] { feed(true); });
}

QtWaveOutDevice::~QtWaveOutDevice() {
    // Deleting a Qt stream runs the event loop for a moment: nothing of this device may be delivered then.
    m_eventQueue.clear();
    m_feedTimer.stop();
    if (m_sink) {
        m_sink->disconnect();
        m_sink->stop();
    }
    m_sink.reset();
    // Deleting a stream runs the event loop, where the retirement of an earlier close may come due: the list is
    // emptied before anything in it is deleted, so that no stream is deleted twice.
    std::exchange(m_retired, {}).clear();
}

void QtWaveOutDevice::setStreamVolume(double volume) {
    m_volume = volume;
    if (m_sink) m_sink->setVolume(volume);
}

int QtWaveOutDevice::query(const WaveFormat& format) {
    const std::optional<QAudioFormat> qtFormat = toQAudioFormat(format);
    if (!qtFormat) return WAVERR_BADFORMAT;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return MMSYSERR_BADDEVICEID;
    return device.isFormatSupported(*qtFormat) ? MMSYSERR_NOERROR : WAVERR_BADFORMAT;
}

int QtWaveOutDevice::open(const WaveFormat& format, WaveOutEvents& events) {
    if (m_sink) return MMSYSERR_ALLOCATED;
    if (const int refused = query(format); refused != MMSYSERR_NOERROR) return refused;
    m_format = *toQAudioFormat(format);
    m_sink = std::make_unique<QAudioSink>(QMediaDevices::defaultAudioOutput(), m_format);
    const int frame = m_format.bytesPerFrame();
    m_sink->setBufferSize(std::max(frame, m_format.bytesForDuration(kStreamMicroseconds) / frame * frame));
    m_sink->setVolume(m_volume);
    if (!ensureStream()) {
        retireSink();
        return MMSYSERR_NODRIVER;
    }
    watchForFailure();
    m_events = &events;
    m_pending.clear();
    m_sounding.clear();
    m_paused = m_failed = m_closing = false;
    m_feedTimer.start();
    m_eventQueue.post(DeviceEventQueue::Kind::Other, [target = m_events] { target->waveOutOpened(); });
    return MMSYSERR_NOERROR;
}

bool QtWaveOutDevice::ensureStream() {
    if (m_stream) return true;
    m_stream = m_sink->start();
    m_primed = false;
    if (!m_stream || m_sink->error() != QAudio::NoError) return false;
    // A sound server waking up for a new stream may swallow its first moments: let that be silence.
    writeSilence(m_format.bytesForDuration(kLeadInMicroseconds));
    return true;
}

void QtWaveOutDevice::watchForFailure() {
    QObject::connect(m_sink.get(), &QAudioSink::stateChanged, m_sink.get(), [this](QAudio::State state) {
        if (state != QAudio::StoppedState || m_failed) return;
        const QAudio::Error error = m_sink->error();
        if (error == QAudio::NoError || error == QAudio::UnderrunError) return;
        m_failed = true;
        m_eventQueue.post(DeviceEventQueue::Kind::Other,
                          [target = m_events] { target->waveOutFailed(WAVERR_DEVICELOST); });
    });
}

int QtWaveOutDevice::prepareHeader(WaveHeader& header) {
    if (!isOpen()) return MMSYSERR_INVALHANDLE;
    if (!header.lpData || header.dwBufferLength == 0) return MMSYSERR_INVALPARAM;
    header.dwFlags |= WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

int QtWaveOutDevice::unprepareHeader(WaveHeader& header) {
    if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
    header.dwFlags &= ~WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

int QtWaveOutDevice::write(WaveHeader& header) {
    if (!isOpen()) return MMSYSERR_INVALHANDLE;
    if (!(header.dwFlags & WHDR_PREPARED)) return WAVERR_UNPREPARED;
    if (header.dwFlags & WHDR_INQUEUE) return WAVERR_STILLPLAYING;
    header.dwFlags = (header.dwFlags | WHDR_INQUEUE) & ~WHDR_DONE;
    m_pending.push_back({&header, 0});
    // The first buffer of a play goes out at once; silence is added only from the timer, after the caller has had
    // the chance to queue the rest of its buffers.
    feed(false);
    return MMSYSERR_NOERROR;
}

int QtWaveOutDevice::pause() {
    if (!isOpen()) return MMSYSERR_INVALHANDLE;
    if (m_paused) return MMSYSERR_NOERROR;
    m_paused = true;
    m_pausedAt = Clock::now();
    if (m_stream) m_sink->suspend();
    return MMSYSERR_NOERROR;
}

int QtWaveOutDevice::restart() {
    if (!isOpen()) return MMSYSERR_INVALHANDLE;
    if (!m_paused) return MMSYSERR_NOERROR;
    const Clock::duration held = Clock::now() - m_pausedAt;
    for (Sounding& sounding : m_sounding) sounding.due += held;
    m_lastDue += held;
    m_paused = false;
    if (m_stream) m_sink->resume();
    return MMSYSERR_NOERROR;
}

int QtWaveOutDevice::reset() {
    if (!isOpen()) return MMSYSERR_INVALHANDLE;
    if (m_stream) {
        m_sink->reset();
        m_sink->stop();
        m_stream = nullptr;
    }
    m_paused = false;
    m_primed = false;
    for (const Sounding& sounding : m_sounding) handBack(*sounding.header);
    for (const Pending& pending : m_pending) handBack(*pending.header);
    m_sounding.clear();
    m_pending.clear();
    return MMSYSERR_NOERROR;
}

int QtWaveOutDevice::close() {
    if (!isOpen()) return MMSYSERR_INVALHANDLE;
    if (!m_pending.empty() || !m_sounding.empty()) return WAVERR_STILLPLAYING;
    m_closing = true;
    // The stream is let go once the last sound written has been heard; a paused or failed stream has nothing to play.
    const bool soundLeft = m_stream && m_primed && !m_paused && !m_failed;
    m_closeAt = soundLeft ? m_lastDue + kCloseMargin : Clock::now();
    if (Clock::now() >= m_closeAt) finishClose();
    return MMSYSERR_NOERROR;
}

void QtWaveOutDevice::finishClose() {
    m_feedTimer.stop();
    m_stream = nullptr;
    m_closing = false;
    m_eventQueue.dropBufferEvents();
    m_eventQueue.post(DeviceEventQueue::Kind::Other, [target = m_events] { target->waveOutClosed(); });
    retireSink();
}

void QtWaveOutDevice::retireSink() {
    m_sink->disconnect();
    m_sink->stop();
    m_stream = nullptr;
    m_retired.push_back(std::move(m_sink));
    QTimer::singleShot(0, &m_retirement, [this] {
        std::vector<std::unique_ptr<QAudioSink>> going;
        going.swap(m_retired);
    });
}

void QtWaveOutDevice::feed(bool topUp) {
    if (m_closing) {
        if (Clock::now() >= m_closeAt) finishClose();
        return;
    }
    if (m_paused || m_failed) return;
    if (!m_pending.empty() && !ensureStream()) return;
    while (!m_pending.empty()) {
        const qint64 room = m_sink->bytesFree();
        if (room <= 0) break;
        Pending& pending = m_pending.front();
        const qint64 left = pending.header->dwBufferLength - pending.written;
        const qint64 wrote = m_stream->write(reinterpret_cast<const char*>(pending.header->lpData + pending.written),
                                             std::min(room, left));
        if (wrote <= 0) break;
        pending.written += static_cast<std::uint32_t>(wrote);
        m_primed = true;
        if (wrote < left) continue;
        m_lastDue = Clock::now() + queuedDuration();
        m_sounding.push_back({pending.header, m_lastDue});
        m_pending.pop_front();
    }
    if (topUp && m_pending.empty() && m_primed) writeSilence(m_sink->bytesFree());
    handBackDue();
}

void QtWaveOutDevice::writeSilence(qint64 most) {
    if (!m_stream) return;
    const int frame = m_format.bytesPerFrame();
    const qint64 room = std::min(most, m_sink->bytesFree()) / frame * frame;
    if (room <= 0) return;
    const char silence = (m_format.sampleFormat() == QAudioFormat::UInt8) ? char(0x80) : char(0);
    const std::vector<char> bytes(static_cast<std::size_t>(room), silence);
    m_stream->write(bytes.data(), room);
}

QtWaveOutDevice::Clock::duration QtWaveOutDevice::queuedDuration() const {
    const qint64 queued = std::max<qint64>(0, m_sink->bufferSize() - m_sink->bytesFree());
    return std::chrono::microseconds(m_format.durationForBytes(static_cast<qint32>(queued)));
}

void QtWaveOutDevice::handBackDue() {
    const Clock::time_point now = Clock::now();
    while (!m_sounding.empty() && m_sounding.front().due <= now) {
        WaveHeader* header = m_sounding.front().header;
        m_sounding.pop_front();
        handBack(*header);
    }
}

void QtWaveOutDevice::handBack(WaveHeader& header) {
    header.dwFlags = (header.dwFlags & ~WHDR_INQUEUE) | WHDR_DONE;
    m_eventQueue.post(DeviceEventQueue::Kind::Buffer, [target = m_events, h = &header] { target->waveOutDone(*h); });
}
