// The power spectrum of the spectrum page: the mean power of the frames of a stretch of samples, in decibels,
// and the running average of such results over the calls since the last reset.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "analysis/Fft.h"

inline constexpr int kMaxSpectrumBins = 1024;

class PowerSpectrum {
public:
    PowerSpectrum();  // FFT of 512 with the Hamming window, 11025 Hz, the whole band shown

    void setMaxFrequency(float hz);
    void setSampleRate(int rate);  // keeps the frequency ratio
    void setFftSize(int size);     // 256, 512 or 1024, the sizes the panel offers
    void setUseWindow(bool on) noexcept { m_useWindow = on; }
    void setValid(bool valid) noexcept { m_valid = valid; }

    // The spectrum of frames of fftSize samples, 0.390625 fftSize apart, into current(), folded into average().
    // A bin with no power at all stays exactly 0.0, as does every bin when no whole frame fits.
    void computeSpectrum(std::span<const std::int16_t> samples);
    // Empties the average and clears the valid flag.
    void resetAverage();

    // What a computation leaves behind, with the settings it was made under, so that a stretch shown before can be
    // put back without running its frames again.
    struct Result {
        std::array<float, kMaxSpectrumBins> current{};
        std::array<float, kMaxSpectrumBins> average{};
        int nAveraged = 0;
        int fftSize = 0;
        bool useWindow = true;
    };
    Result result() const { return {m_current, m_average, m_nAveraged, m_fftSize, m_useWindow}; }
    // Puts `saved` back and returns true when it was made under the present FFT size and window; false otherwise.
    bool restore(const Result& saved) noexcept;

    int fftSize() const noexcept { return m_fftSize; }
    bool useWindow() const noexcept { return m_useWindow; }
    bool valid() const noexcept { return m_valid; }
    int sampleRate() const noexcept { return m_sampleRate; }
    float zoom() const noexcept { return m_zoom; }
    int nAveraged() const noexcept { return m_nAveraged; }
    // fftSize / 2 values in dB, bin k at k * rate / fftSize Hz.
    std::span<const float> current() const noexcept { return {m_current.data(), binCount()}; }
    std::span<const float> average() const noexcept { return {m_average.data(), binCount()}; }

private:
    std::size_t binCount() const noexcept { return static_cast<std::size_t>(m_fftSize / 2); }

    std::array<float, kMaxSpectrumBins> m_current{};
    std::array<float, kMaxSpectrumBins> m_average{};
    int m_nAveraged = 0;
    int m_fftSize = 512;
    bool m_useWindow = true;
    bool m_valid = false;
    int m_sampleRate = 11025;
    float m_zoom = 1.0f;

    // One planned transform and one Hamming window per size, made at construction.
    struct Size {
        std::unique_ptr<RealFft> fft;
        std::vector<float> window;
    };
    std::array<Size, 3> m_sizes;
    std::size_t m_sizeIndex = 1;
};
