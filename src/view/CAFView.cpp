#include "view/CAFView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QAction>
#include <QContextMenuEvent>
#include <QIcon>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

#include "controls/UiText.h"
#include "panels/CMyBarra.h"
#include "panels/CMyBarra2.h"
#include "panels/PictureAxes.h"
#include "store/Prompt.h"
#include "store/TextFormat.h"
#include "view/CConverter1.h"
#include "view/DisplayModeRules.h"
#include "view/GraphCaptions.h"
#include "view/ReadOut.h"
#include "view/WaitCursor.h"

namespace {

constexpr int kSharpenDelay = 200;  // milliseconds after the last resize before the picture is made sharp again
constexpr QRgb kReadOutBackground = 0xffffffe1;
constexpr int kRecordFormatAtStart = 3;  // 11025 Hz, 16 bits

}  // namespace

CAFView::CAFView(Prompt& prompt, QWidget* parent)
    : QWidget(parent), m_prompt(prompt), m_doc(new CAFDoc(this)), m_liveTrace(m_layout.GraphWidth) {
    setAutoFillBackground(false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setMinimumSize(320, 240);
    WaveWriter engine;
    engine.SetRecordFormat(kRecordFormatAtStart);
    m_recordFormat = engine.format;
    m_picture.setPalette(BuildPalette(m_spectrogramSettings.dynamicRange, m_spectrogramSettings.colourScheme));
    m_spectrumObject.setFftSize(m_spectrumSettings.fftSize);
    m_chooseStereo = [this] { return CConverter1::ask(this); };
    m_sharpenTimer = new QTimer(this);
    m_sharpenTimer->setSingleShot(true);
    m_sharpenTimer->setInterval(kSharpenDelay);
    connect(m_sharpenTimer, &QTimer::timeout, this, &CAFView::sharpenPicture);
    createCommands();
    createPanels();
    setScreenSize(screen() != nullptr ? screen()->size() : QSize(1024, 768));
}

CAFView::~CAFView() {
    // The panels are destroyed after the view's own part: no hold may reach the view through them then.
    m_spectrogramPanel->setAudio(nullptr);
    m_spectrumPanel->setAudio(nullptr);
}

// ---------------------------------------------------------------------------------------------------------------
// Layout and state

void CAFView::setScreenSize(QSize screenSize) {
    m_layout = ViewLayout::forScreen(screenSize);
    m_liveTrace = LiveTrace(m_layout.GraphWidth);
    m_pictureComputed = false;
    clearReadOut();
    if (m_displayMode == DisplayMode::FileSpectrogramMode && m_recording.hasSamples()) {
        RedrawAll();
    } else {
        rebuildPage();
        update();
    }
}

void CAFView::setCurrentClient(const ClientFolder& folder, const QString& name) {
    m_client = folder;
    m_clientName = name;
    UpdateCommands();
}

int CAFView::rate() const {
    // Live pages show the record engine's rate; a loaded file its own.
    if (isLiveMode(m_displayMode) || !m_recording.format()) return static_cast<int>(m_recordFormat.nSamplesPerSec);
    return static_cast<int>(m_recording.format()->nSamplesPerSec);
}

CommandState CAFView::commandState() const {
    CommandState s;
    s.SampleCount = m_recording.SampleCount();
    s.Playing = Playing;
    s.Recording = Recording;
    s.mode = m_displayMode;
    s.Zoomed = m_zoomed;
    s.HasSelection = m_hasSelection;
    s.SelectionSpansStrip = m_hasSelection && SpansWholeStrip(m_layout, m_selStartX, m_selEndX);
    s.Modified = m_recording.Modified;
    s.RecordingNumber = m_recording.RecordingNumber;
    s.EditKind = EditKind;
    s.ClientCode = m_client.code;
    return s;
}

// ---------------------------------------------------------------------------------------------------------------
// Commands

void CAFView::createCommands() {
    for (const ViewCommand& command : kViewCommands) {
        auto* action = new QAction(uiText(command.text), this);
        action->setObjectName(QStringLiteral("command%1").arg(command.id));
        action->setCheckable(command.checkedWhen != nullptr);
        void (CAFView::*run)() = nullptr;
        if (command.id == kIdZoom) run = &CAFView::Zoom;
        if (command.id == kIdShowSpectrogram) run = &CAFView::ShowSpectrogramPage;
        if (command.id == kIdShowSpectrum) run = &CAFView::ShowSpectrumPage;
        if (command.id == kIdPlay) run = &CAFView::OnPlay;
        if (command.id == kIdRecord) run = &CAFView::OnRecord;
        if (run != nullptr) connect(action, &QAction::triggered, this, run);
        if (command.id == kIdZoom) action->setIcon(QIcon(":/view/zoom.svg"));
        m_commands.push_back({command.id, action, run});
    }
    m_contextMenu = new QMenu(this);
    m_contextMenu->setObjectName("stripMenu");
    for (const int id : {kIdPlay, kIdZoom, 0, kIdCut, kIdCopy, kIdPaste, kIdSilence}) {
        if (id == 0) {
            m_contextMenu->addSeparator();
            continue;
        }
        QAction* item = m_contextMenu->addAction(uiText(FindViewCommand(id)->text));
        item->setObjectName(QStringLiteral("menu%1").arg(id));
        item->setData(id);
        if (id == kIdZoom) connect(item, &QAction::triggered, this, &CAFView::Zoom);
        if (id == kIdPlay) connect(item, &QAction::triggered, this, &CAFView::OnPlay);
    }
    UpdateCommands();
}

QAction* CAFView::action(int id) const {
    for (const CommandAction& command : m_commands) {
        if (command.id == id) return command.action;
    }
    return nullptr;
}

bool CAFView::canRun(int id) const {
    for (const CommandAction& command : m_commands) {
        if (command.id == id) return command.run != nullptr;
    }
    return false;
}

void CAFView::retranslate() {
    for (const CommandAction& command : m_commands) command.action->setText(uiText(FindViewCommand(command.id)->text));
    for (QAction* item : m_contextMenu->actions()) {
        if (const ViewCommand* command = FindViewCommand(item->data().toInt())) item->setText(uiText(command->text));
    }
    m_spectrogramPanel->retranslate();
    m_spectrumPanel->retranslate();
    rebuildPage(false);
    update();
}

void CAFView::UpdateCommands() {
    const CommandState state = commandState();
    for (const CommandAction& command : m_commands) {
        command.action->setEnabled(command.run != nullptr && CommandEnabled(command.id, state));
        if (command.action->isCheckable()) command.action->setChecked(CommandChecked(command.id, state));
    }
    emit commandsChanged();
}

void CAFView::openContextMenu(QPoint globalPosition) {
    const CommandState state = commandState();
    const bool pasteWaiting = EditKind == 2;
    for (QAction* item : m_contextMenu->actions()) {
        const int id = item->data().toInt();
        if (id == 0) continue;
        bool enabled = CommandEnabled(id, state);
        if (id == kIdPlay) item->setText(uiText(Playing ? kCommandStop : kCommandPlay));
        if (id == kIdZoom) {
            item->setText(uiText(m_zoomed ? kCommandZoomOut : kCommandZoomIn));
            if (pasteWaiting && !m_hasSelection && !m_zoomed) enabled = false;
        }
        if ((id == kIdCut || id == kIdCopy) && pasteWaiting && !m_hasSelection) enabled = false;
        item->setEnabled(enabled && canRun(id));
    }
    m_contextMenu->popup(globalPosition);
}

// ---------------------------------------------------------------------------------------------------------------
// Opening and closing

// Whatever changes what is on screen ends the sound first: a play stops, and a take ends with its save question.
void CAFView::StopAudio() {
    if (Playing) StopPlaying();
    if (Recording) StopRecording();
    Playing = false;
}

void CAFView::CloseRecording() {
    StopAudio();
    if (m_recording.SampleCount() > 0) {
        m_recording.freeSamples();
        m_labels.WriteLabelFile(m_recording.RecordingPath, m_prompt);
        m_labels.clear();
        EditKind = 0;
        m_doc->SetTitle(m_clientName);
        m_displayMode = DisplayMode::ModeEmpty;
    }
    m_zoomed = false;
    m_recording.Modified = false;
    m_hasSelection = false;
    m_dragging = false;
    m_pictureComputed = false;
    m_spectrumObject.setValid(false);
    m_wholeSpectrum.reset();
    for (ClassAux* panel : bothPanels()) {
        panel->Reset();
        panel->EnablePlay(false);
    }
    invalidateCurves();
    m_f0Readout = 0.0f;
    clearReadOut();
    UpdateCommands();
}

void CAFView::RecordingDeleted(int number) {
    if (!m_recording.hasSamples() || m_recording.RecordingNumber != number || m_recording.RecordingNumber < 0) return;
    m_labels.clear();
    m_recording.Modified = false;
    ShowEmpty();
}

void CAFView::ShowEmpty() {
    CloseRecording();
    m_displayMode = DisplayMode::ModeEmpty;
    rebuildPage();
    repaint();
}

int CAFView::OpenRecording(int kind, int number) {
    StopAudio();
    const DisplayMode remembered = m_displayMode;
    CloseRecording();
    m_doc->SetTitle(QString::fromStdString(
        formatText(uiText(kRecordingTitle).toStdString().c_str(), m_clientName.toStdString().c_str(), number)));
    const bool qv = kind == 1 || kind == 3;
    m_recording.RecordingPath = recordingFilePath(m_client, qv ? "qv" : "wv", number, "wav");
    m_recording.RecordingNumber = number;
    m_recording.OpenedStereoAsMono = false;
    return loadRecordingPath() ? loadFileSteps(remembered) : 0;
}

// The samples of RecordingPath, under the wait cursor; a file that cannot be read leaves the view empty after
// "Error Reading File".
bool CAFView::loadRecordingPath() {
    WaitCursor wait;
    if (m_recording.LoadSamples(m_recording.RecordingPath) && m_recording.SampleCount() > 0) return true;
    wait.restore();
    m_recording.freeSamples();
    m_prompt.showOk(kErrorReadingFile);
    showFailedOpening();
    return false;
}

int CAFView::OpenRecordingFile(const std::filesystem::path& path) {
    StopAudio();
    const DisplayMode remembered = m_displayMode;
    CloseRecording();
    WaitCursor wait;
    // The message of a refused format is shown by the opening itself; an unreadable file shows nothing.
    const OtherFileOpening opened = OpenOtherFile(
        m_recording, path,
        [this, &wait]() {
            wait.restore();
            return m_chooseStereo();
        },
        m_prompt);
    wait.restore();
    if (opened.result != OtherFileResult::Opened || m_recording.SampleCount() == 0) {
        m_recording.freeSamples();
        showFailedOpening();
        return 0;
    }
    m_doc->SetTitle(QString::fromStdString(opened.title));
    return loadFileSteps(remembered);
}

void CAFView::showFailedOpening() {
    m_displayMode = DisplayMode::ModeEmpty;
    m_doc->SetTitle(m_clientName);
    rebuildPage();
    update();
    UpdateCommands();
}

// What every way of opening does once the samples are in memory.
int CAFView::loadFileSteps(DisplayMode remembered) {
    m_hasSelection = false;
    m_dragging = false;
    m_dragLastX = 0;
    m_firstShown = 0;
    m_lastShown = static_cast<std::int64_t>(m_recording.SampleCount());
    m_labels.clear();
    m_labels.ReadLabelFile(m_recording.RecordingPath);
    m_displayMode = ModeAfterOpening(remembered);
    applyRate(rate());
    m_pictureComputed = false;
    m_spectrumObject.setValid(false);
    m_wholeSpectrum.reset();
    m_spectrogramPanel->EnablePlay(true);
    m_spectrumPanel->EnablePlay(true);
    invalidateCurves();
    RedrawAll();
    return 1;
}

// The rate goes to both analysis objects and both panels, whose Limit lists of the rate select the upper frequency.
void CAFView::applyRate(int sampleRate) {
    m_spectrogramObject.setSampleRate(sampleRate);
    m_spectrumObject.setSampleRate(sampleRate);
    m_spectrogramPanel->FillLimitList(sampleRate);
    m_spectrumPanel->FillLimitList(sampleRate);
    m_spectrogramObject.setBandwidth(m_spectrogramSettings.bandwidth);
    m_spectrumObject.setFftSize(m_spectrumSettings.fftSize);
}

void CAFView::ShowSpectrogramPage() {
    if (isSpectrogramPage(m_displayMode)) return;
    StopAudio();
    m_displayMode = ModeAfterShowSpectrogram(m_displayMode, m_recording.hasSamples());
    resetLivePage();
    applyPanelOfPage();
    RedrawAll();
}

void CAFView::ShowSpectrumPage() {
    StopAudio();
    m_displayMode = ModeAfterShowSpectrum(m_recording.hasSamples());
    resetLivePage();
    applyPanelOfPage();
    RedrawAll();
}

// The live counters start again; a live page takes the record engine's rate.
void CAFView::resetLivePage() {
    m_liveTrace.clear();
    m_liveColumn = 0;
    m_liveDirtyFrom = 0;
    m_blocksSincePaint = 0;
    m_liveF0Blocks = 0;
    m_f0Readout = 0.0f;
    m_picture.resize(pictureDeviceRect().size());
    if (!Recording && !Playing) {
        for (ClassAux* panel : bothPanels()) panel->RecordButton()->setEnabled(true);
    }
    if (!isLiveMode(m_displayMode)) return;
    applyRate(rate());
    m_spectrumObject.resetAverage();
}

// ---------------------------------------------------------------------------------------------------------------
// Pictures

void CAFView::RedrawAll() {
    clearReadOut();
    if (m_displayMode == DisplayMode::FileSpectrogramMode && m_recording.hasSamples()) {
        computePicture();
        ensureCurves();
        drawOverlays();
        update();
    } else if (m_displayMode == DisplayMode::FileSpectrumMode && m_recording.hasSamples()) {
        ensureSpectrum();
        rebuildPage();
        update();
    } else {
        rebuildPage();
        update();
    }
    UpdateCommands();
}

void CAFView::computePicture() {
    const QRect target = pictureDeviceRect();
    m_picture.setPalette(BuildPalette(m_spectrogramSettings.dynamicRange, m_spectrogramSettings.colourScheme));
    m_picture.resize(target.size());
    m_computing = true;
    rebuildPage();
    {
        WaitCursor wait;
        const QRect screenArea = widgetRect(m_layout.pictureRect());
        const auto progress = [this, screenArea](int) {
            if (isVisible()) repaint(screenArea);
        };
        m_picture.compute(m_spectrogramObject, m_recording.samples(), m_firstShown, m_lastShown, rate(), progress);
    }
    m_computing = false;
    m_pictureComputed = true;
    rebuildPage();
    update();
}

void CAFView::ensureSpectrum() {
    if (m_spectrumObject.valid()) return;
    WaitCursor wait;
    m_spectrumObject.resetAverage();
    const std::span<const std::int16_t> samples = std::as_const(m_recording).samples();
    const auto first = static_cast<std::size_t>(std::clamp<std::int64_t>(m_firstShown, 0, samples.size()));
    const auto last = static_cast<std::size_t>(std::clamp<std::int64_t>(m_lastShown, first, samples.size()));
    // The spectrum of the whole recording is kept: leaving a zoom goes back to it without running its frames again.
    const bool whole = first == 0 && last == samples.size();
    if (!(whole && m_wholeSpectrum && m_spectrumObject.restore(*m_wholeSpectrum))) {
        m_spectrumObject.computeSpectrum(samples.subspan(first, last - first));
        if (whole) m_wholeSpectrum = m_spectrumObject.result();
    }
    m_spectrumObject.setValid(true);
}

// After a resize the picture is first shown scaled; once the size settles it is computed again at one column per
// pixel of the device, so that it is as sharp as the screen allows.
void CAFView::sharpenPicture() {
    if (m_displayMode != DisplayMode::FileSpectrogramMode || !m_recording.hasSamples() || !m_pictureComputed) return;
    if (m_picture.size() == pictureDeviceRect().size()) return;
    const bool selection = m_hasSelection;
    computePicture();
    m_hasSelection = selection;
    update();
}

void CAFView::ApplyPalette() {
    m_picture.setPalette(BuildPalette(m_spectrogramSettings.dynamicRange, m_spectrogramSettings.colourScheme));
    rebuildPage(false);
    update();
}

void CAFView::Zoom() {
    if (!m_recording.hasSamples()) return;
    if (!m_zoomed) {
        SampleRange range{0, 0};
        if (m_selStartX != m_selEndX) {
            const auto selected = SelectionSampleRange(m_layout, static_cast<std::int64_t>(m_recording.SampleCount()),
                                                       false, shownRange(), m_selStartX, m_selEndX, m_prompt);
            if (!selected) return;
            range = *selected;
        }
        m_firstShown = range.first;
        m_lastShown = range.last;
    } else {
        m_firstShown = 0;
        m_lastShown = static_cast<std::int64_t>(m_recording.SampleCount());
        m_selEndX = 0;
    }
    m_zoomed = !m_zoomed;
    m_pictureComputed = false;
    m_spectrumObject.setValid(false);
    RedrawAll();
}

// ---------------------------------------------------------------------------------------------------------------
// Drawing

QRect CAFView::pictureDeviceRect() const {
    const qreal ratio = devicePixelRatioF();
    const QTransform device = m_layout.toWidget(QSizeF(size())) * QTransform::fromScale(ratio, ratio);
    const QRectF area = device.mapRect(QRectF(m_layout.pictureRect()));
    const QPoint topLeft(static_cast<int>(std::lround(area.left())), static_cast<int>(std::lround(area.top())));
    const QPoint end(static_cast<int>(std::lround(area.right())), static_cast<int>(std::lround(area.bottom())));
    return QRect(topLeft, QSize(std::max(end.x() - topLeft.x(), 1), std::max(end.y() - topLeft.y(), 1)));
}

QRect CAFView::widgetRect(const QRect& pageRect) const {
    return m_layout.toWidget(QSizeF(size())).mapRect(QRectF(pageRect)).toAlignedRect().adjusted(-1, -1, 1, 1);
}

SpectrumArea CAFView::pictureArea() const {
    const QRect picture = m_layout.pictureRect();
    return {picture.left(), picture.top(), picture.left() + picture.width(), picture.top() + picture.height()};
}

QString CAFView::durationText() const {
    // While sound runs, the time of the newest block: a zoomed play counts from the start of its range.
    std::int64_t count = m_recording.hasSamples() ? m_lastShown - m_firstShown : 0;
    if (Playing && m_zoomed && !m_play.oneShot) {
        count = m_play.bytePosition / 2;
    } else if ((Recording && !RecordPaused) || livePass()) {
        count = m_play.bytePosition / 2 - m_firstShown;
    }
    return QString::fromStdString(DurationText(count, rate()));
}

void CAFView::rebuildPage(bool dropSelection) {
    placePanels();
    placeSliders();
    const qreal ratio = devicePixelRatioF();
    const QSize device(std::max(1, static_cast<int>(std::lround(width() * ratio))),
                       std::max(1, static_cast<int>(std::lround(height() * ratio))));
    m_backStale = false;
    m_backBitmap = QImage(device, QImage::Format_RGB32);
    m_backBitmap.fill(Qt::white);
    {
        QPainter painter(&m_backBitmap);
        if (m_displayMode == DisplayMode::ModeEmpty && !m_recording.hasSamples()) {
            painter.scale(ratio, ratio);
            drawEmpty(painter);
        } else {
            painter.setTransform(m_layout.toWidget(QSizeF(size())) * QTransform::fromScale(ratio, ratio));
            drawPage(painter);
        }
    }
    m_backBitmap.setDevicePixelRatio(ratio);
    // The graph's overlays (curves, labels) go over a copy; without them the two are one picture.
    drawOverlays();
    if (dropSelection) {
        m_dragging = false;
        m_hasSelection = false;
        m_dragLastX = 0;
    }
}

void CAFView::drawEmpty(QPainter& painter) {
    // The logo grows with the window from its size on a 1024 x 768 screen, up to about twice that, and is drawn
    // from its vector picture at the device's resolution so that it stays sharp.
    const qreal scale = std::clamp(std::min(width() / 1024.0, height() / 768.0), 1.0, 1.8);
    const QSize logoSize = (QSizeF(420, 140) * scale).toSize();
    const qreal ratio = devicePixelRatioF();
    if (m_logo.isNull() || m_logo.devicePixelRatio() != ratio || m_logo.deviceIndependentSize().toSize() != logoSize) {
        m_logo = QIcon(":/view/logo.svg").pixmap(logoSize, ratio);
    }
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 1.3 * scale);
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const int gap = metrics.height();
    const int top = (height() - (logoSize.height() + gap + metrics.height())) / 2;
    painter.drawPixmap((width() - logoSize.width()) / 2, top, m_logo);
    painter.setPen(QColor(0x0b, 0x3c, 0x49));
    painter.drawText(QRect(0, top + logoSize.height() + gap, width(), metrics.height()), Qt::AlignHCenter,
                     uiText(kEmptyViewLine));
}

