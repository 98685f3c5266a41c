// The view's side of a play: the Play, Stop and pause-play buttons and commands, the three kinds of play (a
// selection in one piece, the zoomed range with its moving cursor, the whole recording drawn live as it sounds), a
// paused take played, and the end of every play.
#include <algorithm>
#include <cstdlib>

#include <QPainter>
#include <QToolButton>

#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"
#include "controls/UiText.h"
#include "panels/CMyBarra.h"
#include "panels/CMyBarra2.h"
#include "store/Prompt.h"
#include "view/CAFView.h"
#include "view/DisplayModeRules.h"
#include "view/WaitCursor.h"

namespace {

const std::uint8_t* bytesOf(const std::int16_t* samples) { return reinterpret_cast<const std::uint8_t*>(samples); }

// How far the sound heard lags behind the newest buffer back from the device: two buffers at the fast update rates,
// one at the slow ones.
std::int64_t soundLag(int updateRateBytes) { return updateRateBytes < 367 ? 2 * updateRateBytes : updateRateBytes; }

}  // namespace

void CAFView::showPlayButtons(bool playing) {
    for (ClassAux* panel : bothPanels()) {
        panel->ShowPlaying(playing);
        panel->EnablePlay(m_recording.hasSamples());
        panel->RecordButton()->setEnabled(!playing);
        if (Recording) panel->PauseRecordButton()->setEnabled(!playing);
    }
}

bool CAFView::livePass() const {
    return Playing && (!m_zoomed || m_displayMode == DisplayMode::FileSpectrumMode) && !m_play.oneShot;
}

bool CAFView::openPlayer() {
    const WaveFormat& format = m_recording.format() ? *m_recording.format() : m_recordFormat;
    return m_player->Open(format, this) == 1;
}

// ---------------------------------------------------------------------------------------------------------------
// Commands and buttons

void CAFView::OnPlayButton() {
    const ClassAux* panel = ActivePanel();
    if (panel == nullptr || m_player == nullptr) return;
    if (panel->capturePausedByButton() && panel->shows(panel->PlayButton(), PanelIcon::Play) && !m_hasSelection) {
        playCapture();
    } else if (panel->shows(panel->PlayButton(), PanelIcon::Stop)) {
        StopPlaying();
    } else {
        OnPlay();
    }
}

void CAFView::StopPlaying() {
    if (m_player == nullptr || !m_player->deviceOpen()) return;
    const ClassAux* panel = ActivePanel();
    if (panel != nullptr && panel->capturePausedByButton()) {
        // While a take waits paused, every header coming back resets the device again, so that none is replaced.
        emit busyText(uiText(kPleaseWait));
        WaitCursor wait;
        m_player->HardReset();
        m_player->WaitClosed();
        m_player->WaitClosed();
        emit busyText(QString());
    } else {
        m_player->Reset();
        m_player->WaitClosed();
    }
}

void CAFView::OnPausePlay() {
    ClassAux* panel = ActivePanel();
    if (panel == nullptr || m_player == nullptr || !m_player->deviceOpen()) return;
    const bool pause = panel->shows(panel->PausePlayButton(), PanelIcon::Pause);
    if (pause) {
        m_player->Pause();
    } else {
        m_player->Restart();
    }
    for (ClassAux* each : bothPanels())
        each->showIcon(each->PausePlayButton(), pause ? PanelIcon::Play : PanelIcon::Pause);
}

void CAFView::OnPlay() {
    ClassAux* panel = ActivePanel();
    if (panel == nullptr || m_player == nullptr) return;
    if (panel->shows(panel->PlayButton(), PanelIcon::Stop)) {
        StopPlaying();
        return;
    }
    if (m_player->deviceOpen()) StopPlaying();
    const int selectionStart = std::min(m_selStartX, m_selEndX) - m_layout.GraphLeft;
    if (panel->capturePausedByButton()) {
        m_play.savedBytePosition = m_play.bytePosition;
        if (m_hasSelection) playCaptureSelection(selectionStart);
        return;
    }
    m_spectrumObject.resetAverage();
    m_play.clearCounters();
    panel->ApplyUpdateRate();
    const auto count = static_cast<std::int64_t>(m_recording.SampleCount());
    if (count < 1) return;
    if (!m_zoomed && m_hasSelection) {
        // Samples per pixel in whole numbers: a selection plays from a whole number of them.
        const std::int64_t perPixel = count / m_layout.GraphWidth;
        const std::int64_t first = std::clamp<std::int64_t>(selectionStart * perPixel, 0, count);
        playOnce(first, std::min<std::int64_t>(std::abs(m_selEndX - m_selStartX) * perPixel, count - first));
    } else if (!m_zoomed) {
        playWhole();
    } else if (m_lastShown > m_firstShown) {
        if (!openPlayer()) return;
        m_play.oneShot = false;
        m_liveColumn = 0;
        m_playBase = m_recording.samples().data() + m_firstShown;
        m_playCount = m_lastShown - m_firstShown;
        if (!startChunkedPlay(0, m_recorder->updateRateBytes())) return;
    }
    UpdateCommands();
}

