// The whole-recording spectrogram picture: one FFT per pixel column, so the cost follows the picture's width
// and FFT length, not the recording's length. One minute at 22050 Hz, 671 columns, as the view draws it.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <span>
#include <vector>

#include "analysis/Spectrogram.h"

namespace {

class DiscardingPainter : public ColumnPainter {
public:
    void paintColumn(int, std::span<const std::uint8_t> levels) override { benchmark::DoNotOptimize(levels.data()); }
    void blankColumn(int) override {}
};

const std::vector<std::int16_t>& oneMinute() {
    static const std::vector<std::int16_t> samples = [] {
        std::mt19937 random(1);
        std::uniform_int_distribution<int> sample(-12000, 12000);
        std::vector<std::int16_t> s(60 * 22050);
        for (auto& v : s) v = static_cast<std::int16_t>(sample(random));
        return s;
    }();
    return samples;
}

// Arguments: picture height, upper frequency in Hz, band in Hz.
void BM_WholeFileSpectrogram(benchmark::State& state) {
    Spectrogram spectrogram;
    spectrogram.setSampleRate(22050);
    spectrogram.setMaxFrequency(static_cast<int>(state.range(1)));
    spectrogram.setBandwidth(static_cast<int>(state.range(2)));
    DiscardingPainter painter;
    const auto& samples = oneMinute();
    for (auto _ : state)
        spectrogram.computeColumns(671, static_cast<int>(state.range(0)), samples, 0.0, 60.0, 22050, painter);
    state.SetLabel("F " + std::to_string(spectrogramFftLength(22050, static_cast<int>(state.range(0)),
                                                              static_cast<int>(spectrogram.zoom()))));
}

}  // namespace

BENCHMARK(BM_WholeFileSpectrogram)
    ->ArgNames({"height", "limit", "band"})
    ->Args({300, 7350, 40})  // the panel's defaults
    ->Args({300, 5512, 40})  // ratio 2
    ->Args({300, 2756, 10})  // ratio 4, the longest window
    ->Args({600, 2756, 10})
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
