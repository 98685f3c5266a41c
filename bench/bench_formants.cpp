// computeFormants on a recording: by default ten minutes of a synthetic vowel with a gliding pitch at 22050 Hz,
// or the 16-bit WAV file given with --wav=FILE (bench/formants_vs_praat.sh passes speech made by espeak-ng).
// The argument is the number of threads.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <iostream>
#include <numbers>
#include <string>
#include <vector>

#include "analysis/FormantTracker.h"
#include "store/StereoFold.h"
#include "store/WaveFile.h"

namespace {

struct SilentPrompt : Prompt {
    void showOk(std::string_view text) override { std::cerr << text << "\n"; }
    bool askYesNo(std::string_view) override { return false; }
};

std::vector<std::int16_t> g_samples;
int g_rate = 22050;

std::vector<std::int16_t> syntheticVowels(int rate, double seconds) {
    std::vector<std::int16_t> s(static_cast<std::size_t>(rate * seconds));
    double phase = 0.0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        const double t = static_cast<double>(i) / rate;
        phase += (110.0 + 40.0 * std::sin(t)) / rate;
        const double pulse = phase - std::floor(phase);
        double v = 0.0;
        for (double f : {700.0, 1200.0, 2500.0})
            v += std::sin(2.0 * std::numbers::pi * f * pulse / 110.0) * std::exp(-8.0 * pulse);
        s[i] = static_cast<std::int16_t>(4000.0 * v);
    }
    return s;
}

void BM_ComputeFormants(benchmark::State& state) {
    SilentPrompt prompt;
    FormantTracker tracker(prompt);
    tracker.setThreadCount(static_cast<int>(state.range(0)));
    FormantTrack track;
    for (auto _ : state) tracker.computeFormants(track, g_samples, g_rate);
    state.counters["frames"] = track.count();
    state.counters["seconds_of_sound"] = static_cast<double>(g_samples.size()) / g_rate;
}

}  // namespace

BENCHMARK(BM_ComputeFormants)->ArgName("threads")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::string wav;
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--wav=", 6) == 0) wav = argv[i] + 6;
    if (wav.empty()) {
        g_samples = syntheticVowels(g_rate, 600.0);
    } else {
        WaveLoadResult loaded = WaveLoad(wav);
        if (loaded.code != kWaveOk || loaded.format.wBitsPerSample != 16) {
            std::cerr << wav << ": not a readable 16-bit WAV file\n";
            return 2;
        }
        g_rate = static_cast<int>(loaded.format.nSamplesPerSec);
        g_samples = loaded.format.nChannels == 2 ? foldToMono(loaded.samples, StereoChoice::Mix) : loaded.samples;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
