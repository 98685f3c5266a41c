// The clinician's free notes on one recording (stem.txt): the bytes of the notes as typed, in the code page of the
// language in use, with no terminator and no structure. They are kept byte for byte.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "DeclaredText.h"

struct Prompt;

inline constexpr std::string_view kErrorSavingNotesFile = SONALYS_TEXT("Sonalys", "Error Saving Notes File!");

// The whole notes file of `recordingPath`, or nothing when it cannot be opened (the notes then start empty,
// without a message).
std::optional<std::string> ReadNotesFile(const std::filesystem::path& recordingPath);

// Makes the notes file of `recordingPath` anew with exactly `bytes`. Returns 1, or 0 after showing
// "Error Saving Notes File!", the old notes untouched.
int WriteNotesFile(const std::filesystem::path& recordingPath, std::string_view bytes, Prompt& prompt);
