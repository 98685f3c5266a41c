// What the benchmarks share: a prompt that answers every question with yes and shows nothing, the writing of the
// long recordings they time, and the processor time of the process.
#pragma once

#include <sys/resource.h>

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

// User and system processor time of this process so far, in seconds.
inline double ProcessSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
}
