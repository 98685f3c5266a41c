// The spectrogram's column engine: turns samples into columns of levels, one byte per pixel row, for a whole
// stretch of a recording or live from the newest samples while recording. Colours are the painter's business.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "analysis/Fft.h"

inline constexpr int kMaxSpectrogramRows = 2048;
inline constexpr int kMaxSpectrogramFft = 8192;

// The FFT length of a whole-stretch picture, by sample rate (Hz), picture height (pixels) and the whole part of
// the frequency ratio (half the rate over the highest frequency shown). A live column uses the live length.
int spectrogramFftLength(int rate, int height, int zoomWhole);

// The analysis window in samples: 1.6 / bandwidth seconds (bandwidth in Hz), at most the FFT length.
int analysisWindowLength(float bandwidth, int rate, int fftLength);

// Receives the columns of a picture as they are computed, left to right. Byte 0 of a column is the top row;
// a byte is the level in decibels above 35, 0 to 255.
class ColumnPainter {
public:
    virtual ~ColumnPainter() = default;
    virtual void paintColumn(int c, std::span<const std::uint8_t> levels) = 0;
    // Column `c` has no samples to show: paint it in the background colour.
    virtual void blankColumn(int c) = 0;
};

class Spectrogram {
public:
    // 11025 Hz, a live FFT of 1024, a bandwidth of 10 Hz and a highest frequency of 11025 Hz, which at this
    // rate is past the Nyquist frequency: the owner sets the highest frequency before use.
    Spectrogram();

    void setBandwidth(int hz);  // the panel offers 10, 40, 80, 150, 300 and 400
    void setMaxFrequency(int hz);
    // Keeps the frequency ratio, and sets the live FFT length: 1024 at 11025 Hz, 2048 at 22050 Hz, 4096 at
    // 44100 Hz, unchanged at any other rate. The ring of newest samples starts again from silence.
    void setSampleRate(int rate);

    // Appends captured samples to the ring, dropping the oldest.
    void pushSamples(std::span<const std::int16_t> src);
    // The live column from the start of the ring, `rows` levels (at most 2048).
    std::span<const std::uint8_t> computeLiveColumn(int rows);
    // Computes the `width` columns of a picture `height` pixels high of the stretch of (t1 - t0) * rate samples
    // that starts at samples[0], and hands each to `painter`. `samples` runs from the start of the stretch to
    // the end of the recording; a frame that would read past it repeats the last column computed.
    void computeColumns(int width, int height, std::span<const std::int16_t> samples, double t0, double t1, int rate,
                        ColumnPainter& painter);

    float zoom() const noexcept { return m_zoom; }
    int sampleRate() const noexcept { return m_sampleRate; }
    int fftSize() const noexcept { return m_fftSize; }
    int ringSize() const noexcept { return m_ringSize; }
    float bandwidth() const noexcept { return m_bandwidth; }
    std::span<const std::int16_t> ring() const noexcept { return m_ring; }

private:
    void computeColumn(const std::int16_t* samples, int windowLength, int fftLength, int rows, bool live);
    const std::vector<double>& hammingWindow(int length);
    RealFft& fftOfLength(int length);

    int m_ringSize = 1024;
    float m_zoom = 1.0f;
    int m_sampleRate = 11025;
    std::vector<std::int16_t> m_ring;  // ringSize + 1 samples, the newest at the end of the first ringSize
    int m_fftSize = 1024;
    float m_bandwidth = 10.0f;
    std::array<std::uint8_t, kMaxSpectrogramRows> m_column{};

    // Working state kept between columns, so that a column allocates nothing once warm.
    std::array<std::unique_ptr<RealFft>, 14> m_ffts;  // by log2 of the length
    std::vector<double> m_window;
    int m_windowLength = -1;
};
