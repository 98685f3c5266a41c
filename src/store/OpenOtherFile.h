// Opening a sound file from anywhere on disk, outside the client folders. Only the program's three rates and
// 16-bit samples are taken, tested in that order, and a stereo file is folded to one channel as the person
// chooses in the dialog "Open File" (CConverter1).
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "DeclaredText.h"
#include "LoadedRecording.h"
#include "StereoFold.h"

struct Prompt;

inline constexpr std::string_view kFileRateMustBe =
    SONALYS_TEXT("Sonalys", "File rate must be 44100 Hz, 22050 Hz or 11025 Hz!");
inline constexpr std::string_view kFileMustBe16Bits = SONALYS_TEXT("Sonalys", "The file must be 16 Bits");
inline constexpr std::string_view kFileCannotBeOpened = SONALYS_TEXT("Sonalys", "The file can´t be opened!");
inline constexpr std::string_view kOtherFileTitle = SONALYS_TEXT("Sonalys", "File - %s");

// Stands for the dialog CConverter1, shown for a stereo file: the channel choice, or nothing when the person does
// not press Open.
using StereoChooser = std::function<std::optional<StereoChoice>()>;

// The message that refuses a format on this path, or nothing when it passes: the rate is tested first (44100,
// 22050 or 11025 Hz), then the width (16 bits).
std::optional<std::string_view> CheckOtherFileFormat(const WaveFormat& format);

enum class OtherFileResult {
    Opened,      // loaded; the view shows it under `title`
    Unreadable,  // the reader refused the file; nothing is shown to the person and the recording is as it was
    Refused,     // a message was shown and the samples dropped; the view closes the recording and repaints
};

struct OtherFileOpening {
    OtherFileResult result = OtherFileResult::Unreadable;
    std::string title;  // "File - %s" with the file's name, when opened
};

// Loads `path` into `recording` and applies the tests of this path. A stereo file asks `chooseStereo` and is
// folded to mono, setting OpenedStereoAsMono; a mono file clears it. On success RecordingNumber is -1,
// RecordingPath is `path` and nothing is modified. A file with more than two channels is taken as it stands.
OtherFileOpening OpenOtherFile(LoadedRecording& recording, const std::filesystem::path& path,
                               const StereoChooser& chooseStereo, Prompt& prompt);