void CAFView::drawPage(QPainter& painter) {
    const QColor trace = TraceColour(m_displayMode, m_prompt);
    switch (m_displayMode) {
    case DisplayMode::ModeEmpty:  // samples kept while nothing else is shown: the strip alone
        DrawStrip(painter, m_layout, StripTrace(m_layout, m_recording.samples(), m_firstShown, m_lastShown), trace);
        return;
    case DisplayMode::LiveSpectrogramMode:
    case DisplayMode::LiveSpectrumMode: drawLivePage(painter); break;
    case DisplayMode::FileSpectrogramMode: drawSpectrogramPage(painter); break;
    case DisplayMode::FileSpectrumMode: drawSpectrumPage(painter); break;
    }
    if (isKnownMode(m_displayMode)) {
        const QPolygon points = isLiveMode(m_displayMode)
                                    ? m_liveTrace.trace(m_layout)
                                    : StripTrace(m_layout, m_recording.samples(), m_firstShown, m_lastShown);
        DrawStrip(painter, m_layout, points, trace);
    }
    DrawInputCaptions(painter, m_layout, LineInput);
}

void CAFView::drawTextRows(QPainter& painter) {
    DrawCaptionRow(painter, m_layout, m_displayMode, durationText());
    const bool fromFile = m_recording.hasSamples() && !Recording && m_recording.format();
    DrawFormatLine(painter, m_layout,
                   QString::fromStdString(FormatLineText(fromFile ? *m_recording.format() : m_recordFormat)));
    if (m_recording.hasSamples()) {
        DrawFileLine(painter, m_layout,
                     QString::fromStdString(FileLineText(m_recording.RecordingNumber, m_recording.RecordingPath)));
    }
}

