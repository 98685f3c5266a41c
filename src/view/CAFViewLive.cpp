// The live page: each block captured or played adds the newest spectrogram columns (or a new spectrum), points of
// the strip and the elapsed time. A block changes only those parts, so only they are painted into the page's two
// pictures and sent to the screen: the live page must cost little while the sound runs.
#include <algorithm>
#include <cmath>
#include <limits>

#include <QPainter>

#include "panels/PictureAxes.h"
#include "view/CAFView.h"
#include "view/DisplayModeRules.h"
#include "view/GraphCaptions.h"

namespace {

constexpr double kLivePaintsPerSecond = 12.0;

}  // namespace

void CAFView::DrawLiveBlock(std::span<const std::int16_t> block) { liveBlock(block, -1); }

void CAFView::liveBlock(std::span<const std::int16_t> block, std::int64_t dotSample) {
    if (!(isLiveMode(m_displayMode) || livePass()) || block.empty()) return;
    m_spectrogramObject.pushSamples(block);
    int firstColumn = m_liveColumn;
    if (isSpectrogramPage(m_displayMode)) {
        if (m_picture.size() != pictureDeviceRect().size()) {
            m_picture.resize(pictureDeviceRect().size());
            firstColumn = 0;
        }
        const std::span<const std::uint8_t> column = m_spectrogramObject.computeLiveColumn(m_picture.size().height());
        for (int twice = 0; twice < 2; ++twice) {
            m_picture.paintColumn(m_liveColumn, column);
            m_picture.setColumnsDone(std::max(m_picture.columnsDone(), m_liveColumn + 1));
            m_liveColumn = std::min(m_liveColumn + 1, m_picture.size().width() - 1);
        }
        m_liveTrace.addBlock(block);
        if (f0Shown() && !Playing) estimateLiveF0();  // a play reads its F0 from the curve
        if (dotSample >= 0) {
            const auto at = static_cast<std::size_t>(m_liveColumn);
            if (m_liveDotSamples.size() <= at) m_liveDotSamples.resize(at + 1, -1);
            m_liveDotSamples[at] = dotSample;
        }
    } else {
        // A short block is too short for a spectrum of its own: the start of the ring stands in for it.
        const std::span<const std::int16_t> ring = m_spectrogramObject.ring();
        std::span<const std::int16_t> newest = block;
        if (block.size() < 1024) {
            newest = ring.first(std::min<std::size_t>(1024, ring.size()));
        } else if (block.size() < 1280) {
            newest = ring.first(std::min<std::size_t>(1280, ring.size()));
        }
        m_spectrumObject.computeSpectrum(newest);
        m_spectrumObject.setValid(true);
        m_liveTrace.addBlock(block.first(block.size() / 2));
    }
    // Small blocks come faster than the eye follows: they are painted together, a few dozen times a second.
    m_liveDirtyFrom = std::min({m_liveDirtyFrom, firstColumn, m_liveColumn});
    const int perPaint =
        std::max(1, static_cast<int>(std::ceil(static_cast<double>(rate()) / static_cast<double>(block.size()) /
                                               kLivePaintsPerSecond)));
    if (++m_blocksSincePaint < perPaint) return;
    paintLiveParts(m_liveDirtyFrom, m_liveColumn + 1);
    m_blocksSincePaint = 0;
    m_liveDirtyFrom = std::numeric_limits<int>::max();
}

// Columns [firstColumn, lastColumn) of the picture, in device pixels, with the strip, the band of text rows and
// (on the power-spectrum page) the whole graph, into the finished picture of the page; then those parts to the
// screen.
void CAFView::paintLiveParts(int firstColumn, int lastColumn) {
    const qreal ratio = devicePixelRatioF();
    if (m_backBitmap.isNull() || m_backBitmap.size() != m_savedGraph.size() || m_backBitmap.size() != size() * ratio) {
        rebuildPage(false);
        update();
        return;
    }
    const QTransform toWidget = m_layout.toWidget(QSizeF(size()));
    const QRect target = pictureDeviceRect();
    const int width = std::min(lastColumn, m_picture.size().width()) - firstColumn;
    const QRect columns(target.left() + firstColumn, target.top(), std::max(width, 0), target.height());
    const bool spectrogram = isSpectrogramPage(m_displayMode);
    const QColor trace = TraceColour(m_displayMode, m_prompt);
    // Only the finished picture is kept up to date while sound runs; the page under the overlays is drawn anew when
    // an overlay next changes.
    m_backStale = true;
    {
        QPainter painter(&m_savedGraph);
        if (spectrogram && !columns.isEmpty()) {
            painter.save();
            painter.scale(1.0 / ratio, 1.0 / ratio);
            painter.drawImage(columns, m_picture.image(),
                              QRect(firstColumn, 0, columns.width(), m_picture.size().height()));
            painter.restore();
        }
        painter.setTransform(toWidget);
        if (!spectrogram) {
            painter.fillRect(m_layout.pictureRect(), Qt::white);
            const double topHz = m_spectrumObject.sampleRate() * 0.5 / m_spectrumObject.zoom();
            DrawSpectrumAxes(painter, pictureArea(), topHz);
            if (m_spectrumObject.valid()) DrawSpectrum(painter, m_spectrumObject, m_spectrumSettings, pictureArea());
        }
        DrawStrip(painter, m_layout, m_liveTrace.trace(m_layout), trace);
        drawTextRows(painter);
        // The overlays of the parts drawn: the read-out in the band, and the dots of the new columns.
        if (spectrogram && (f0Shown() || formantsShown())) drawReadout(painter);
        if (spectrogram && livePass() && !m_liveDotSamples.empty()) {
            const std::size_t from = static_cast<std::size_t>(std::max(0, firstColumn));
            drawLiveDots(painter, m_layout.pictureRect(), static_cast<std::int64_t>(m_recording.SampleCount()),
                         m_spectrogramSettings.colourScheme, std::min(from, m_liveDotSamples.size()));
        }
    }
    // Of the band of text rows only the time and the read-out change: the panel standing over the rest of the band
    // is left alone.
    QRegion dirty = widgetRect(TimeCaptionRect(m_layout));
    dirty += widgetRect(readoutRect());
    dirty += widgetRect(m_layout.stripRect());
    dirty += spectrogram ? QRectF(columns.left() / ratio, columns.top() / ratio, columns.width() / ratio + 1,
                                  columns.height() / ratio + 1)
                               .toAlignedRect()
                         : widgetRect(m_layout.pictureRect());
    update(dirty);
}

// The elapsed time of a play that draws no live page, written into the finished picture and sent to the screen.
void CAFView::paintElapsedTime() {
    if (m_savedGraph.isNull()) return;
    m_backStale = true;
    QPainter painter(&m_savedGraph);
    painter.setTransform(m_layout.toWidget(QSizeF(size())));
    drawTextRows(painter);
    if (isSpectrogramPage(m_displayMode) && (f0Shown() || formantsShown())) drawReadout(painter);
    update(widgetRect(TimeCaptionRect(m_layout)));
}
