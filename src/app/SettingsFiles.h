// The small settings files of the data root. Each is a bare run of little-endian 32-bit signed integers with no
// header, written at the moment its setting changes; nothing is written at exit.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

// The interface language, by the number stored in lang.dat.
enum class LanguageId : std::int32_t { English = 0, Spanish = 1, Korean = 2, Portuguese = 3 };

inline constexpr const char* kLanguageFile = "lang.dat";    // LanguageId
inline constexpr const char* kScreenModeFile = "conf.dat";  // ScreenMode, written by the installer only
inline constexpr const char* kRecordInputFile = "cfr.dat";  // RecordInput: 0 microphone, 1 line in

// A missing lang.dat means Korean; a missing conf.dat means "take the screen as it is".
inline constexpr LanguageId kLanguageWhenMissing = LanguageId::Korean;
inline constexpr int kScreenModeWhenMissing = 4;

// Reads the first `count` integers of a settings file; nothing when the file is missing or shorter than that.
std::optional<std::vector<std::int32_t>> ReadSettingInts(const std::filesystem::path& file, std::size_t count);
// Replaces the file with exactly these integers; false if it could not be written (the old file then stays).
bool WriteSettingInts(const std::filesystem::path& file, std::span<const std::int32_t> values);

LanguageId ReadLanguage(const std::filesystem::path& home);
bool WriteLanguage(const std::filesystem::path& home, LanguageId language);
int ReadScreenMode(const std::filesystem::path& home);
// The record input of cfr.dat, or `current` unchanged when the file is missing.
int ReadRecordInput(const std::filesystem::path& home, int current);
bool WriteRecordInput(const std::filesystem::path& home, int input);
