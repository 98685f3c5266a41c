// Ten minutes of 48000 Hz speech converted to 44100 Hz, by convertSampleRate and by sox's very-high-quality rate
// effect, in the same run on the same file. The speech is spoken by espeak-ng and brought to 48000 Hz by sox.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

#include "analysis/RateConversion.h"
#include "store/Prompt.h"
#include "store/WaveFile.h"

namespace {

const std::filesystem::path kFolder =
    std::filesystem::temp_directory_path() / ("sonalys-bench-convert-" + std::to_string(getpid()));
const std::filesystem::path kInput = kFolder / "speech48k.wav";

struct ErrorStreamPrompt : Prompt {
    void showOk(std::string_view text) override { std::cerr << text << "\n"; }
    bool askYesNo(std::string_view text) override {
        std::cerr << text << "\n";
        return false;
    }
};

bool makeSpeech() {
    std::filesystem::create_directories(kFolder);
    const std::string text =
        "The north wind and the sun were disputing which was the stronger, when a traveller came along wrapped in a "
        "warm cloak. They agreed that the one who first succeeded in making the traveller take his cloak off should "
        "be considered stronger than the other.";
    const std::string spoken = (kFolder / "spoken.wav").string();
    const std::string commands = "espeak-ng -w '" + spoken + "' \"" + text + "\" && sox '" + spoken +
                                 "' -r 48000 -c 1 -b 16 '" + kInput.string() + "' rate -v repeat 60 trim 0 600";
    return std::system(commands.c_str()) == 0;
}

void convertSampleRateTo44100(benchmark::State& state) {
    ErrorStreamPrompt prompt;
    for (auto _ : state) {
        const WaveLoadResult input = WaveLoad(kInput);
        const int ok = convertSampleRate(input.samples.data(), static_cast<int>(input.samples.size()), 48000, 44100,
                                         kFolder / "ours44k.wav", 16, prompt);
        if (ok != 1) state.SkipWithError("the conversion failed");
    }
}

double childrenCpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// The CPU column counts this process only; sox's own CPU time is given as the counter sox_cpu_s.
void soxRateVeryHighTo44100(benchmark::State& state) {
    const std::string command =
        "sox '" + kInput.string() + "' -r 44100 '" + (kFolder / "sox44k.wav").string() + "' rate -v";
    double cpu = 0.0;
    for (auto _ : state) {
        const double before = childrenCpuSeconds();
        if (std::system(command.c_str()) != 0) state.SkipWithError("sox failed");
        cpu += childrenCpuSeconds() - before;
    }
    state.counters["sox_cpu_s"] = cpu / static_cast<double>(state.iterations());
}

BENCHMARK(convertSampleRateTo44100)->Iterations(1)->Repetitions(3)->Unit(benchmark::kSecond)->UseRealTime();
BENCHMARK(soxRateVeryHighTo44100)->Iterations(1)->Repetitions(3)->Unit(benchmark::kSecond)->UseRealTime();

// Prints the runs as usual and remembers the mean time of each benchmark, to give the ratio at the end.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> realMeans, cpuMeans;
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "mean") {
                const std::string& name = run.run_name.function_name;
                realMeans[name] = run.GetAdjustedRealTime();
                const auto sox = run.counters.find("sox_cpu_s");
                cpuMeans[name] =
                    sox != run.counters.end() ? static_cast<double>(sox->second) : run.GetAdjustedCPUTime();
            }
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (!makeSpeech()) {
        std::cerr << "bench_convert needs espeak-ng and sox to make its input\n";
        return 1;
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const char* ours = "convertSampleRateTo44100";
    const char* sox = "soxRateVeryHighTo44100";
    if (reporter.realMeans.count(ours) && reporter.realMeans.count(sox)) {
        std::cout << "10 min of 48000 Hz speech to 44100 Hz, mean of 3 runs:\n"
                  << "  convertSampleRate: " << reporter.realMeans[ours] << " s elapsed, " << reporter.cpuMeans[ours]
                  << " s CPU\n"
                  << "  sox rate -v:       " << reporter.realMeans[sox] << " s elapsed, " << reporter.cpuMeans[sox]
                  << " s CPU\n"
                  << "  ratio:             " << reporter.realMeans[ours] / reporter.realMeans[sox] << " elapsed, "
                  << reporter.cpuMeans[ours] / reporter.cpuMeans[sox] << " CPU\n";
    }
    std::filesystem::remove_all(kFolder);
    benchmark::Shutdown();
    return 0;
}
