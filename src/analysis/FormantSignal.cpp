#include "analysis/FormantSignal.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "analysis/IirFilter.h"
#include "base/Assert.h"

int upsamplingFactor(double rate) {
    if (rate < 20000.0) return 4;
    if (rate < 30000.0) return 3;
    if (rate < 40000.0) return 2;
    return 1;
}

namespace {

// The filtered, zero-stuffed signal y, produced on demand: every `up`-th value of the input stream is a sample,
// the others are zeros. Only the two newest outputs are kept, since the reading positions only move forward.
class StuffedSignal {
public:
    StuffedSignal(IirFilter& filter, std::span<const std::int16_t> samples, int up)
        : m_filter(filter), m_samples(samples), m_up(up) {}

    // Runs the filter up to output `index`; then previous() is y[index - 1] and latest() is y[index].
    void advanceTo(std::int64_t index) {
        while (m_produced <= index) {
            const std::int64_t input = m_produced / m_up;
            const bool isSample = m_produced % m_up == 0 && input < static_cast<std::int64_t>(m_samples.size());
            m_previous = m_latest;
            m_latest = m_filter.filter(isSample ? m_samples[static_cast<std::size_t>(input)] : 0.0);
            ++m_produced;
        }
    }
    double previous() const noexcept { return m_previous; }
    double latest() const noexcept { return m_latest; }

private:
    IirFilter& m_filter;
    std::span<const std::int16_t> m_samples;
    int m_up;
    std::int64_t m_produced = 0;
    double m_previous = 0.0;
    double m_latest = 0.0;
};

}  // namespace

int resampleTo10k(double sampleInterval, std::span<std::int16_t> samples, Prompt& prompt) {
    SONALYS_ASSERT(sampleInterval > 0.0);
    const double rate = 1.0 / sampleInterval;
    const auto nSamples = static_cast<std::int64_t>(samples.size());
    if (rate <= 10000.0) return static_cast<int>(nSamples);
    const int up = upsamplingFactor(rate);
    std::optional<IirFilter> filter = designFilter(kLowPass, 4, 4750.0, 0.0, up * rate, prompt);
    if (!filter) return 0;

    const auto nOut = static_cast<std::int64_t>(nSamples * 10000.0 / rate);
    StuffedSignal y(*filter, samples, up);
    // Output i is read at or after input sample i, so it may overwrite the input in place.
    for (std::int64_t i = 0; i < nOut; ++i) {
        const double pos = static_cast<double>(i * up) * rate / 10000.0;
        const auto idx = static_cast<std::int64_t>(pos);
        const double frac = pos - static_cast<double>(idx);
        y.advanceTo(idx + 1);
        const double value = (1.0 - frac) * y.previous() + frac * y.latest();
        samples[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(std::clamp(value, -32768.0, 32767.0));
    }
    return static_cast<int>(nOut);
}
