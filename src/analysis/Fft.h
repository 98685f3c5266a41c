// The forward Fourier transform of a real frame that the spectrogram and the power spectrum share.
#pragma once

#include <complex>
#include <span>

// One transform length, planned once and reused for every frame of that length. The result is unnormalised:
// bin k is the sum over n of x[n] * exp(-2 * pi * i * k * n / size), as a radix-2 transform in single
// precision gives it. Only the magnitudes are read, so the sign convention of the imaginary part is immaterial.
class RealFft {
public:
    // `size` is a power of 2 from 2 to 65536.
    explicit RealFft(int size);
    ~RealFft();
    RealFft(const RealFft&) = delete;
    RealFft& operator=(const RealFft&) = delete;

    int size() const noexcept { return m_size; }
    // The frame to transform, `size` values; the caller fills all of them before each transform.
    std::span<float> input() noexcept { return {m_input, static_cast<std::size_t>(m_size)}; }
    // Transforms input() and returns bins 0 to size/2: bin 0 is the DC term and bin size/2 the Nyquist term,
    // both real; the bins between are the pairs a packed real transform hands out as pairs 1 to size/2 - 1.
    std::span<const std::complex<float>> transform() noexcept;

    static bool isValidSize(int size) noexcept;

private:
    int m_size;
    float* m_input;
    std::complex<float>* m_output;
    void* m_plan;
};
