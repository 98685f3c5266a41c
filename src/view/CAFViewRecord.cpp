// The view's side of a take: the Record and pause-record buttons, each captured buffer drawn as it arrives, and the
// end of the take, with its save question and the take on screen as a file.
#include <algorithm>
#include <cstdlib>

#include <QComboBox>
#include <QToolButton>

#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"
#include "controls/LevelMeter.h"
#include "controls/UiText.h"
#include "panels/CMyBarra.h"
#include "panels/CMyBarra2.h"
#include "store/DateFile.h"
#include "store/Prompt.h"
#include "view/CAFView.h"
#include "view/DisplayModeRules.h"

namespace {

// A take that is silent for this long says so: the input chosen is most likely not the one the voice reaches.
constexpr int kSilenceSeconds = 3;
// Samples this close to zero are the input's own noise floor, not sound.
constexpr int kSilenceLevel = 2;
// Buffers queued again when a paused take goes on: enough to catch the voice while the rest follow.
constexpr int kBuffersOnResume = 10;
constexpr int kBuffersOnSpectrumResume = 4;  // the power-spectrum page needs fewer to draw its next spectrum

// The samples of a buffer the device handed back.
std::span<const std::int16_t> bufferSamples(const WaveHeader& header) {
    return {reinterpret_cast<const std::int16_t*>(header.lpData), header.dwBytesRecorded / 2};
}

}  // namespace

// ---------------------------------------------------------------------------------------------------------------
// Record and Stop

void CAFView::OnRecord() {
    if (m_recorder == nullptr) return;
    if (Recording) {
        StopRecording();
    } else {
        StartRecording();
    }
}

void CAFView::showRecordButtons(bool recording) {
    for (ClassAux* panel : bothPanels()) {
        panel->ShowRecording(recording);
        panel->RecordButton()->setEnabled(true);
        panel->RateButton()->setEnabled(!recording);
        panel->UpdateRateBox()->setEnabled(true);
        if (!recording) {
            panel->PausePlayButton()->setEnabled(false);
            panel->showIcon(panel->PausePlayButton(), PanelIcon::Pause);
        }
    }
}

void CAFView::StartRecording() {
    for (ClassAux* panel : bothPanels()) panel->RecordButton()->setEnabled(false);
    // Whatever was on screen goes: a play stops, and the recording closes (asking to save its edits).
    const DisplayMode before = m_displayMode;
    if (Playing) StopPlaying();
    CloseRecording();
    m_displayMode = ModeAfterStartRecording(before, before);  // the mode held before, on its live page

    std::string title;
    if (!NewRecordingPath(m_recording, title, m_client, m_clientName.toStdString(), m_recordFormat.nSamplesPerSec,
                          m_prompt)) {
        m_displayMode = DisplayMode::ModeEmpty;
        showRecordButtons(false);
        rebuildPage();
        repaint();
        UpdateCommands();
        return;
    }
    m_doc->SetTitle(QString::fromStdString(title));
    if (!startTake()) {
        // A failed start leaves the Record button disabled, since the device said why and a second try would repeat
        // it; a page shown anew enables it again, once the clinician has seen to the input.
        showRecordButtons(false);
        for (ClassAux* panel : bothPanels()) panel->RecordButton()->setEnabled(false);
        UpdateCommands();
        return;
    }
    Recording = true;
    UpdateCommands();
}

// Everything a take starts from: the live page at the recorder's rate, the counters at 0, and the device running.
bool CAFView::startTake() {
    m_recorder->SetOutputPath(m_recording.RecordingPath);
    showRecordButtons(true);
    m_firstShown = 0;
    m_lastShown = 0;
    m_play.clearCounters();
    RecordPaused = false;
    m_silentSamples = 0;
    m_soundHeard = false;
    m_inputLevel.reset();
    resetLivePage();
    m_picture.setColumnsDone(0);
    m_liveDotSamples.clear();
    if (ClassAux* panel = ActivePanel()) {
        panel->ApplyUpdateRate();
        if (panel == m_spectrogramPanel) {
            m_spectrogramPanel->ApplyBand();
            m_spectrogramPanel->ApplyLimit();
        }
    }
    rebuildPage();
    update();
    if (m_recorder->Start(this)) return true;
    if (m_player != nullptr && m_player->deviceOpen()) {
        m_player->Reset();
        m_player->Close();
    }
    return false;
}

