#include "audio/BasicWindows.h"

#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"

void BasicRecordWindow::waveInOpened() { m_recorder.OnOpened(); }

void BasicRecordWindow::waveInData(WaveHeader& header) {
    if (!(header.dwFlags & WHDR_DONE)) return;
    if (!recordPaused) bytePosition += header.dwBytesRecorded;
    if (onBuffer) onBuffer(header);
    m_recorder.OnData(header, recordPaused, recordPaused && pausedByButton);
}

void BasicRecordWindow::waveInClosed() {
    ++closeEvents;
    m_recorder.OnClosed();
    if (onClosed) onClosed();
}

void BasicRecordWindow::waveInFailed(int code) {
    failures.push_back(code);
    m_recorder.OnFailed(code);
}

void BasicPlayWindow::waveOutOpened() { m_player.OnOpened(); }

void BasicPlayWindow::waveOutDone(WaveHeader& header) {
    if (!(header.dwFlags & WHDR_DONE)) return;
    PlayHeaderBack(m_play, m_player, header);
    PlayHeaderDone(m_play, m_player, header, m_samples, m_sampleCount, m_prompt);
}

void BasicPlayWindow::waveOutClosed() {
    ++closeEvents;
    m_player.OnClosed();
    PlayClosed(m_play);
    if (onClosed) onClosed();
}

void BasicPlayWindow::waveOutFailed(int code) {
    failures.push_back(code);
    m_player.OnFailed(code);
}
