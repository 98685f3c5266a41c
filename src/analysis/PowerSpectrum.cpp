#include "analysis/PowerSpectrum.h"

#include <algorithm>
#include <cmath>

#include "base/Assert.h"

PowerSpectrum::PowerSpectrum() {
    const double twoPi = 8.0 * std::atan(1.0);
    int size = 256;
    for (Size& s : m_sizes) {
        s.fft = std::make_unique<RealFft>(size);
        s.window.resize(static_cast<std::size_t>(size));
        for (int i = 0; i < size; ++i) s.window[i] = static_cast<float>(0.54 - 0.46 * std::cos(i * twoPi / (size - 1)));
        size *= 2;
    }
    setFftSize(512);
}

void PowerSpectrum::setMaxFrequency(float hz) {
    SONALYS_ASSERT(hz > 0.0f);
    m_zoom = static_cast<float>(m_sampleRate * 0.5 / hz);
}

void PowerSpectrum::setSampleRate(int rate) {
    SONALYS_ASSERT(rate > 0);
    const float oldZoom = m_zoom;
    m_sampleRate = rate;
    setMaxFrequency(static_cast<float>(rate * 0.5 / oldZoom));
}

void PowerSpectrum::setFftSize(int size) {
    SONALYS_ASSERT(size == 256 || size == 512 || size == 1024);
    m_fftSize = size;
    m_sizeIndex = size == 256 ? 0 : size == 512 ? 1 : 2;
}

void PowerSpectrum::resetAverage() {
    m_nAveraged = 0;
    m_average.fill(0.0f);
    m_valid = false;
}

bool PowerSpectrum::restore(const Result& saved) noexcept {
    if (saved.fftSize != m_fftSize || saved.useWindow != m_useWindow) return false;
    m_current = saved.current;
    m_average = saved.average;
    m_nAveraged = saved.nAveraged;
    return true;
}

void PowerSpectrum::computeSpectrum(std::span<const std::int16_t> samples) {
    if (samples.data() == nullptr) return;
    const int size = m_fftSize;
    const int hop = static_cast<int>(size * 0.390625);  // 200 at 512 points
    const auto nSamples = static_cast<std::int64_t>(samples.size());
    const std::int64_t nFrames = (nSamples - size + hop) / hop;  // 0 or less when no whole frame fits
    const std::size_t bins = binCount();
    std::fill_n(m_current.begin(), bins, 0.0f);

    Size& transform = m_sizes[m_sizeIndex];
    const std::span<float> frame = transform.fft->input();
    const std::vector<float>& window = transform.window;
    for (std::int64_t f = 0; f < nFrames; ++f) {
        const std::int16_t* s = samples.data() + f * hop;
        for (int i = 0; i < size; ++i) frame[i] = m_useWindow ? s[i] * window[i] : static_cast<float>(s[i]);
        const std::span<const std::complex<float>> out = transform.fft->transform();
        for (std::size_t k = 0; k < bins; ++k)
            m_current[k] += out[k].real() * out[k].real() + out[k].imag() * out[k].imag();
    }

    // Decibels of the mean power per frame, less a fixed reference of 18 log10(fftSize): 48.77 dB at 512 points.
    for (std::size_t k = 0; k < bins; ++k) {
        if (m_current[k] == 0.0f) continue;
        m_current[k] = static_cast<float>(10.0 * std::log10(static_cast<double>(m_current[k]) / nFrames) -
                                          2.0 * std::log10(size) * 9.0);
    }

    if (m_nAveraged == 0) {
        std::copy_n(m_current.begin(), bins, m_average.begin());
    } else {
        for (std::size_t k = 0; k < bins; ++k)
            m_average[k] = (m_nAveraged * m_average[k] + m_current[k]) / (m_nAveraged + 1);
    }
    ++m_nAveraged;
}
