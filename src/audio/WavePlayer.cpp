#include "audio/WavePlayer.h"

#include <QEventLoop>
#include <utility>

#include "store/Prompt.h"

// The engine hears the device itself when no window was given: it takes each header back and follows the close.
class WavePlayer::OwnEvents : public WaveOutEvents {
public:
    explicit OwnEvents(WavePlayer& player) : m_player(player) {}
    void waveOutOpened() override {}
    void waveOutDone(WaveHeader& header) override {
        if (m_player.m_device.unprepareHeader(header) != MMSYSERR_NOERROR)
            m_player.m_prompt.showOk(kErrorFreeingHeader);
        m_player.HeaderFinished();
    }
    void waveOutClosed() override { m_player.OnClosed(); }
    void waveOutFailed(int code) override { m_player.OnFailed(code); }

private:
    WavePlayer& m_player;
};

WavePlayer::WavePlayer(WaveOutDevice& device, Prompt& prompt)
    : m_device(device), m_prompt(prompt), m_ownEvents(std::make_unique<OwnEvents>(*this)) {}

WavePlayer::~WavePlayer() {
    if (m_deviceOpen) {
        m_device.reset();
        m_device.close();
    }
    FreeHeaders();
}

int WavePlayer::Open(const WaveFormat& format, WaveOutEvents* window) {
    m_stopQueue = false;
    if (m_deviceOpen) {
        // A paused device would never hand its headers back, so it is also reset before the wait for its close.
        m_device.pause();
        Reset();
        WaitClosed();
    }
    m_resetting = false;
    m_paused = false;
    m_savedVolume = 0;
    if (m_deviceOpen) return 1;  // the wait ended with the application quitting
    if (m_device.query(format) != MMSYSERR_NOERROR ||
        m_device.open(format, window ? *window : *m_ownEvents) != MMSYSERR_NOERROR) {
        m_prompt.showOk(kCannotOpenPlayback);
        return 0;
    }
    m_deviceOpen = true;
    return 1;
}

void WavePlayer::Pause() {
    m_device.pause();
    m_paused = true;
}

void WavePlayer::Restart() {
    m_device.restart();
    m_paused = false;
}

void WavePlayer::Reset() {
    m_device.reset();
    m_resetting = true;
}

void WavePlayer::HardReset() {
    Reset();
    m_stopQueue = true;
}

int WavePlayer::Close() { return m_device.close(); }

void WavePlayer::WaitClosed() {
    if (m_deviceOpen) {
        // A quit of the application also ends every local loop, and a quit that came before ends this one at once.
        QEventLoop loop;
        QEventLoop* outer = std::exchange(m_waitLoop, &loop);
        loop.exec();
        m_waitLoop = outer;
        if (!m_deviceOpen && m_waitLoop) m_waitLoop->quit();
    }
    if (!m_deviceOpen) m_resetting = false;
}

int WavePlayer::PlayOnce(const std::uint8_t* data, std::uint32_t bytes) {
    std::unique_ptr<WaveHeader>& slot = m_singleHeaders[m_singleHeaderIndex];
    // A header the device still holds is never freed under it.
    if (slot && m_device.unprepareHeader(*slot) != MMSYSERR_NOERROR) {
        m_stopQueue = true;
        m_prompt.showOk(kErrorPlayingSoundFile);
        return 0;
    }
    slot = std::make_unique<WaveHeader>();
    slot->lpData = const_cast<std::uint8_t*>(data);  // only read: playback never writes into the samples
    slot->dwBufferLength = bytes;
    if (const int prepared = m_device.prepareHeader(*slot); prepared != MMSYSERR_NOERROR) {
        m_prompt.showOk(waveErrorText(prepared, m_prompt));
        m_stopQueue = true;
        m_device.pause();
        Close();
        return 0;
    }
    if (m_device.write(*slot) != MMSYSERR_NOERROR) {
        m_prompt.showOk(kErrorPlayingSoundFile);
        m_stopQueue = true;
        m_device.unprepareHeader(*slot);
        return 0;
    }
    return 1;
}

void WavePlayer::FreeHeaders() {
    for (std::unique_ptr<WaveHeader>& header : m_singleHeaders) header.reset();
}

void WavePlayer::HeaderFinished() { m_singleHeaderIndex = (m_singleHeaderIndex + 1) % kSingleHeaderCount; }

void WavePlayer::OnClosed() {
    FreeHeaders();
    m_deviceOpen = false;
    if (m_waitLoop) m_waitLoop->quit();
}

void WavePlayer::OnFailed(int code) {
    if (!m_deviceOpen) return;
    m_prompt.showOk(waveErrorText(code, m_prompt));
    HardReset();
}
