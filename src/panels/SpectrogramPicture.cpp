#include "panels/SpectrogramPicture.h"

#include <algorithm>

#include <QElapsedTimer>

SpectrogramPicture::SpectrogramPicture() {
    resize(QSize(1, 1));
    setPalette(BuildPalette(kDefaultDynamicRange, kDefaultColourScheme));
}

void SpectrogramPicture::resize(QSize size) {
    const QList<QRgb> colours = m_image.colorTable();
    m_image = QImage(size.expandedTo(QSize(1, 1)), QImage::Format_Indexed8);
    if (!colours.isEmpty()) m_image.setColorTable(colours);
    clear();
}

void SpectrogramPicture::setPalette(const Palette& palette) {
    QList<QRgb> colours(256);
    for (int i = 0; i < 256; ++i) {
        const Rgb& c = palette[static_cast<std::size_t>(i)];
        colours[i] = qRgb(c.red, c.green, c.blue);
    }
    m_image.setColorTable(colours);
}

void SpectrogramPicture::clear() {
    m_image.fill(static_cast<uint>(kBackgroundEntry));
    m_columnsDone = 0;
}

void SpectrogramPicture::paintColumn(int c, std::span<const std::uint8_t> levels) {
    if (c < 0 || c >= m_image.width()) return;
    const int rows = std::min(static_cast<int>(levels.size()), m_image.height());
    for (int row = 0; row < rows; ++row)
        m_image.scanLine(row)[c] = static_cast<uchar>(paletteEntryForLevel(levels[static_cast<std::size_t>(row)]));
    for (int row = rows; row < m_image.height(); ++row) m_image.scanLine(row)[c] = kBackgroundEntry;
}

void SpectrogramPicture::blankColumn(int c) {
    if (c < 0 || c >= m_image.width()) return;
    for (int row = 0; row < m_image.height(); ++row) m_image.scanLine(row)[c] = kBackgroundEntry;
}

namespace {

// Passes each column on to the picture and tells the progress after every even column, no more often than the
// interval allows.
class ProgressPainter : public ColumnPainter {
public:
    ProgressPainter(SpectrogramPicture& picture, const std::function<void(int)>& progress, int interval)
        : m_picture(picture), m_progress(progress), m_interval(interval) {
        m_clock.start();
    }
    void paintColumn(int c, std::span<const std::uint8_t> levels) override {
        m_picture.paintColumn(c, levels);
        done(c);
    }
    void blankColumn(int c) override {
        m_picture.blankColumn(c);
        done(c);
    }

private:
    void done(int c) {
        m_picture.setColumnsDone(c + 1);
        if (!m_progress || c % 2 != 0 || m_clock.elapsed() < m_interval) return;
        m_progress(c + 1);
        m_clock.restart();
    }
    SpectrogramPicture& m_picture;
    const std::function<void(int)>& m_progress;
    int m_interval;
    QElapsedTimer m_clock;
};

}  // namespace

void SpectrogramPicture::compute(Spectrogram& engine, std::span<const std::int16_t> recording, std::int64_t first,
                                 std::int64_t last, int rate, const std::function<void(int)>& progress,
                                 int progressInterval) {
    m_columnsDone = 0;
    const auto total = static_cast<std::int64_t>(recording.size());
    // A start past the end leaves no samples: every column is blanked.
    const std::span<const std::int16_t> from = first >= 0 && first < total
                                                   ? recording.subspan(static_cast<std::size_t>(first))
                                                   : std::span<const std::int16_t>();
    // The range goes to the engine as two times in seconds, which it turns back into a count of samples.
    const double t0 = static_cast<double>(first) / rate;
    const double t1 = static_cast<double>(last) / rate;
    ProgressPainter painter(*this, progress, progressInterval);
    engine.computeColumns(m_image.width(), m_image.height(), from, t0, t1, rate, painter);
    if (progress) progress(m_columnsDone);
}

void SpectrogramPicture::paintLiveColumn(Spectrogram& engine, int c) {
    paintColumn(c, engine.computeLiveColumn(m_image.height()));
    m_columnsDone = std::max(m_columnsDone, c + 1);
}
