// Butterworth filters as cascades of second-order sections in double precision. The formant chain uses a
// low-pass one to bring a recording down to 10 kHz.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "store/DeclaredText.h"
#include "store/Prompt.h"

inline constexpr std::string_view kFilterUnknownType = SONALYS_TEXT("Sonalys", "filter: unknown filter type");
inline constexpr std::string_view kFilterOrderTooLarge = SONALYS_TEXT("Sonalys", "filter: order of filter too large");
inline constexpr std::string_view kFilterOrderNotEven = SONALYS_TEXT("Sonalys", "filter: filter order must be even");
inline constexpr std::string_view kFilterOutOfMemory = SONALYS_TEXT("Sonalys", "filter: out of memory");

enum FilterType { kLowPass = 1, kHighPass = 2, kBandPass = 3, kBandStop = 4 };

// y[n] = b0 w[n] + b1 w[n-1] + b2 w[n-2], with w[n] = x[n] - a1 w[n-1] - a2 w[n-2].
struct FilterSection {
    double b[3] = {1.0, 0.0, 0.0};
    double a[3] = {1.0, 0.0, 0.0};  // a[0] is always 1
    double w1 = 0.0;
    double w2 = 0.0;
};

class IirFilter {
public:
    explicit IirFilter(std::vector<FilterSection> sections) : m_sections(std::move(sections)) {}

    // One sample through the sections in order.
    double filter(double x) noexcept {
        for (FilterSection& s : m_sections) {
            const double w = x - s.a[1] * s.w1 - s.a[2] * s.w2;
            x = s.b[0] * w + s.b[1] * s.w1 + s.b[2] * s.w2;
            s.w2 = s.w1;
            s.w1 = w;
        }
        return x;
    }
    void reset() noexcept;
    // The magnitude of the response at `frequency` Hz for a filter run at `rate` Hz.
    double gainAt(double frequency, double rate) const;
    std::span<const FilterSection> sections() const noexcept { return m_sections; }

private:
    std::vector<FilterSection> m_sections;
};

// A Butterworth filter of `type` (1 low-pass, 2 high-pass, 3 band-pass, 4 band-stop) and `order` (even, below
// 11), for a signal at `rate` Hz. Low- and high-pass filters take their cut-off from `edge1`; band-pass and
// band-stop filters span `edge1` to `edge2`. Edges lie between 0 and rate / 2. Each section has unit gain in the
// passband: at DC for low-pass and band-stop, at the Nyquist frequency for high-pass, at the centre for
// band-pass. A bad type or order shows its message and gives no filter.
std::optional<IirFilter> designFilter(int type, int order, double edge1, double edge2, double rate, Prompt& prompt);