void CAFView::drawSpectrogramPage(QPainter& painter) {
    DrawGraphFrame(painter, m_layout);
    drawTextRows(painter);
    // While playing the whole recording the axis would only repeat itself; zoomed or idle it is drawn.
    if (isIdle() || m_zoomed) DrawTimeAxis(painter, m_layout, m_firstShown, m_lastShown, rate());
    const double topHz = m_spectrogramObject.sampleRate() * 0.5 / m_spectrogramObject.zoom();
    DrawFrequencyAxis(painter, pictureArea(), topHz);
    painter.save();
    painter.resetTransform();
    painter.drawImage(pictureDeviceRect(), m_picture.image());
    painter.restore();
}

void CAFView::drawSpectrumPage(QPainter& painter) {
    DrawGraphFrame(painter, m_layout);
    drawTextRows(painter);
    const double topHz = m_spectrumObject.sampleRate() * 0.5 / m_spectrumObject.zoom();
    DrawSpectrumAxes(painter, pictureArea(), topHz);
    if (m_spectrumObject.valid()) DrawSpectrum(painter, m_spectrumObject, m_spectrumSettings, pictureArea());
}

void CAFView::drawLivePage(QPainter& painter) {
    DrawGraphFrame(painter, m_layout);
    drawTextRows(painter);
    if (m_displayMode == DisplayMode::LiveSpectrogramMode) {
        const double topHz = m_spectrogramObject.sampleRate() * 0.5 / m_spectrogramObject.zoom();
        DrawFrequencyAxis(painter, pictureArea(), topHz);
        // The columns done so far.
        const int done = std::min(m_picture.columnsDone(), m_picture.size().width());
        if (done > 0) {
            const QRect target = pictureDeviceRect();
            painter.save();
            painter.resetTransform();
            painter.drawImage(QRect(target.topLeft(), QSize(done, target.height())), m_picture.image(),
                              QRect(0, 0, done, m_picture.size().height()));
            painter.restore();
        }
    } else {
        const double topHz = m_spectrumObject.sampleRate() * 0.5 / m_spectrumObject.zoom();
        DrawSpectrumAxes(painter, pictureArea(), topHz);
        if (m_spectrumObject.valid()) DrawSpectrum(painter, m_spectrumObject, m_spectrumSettings, pictureArea());
    }
}

