#include "analysis/Spectrogram.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "base/Assert.h"

int spectrogramFftLength(int rate, int height, int zoomWhole) {
    switch (rate) {
    case 11025: return zoomWhole == 2 ? 2048 : 1024;
    case 22050:
        if (height > 300) return zoomWhole == 4 ? 4096 : 2048;
        if (zoomWhole == 2) return 2048;
        return zoomWhole == 4 ? 4096 : 1024;
    case 44100: return zoomWhole == 8 ? 8192 : 4096;
    default: return 1024;
    }
}

int analysisWindowLength(float bandwidth, int rate, int fftLength) {
    const double length = 1.6 / bandwidth * rate;
    if (!(length < fftLength)) return fftLength;  // also a bandwidth of 0
    return length > 0.0 ? static_cast<int>(length) : 0;
}

Spectrogram::Spectrogram() : m_ring(static_cast<std::size_t>(m_ringSize) + 1, 0) {
    // Every transform length a column can ask for is planned now, so that no column allocates.
    for (int length = 1024; length <= kMaxSpectrogramFft; length *= 2)
        m_ffts[static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(length)))] =
            std::make_unique<RealFft>(length);
    m_window.reserve(kMaxSpectrogramFft);
    setMaxFrequency(11025);
}

void Spectrogram::setBandwidth(int hz) { m_bandwidth = static_cast<float>(hz); }

void Spectrogram::setMaxFrequency(int hz) {
    SONALYS_ASSERT(hz > 0);
    m_zoom = static_cast<float>((m_sampleRate * 0.5) / hz);
}

void Spectrogram::setSampleRate(int rate) {
    SONALYS_ASSERT(rate > 0);
    const float oldZoom = m_zoom;
    m_sampleRate = rate;
    setMaxFrequency(std::max(1, static_cast<int>((rate / 2) / oldZoom)));
    if (rate == 11025) m_fftSize = 1024;
    if (rate == 22050) m_fftSize = 2048;
    if (rate == 44100) m_fftSize = 4096;
    m_ringSize = m_fftSize;
    m_ring.assign(static_cast<std::size_t>(m_ringSize) + 1, 0);
}

void Spectrogram::pushSamples(std::span<const std::int16_t> src) {
    const std::size_t size = static_cast<std::size_t>(m_ringSize);
    if (src.size() >= size) {
        std::copy(src.end() - static_cast<std::ptrdiff_t>(size), src.end(), m_ring.begin());
        return;
    }
    std::copy(m_ring.begin() + static_cast<std::ptrdiff_t>(src.size()),
              m_ring.begin() + static_cast<std::ptrdiff_t>(size), m_ring.begin());
    std::copy(src.begin(), src.end(), m_ring.begin() + static_cast<std::ptrdiff_t>(size - src.size()));
}

std::span<const std::uint8_t> Spectrogram::computeLiveColumn(int rows) {
    rows = std::clamp(rows, 0, kMaxSpectrogramRows);
    const int fftLength = m_fftSize;
    const int windowLength = analysisWindowLength(m_bandwidth, m_sampleRate, fftLength);
    computeColumn(m_ring.data(), windowLength, fftLength, rows, true);
    return {m_column.data(), static_cast<std::size_t>(rows)};
}

