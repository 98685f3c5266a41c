// The picture of the spectrogram page: one pixel column per time step and one pixel row per frequency step, low
// frequencies at the bottom. Each pixel holds the palette entry of its level rather than a colour, so that a new
// dynamic range or colour scheme recolours the picture at once, with no new analysis.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include <QImage>
#include <QSize>

#include "analysis/Palette.h"
#include "analysis/Spectrogram.h"

class SpectrogramPicture : public ColumnPainter {
public:
    SpectrogramPicture();

    // A picture of `size` pixels, all background, with no column done.
    void resize(QSize size);
    QSize size() const { return m_image.size(); }
    // The colours of the entries; the picture takes them at once.
    void setPalette(const Palette& palette);
    // Every column in the background entry, and none done.
    void clear();

    // Computes the whole picture of samples [first, last) of `recording`, one column per pixel. The analysis frames
    // may reach past `last` into the rest of the recording. `progress`, when given, is told how many columns are
    // done after each even column, at most once per `progressInterval` milliseconds (0: every even column), and
    // once at the end, so that the picture can grow on the screen while it is computed.
    void compute(Spectrogram& engine, std::span<const std::int16_t> recording, std::int64_t first, std::int64_t last,
                 int rate, const std::function<void(int)>& progress = {}, int progressInterval = 16);

    // Paints one live column at `c` from the engine's newest samples, and counts it done.
    void paintLiveColumn(Spectrogram& engine, int c);

    // Columns painted so far, from the left; 0 means nothing is valid.
    int columnsDone() const { return m_columnsDone; }
    void setColumnsDone(int done) { m_columnsDone = done; }
    // One byte per pixel, the palette entry; the colour table holds the palette's first 256 entries.
    const QImage& image() const { return m_image; }

    void paintColumn(int c, std::span<const std::uint8_t> levels) override;
    void blankColumn(int c) override;

private:
    QImage m_image;
    int m_columnsDone = 0;
};
