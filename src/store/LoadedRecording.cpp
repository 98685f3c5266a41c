#include "LoadedRecording.h"

int LoadedRecording::LoadSamples(const std::filesystem::path& path) {
    WaveLoadResult loaded = WaveLoad(path);
    if (loaded.code != kWaveOk) return 0;
    replace(std::move(loaded.samples), std::move(loaded.format));
    return 1;
}

void LoadedRecording::replace(std::vector<std::int16_t> samples, WaveFormat format) {
    m_samples = std::move(samples);
    m_format = std::move(format);
}

void LoadedRecording::freeSamples() noexcept { m_samples = {}; }
