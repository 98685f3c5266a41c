// The date file beside a recording (stem.ddt): the moment the recording was first made, as a plain number in
// text, so that the recording list can date a sound whose file has since been rewritten or copied. The sound
// never needs it to open.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "DeclaredText.h"

struct Prompt;

inline constexpr std::string_view kErrorSavingDateFile = SONALYS_TEXT("Sonalys", "Error Saving File!");
inline constexpr std::string_view kErrorOpeningDateFile = SONALYS_TEXT("Sonalys", "Error Opening .ddt file!");

// Writes the date file of `recordingPath`: "%d" of the low 32 bits of the recording's creation time in seconds
// since 1970, as a signed number, with no newline. The time is `creationTime` when given (what the WAV writer
// kept of the file it replaced), else the creation time of the sound file on disk. Without a sound file the date
// file is left empty. Returns 1, or 0 after showing "Error Saving File!".
int WriteDateFile(const std::filesystem::path& recordingPath, Prompt& prompt,
                  std::optional<std::int64_t> creationTime = std::nullopt);

// Writes the shape that sound import leaves: "%d;" twice of the display mode at that moment, the file
// spectrogram mode (9) written as 1. No reader gives these numbers a meaning; they are written because every
// date file made by an import has always held them. Returns 1, or 0 after showing "Error Saving File!".
int WriteImportDateFile(const std::filesystem::path& recordingPath, int displayMode, Prompt& prompt);

// Reads a date file: a text longer than 5 characters gives the number at its start, cut to a whole number, in
// seconds since 1970; a shorter one gives -1, as does a file that cannot be opened, after showing "Error Opening
// .ddt file!". So "1;1;" is ignored by its length, while "10;10;" reads as 10 seconds past 1970.
std::int64_t ReadDateFile(const std::filesystem::path& dateFilePath, Prompt& prompt);

// The date-file rule applied to a text already read.
std::int64_t dateFromText(std::string_view text);

// When the recording whose sound is `recordingPath` was first made: the time in its date file when that file
// holds one as the writer makes it (digits only, more than 5 of them), else the sound file's creation time.
// Nothing when there is no sound file. A save replaces the sound file with a new one, so after the first save
// only the date file still knows the first time.
std::optional<std::int64_t> recordingCreationTime(const std::filesystem::path& recordingPath);
