// What the benchmarks share: a prompt that answers every question with yes and shows nothing, and the writing of
// the long recordings they time.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

#include "store/Prompt.h"
#include "store/WaveFile.h"

struct SilentPrompt : Prompt {
    void showOk(std::string_view) override {}
    bool askYesNo(std::string_view) override { return true; }
};

// Writes `samples` as a mono 16-bit WAV of the record format `formatIndex` (5: 22050 Hz, 7: 44100 Hz).
inline void WriteBenchWave(const std::filesystem::path& file, std::span<const std::int16_t> samples, int formatIndex) {
    WaveWriter writer;
    writer.SetRecordFormat(formatIndex);
    SilentPrompt prompt;
    writer.WaveWrite(file, static_cast<std::uint32_t>(samples.size() * 2), samples.data(), prompt);
}
