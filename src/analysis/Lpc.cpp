#include "analysis/Lpc.h"

#include <cmath>

#include "base/Assert.h"

std::vector<double> makeLpcWindow(int kind, int size) {
    std::vector<double> w(static_cast<std::size_t>(size > 0 ? size : 0));
    for (int i = 0; i < size; ++i) {
        switch (kind) {
        case kNoWindow: w[i] = 1.0; break;
        case kHammingWindow: w[i] = 0.54 - 0.46 * std::cos(i * 6.2831854 / (size + 1)); break;
        case kRaisedWindow: {
            const double raised = 0.5 * (1.0 - std::cos(i * 6.2831854 / size));
            const double squared = raised * raised;
            w[i] = squared * squared;
            break;
        }
        default: return {};
        }
    }
    return w;
}

double durbin(std::span<const double> r, std::span<double> k, std::span<double> a, int order) {
    double e = r[0];
    k[0] = -r[1] / e;
    a[0] = k[0];
    e = (1.0 - k[0] * k[0]) * e;
    std::array<double, kMaxLpcOrder> b{};
    for (int i = 1; i < order; ++i) {
        double s = 0.0;
        for (int j = 0; j < i; ++j) s -= a[j] * r[i - j];
        k[i] = (s - r[i + 1]) / e;
        a[i] = k[i];
        for (int j = 0; j <= i; ++j) b[j] = a[j];
        for (int j = 0; j < i; ++j) a[j] += k[i] * b[i - j - 1];
        e = (1.0 - k[i] * k[i]) * e;
    }
    return e;
}

namespace {

// The lag products of the frame, sums[lag] = s[0] s[lag] + s[1] s[1 + lag] + ..., each sum in rising order of
// its terms. Where every lag still has terms the lags advance side by side, which lets them share vector
// registers without changing any sum; the order of the formant chain gets a loop of fixed length for that.
template <int Order>
void lagSumsFixed(const double* s, int wsize, std::span<double> sums) {
    std::array<double, Order> acc{};
    const int shared = wsize - Order;
    for (int j = 0; j < shared; ++j) {
        const double x = s[j];
        for (int lag = 0; lag < Order; ++lag) acc[lag] += x * s[j + 1 + lag];
    }
    for (int lag = 1; lag <= Order; ++lag) {
        double sum = acc[lag - 1];
        for (int j = shared < 0 ? 0 : shared; j < wsize - lag; ++j) sum += s[j] * s[j + lag];
        sums[lag] = sum;
    }
}

void lagSums(const double* s, int wsize, int order, std::span<double> sums) {
    if (order == 12) return lagSumsFixed<12>(s, wsize, sums);
    for (int lag = 1; lag <= order; ++lag) {
        double sum = 0.0;
        for (int j = 0; j < wsize - lag; ++j) sum += s[j] * s[j + lag];
        sums[lag] = sum;
    }
}

}  // namespace

void lpcOnWindow(int order, double stabilityDb, std::span<const double> window, const std::int16_t* data,
                 double preEmphasis, std::span<double> work, LpcResult& result) {
    const int wsize = static_cast<int>(window.size());
    double* s = work.data();
    if (preEmphasis != 0.0) {
        for (int i = 0; i < wsize; ++i) s[i] = (data[i + 1] - preEmphasis * data[i]) * window[i];
    } else {
        for (int i = 0; i < wsize; ++i) s[i] = data[i] * window[i];
    }

    double e = 0.0;
    for (int i = 0; i < wsize; ++i) e += s[i] * s[i];
    std::array<double, kMaxLpcOrder + 1>& r = result.autoc;
    r.fill(0.0);
    r[0] = 1.0;
    if (e == 0.0) {
        result.rms = 1.0;
    } else {
        std::array<double, kMaxLpcOrder + 1> sums{};
        lagSums(s, wsize, order, sums);
        for (int lag = 1; lag <= order; ++lag) r[lag] = sums[lag] / e;
        result.rms = std::sqrt(e / wsize);
    }

    // A noise floor `stabilityDb` below the signal: the correlations shrink by a factor just under 1, which
    // keeps the recursion stable on frames that are nearly predictable.
    std::array<double, kMaxLpcOrder + 1> floored = r;
    if (stabilityDb > 1.0) {
        const double f = 1.0 / (1.0 + std::exp(std::log(10.0) * stabilityDb / -20.0));
        for (int i = 1; i <= order; ++i) floored[i] = r[i] * f;
    }

    result.lpca.fill(0.0);
    result.lpca[0] = 1.0;
    result.k.fill(0.0);
    result.normErr = durbin(floored, result.k, std::span<double>(result.lpca).subspan(1), order);
}

std::span<const double> LpcAnalysis::window(int kind, int size) {
    SONALYS_ASSERT(kind >= kNoWindow && kind <= kRaisedWindow && size > 0);
    std::vector<double>& cached = m_windows[static_cast<std::size_t>(kind)];
    if (static_cast<int>(cached.size()) != size) cached = makeLpcWindow(kind, size);
    return cached;
}

int LpcAnalysis::lpcAnalysis(int order, double stabilityDb, int wsize, std::span<const std::int16_t> data,
                             LpcResult& result, double preEmphasis, int windowKind, bool freeFlag) {
    if (freeFlag) {
        for (auto& w : m_windows) std::vector<double>().swap(w);
        std::vector<double>().swap(m_work);
        return 0;
    }
    if (wsize <= 0 || data.data() == nullptr || order < 1 || order > kMaxLpcOrder) return 0;
    if (windowKind < kNoWindow || windowKind > kRaisedWindow) return 0;
    if (data.size() < static_cast<std::size_t>(lpcFrameReach(wsize, preEmphasis))) return 0;
    const std::span<const double> w = window(windowKind, wsize);
    if (m_work.size() < static_cast<std::size_t>(wsize)) m_work.resize(static_cast<std::size_t>(wsize));
    lpcOnWindow(order, stabilityDb, w, data.data(), preEmphasis, m_work, result);
    return 1;
}