void CAFView::paintEvent(QPaintEvent*) {
    const qreal ratio = devicePixelRatioF();
    if (m_savedGraph.isNull() || m_savedGraph.size() != (size() * ratio)) rebuildPage(false);
    QPainter painter(this);
    painter.drawImage(QPoint(0, 0), m_savedGraph);
    if (m_computing) {
        // The picture grows column by column while it is computed.
        painter.save();
        painter.scale(1.0 / ratio, 1.0 / ratio);
        painter.drawImage(pictureDeviceRect(), m_picture.image());
        painter.restore();
    }
    if (m_displayMode == DisplayMode::ModeEmpty) return;
    painter.setTransform(m_layout.toWidget(QSizeF(size())));
    // The selection shows inverted over the strip.
    const int end = m_dragLastX != 0 ? m_dragLastX : m_selEndX;
    if ((m_hasSelection || m_dragging) && end != m_selStartX) {
        painter.save();
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        painter.fillRect(QRect(QPoint(std::min(m_selStartX, end), m_layout.StripTop + 1),
                               QPoint(std::max(m_selStartX, end) - 1, m_layout.stripBottom() - 1)),
                         Qt::white);
        painter.restore();
    }
    if (Playing && m_zoomed && m_play.cursorPosition > 0.0f) drawCursorLine(painter, m_play.cursorPosition);
    if (!m_readOutBox.isEmpty()) {
        painter.fillRect(m_readOutBox, QColor::fromRgb(kReadOutBackground));
        painter.setPen(QPen(Qt::black, 0));
        painter.drawRect(m_readOutBox.adjusted(0, 0, -1, -1));
        painter.setFont(AxisFont());
        for (int i = 0; i < m_readOutLines.size(); ++i) {
            painter.drawText(QRect(m_readOutBox.left() + 4, m_readOutBox.top() + 2 + i * kReadOutLineHeight,
                                   m_readOutBox.width() - 6, kReadOutLineHeight),
                             Qt::AlignLeft | Qt::AlignVCenter, m_readOutLines[i]);
        }
    }
}

