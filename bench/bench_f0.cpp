// computeF0Curve against the ESPS pitch tracker of Snack on the same ten-odd minutes of synthetic speech at
// 22050 Hz, in one run: Snack's time is measured inside Tcl around `snd pitch` alone, ours around computeF0Curve on
// one and on two threads. The speech is made once with espeak-ng (20 voices and speeds, concatenated by sox) and
// kept in the build folder.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
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

// Snack's ESPS tracker at the same frame step and F0 range; returns the seconds of `snd pitch`, or -1.
double snackSeconds(const fs::path& file) {
    const fs::path script = kFolder / "snack-pitch.tcl";
    std::ofstream(script) << "package require snack\n"
                             "snack::sound snd\n"
                             "snd read [lindex $argv 0]\n"
                             "set t0 [clock microseconds]\n"
                             "set p [snd pitch -method esps -framelength 0.011111 -minpitch 60 -maxpitch 1400]\n"
                             "set t1 [clock microseconds]\n"
                             "puts \"[llength $p] [expr {($t1 - $t0) / 1e6}]\"\n";
    const std::string command = "tclsh '" + script.string() + "' '" + file.string() + "' 2>/dev/null";
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

void setCounters(benchmark::State& state) {
    const double seconds = static_cast<double>(speech().samples.size()) / 22050;
    state.counters["audio_s"] = seconds;
}

void BM_SnackEspsPitch(benchmark::State& state) {
    if (!haveSpeech(state)) return;
    for (auto _ : state) {
        const double seconds = snackSeconds(kFolder / "speech-22050.wav");
        if (seconds < 0) {
            state.SkipWithError("tclsh with Snack (package tcl-snack) did not run");
            return;
        }
        state.SetIterationTime(seconds);
    }
    setCounters(state);
}

void BM_ComputeF0Curve(benchmark::State& state) {
    if (!haveSpeech(state)) return;
    const WaveLoadResult& s = speech();
    F0CurveSettings settings;
    settings.threads = static_cast<int>(state.range(0));
    F0Curve curve;
    for (auto _ : state) {
        computeF0Curve(curve, s.samples.data(), static_cast<int>(s.samples.size()), 22050, settings);
        benchmark::DoNotOptimize(curve.values.data());
    }
    setCounters(state);
    state.counters["frames"] = curve.count();
}

BENCHMARK(BM_SnackEspsPitch)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_ComputeF0Curve)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(5);

// Prints the usual table, then how many times faster than Snack each of our runs was.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (!run.error_occurred) m_times[run.benchmark_name()] = run.GetAdjustedRealTime();
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        const auto snack = m_times.find("BM_SnackEspsPitch/iterations:5/manual_time");
        if (snack == m_times.end()) return;
        for (const auto& [name, time] : m_times)
            if (name.rfind("BM_ComputeF0Curve", 0) == 0)
                std::printf("%s: %.2f times faster than Snack\n", name.c_str(), snack->second / time);
    }

private:
    std::map<std::string, double> m_times;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
