// The WAV files made byte by byte by tests/data/wave/make-wave-files.py, each of exactly the shape a test means.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline const std::filesystem::path kWaveData = SONALYS_SOURCE_DIR "/tests/data/wave";

inline std::string waveData(const std::string& name) {
    std::ifstream in(kWaveData / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}