void CAFView::resizeEvent(QResizeEvent*) {
    // A new size redraws the page from what is already computed; the picture is made sharp once the size settles.
    clearReadOut();
    rebuildPage();
    if (m_displayMode == DisplayMode::FileSpectrogramMode && m_pictureComputed) m_sharpenTimer->start();
}

// ---------------------------------------------------------------------------------------------------------------
// Mouse

QPoint CAFView::pagePoint(QPointF widgetPosition) const {
    // The inverse mapping can land a hair below a whole page pixel; such a position belongs to that pixel.
    const QPointF page = m_layout.toPage(widgetPosition, QSizeF(size())) + QPointF(1e-6, 1e-6);
    return QPoint(static_cast<int>(std::floor(page.x())), static_cast<int>(std::floor(page.y())));
}

void CAFView::removeSelection() {
    m_hasSelection = false;
    m_dragLastX = 0;
    m_selEndX = m_selStartX;
    update(widgetRect(m_layout.stripRect()));
}

void CAFView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_recording.hasSamples() || Playing) return;
    const QPoint page = pagePoint(event->position());
    const bool inStrip = m_layout.stripRect().contains(page);
    if (m_zoomed) {
        if (inStrip) openContextMenu(event->globalPosition().toPoint());
        return;
    }
    if (!inStrip) {
        m_dragging = false;
        return;
    }
    removeSelection();
    m_dragging = true;
    m_selStartX = page.x();
    m_selStartY = page.y();
    m_selEndX = page.x();
    UpdateCommands();
}