void CAFView::StopRecording() {
    // A take paused by its button has let its queue run dry: one more buffer gives the device something to return,
    // which is what finishes the file.
    const ClassAux* panel = ActivePanel();
    if (panel != nullptr && panel->capturePausedByButton() && !m_recorder->stopRequested()) m_recorder->QueueBuffer();
    if (Recording) {
        if (Playing) StopPlaying();
        endTake();
    }
    keepOrDropTake();
    showRecordButtons(false);
    for (ClassAux* panel : bothPanels()) panel->InputMeter()->clear();
    emit busyText(QString());
    showTake();
}

void CAFView::endTake() {
    m_recorder->Stop();
    m_recorder->WaitClosed();
    Recording = false;
    RecordPaused = false;
    for (ClassAux* panel : bothPanels()) panel->EnablePlay(false);
}

// A client's take is kept or deleted as the user answers; a take made without a client is copied where the user
// chooses, or deleted on Cancel. A kept take gets its date file.
void CAFView::keepOrDropTake() {
    std::filesystem::path& path = m_recording.RecordingPath;
    std::error_code ignored;
    if (path.empty() || !std::filesystem::exists(path, ignored)) {
        path.clear();
        return;
    }
    if (m_client.code == OutsideClientCode) {
        const std::filesystem::path chosen =
            m_chooseTakePath ? m_chooseTakePath(m_client.dataRoot / kOtherFilesFolder) : std::filesystem::path();
        if (chosen.empty()) {
            std::filesystem::remove(path, ignored);
            path.clear();
            return;
        }
        std::error_code failed;
        std::filesystem::copy_file(path, chosen, std::filesystem::copy_options::overwrite_existing, failed);
        std::filesystem::remove(path, ignored);
        if (failed) {
            path.clear();
            m_prompt.showOk(kErrorSavingFile);
            return;
        }
        path = chosen;
        WriteDateFile(path, m_prompt);
        m_doc->SetTitle(QString::fromStdString(path.string()));
        return;
    }
    std::string question = m_prompt.inLanguage(kSaveActualFile);
    if (m_inputLevel.clipped()) question += "\n\n" + m_prompt.inLanguage(kTakeClipped);
    if (!m_prompt.askYesNo(question)) {
        std::filesystem::remove(path, ignored);
        path.clear();
        return;
    }
    WriteDateFile(path, m_prompt);
}

// The take on screen as a file, on the file page of the live page it was made on; nothing kept, the empty page.
void CAFView::showTake() {
    m_firstShown = 0;
    m_zoomed = false;
    invalidateCurves();
    m_f0Readout = 0.0f;
    if (m_recording.RecordingPath.empty()) {
        m_recording.freeSamples();
        m_play.clearCounters();
        m_picture.setColumnsDone(0);
        m_doc->SetTitle(m_clientName);
        rebuildPage();
        update();
        UpdateCommands();
        return;
    }
    const DisplayMode live = m_displayMode;
    if (loadRecordingPath()) loadFileSteps(ModeAfterStopRecording(live));
}

// ---------------------------------------------------------------------------------------------------------------
// The device's capture events

void CAFView::waveInOpened() { m_recorder->OnOpened(); }

void CAFView::waveInData(WaveHeader& header) {
    if (!(header.dwFlags & WHDR_DONE)) return;
    if (!RecordPaused) m_play.bytePosition += header.dwBytesRecorded;
    if (!m_recorder->stopRequested() && !RecordPaused && header.dwBytesRecorded > 0) {
        liveDisplay(bufferSamples(header));
        watchForSilence(bufferSamples(header));
    }
    const ClassAux* panel = ActivePanel();
    const bool drain = RecordPaused && panel != nullptr && panel->capturePausedByButton();
    m_recorder->OnData(header, RecordPaused, drain);
}

void CAFView::waveInClosed() { m_recorder->OnClosed(); }

