// The F0 and formant curves of the main view: computed on demand on worker threads, and drawn over a copy of the
// spectrogram page so that removing one is a copy of the page without them.
#include <algorithm>

#include <QCheckBox>
#include <QPainter>
#include <QSignalBlocker>
#include <QThread>

#include "controls/UiText.h"
#include "panels/CMyBarra.h"
#include "view/CAFView.h"
#include "view/DisplayModeRules.h"
#include "view/GraphCaptions.h"
#include "view/WaitCursor.h"

// Whether a curve is shown is read from its box on the spectrogram panel and nowhere else; a call from elsewhere
// (a dialog, a test) moves the box without it calling back.
namespace {

void setBoxQuietly(QCheckBox* box, bool on) {
    const QSignalBlocker quiet(box);
    box->setChecked(on);
}

}  // namespace

bool CAFView::f0Shown() const { return m_spectrogramPanel != nullptr && m_spectrogramPanel->f0Checked(); }
bool CAFView::formantsShown() const { return m_spectrogramPanel != nullptr && m_spectrogramPanel->formantsChecked(); }

void CAFView::RedrawF0(bool show) {
    setBoxQuietly(m_spectrogramPanel->f0Box(), show);
    if (show) ensureCurves();
    drawOverlays();
    update();
}

void CAFView::RedrawFormants(bool show) {
    setBoxQuietly(m_spectrogramPanel->formantsBox(), show);
    if (show) ensureCurves();
    drawOverlays();
    update();
}

void CAFView::F0RangeChanged() {
    if (!f0Shown() || !isSpectrogramPage(m_displayMode)) return;
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
    const bool needF0 = (f0Shown() || formantsShown()) && !m_f0Track.valid;
    const bool needFormants = formantsShown() && !m_formantTrack.valid;
    if (!needF0 && !needFormants) return;
    m_computingCurves = true;
    WaitCursor wait;
    // A play over the whole recording would starve while the window waits for the analysis: it stops for the time
    // of it and goes on afterwards. A zoomed play is short and plays through.
    const bool pausePlay = isPlaying() && !isZoomed();
    if (pausePlay) PausePlay();
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
        emit busyText(uiText(kCalculatingFormants));
        FormantTrack track;
        m_formantObject.setThreadCount(QThread::idealThreadCount());
        RunKeepingWindowAlive([&] { m_formantObject.computeFormants(track, samples, sampleRate); });
        m_formantTrack = std::move(track);
        emit busyText(QString());
    }
    if (pausePlay) RestartPlay();
    wait.restore();
    m_computingCurves = false;
    m_curvePrompt.flushTo(m_prompt);
}

void CAFView::ShowF0Readout(float hz) {
    m_f0Readout = hz;
    drawOverlays();
    update();
}

// Every fifth live block the F0 of the ring's first 1024 samples goes to the read-out.
void CAFView::estimateLiveF0() {
    if (++m_liveF0Blocks <= 4) return;
    m_liveF0Blocks = 0;
    const std::span<const std::int16_t> ring = m_spectrogramObject.ring();
    m_f0Readout = liveF0Value(ring.data(), static_cast<int>(std::min<std::size_t>(1024, ring.size())), rate());
}

namespace {

// Where the "F" of the read-out stands: on the band of the captions, just above the time, so that the value ends
// over the right end of the graph and clear of the time.
QPoint f0ReadoutPoint(const ViewLayout& layout) { return QPoint(layout.graphRight() - 80, CaptionTop(layout) - 20); }

}  // namespace

// The page as rebuilt, with the overlays of the spectrogram page over it: the read-out, and the shown curves.
void CAFView::drawOverlays() {
    if (m_backStale) {
        rebuildPage(false);  // which draws the overlays over the page drawn anew
        return;
    }
    m_savedGraph = m_backBitmap;
    if (!isSpectrogramPage(m_displayMode) || m_computing || (!f0Shown() && !formantsShown())) return;
    QPainter painter(&m_savedGraph);
    painter.setTransform(m_layout.toWidget(QSizeF(size())));
    drawReadout(painter);
    drawCurves(painter);
}

QRect CAFView::readoutRect() const { return F0ReadoutBox(f0ReadoutPoint(m_layout)); }

void CAFView::drawReadout(QPainter& painter) const {
    if (f0Shown() && m_f0Readout > 0.0f) {
        DrawF0Readout(painter, f0ReadoutPoint(m_layout), m_f0Readout, QColor::fromRgb(kTextRowColour));
    } else {
        BlankReadout(painter, f0ReadoutPoint(m_layout), QColor::fromRgb(kTextRowColour));
    }
}

// F0 with its scale on the right of the graph, over the formants on the spectrogram's own frequency scale. The
// scale stands on the live page too, before any samples.
void CAFView::drawCurves(QPainter& painter) {
    const bool samples = m_recording.hasSamples();
    QRect graph = m_layout.pictureRect();
    // A paused take fills only the live columns it reached.
    if (m_displayMode == DisplayMode::LiveSpectrogramMode) graph.setWidth(std::max(1, pageColumn(m_liveColumn)));
    const auto total = static_cast<std::int64_t>(m_recording.SampleCount());
    const int scheme = m_spectrogramSettings.colourScheme;
    if (livePass()) {
        drawLiveDots(painter, graph, total, scheme);
    } else if (formantsShown() && samples) {
        const double upperHz = m_spectrogramObject.sampleRate() * 0.5 / m_spectrogramObject.zoom();
        DrawFormants(painter, graph, m_formantTrack, total, upperHz, m_firstShown, m_lastShown, scheme, m_f0Track);
    }
    if (f0Shown()) {
        const F0Range range = f0Range();
        if (samples && !livePass()) DrawF0(painter, graph, m_f0Track, total, m_firstShown, m_lastShown, range, scheme);
        DrawF0Axis(painter, F0AxisX(m_layout.GraphLeft, m_layout.GraphWidth, m_layout.LargeLayout), m_layout.GraphTop,
                   m_layout.GraphHeight, range, scheme);
    }
}

// During a live pass the curves grow with the picture: each column shows the dots of the sample heard when it was
// drawn.
void CAFView::drawLiveDots(QPainter& painter, QRect graph, std::int64_t total, int scheme, std::size_t from) {
    const double upperHz = m_spectrogramObject.sampleRate() * 0.5 / m_spectrogramObject.zoom();
    const F0Range range = f0Range();
    for (std::size_t column = from; column < m_liveDotSamples.size(); ++column) {
        const std::int64_t sample = m_liveDotSamples[column];
        if (sample < 0) continue;
        const int at = pageColumn(static_cast<int>(column));
        if (formantsShown()) DrawFormantPoint(painter, graph, m_formantTrack, at, total, sample, upperHz, scheme);
        if (f0Shown()) DrawF0Point(painter, graph, m_f0Track, at, total, sample, range, scheme);
    }
}

// The live picture is painted a column per device pixel; the curves are drawn in page pixels.
int CAFView::pageColumn(int deviceColumn) const {
    const int deviceWidth = std::max(1, m_picture.size().width());
    return static_cast<int>(static_cast<std::int64_t>(deviceColumn) * m_layout.pictureRect().width() / deviceWidth);
}
