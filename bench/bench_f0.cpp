// computeF0Curve against Praat's autocorrelation pitch tracker on the same ten-odd minutes of synthetic speech at
// 22050 Hz, side by side in one run: Praat's time is measured inside its script around `To Pitch (ac)` alone, ours
// around computeF0Curve on one and on two threads. The speech is made once with espeak-ng (20 voices and speeds,
// concatenated by sox) and kept in the build folder.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "f0/f0.h"
#include "store/WaveFile.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kText =
    "The quick brown fox jumps over the lazy dog. A speech therapist listens carefully to each voice, and notes "
    "how the pitch rises and falls over the sentence. Good morning, how are you today? I would like to read a short "
    "passage aloud, slowly and clearly, so that the recording can be studied later. When the light of the late "
    "afternoon falls across the garden, the children come home from school and the old dog wakes up from its long "
    "sleep by the door. Every voice is different, and every day the same voice sounds a little different too.";

const fs::path kFolder = BENCH_DATA_DIR;

bool runQuietly(const std::string& command) { return std::system((command + " >/dev/null 2>&1").c_str()) == 0; }

// The speech file, made on first use; empty when espeak-ng or sox is missing.
fs::path speechFile() {
    const fs::path speech = kFolder / "speech-22050.wav";
    if (fs::exists(speech)) return speech;
    fs::create_directories(kFolder);
    std::ofstream(kFolder / "text.txt") << kText;
    std::string parts;
    int index = 0;
    for (const char* voice : {"en", "en-us"}) {
        for (int pitch : {10, 30, 50, 70, 90}) {
            for (int speed : {140, 175}) {
                const fs::path part = kFolder / ("part" + std::to_string(index++) + ".wav");
                if (!runQuietly("espeak-ng -v " + std::string(voice) + " -p " + std::to_string(pitch) + " -s " +
                                std::to_string(speed) + " -w '" + part.string() + "' -f '" +
                                (kFolder / "text.txt").string() + "'"))
                    return {};
                parts += " '" + part.string() + "'";
            }
        }
    }
    if (!runQuietly("sox" + parts + " '" + speech.string() + "' rate 22050")) return {};
    return speech;
}

const WaveLoadResult& speech() {
    static const WaveLoadResult loaded = [] {
        const fs::path file = speechFile();
        return file.empty() ? WaveLoadResult{kWaveCannotOpen, {}, {}} : WaveLoad(file);
    }();
    return loaded;
}

// Praat's `To Pitch (ac)` at the same frame step and F0 range, its other settings Praat's own defaults; returns the
// seconds of the analysis alone, or -1.
double praatSeconds(const fs::path& file) {
    const fs::path script = kFolder / "praat-pitch.praat";
    std::ofstream(script) << "form Pitch\n"
                             "    sentence File\n"
                             "endform\n"
                             "Read from file: file$\n"
                             "stopwatch\n"
                             "To Pitch (ac): 0.011111, 60, 15, \"no\", 0.03, 0.45, 0.01, 0.35, 0.14, 1400\n"
                             "seconds = stopwatch\n"
                             "frames = Get number of frames\n"
                             "writeInfoLine: frames, \" \", fixed$(seconds, 6)\n";
    const std::string command = "praat --run '" + script.string() + "' '" + file.string() + "' 2>/dev/null";
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return -1;
    long frames = 0;
    double seconds = -1;
    if (std::fscanf(pipe, "%ld %lf", &frames, &seconds) != 2) seconds = -1;
    pclose(pipe);
    return seconds;
}

bool haveSpeech(benchmark::State& state) {
    if (speech().code == kWaveOk && speech().format.nSamplesPerSec == 22050) return true;
    state.SkipWithError("no speech: espeak-ng and sox are needed to make it");
    return false;
}

double curveSeconds(int threads, F0Curve& curve) {
    const WaveLoadResult& s = speech();
    const auto start = std::chrono::steady_clock::now();
    computeF0Curve(curve, s.samples.data(), static_cast<int>(s.samples.size()), 22050, {60, 1400, 90, threads});
    benchmark::DoNotOptimize(curve.values.data());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Each iteration runs Praat, then computeF0Curve on one thread, then on two, so that the three meet the same load
// on the machine; the counters give the fastest of each (seconds) and the speed-ups they imply.
void BM_SideBySide(benchmark::State& state) {
    if (!haveSpeech(state)) return;
    double praat = 1e9, one = 1e9, two = 1e9;
    F0Curve curve;
    for (auto _ : state) {
        const double seconds = praatSeconds(kFolder / "speech-22050.wav");
        if (seconds < 0) {
            state.SkipWithError("praat (package praat) did not run");
            return;
        }
        praat = std::min(praat, seconds);
        one = std::min(one, curveSeconds(1, curve));
        two = std::min(two, curveSeconds(2, curve));
        state.SetIterationTime(seconds);
    }
    state.counters["audio_s"] = static_cast<double>(speech().samples.size()) / 22050;
    state.counters["frames"] = curve.count();
    state.counters["praat_s"] = praat;
    state.counters["ours_1thread_s"] = one;
    state.counters["ours_2threads_s"] = two;
    state.counters["speedup_1thread"] = praat / one;
    state.counters["speedup_2threads"] = praat / two;
}

void BM_ComputeF0Curve(benchmark::State& state) {
    if (!haveSpeech(state)) return;
    F0Curve curve;
    for (auto _ : state) state.SetIterationTime(curveSeconds(static_cast<int>(state.range(0)), curve));
    state.counters["audio_s"] = static_cast<double>(speech().samples.size()) / 22050;
}

BENCHMARK(BM_SideBySide)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_ComputeF0Curve)->Arg(1)->Arg(2)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

BENCHMARK_MAIN();