// `length` samples from `first` in a single header: no cursor and no live page.
bool CAFView::playOnce(std::int64_t first, std::int64_t length) {
    if (length < 1 || !openPlayer()) return false;
    m_play.oneShot = true;
    m_play.finished = 0;
    m_play.submitted = 0;
    Playing = true;
    m_player->PlayOnce(bytesOf(m_recording.samples().data() + first), static_cast<std::uint32_t>(length * 2));
    showPlayButtons(true);
    return true;
}

// The whole recording, drawn live as it sounds: a zoom is dropped first, and the picture starts again from its left
// edge.
void CAFView::playWhole() {
    if (!openPlayer()) return;
    if (m_zoomed) {
        m_zoomed = false;
        m_firstShown = 0;
        m_lastShown = static_cast<std::int64_t>(m_recording.SampleCount());
        RedrawAll();
    }
    m_play.oneShot = false;
    m_picture.clear();
    m_liveTrace.clear();
    m_liveColumn = 0;
    m_liveDotSamples.clear();
    m_playBase = m_recording.samples().data();
    m_playCount = static_cast<std::int64_t>(m_recording.SampleCount());
    if (!startChunkedPlay(0, m_recorder->updateRateBytes() / 2)) return;
    rebuildPage(false);
    update();
    UpdateCommands();
}

// The samples of the play from sample `from` on, cut into chunks of `chunkSamples` on the device already open. False,
// with the device closed, when the play could not start.
bool CAFView::startChunkedPlay(std::int64_t from, std::int64_t chunkSamples) {
    const PlayLayout layout{m_displayMode == DisplayMode::FileSpectrogramMode, m_zoomed, m_layout.GraphWidth};
    Playing = true;
    if (!PlayChunked(m_play, *m_player, m_playBase + from, m_playCount - from, chunkSamples, layout, m_prompt)) {
        m_player->Close();
        return false;
    }
    showPlayButtons(true);
    return true;
}

// A paused take played whole: its picture starts again from the left, and comes back as it was when the play ends.
void CAFView::playCapture() {
    m_play.savedBytePosition = m_play.bytePosition;
    m_play.nextOffset = 0;
    m_play.bytePosition = 0;
    m_playingCapture = true;
    m_hasSelection = false;
    playWhole();
    if (!Playing) m_playingCapture = false;
}

// A selection over the live picture of a paused take: its columns are two per buffer, so the samples under a pixel
// come from the columns reached.
void CAFView::playCaptureSelection(int selectionStart) {
    const int updateBytes = m_recorder->updateRateBytes();
    const std::int64_t k = (m_play.bytePosition / updateBytes) * 2 - m_layout.GraphWidth;
    const std::int64_t widthInUse = k < 1 ? pageColumn(m_liveColumn) : m_layout.GraphWidth + k;
    const std::int64_t baseOffset = k < 1 ? 0 : updateBytes * k / 4;
    if (widthInUse < 1) return;
    const auto count = static_cast<std::int64_t>(m_recording.SampleCount());
    const std::int64_t perPixel = count / widthInUse;
    const std::int64_t first = std::clamp<std::int64_t>(selectionStart * perPixel + baseOffset, 0, count);
    if (!playOnce(first, std::min<std::int64_t>(std::abs(m_selEndX - m_selStartX) * perPixel, count - first))) return;
    for (ClassAux* panel : bothPanels()) panel->PauseRecordButton()->setEnabled(false);
    UpdateCommands();
}

// ---------------------------------------------------------------------------------------------------------------
// The device's playback events

void CAFView::waveOutOpened() {
    m_player->OnOpened();
    m_play.rateChanging = false;
}

void CAFView::waveOutDone(WaveHeader& header) {
    if (!(header.dwFlags & WHDR_DONE)) return;
    PlayHeaderBack(m_play, *m_player, header);
    if (!m_player->resetting() && header.dwBufferLength > 0 && livePass()) {
        const auto* played = reinterpret_cast<const std::int16_t*>(header.lpData);
        liveBlock({played, header.dwBufferLength / 2}, liveDotSample(m_play.bytePosition));
    }
    // A zoomed play moves its cursor, also over the strip of the power-spectrum page, whose spectrum follows live.
    if (Playing && m_zoomed && !m_play.oneShot && !m_player->resetting() && !m_play.rateChanging) StepCursor();
    if (m_play.oneShot) {
        m_player->device().unprepareHeader(header);
        if (m_play.finished >= m_play.submitted) m_player->Close();
    } else {
        PlayHeaderDone(m_play, *m_player, header, m_playBase, m_playCount, m_prompt);
    }
}