void Spectrogram::computeColumns(int width, int height, std::span<const std::int16_t> samples, double t0, double t1,
                                 int rate, ColumnPainter& painter) {
    const int rows = std::clamp(height, 0, kMaxSpectrogramRows);
    const int fftLength = spectrogramFftLength(rate, height, static_cast<int>(m_zoom));
    const int windowLength = analysisWindowLength(m_bandwidth, rate, fftLength);
    // The span in samples, kept small enough that (c + 1) * n cannot overflow.
    const double span = (t1 - t0) * rate;
    const double largest = 9.0e18 / (std::max(width, 1) + 1.0);
    const std::int64_t n = span > 0.0 ? static_cast<std::int64_t>(std::min(span, largest)) : 0;
    if (n < 2 || samples.empty()) {
        for (int c = 0; c < width; ++c) painter.blankColumn(c);
        return;
    }
    const auto total = static_cast<std::int64_t>(samples.size());
    const std::span<const std::uint8_t> column(m_column.data(), static_cast<std::size_t>(rows));
    // Until a frame fits, the column painted is all zero levels, which show as background.
    std::fill(m_column.begin(), m_column.end(), std::uint8_t{0});
    for (int c = 0; c < width; ++c) {
        // The frame is centred just after the column's position; it starts no earlier than the first sample.
        const std::int64_t p = (c + 1) * n / width;
        const std::int64_t start = std::max<std::int64_t>(p - windowLength / 2 + 1, 0);
        // A frame that would end past the samples is not analysed: the last column computed stands in for it.
        if (start + windowLength <= total) computeColumn(samples.data() + start, windowLength, fftLength, rows, false);
        painter.paintColumn(c, column);
    }
}

const std::vector<double>& Spectrogram::hammingWindow(int length) {
    if (length != m_windowLength) {
        // 2 pi formed as 8 atan(1); the window is symmetric, with N - 1 in the denominator. A window of one
        // sample has no shape: its angle is taken as 0.
        const double twoPi = 8.0 * std::atan(1.0);
        const double denominator = length > 1 ? length - 1 : 1;
        m_window.resize(static_cast<std::size_t>(std::max(length, 0)));
        for (int i = 0; i < length; ++i) m_window[i] = 0.54 - 0.46 * std::cos(i * twoPi / denominator);
        m_windowLength = length;
    }
    return m_window;
}

RealFft& Spectrogram::fftOfLength(int length) {
    SONALYS_ASSERT(RealFft::isValidSize(length) && 1024 <= length && length <= kMaxSpectrogramFft);
    return *m_ffts[static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(length)))];
}

void Spectrogram::computeColumn(const std::int16_t* samples, int windowLength, int fftLength, int rows, bool live) {
    std::fill_n(m_column.begin(), rows, std::uint8_t{0});
    const std::vector<double>& window = hammingWindow(windowLength);
    RealFft& fft = fftOfLength(fftLength);
    const std::span<float> frame = fft.input();
    // The pre-emphasis coefficient is 0: the samples go in unchanged, shaped by the window.
    for (int i = 0; i < windowLength; ++i) frame[i] = static_cast<float>(samples[i] * window[i]);
    std::fill(frame.begin() + windowLength, frame.end(), 0.0f);
    const std::span<const std::complex<float>> bins = fft.transform();

    // Each pixel row sums the power of the bins that fall in it, from bin 1 up, low frequencies at the bottom.
    // `pos` counts two per bin, as it walks the packed pairs of a real transform whose pair 0 holds the DC and
    // Nyquist terms, and which ends at pair fftLength / 2 - 1: no bin past it carries power.
    const float step = static_cast<float>((fftLength / m_zoom - 2.0) / rows);
    const std::size_t lastBin = static_cast<std::size_t>(fftLength / 2 - 1);
    float limit = step;
    double pos = 0.0;  // an even whole number, exact at any length
    std::size_t bin = 1;
    for (int row = rows - 1; row >= 0; --row) {
        double sum = 1.0;  // keeps the logarithm finite on silence
        int count = 0;
        while (pos < limit) {
            if (bin <= lastBin) {
                const double re = bins[bin].real();
                const double im = bins[bin].imag();
                sum += re * re + im * im;
            }
            ++bin;
            pos += 2.0;
            ++count;
        }
        std::uint8_t level = 0;
        if (count > 0) {
            const double dB = 10.0 * std::log10(sum / count);
            level = static_cast<std::uint8_t>(std::clamp(std::trunc(dB - 35.0 + 0.5), 0.0, 255.0));
        } else if (live && row + 1 < rows) {
            // A row that no bin reaches: the live column repeats the row below, a picture leaves it at 0.
            level = m_column[static_cast<std::size_t>(row) + 1];
        }
        m_column[static_cast<std::size_t>(row)] = level;
        limit += step;
    }
}
