// The F0 and formant curves of the main view: computed on demand on worker threads, and drawn over a copy of the
// spectrogram page so that removing one is a copy of the page without them.
#include <QPainter>
#include <QThread>

#include "controls/UiText.h"
#include "view/CAFView.h"
#include "view/DisplayModeRules.h"
#include "view/WaitCursor.h"

void CAFView::RedrawF0(bool show) {
    m_showF0 = show;
    if (show) ensureCurves();
    drawOverlays();
    update();
}

void CAFView::RedrawFormants(bool show) {
    m_showFormants = show;
    if (show) ensureCurves();
    drawOverlays();
    update();
}

void CAFView::F0RangeChanged() {
    if (!m_showF0 || !isSpectrogramPage(m_displayMode)) return;
    drawOverlays();
    update();
}

bool CAFView::overlaysApply() const { return isSpectrogramPage(m_displayMode) && m_recording.hasSamples(); }

void CAFView::invalidateCurves() {
    m_f0Track = F0Track{};
    m_formantTrack = FormantTrack{};
}

// Runs the analyses that the shown curves need and the samples loaded do not have yet: F0 first, since the
// formants are shown only where it finds a voice. The window repaints meanwhile; input waits.
void CAFView::ensureCurves() {
    if (m_computingCurves || !overlaysApply()) return;
    const bool needF0 = (m_showF0 || m_showFormants) && !m_f0Track.valid;
    const bool needFormants = m_showFormants && !m_formantTrack.valid;
    if (!needF0 && !needFormants) return;
    m_computingCurves = true;
    WaitCursor wait;
    const std::span<const std::int16_t> samples = std::as_const(m_recording).samples();
    const int sampleRate = rate();
    if (needF0) {
        emit busyText(uiText(kCalculatingF0));
        F0Track track;
        RunKeepingWindowAlive(
            [&] { computeF0Curve(track, samples.data(), static_cast<int>(samples.size()), sampleRate); });
        m_f0Track = std::move(track);
        emit busyText(QString());
    }
    if (needFormants) {
        emit busyText(uiText(kCalculatingFormantsText));
        FormantTrack track;
        m_formantObject.setThreadCount(QThread::idealThreadCount());
        RunKeepingWindowAlive([&] { m_formantObject.computeFormants(track, samples, sampleRate); });
        m_formantTrack = std::move(track);
        emit busyText(QString());
    }
    wait.restore();
    m_computingCurves = false;
    m_curvePrompt.flushTo(m_prompt);
}

// The page as rebuilt, with the shown curves over it: F0 with its scale on the right of the graph, and the formants
// on the spectrogram's own frequency scale.
void CAFView::drawOverlays() {
    m_savedGraph = m_backBitmap;
    if (!overlaysApply() || m_computing || (!m_showF0 && !m_showFormants)) return;
    QPainter painter(&m_savedGraph);
    painter.setTransform(m_layout.toWidget(QSizeF(size())));
    const QRect graph = m_layout.pictureRect();
    const auto total = static_cast<std::int64_t>(m_recording.SampleCount());
    const int scheme = m_spectrogramSettings.colourScheme;
    if (m_showFormants) {
        const double upperHz = m_spectrogramObject.sampleRate() * 0.5 / m_spectrogramObject.zoom();
        DrawFormants(painter, graph, m_formantTrack, total, upperHz, m_firstShown, m_lastShown, scheme, m_f0Track);
    }
    if (m_showF0) {
        const F0Range range = f0Range();
        DrawF0(painter, graph, m_f0Track, total, m_firstShown, m_lastShown, range, scheme);
        DrawF0Axis(painter, F0AxisX(m_layout.GraphLeft, m_layout.GraphWidth, m_layout.LargeLayout), m_layout.GraphTop,
                   m_layout.GraphHeight, range, scheme);
    }
}