void CAFView::waveOutClosed() {
    m_player->OnClosed();
    PlayClosed(m_play);
    playEnded();
}

void CAFView::waveOutFailed(int code) { m_player->OnFailed(code); }

// The sample whose curve dots stand at the moving edge of a live pass, and whose F0 the read-out shows: the sound
// being heard, which lags the newest header back. -1 with no curve shown.
std::int64_t CAFView::liveDotSample(std::int64_t bytePosition) {
    if (m_displayMode != DisplayMode::FileSpectrogramMode || (!f0Shown() && !formantsShown())) return -1;
    const int updateBytes = m_recorder->updateRateBytes();
    const std::int64_t sample = bytePosition / 2 - 2 * updateBytes - soundLag(updateBytes);
    if (f0Shown() && m_f0Track.valid) {
        const int frame = F0FrameOfSample(m_f0Track, static_cast<std::int64_t>(m_recording.SampleCount()), sample);
        m_f0Readout = frame >= 0 ? m_f0Track.values[static_cast<std::size_t>(frame)] : 0.0f;
    }
    return sample;
}

// A zoomed play moves a one-pixel line over the graph and the strip, one step per chunk come back.
void CAFView::StepCursor() {
    const float step = m_play.chunkCount > m_layout.GraphWidth
                           ? 1.0f
                           : static_cast<float>(m_layout.GraphWidth) / static_cast<float>(m_play.chunkCount);
    if (m_play.cursorPosition == 0.0f) m_play.cursorPosition = 1.0f;
    if (m_play.cursorPosition >= static_cast<float>(m_layout.GraphWidth)) return;
    const float before = m_play.cursorPosition;
    if (m_play.cursorArmed) {
        m_play.cursorPosition = std::min(m_play.cursorPosition + step, static_cast<float>(m_layout.GraphWidth));
    } else {
        m_play.cursorArmed = true;
    }
    // Only the two lines and the time change on the screen.
    for (const float at : {before, m_play.cursorPosition}) {
        const int x = m_layout.GraphLeft + static_cast<int>(at);
        update(widgetRect(QRect(x, m_layout.GraphTop, 1, m_layout.stripBottom() - m_layout.GraphTop)));
    }
    paintElapsedTime();
}

void CAFView::drawCursorLine(QPainter& painter, float position) const {
    const int x = m_layout.GraphLeft + static_cast<int>(position);
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    if (m_displayMode != DisplayMode::FileSpectrumMode)
        painter.fillRect(QRect(x, m_layout.GraphTop, 1, m_layout.GraphHeight), Qt::white);
    painter.fillRect(QRect(x, m_layout.StripTop + 1, 1, m_layout.StripHeight - 1), Qt::white);
    painter.restore();
}

// ---------------------------------------------------------------------------------------------------------------
// The end of a play

void CAFView::playEnded() {
    Playing = false;
    if (isSpectrogramPage(m_displayMode) && f0Shown()) m_f0Readout = 0.0f;
    const ClassAux* panel = ActivePanel();
    const bool capturePaused = Recording && panel != nullptr && panel->capturePausedByButton();
    const bool oneShot = std::exchange(m_play.oneShot, false);
    if (capturePaused && m_recording.SampleCount() > 0) {
        showPlayButtons(false);
        for (ClassAux* each : bothPanels()) each->PauseRecordButton()->setEnabled(true);
        m_play.bytePosition = m_play.savedBytePosition;
        if (std::exchange(m_playingCapture, false)) restorePausedPage();
        m_firstShown = 0;
        m_lastShown = static_cast<std::int64_t>(m_recording.SampleCount());
        rebuildPage(false);
        update();
    } else if (!m_play.rateChanging) {
        m_playingCapture = false;
        showPlayButtons(false);
        if (!m_zoomed && !oneShot) {
            m_firstShown = 0;
            m_lastShown = static_cast<std::int64_t>(m_recording.SampleCount());
            m_pictureComputed = false;
            RedrawAll();
        } else {
            rebuildPage(false);
            update();
        }
        m_play.cursorArmed = true;
        m_play.cursorPosition = 0.0f;
    }
    m_liveDotSamples.clear();
    UpdateCommands();
}
