// The view's side of the two side panels: where they stand, and what each change on them does to the pictures.
#include <cmath>

#include <QToolButton>

#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"
#include "panels/CMyBarra.h"
#include "panels/CMyBarra2.h"
#include "panels/CTaxaGravaMenu.h"
#include "view/CAFView.h"
#include "view/DisplayModeRules.h"

namespace {

constexpr int kPanelGap = 2;  // page pixels between a panel and the read-out row under it

}  // namespace

void CAFView::createPanels() {
    m_spectrogramPanel = new CMyBarra(this);
    m_spectrumPanel = new CMyBarra2(this);
    for (ClassAux* panel : bothPanels()) {
        panel->hide();
        panel->setAudio(this);
        connect(panel, &ClassAux::updateRateChanged, this, &CAFView::onUpdateRate);
        connect(panel, &ClassAux::rateClicked, this, [this, panel] { openRateMenu(*panel); });
        connect(panel, &ClassAux::recordClicked, this, &CAFView::OnRecord);
        connect(panel, &ClassAux::pauseRecordClicked, this, &CAFView::OnPauseRecord);
        connect(panel, &ClassAux::playClicked, this, &CAFView::OnPlayButton);
        connect(panel, &ClassAux::pausePlayClicked, this, &CAFView::OnPausePlay);
    }
    connect(m_spectrogramPanel, &CMyBarra::bandChanged, this, &CAFView::onBand);
    connect(m_spectrogramPanel, &ClassAux::limitChanged, this, &CAFView::onSpectrogramLimit);
    connect(m_spectrogramPanel, &CMyBarra::dynamicRangeChanged, this, &CAFView::onDynamicRange);
    connect(m_spectrogramPanel, &CMyBarra::colourSchemeChanged, this, &CAFView::onColourScheme);
    connect(m_spectrogramPanel, &CMyBarra::f0Toggled, this, &CAFView::RedrawF0);
    connect(m_spectrogramPanel, &CMyBarra::formantsToggled, this, &CAFView::RedrawFormants);
    connect(m_spectrumPanel, &ClassAux::limitChanged, this, &CAFView::onSpectrumLimit);
    connect(m_spectrumPanel, &CMyBarra2::fftSizeChanged, this, &CAFView::onFftSize);
    connect(m_spectrumPanel, &CMyBarra2::styleChanged, this, &CAFView::onSpectrumStyle);
    connect(m_spectrumPanel, &CMyBarra2::ltasToggled, this, &CAFView::onLtas);
    connect(m_spectrumPanel, &CMyBarra2::curveColourChanged, this, &CAFView::onCurveColour);
}

std::array<ClassAux*, 2> CAFView::bothPanels() const { return {m_spectrogramPanel, m_spectrumPanel}; }

ClassAux* CAFView::ActivePanel() const {
    switch (m_displayMode) {
    case DisplayMode::LiveSpectrogramMode:
    case DisplayMode::FileSpectrogramMode: return m_spectrogramPanel;
    case DisplayMode::LiveSpectrumMode:
    case DisplayMode::FileSpectrumMode: return m_spectrumPanel;
    default: return nullptr;
    }
}

void CAFView::setAudioEngines(WaveRecorder* recorder, WavePlayer* player) {
    m_recorder = recorder;
    m_player = player;
}

void CAFView::openRateMenu(ClassAux& panel) {
    auto* menu = new CTaxaGravaMenu(static_cast<int>(m_recordFormat.nSamplesPerSec), this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &CTaxaGravaMenu::formatChosen, this, &CAFView::SetRecordFormat);
    menu->popUpUnder(*panel.RateButton());
}

void CAFView::SetRecordFormat(int index) {
    if (m_recorder != nullptr) m_recorder->SetFormat(index);
    WaveWriter format;
    format.SetRecordFormat(index);
    m_recordFormat = format.format;
    if (!isLiveMode(m_displayMode)) return;
    applyRate(rate());
    RedrawAll();
}

// A play that was running is paused for the dialog and goes on after it; one the user had paused stays paused. A
// take keeps running and throws its buffers away meanwhile; one paused by its button stays paused.
void CAFView::HoldAudioForDialog(bool hold) {
    const bool playing = m_player != nullptr && m_player->deviceOpen();
    const ClassAux* panel = ActivePanel();
    const bool pausedByButton = panel != nullptr && panel->capturePausedByButton();
    if (hold) {
        m_pausedForDialog = playing && !m_player->paused();
        if (m_pausedForDialog) m_player->Pause();
        if (Recording) RecordPaused = true;
        return;
    }
    if (playing) {
        if (m_zoomed) update();  // the cursor line drawn again where the play stands
        if (m_pausedForDialog) m_player->Restart();
    }
    if (Recording && !pausedByButton) RecordPaused = false;
    m_pausedForDialog = false;
}

void CAFView::PausePlay() {
    if (m_player != nullptr && m_player->deviceOpen()) m_player->Pause();
}

void CAFView::RestartPlay() {
    if (m_player != nullptr && m_player->deviceOpen()) m_player->Restart();
}