void CAFView::mouseMoveEvent(QMouseEvent* event) {
    if (m_displayMode == DisplayMode::ModeEmpty) return;
    const QPoint page = pagePoint(event->position());
    if (m_dragging && (event->buttons() & Qt::LeftButton)) {
        const int x = ClampToStrip(m_layout, page.x());
        m_hasSelection = true;
        m_dragLastX = x;
        m_selEndX = x;
        update(widgetRect(m_layout.stripRect()));
    }
    const bool inStrip = m_layout.stripRect().contains(page);
    const bool inGraph = m_layout.pictureRect().contains(page);
    if (inStrip && !m_zoomed) {
        setCursor(Qt::IBeamCursor);
    } else if (inGraph && isFileOrEmptyMode(m_displayMode) && m_recording.hasSamples()) {
        setCursor(Qt::CrossCursor);
    } else {
        unsetCursor();
    }
    if (isFileOrEmptyMode(m_displayMode) && !Playing && m_recording.hasSamples()) updateReadOut(page);
}

void CAFView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_dragging) return;
    const int x = ClampToStrip(m_layout, pagePoint(event->position()).x());
    m_dragging = false;
    if (m_hasSelection && m_selEndX != m_selStartX) {
        UpdateCommands();
        openContextMenu(event->globalPosition().toPoint());
        return;
    }
    // A plain click: no selection after all, and a menu only when something waits to be pasted there.
    m_hasSelection = false;
    m_dragLastX = 0;
    if (EditKind == 2) {
        m_selStartX = x;
        m_selEndX = x;
        openContextMenu(event->globalPosition().toPoint());
    }
    UpdateCommands();
}

