// The main view with a ten-minute recording at 44100 Hz: opening it until the spectrogram page is drawn, a zoom
// and back, and a repaint after the window changes size. The view is a real widget on the offscreen platform.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>

#include "BenchSupport.h"
#include "ViewBench.h"
#include "store/Prompt.h"
#include "view/CAFView.h"

namespace {

constexpr int kRate = 44100;
constexpr int kSeconds = 600;

// Ten minutes of a voice-like signal: a 120 Hz pulse train through a few resonances, in syllables, with noise.
const std::filesystem::path& tenMinutes() {
    static const std::filesystem::path path = [] {
        const auto file = std::filesystem::temp_directory_path() / "sonalys-bench-ten-minutes.wav";
        std::vector<std::int16_t> samples(static_cast<std::size_t>(kRate) * kSeconds);
        std::mt19937 random(7);
        std::normal_distribution<double> noise(0.0, 300.0);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const double t = static_cast<double>(i) / kRate;
            const double envelope = 0.5 + 0.5 * std::sin(2.0 * M_PI * 3.0 * t);
            double voice = 0.0;
            for (const double formant : {500.0, 1500.0, 2500.0})
                voice += std::sin(2.0 * M_PI * formant * t) * std::exp(-std::fmod(t, 1.0 / 120.0) * 800.0);
            samples[i] =
                static_cast<std::int16_t>(std::clamp(6000.0 * envelope * voice + noise(random), -32000.0, 32000.0));
        }
        WriteBenchWave(file, samples, 7);
        return file;
    }();
    return path;
}

// A view laid out for `screen` and shown at the size of its page.
struct ShownView {
    SilentPrompt prompt;
    CAFView view{prompt};
    explicit ShownView(QSize screen) { ShowAtPageSize(view, screen); }
    void send(QEvent::Type type, QPoint page, Qt::MouseButtons buttons) {
        const QPointF at = view.layout().toWidget(QSizeF(view.size())).map(QPointF(page) + QPointF(0.5, 0.5));
        QMouseEvent event(type, at, view.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          buttons, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
    }
    // Drags over the strip from `from` to `to` (page pixels) and closes the menu that follows.
    void select(int from, int to) {
        const int y = view.layout().StripTop + 20;
        send(QEvent::MouseButtonPress, {from, y}, Qt::LeftButton);
        send(QEvent::MouseMove, {to, y}, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, {to, y}, Qt::NoButton);
        view.contextMenu()->hide();
    }
};

void BM_OpenTenMinutesUntilTheSpectrogramIsDrawn(benchmark::State& state) {
    const auto& file = tenMinutes();
    ShownView shown(QSize(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))));
    for (auto _ : state) {
        shown.view.OpenRecordingFile(file);
        shown.view.repaint();
    }
    if (shown.view.loadedRecording().SampleCount() != std::size_t{kRate} * kSeconds) state.SkipWithError("not loaded");
}

// Arguments: the page (0 spectrogram, 1 power spectrum) and the way (0 into 3 min 30 s of the recording, 1 back
// out to the whole ten minutes); only that zoom is timed.
void BM_Zoom(benchmark::State& state) {
    ShownView shown(QSize(1024, 768));
    shown.view.OpenRecordingFile(tenMinutes());
    if (state.range(0) == 1) shown.view.ShowSpectrumPage();
    const bool out = state.range(1) == 1;
    const ViewLayout& layout = shown.view.layout();
    for (auto _ : state) {
        state.PauseTiming();
        shown.select(layout.GraphLeft + 200, layout.GraphLeft + 480);
        if (out) shown.view.Zoom();
        shown.view.repaint();
        state.ResumeTiming();
        shown.view.Zoom();
        shown.view.repaint();
        state.PauseTiming();
        if (!out) shown.view.Zoom();
        state.ResumeTiming();
    }
    state.SetLabel(std::string(state.range(0) == 1 ? "power spectrum page, " : "spectrogram page, ") +
                   (out ? "back to 10 min" : "into 3 min 30 s"));
}

void BM_RepaintAfterAResize(benchmark::State& state) {
    ShownView shown(QSize(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))));
    shown.view.OpenRecordingFile(tenMinutes());
    const QSize size = shown.view.size();
    bool smaller = false;
    for (auto _ : state) {
        smaller = !smaller;
        shown.view.resize(smaller ? size - QSize(24, 16) : size);
        shown.view.repaint();
    }
}

}  // namespace

BENCHMARK(BM_OpenTenMinutesUntilTheSpectrogramIsDrawn)
    ->ArgNames({"screen_w", "screen_h"})
    ->Args({1024, 768})
    ->Args({1920, 1080})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BM_Zoom)
    ->ArgNames({"page", "out"})
    ->Args({0, 0})
    ->Args({0, 1})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BM_RepaintAfterAResize)
    ->ArgNames({"screen_w", "screen_h"})
    ->Args({1024, 768})
    ->Args({1920, 1080})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::filesystem::remove(tenMinutes());
    return 0;
}