// A device lost in the middle of a take: what reached the scratch file is still the take, and ends as any other.
void CAFView::waveInFailed(int code) {
    m_recorder->OnFailed(code);
    if (Recording)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (Recording) StopRecording();
            },
            Qt::QueuedConnection);
}

// One captured buffer on the live page: the newest column or spectrum, the strip, the elapsed time, and the level
// on the panel's meter.
void CAFView::liveDisplay(std::span<const std::int16_t> block) {
    DrawLiveBlock(block);
    m_inputLevel.addBlock(block);
    // The meter is painted with the page: a clip between two paints stays marked on it for the whole take.
    ClassAux* panel = ActivePanel();
    if (panel != nullptr && (m_blocksSincePaint == 0 || m_inputLevel.blockClipped()))
        panel->InputMeter()->setLevel(m_inputLevel);
}

// The first seconds of a take tell whether the input hears anything; silence all through says so on the frame.
void CAFView::watchForSilence(std::span<const std::int16_t> block) {
    if (m_soundHeard) return;
    const bool sound =
        std::any_of(block.begin(), block.end(), [](std::int16_t s) { return std::abs(s) > kSilenceLevel; });
    if (sound) {
        m_soundHeard = true;
        if (m_silentSamples >= static_cast<std::int64_t>(kSilenceSeconds) * rate()) emit busyText(QString());
        return;
    }
    const std::int64_t limit = static_cast<std::int64_t>(kSilenceSeconds) * rate();
    const bool crossed = m_silentSamples < limit && m_silentSamples + static_cast<std::int64_t>(block.size()) >= limit;
    m_silentSamples += static_cast<std::int64_t>(block.size());
    if (crossed) emit busyText(uiText(kInputSilent));
}

// ---------------------------------------------------------------------------------------------------------------
// Pause and resume

void CAFView::OnPauseRecord() {
    ClassAux* panel = ActivePanel();
    if (panel == nullptr || !Recording) return;
    if (panel->shows(panel->PauseRecordButton(), PanelIcon::Pause)) {
        pauseCapture();
    } else {
        resumeCapture();
    }
    UpdateCommands();
}

// The take so far becomes the view's samples, to be looked at and played, while the device keeps running with its
// buffers thrown away and not replaced.
void CAFView::pauseCapture() {
    ClassAux* panel = ActivePanel();
    m_formantTrack = FormantTrack{};
    m_f0Track = F0Track{};
    RecordPaused = true;
    for (ClassAux* each : bothPanels()) {
        each->showIcon(each->PauseRecordButton(), PanelIcon::Record);
        each->EnablePlay(true);
    }
    m_pauseColumn = m_liveColumn;
    m_recording.replace(m_recorder->CapturedSamples(), m_recorder->format());
    m_firstShown = 0;
    m_lastShown = static_cast<std::int64_t>(m_recording.SampleCount());
    m_pausedPicture = m_picture;
    m_pausedTrace = m_liveTrace;
    if (panel == m_spectrogramPanel) ensureCurves();
    rebuildPage(false);
    update();
}

// The live picture and strip as the pause left them, after a play of the paused take drew over them.
void CAFView::restorePausedPage() {
    if (m_pausedPicture) m_picture = *m_pausedPicture;
    if (m_pausedTrace) m_liveTrace = *m_pausedTrace;
    m_liveColumn = m_pauseColumn;
}

void CAFView::resumeCapture() {
    m_hasSelection = false;
    m_recording.freeSamples();
    m_firstShown = 0;
    m_lastShown = 0;
    invalidateCurves();
    restorePausedPage();
    const int buffers = ActivePanel() == m_spectrumPanel ? kBuffersOnSpectrumResume : kBuffersOnResume;
    for (int i = 0; i < buffers; ++i) {
        if (m_recorder->QueueBuffer() < 0) break;
    }
    RecordPaused = false;
    for (ClassAux* each : bothPanels()) {
        each->showIcon(each->PauseRecordButton(), PanelIcon::Pause);
        each->EnablePlay(false);
    }
    rebuildPage(false);
    update();
}