void CAFView::contextMenuEvent(QContextMenuEvent* event) {
    if (!m_recording.hasSamples() || m_displayMode == DisplayMode::ModeEmpty) return;
    const QPoint page = pagePoint(event->pos());
    if (m_layout.contextMenuArea().contains(page)) {
        openContextMenu(event->globalPos());
    } else if (m_hasSelection) {
        removeSelection();
        UpdateCommands();
    }
}

void CAFView::leaveEvent(QEvent*) { clearReadOut(); }

// ---------------------------------------------------------------------------------------------------------------
// Read-outs

void CAFView::clearReadOut() {
    if (m_readOutBox.isEmpty()) return;
    update(widgetRect(m_readOutBox));
    m_readOutBox = QRect();
    m_readOutLines.clear();
}

void CAFView::updateReadOut(QPoint page) {
    if (!m_layout.pictureRect().contains(page) || m_computing) {
        clearReadOut();
        return;
    }
    QStringList lines;
    if (m_displayMode == DisplayMode::FileSpectrogramMode) {
        const double topHz = m_spectrogramObject.sampleRate() * 0.5 / m_spectrogramObject.zoom();
        const double seconds = ReadOutSeconds(m_layout, page.x(), m_firstShown, m_lastShown, rate());
        const double hz = ReadOutHertz(m_layout, page.y(), topHz);
        lines << QString::fromStdString(ReadOutText(kSpectrogramReadOut, hz, seconds));
    } else if (m_displayMode == DisplayMode::FileSpectrumMode) {
        const SpectrumArea area = pictureArea();
        const double topHz = m_spectrumObject.sampleRate() * 0.5 / m_spectrumObject.zoom();
        lines << QString::fromStdString(ReadOutText(
            kSpectrumReadOut, SpectrumFrequencyAt(area, page.x(), topHz) / 1000.0, SpectrumLevelAt(area, page.y())));
    } else {
        clearReadOut();
        return;
    }
    const QRect box = ReadOutBox(m_layout, page, static_cast<int>(lines.size()));
    if (!m_readOutBox.isEmpty()) update(widgetRect(m_readOutBox));
    m_readOutBox = box;
    m_readOutLines = lines;
    update(widgetRect(box));
}