// The panel of the page stands in the band above the read-out row, both panels from the same left edge so that
// the record and play buttons keep their place from page to page. It is sized through the page's own mapping, so
// it grows and shrinks with the page.
void CAFView::placePanels() {
    ClassAux* active = ActivePanel();
    const bool wide = m_layout.LargeLayout;
    const double pageWidth = m_layout.pageSize().width();
    const int widest = m_spectrogramPanel->pageSize(wide).width();
    const double centred = m_layout.GraphLeft + m_layout.GraphWidth / 2.0 - widest / 2.0;
    const int left = static_cast<int>(std::max(0.0, std::min(centred, pageWidth - widest)));
    const QTransform toWidget = m_layout.toWidget(QSizeF(size()));
    for (ClassAux* panel : bothPanels()) {
        if (panel != active) {
            panel->hide();
            continue;
        }
        const QSize page = panel->pageSize(wide);
        const int top = std::max(0, m_layout.TitleTop - page.height() - kPanelGap);
        const QRectF area = toWidget.mapRect(QRectF(QRect(QPoint(left, top), page)));
        const QPoint topLeft(static_cast<int>(std::lround(area.left())), static_cast<int>(std::lround(area.top())));
        const QPoint end(static_cast<int>(std::lround(area.right())), static_cast<int>(std::lround(area.bottom())));
        panel->setGeometry(QRect(topLeft, end - QPoint(1, 1)));
        panel->setPageScale(wide, area.width() / page.width(), area.height() / page.height());
        panel->show();
    }
}

// Showing a page puts its panel's settings in force.
void CAFView::applyPanelOfPage() {
    ClassAux* panel = ActivePanel();
    if (panel == nullptr) return;
    m_pictureComputed = false;  // the page is drawn anew right after
    panel->ApplyUpdateRate();
    if (panel == m_spectrogramPanel) {
        m_spectrogramPanel->ApplyBand();
        m_spectrogramPanel->ApplyLimit();
    }
}

void CAFView::redrawKeepingSelection() {
    const bool selection = m_hasSelection;
    RedrawAll();
    m_hasSelection = selection;
    update();
}

// A new band or upper frequency: a picture on screen is computed again, unless a play of the whole recording runs
// (the play draws its own columns); otherwise the axes are drawn again.
void CAFView::onSpectrogramChange() {
    if (m_displayMode == DisplayMode::FileSpectrogramMode && m_pictureComputed && (!Playing || m_zoomed)) {
        redrawKeepingSelection();
    } else if (isVisible()) {
        rebuildPage(false);
        update();
    }
}

void CAFView::onBand(int hz) {
    m_spectrogramSettings.bandwidth = hz;
    m_spectrogramObject.setBandwidth(hz);
    onSpectrogramChange();
}

void CAFView::onSpectrogramLimit(int hz) {
    m_spectrogramObject.setMaxFrequency(hz);
    onSpectrogramChange();
}

// Colours and range only change the palette: the picture recolours with no new analysis.
void CAFView::onDynamicRange(int range) {
    m_spectrogramSettings.dynamicRange = range;
    ApplyPalette();
}

void CAFView::onColourScheme(int scheme) {
    m_spectrogramSettings.colourScheme = scheme;
    ApplyPalette();
}

void CAFView::onSpectrumLimit(int hz) {
    m_spectrumObject.setMaxFrequency(static_cast<float>(hz));
    redrawSpectrumPage(false);
}

// A new FFT size computes the spectrum of the shown range again, unless a play runs; a live page takes it with
// its next buffer.
void CAFView::onFftSize(int size) {
    m_spectrumSettings.fftSize = size;
    m_spectrumObject.setFftSize(size);
    if (m_displayMode != DisplayMode::FileSpectrumMode || !m_recording.hasSamples() || Playing) return;
    m_spectrumObject.setValid(false);
    redrawKeepingSelection();
}

void CAFView::onSpectrumStyle(SpectrumStyle style) {
    m_spectrumSettings.style = style;
    redrawSpectrumPage(true);
}

void CAFView::onLtas(bool on) {
    m_spectrumSettings.ltas = on;
    redrawSpectrumPage(true);
}

void CAFView::onCurveColour(const QColor& colour) {
    m_spectrumSettings.colour = colour;
    redrawSpectrumPage(false);
}

// The spectrum drawn again from what is computed; during a play the next buffer draws it.
void CAFView::redrawSpectrumPage(bool withoutPlay) {
    if (!isVisible() || (withoutPlay && Playing)) return;
    rebuildPage(false);
    update();
}

// The capture buffer's new size: stored directly while capture is paused by its button; during a running capture
// the engine starts again on buffers of the new size.
void CAFView::onUpdateRate(int bytes, int index) {
    if (m_recorder == nullptr) return;
    m_recorder->SetUpdateRateIndex(index);
    const ClassAux* panel = ActivePanel();
    if (Recording && panel != nullptr && !panel->capturePausedByButton()) {
        m_recorder->ChangeUpdateRate(bytes);
    } else {
        m_recorder->SetUpdateRateBytes(bytes);
    }
    if (Playing && !m_zoomed && !m_play.oneShot) restartPlayAtNewRate();
}

// A play of the whole recording goes on from where it is, cut into chunks of the new size, so that the live
// picture follows at the new rate.
void CAFView::restartPlayAtNewRate() {
    m_play.rateChanging = true;
    m_play.nextOffset = m_play.bytePosition;
    const bool holdCapture = std::exchange(RecordPaused, Recording ? true : RecordPaused);
    m_player->Reset();
    m_player->WaitClosed();
    m_play.rateChanging = false;
    RecordPaused = holdCapture;
    if (openPlayer()) startChunkedPlay(m_play.bytePosition / 2, m_recorder->updateRateBytes() / 2);
}
