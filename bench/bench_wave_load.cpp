// Loading a long recording: ten minutes of mono 16-bit sound at 44100 Hz (26,460,000 values, 52.9 MB), read
// whole into memory as the view does when a recording is opened.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string_view>

#include "store/LoadedRecording.h"
#include "store/Prompt.h"
#include "store/WaveFile.h"

namespace {

struct NoPrompt : Prompt {
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return true; }
};

class TenMinuteFile {
public:
    TenMinuteFile() : m_path(std::filesystem::temp_directory_path() / "sonalys-bench-ten-minutes.wav") {
        std::vector<std::int16_t> samples(44100 * 600);
        for (std::size_t i = 0; i < samples.size(); ++i) samples[i] = static_cast<std::int16_t>(i * 37);
        NoPrompt prompt;
        WaveWriter writer;
        writer.SetRecordFormat(7);
        writer.WaveWrite(m_path, static_cast<std::uint32_t>(samples.size() * 2), samples.data(), prompt);
    }
    ~TenMinuteFile() { std::filesystem::remove(m_path); }
    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

const TenMinuteFile& tenMinutes() {
    static const TenMinuteFile file;
    return file;
}

void WaveLoadTenMinutes(benchmark::State& state) {
    const auto& path = tenMinutes().path();
    for (auto _ : state) {
        WaveLoadResult loaded = WaveLoad(path);
        if (loaded.code != kWaveOk) state.SkipWithError("the file did not load");
        benchmark::DoNotOptimize(loaded.samples.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * 44100 * 600 * 2);
}
BENCHMARK(WaveLoadTenMinutes)->Unit(benchmark::kMillisecond);

void LoadSamplesTenMinutes(benchmark::State& state) {
    const auto& path = tenMinutes().path();
    for (auto _ : state) {
        LoadedRecording recording;
        if (!recording.LoadSamples(path)) state.SkipWithError("the file did not load");
        benchmark::DoNotOptimize(recording.samples().data());
    }
}
BENCHMARK(LoadSamplesTenMinutes)->Unit(benchmark::kMillisecond);

}  // namespace
