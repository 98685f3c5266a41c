#include "analysis/Fft.h"

#include <fftw3.h>

#include <mutex>
#include <new>

#include "base/Assert.h"

namespace {

// The library's planner keeps process-wide tables, so creating and destroying plans takes one lock; running a
// plan needs none.
std::mutex& plannerLock() {
    static std::mutex lock;
    return lock;
}

}  // namespace

bool RealFft::isValidSize(int size) noexcept { return size >= 2 && size <= 65536 && (size & (size - 1)) == 0; }

RealFft::RealFft(int size) : m_size(size) {
    SONALYS_ASSERT(isValidSize(size));
    m_input = fftwf_alloc_real(static_cast<std::size_t>(size));
    auto* output = fftwf_alloc_complex(static_cast<std::size_t>(size / 2 + 1));
    if (m_input == nullptr || output == nullptr) {
        fftwf_free(m_input);
        fftwf_free(output);
        throw std::bad_alloc();
    }
    m_output = reinterpret_cast<std::complex<float>*>(output);
    {
        // An estimated plan is chosen without timing runs, so the same length always gives the same bins.
        const std::lock_guard guard(plannerLock());
        m_plan = fftwf_plan_dft_r2c_1d(size, m_input, output, FFTW_ESTIMATE);
    }
    if (m_plan == nullptr) {
        fftwf_free(m_input);
        fftwf_free(output);
        throw std::bad_alloc();
    }
    for (int i = 0; i < size; ++i) m_input[i] = 0.0f;
}

RealFft::~RealFft() {
    {
        const std::lock_guard guard(plannerLock());
        fftwf_destroy_plan(static_cast<fftwf_plan>(m_plan));
    }
    fftwf_free(m_input);
    fftwf_free(reinterpret_cast<fftwf_complex*>(m_output));
}

std::span<const std::complex<float>> RealFft::transform() noexcept {
    fftwf_execute(static_cast<fftwf_plan>(m_plan));
    return {m_output, static_cast<std::size_t>(m_size / 2 + 1)};
}
