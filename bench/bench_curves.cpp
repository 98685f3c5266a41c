// The F0 and formant curves of the main view: from the call that shows them on an open recording until they are
// on the screen, for one and ten minutes of a voice-like signal at 22050 Hz. The view is a real widget on the
// offscreen platform; the analyses run on its worker threads.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <sys/resource.h>

#include <QApplication>

#include "BenchSupport.h"
#include "store/Prompt.h"
#include "view/CAFView.h"

namespace {

constexpr int kRate = 22050;

// `seconds` of a voice-like signal: a pulse train gliding around 120 Hz through three resonances, in syllables
// with pauses between them, and a little noise.
std::filesystem::path voiceFile(int seconds) {
    const auto file =
        std::filesystem::temp_directory_path() / ("sonalys-bench-curves-" + std::to_string(seconds) + ".wav");
    std::vector<std::int16_t> samples(static_cast<std::size_t>(kRate) * seconds);
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0.0, 200.0);
    double phase = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double envelope = std::max(0.0, std::sin(2.0 * M_PI * 2.5 * t));
        phase += (120.0 + 20.0 * std::sin(2.0 * M_PI * 0.7 * t)) / kRate;
        const double sincePulse = (phase - std::floor(phase)) / 120.0;
        double voice = 0.0;
        for (const double formant : {600.0, 1400.0, 2600.0})
            voice += std::sin(2.0 * M_PI * formant * sincePulse) * std::exp(-sincePulse * 700.0);
        samples[i] =
            static_cast<std::int16_t>(std::clamp(8000.0 * envelope * voice + noise(random), -32000.0, 32000.0));
    }
    WriteBenchWave(file, samples, 5);
    return file;
}

// Processor seconds used so far by every thread of the process: on a busy machine the real time says more about
// the other programs than about ours.
double processorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) { return static_cast<double>(t.tv_sec) + t.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

const std::filesystem::path& fileOf(int seconds) {
    static std::map<int, std::filesystem::path> files;
    auto found = files.find(seconds);
    if (found == files.end()) found = files.emplace(seconds, voiceFile(seconds)).first;
    return found->second;
}

void BM_ShowF0AndFormants(benchmark::State& state) {
    const auto& file = fileOf(static_cast<int>(state.range(0)));
    SilentPrompt prompt;
    CAFView view(prompt);
    view.setScreenSize(QSize(1024, 768));
    view.resize(1024, 666);
    view.show();
    QApplication::processEvents();
    double processor = 0.0;
    for (auto _ : state) {
        state.PauseTiming();
        view.RedrawF0(false);
        view.RedrawFormants(false);
        view.OpenRecordingFile(file);  // fresh samples: neither curve is computed yet
        view.repaint();
        state.ResumeTiming();
        const double before = processorSeconds();
        view.RedrawF0(true);
        view.RedrawFormants(true);
        view.repaint();
        processor += processorSeconds() - before;
    }
    state.counters["all_threads_cpu_ms"] =
        benchmark::Counter(processor * 1000.0 / static_cast<double>(state.iterations()));
    if (!view.f0Track().valid || !view.formantTrack().valid) state.SkipWithError("curves not computed");
    if (view.loadedRecording().SampleCount() != static_cast<std::size_t>(kRate) * state.range(0))
        state.SkipWithError("not loaded");
}

}  // namespace

BENCHMARK(BM_ShowF0AndFormants)->ArgName("seconds")->Arg(60)->Arg(600)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (const int seconds : {60, 600}) std::filesystem::remove(fileOf(seconds));
    return 0;
}
