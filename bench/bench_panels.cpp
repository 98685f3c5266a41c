// The spectrogram page with a ten-minute recording at 44100 Hz, while the side panel changes the colour scheme or
// the dynamic range: each change recolours the picture and repaints the window, with no new analysis. The view is a
// real widget on the offscreen platform.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <vector>

#include <QApplication>

#include "BenchSupport.h"
#include "ViewBench.h"
#include "panels/CMyBarra.h"
#include "store/Prompt.h"
#include "view/CAFView.h"

namespace {

constexpr int kRate = 44100;
constexpr int kSeconds = 600;

// Ten minutes of a 150 Hz pulse train through a 700 Hz resonance, rising and falling three times a second.
std::filesystem::path tenMinutes() {
    const auto file = std::filesystem::temp_directory_path() / "sonalys-bench-panels-ten-minutes.wav";
    std::vector<std::int16_t> samples(static_cast<std::size_t>(kRate) * kSeconds);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double pulse = std::exp(-std::fmod(t, 1.0 / 150.0) * 900.0) * std::sin(2.0 * M_PI * 700.0 * t);
        samples[i] = static_cast<std::int16_t>(12000.0 * (0.5 + 0.5 * std::sin(2.0 * M_PI * 3.0 * t)) * pulse);
    }
    WriteBenchWave(file, samples, 7);
    return file;
}

struct ShownSpectrogram {
    SilentPrompt prompt;
    CAFView view{prompt};
    explicit ShownSpectrogram(QSize screen) {
        ShowAtPageSize(view, screen);
        static const std::filesystem::path file = tenMinutes();
        view.OpenRecordingFile(file);
        view.repaint();
    }
};

// Argument: 0 the colour scheme from the colour menu, 1 the dynamic range from the pointer.
void BM_PanelChangeRepainted(benchmark::State& state) {
    ShownSpectrogram shown(QSize(static_cast<int>(state.range(1)), static_cast<int>(state.range(2))));
    CMyBarra& panel = *shown.view.spectrogramPanel();
    const bool range = state.range(0) == 1;
    int step = 0;
    for (auto _ : state) {
        ++step;
        if (range) {
            panel.SetDynamicRange(40 + step % 50);
        } else {
            panel.OnColorCommand(kFirstColourCommand + step % 3);
        }
        shown.view.repaint();
    }
    if (shown.view.loadedRecording().SampleCount() != std::size_t{kRate} * kSeconds) state.SkipWithError("not loaded");
    state.SetLabel(range ? "dynamic range" : "colour scheme");
}

}  // namespace

BENCHMARK(BM_PanelChangeRepainted)
    ->ArgNames({"range", "screen_w", "screen_h"})
    ->Args({0, 1024, 768})
    ->Args({1, 1024, 768})
    ->Args({0, 1920, 1080})
    ->Args({1, 1920, 1080})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
