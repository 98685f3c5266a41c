// The marker `sy1.log` in the data root tells the next start that a capture never ended: it holds 0 from the start
// of a capture until the device has closed, then 1, followed by the selection of the Update Rate combo box, so that
// the next start can both warn and come back with the update rate in use. Two little-endian 32-bit integers.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include <QtGlobal>

struct Prompt;

inline constexpr std::string_view kCrashMarkerFileName = "sy1.log";
inline constexpr std::string_view kNotEndedProperly = QT_TRANSLATE_NOOP(
    "Sonalys",
    "Sonalys was not ended properly in the last utilisation. Please, reduce the screen update rate before starting "
    "recording a new sound file.");

inline constexpr std::int32_t kCaptureRunning = 0;  // written when a capture starts
inline constexpr std::int32_t kCaptureClosed = 1;   // written when the capture device has closed

struct CrashMarker {
    std::int32_t state = kCaptureClosed;
    std::int32_t updateRateIndex = 0;  // the Update Rate combo box's selection; -1 when a file was cut short
};

bool writeCrashMarker(const std::filesystem::path& dataRoot, const CrashMarker& marker);
// Nothing when the file is missing or shorter than its first number; a file cut after it still tells its state.
std::optional<CrashMarker> readCrashMarker(const std::filesystem::path& dataRoot);

// What start-up does with the marker: reads it, warns when the last capture never ended, and deletes it. Returns the
// remembered Update Rate selection, or -1 when there was no readable marker.
int takeCrashMarker(const std::filesystem::path& dataRoot, Prompt& prompt);
