#include "analysis/FormantTracker.h"

#include <algorithm>
#include <memory>
#include <new>
#include <system_error>
#include <thread>

#include "analysis/FormantSignal.h"

namespace {

constexpr int kWindowSize = static_cast<int>(formant::windowDuration * formant::analysisRate);  // 490
constexpr int kFrameStep = static_cast<int>(formant::frameInterval * formant::analysisRate);    // 100
constexpr int kOrder = formant::lpcOrderFormant;

// The frames of a signal of `n` samples: one every 100 samples while the window fits.
std::size_t frameCount(std::size_t n) {
    return n < static_cast<std::size_t>(kWindowSize) ? 0 : (n - kWindowSize) / kFrameStep + 1;
}

// The polynomial whose roots are the reciprocals of the frame's poles: 1, then the coefficients.
std::array<double, kOrder + 1> framePolynomial(const PoleFrame& frame) {
    std::array<double, kOrder + 1> a{};
    a[0] = 1.0;
    for (int k = 0; k < kOrder; ++k) a[k + 1] = frame.coef[k];
    return a;
}

}  // namespace

FormantTracker::FormantTracker(Prompt& prompt) : m_prompt(prompt) {}

// A frame whose root search stopped before its first restart: the search and the roots found so far.
struct FormantTracker::StoppedSearch {
    RootSearchState state;
    RootEstimates roots;
};

void FormantTracker::keepPoles(PoleFrame& frame, const RootEstimates& roots) {
    std::array<double, kOrder> freq{};
    std::array<double, kOrder> band{};
    int nForm = 0;
    rootsToFormants(roots, kOrder, formant::analysisRate, nForm, freq, band);
    frame.nPoles = std::min(nForm, formant::maxPoles);
    for (int p = 0; p < frame.nPoles; ++p) {
        frame.poles[p] = Pole{static_cast<float>(freq[p]),
                              static_cast<float>(poleLevel(frame, kOrder, 1.0 / formant::analysisRate, freq[p])),
                              static_cast<float>(band[p])};
    }
}

// LPC and poles of frames [begin, end). A root search that comes to its first restart stops there and is kept in
// `stopped`, for the caller to finish in frame order, drawing the restarts as one pass over the frames would.
void FormantTracker::analyseRange(std::vector<PoleFrame>& frames, std::span<const std::int16_t> signal,
                                  std::span<const double> window, std::size_t begin, std::size_t end,
                                  const RootEstimates& runStart, std::vector<std::unique_ptr<StoppedSearch>>& stopped,
                                  RootEstimates& lastRoots) const {
    std::vector<double> work(kWindowSize);
    LpcResult lpc;
    for (std::size_t i = begin; i < end; ++i) {
        PoleFrame& frame = frames[i];
        frame.start = static_cast<std::int32_t>(i * kFrameStep);
        frame.size = kWindowSize;
        lpcOnWindow(kOrder, formant::stabilityDb, window, signal.data() + frame.start, formant::preEmphasis, work, lpc);
        frame.rms = static_cast<float>(lpc.rms);
        for (int k = 0; k < kOrder; ++k) frame.coef[k] = static_cast<float>(lpc.lpca[k + 1]);

        // The first frame goes on from the roots of the previous run; every later one starts from the seeds.
        RootEstimates roots = runStart;
        if (i != 0) seedRootEstimates(roots, kOrder);
        RootSearchState search = startRootSearch(framePolynomial(frame), kOrder);
        switch (continueRootSearch(search, roots.real, roots.imag, nullptr)) {
        case RootSearch::Found: keepPoles(frame, roots); break;
        case RootSearch::Failed: frame.nPoles = 0; break;
        case RootSearch::NeedsRestart:
            stopped[i] = std::make_unique<StoppedSearch>(StoppedSearch{search, roots});
            break;
        }
        if (i + 1 == frames.size()) lastRoots = roots;
    }
}

void FormantTracker::analyseFrames(std::vector<PoleFrame>& frames, std::span<const std::int16_t> signal) {
    const RootEstimates runStart = m_roots;
    RootEstimates lastRoots = m_roots;
    std::vector<std::unique_ptr<StoppedSearch>> stopped(frames.size());
    const std::span<const double> window = m_lpc.window(formant::windowKind, kWindowSize);

    const std::size_t threads = std::min<std::size_t>(static_cast<std::size_t>(m_threads), frames.size() / 64 + 1);
    if (threads <= 1) {
        analyseRange(frames, signal, window, 0, frames.size(), runStart, stopped, lastRoots);
    } else {
        std::vector<std::jthread> workers;
        const std::size_t chunk = (frames.size() + threads - 1) / threads;
        for (std::size_t t = 0; t < threads; ++t) {
            const std::size_t begin = std::min(frames.size(), t * chunk);
            const std::size_t end = std::min(frames.size(), begin + chunk);
            try {
                workers.emplace_back([&, begin, end] {
                    analyseRange(frames, signal, window, begin, end, runStart, stopped, lastRoots);
                });
            } catch (const std::system_error&) {
                // No thread to be had: this part runs here instead, to the same result.
                analyseRange(frames, signal, window, begin, end, runStart, stopped, lastRoots);
            }
        }
    }

    // The searches that need restarts, finished in frame order.
    for (std::size_t i = 0; i < frames.size(); ++i) {
        if (!stopped[i]) continue;
        StoppedSearch& search = *stopped[i];
        if (continueRootSearch(search.state, search.roots.real, search.roots.imag, &m_random) == RootSearch::Found)
            keepPoles(frames[i], search.roots);
        else
            frames[i].nPoles = 0;
        if (i + 1 == frames.size()) lastRoots = search.roots;
    }
    m_roots = lastRoots;
}

void FormantTracker::computeFormants(FormantTrack& track, std::span<const std::int16_t> samples, int sampRate) {
    track.records.clear();
    track.valid = false;
    try {
        // The frame reads one sample past its window for the pre-emphasis; past the end that sample is silence.
        std::vector<std::int16_t> signal(samples.begin(), samples.end());
        std::size_t n = signal.size();
        if (sampRate > formant::analysisRate)
            n = static_cast<std::size_t>(resampleTo10k(1.0 / sampRate, signal, m_prompt));
        signal.resize(n + 1, 0);
        signal[n] = 0;

        std::vector<PoleFrame> frames(frameCount(n));
        analyseFrames(frames, signal);
        dpFormants(frames, formant::analysisRate / kFrameStep, formant::nFormants, formant::nominalF1, m_slots,
                   m_mappings);

        track.records.reserve(frames.size());
        for (const PoleFrame& frame : frames) {
            track.records.push_back(FormantRecord{frame.poles[0].freq, frame.poles[1].freq, frame.poles[2].freq,
                                                  frame.poles[3].freq, frame.start, 1});
        }
        track.valid = true;
        LpcResult unused;
        m_lpc.lpcAnalysis(kOrder, formant::stabilityDb, kWindowSize, {}, unused, formant::preEmphasis,
                          formant::windowKind, true);
    } catch (const std::bad_alloc&) {
        track.records.clear();
        m_prompt.showOk(kFormantsOutOfMemory);
    }
}
