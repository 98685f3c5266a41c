// Deleting a recording's files, from the view (the recording on screen) or from the recording list, and emptying
// a client's folder. The two ways of deleting a recording remove different sets of files, told here as data.
#pragma once

#include <array>
#include <filesystem>
#include <span>
#include <string_view>

#include "DeclaredText.h"
#include "RecordingFiles.h"

struct Prompt;

inline constexpr std::string_view kConfirmDeleteRecording = SONALYS_TEXT(
    "Sonalys", "Attention, All Information about this File will be deleted!\nAre you Sure you Want to Continue?");
inline constexpr std::string_view kErrorDeletingFile = SONALYS_TEXT("Sonalys", "Error deleting File!");
inline constexpr std::string_view kSentToBackup = SONALYS_TEXT(
    "Sonalys", "This file was send to Backup!\nIt´s necessary to attach backup files to access this file!");
inline constexpr std::string_view kSelectAFile = SONALYS_TEXT("Sonalys", "Select a file!");

// One file of a deletion: the side file named by its last three characters, or the sound itself for "".
// A file that is not there is passed over; a failure is told only where `reportFailure` says.
struct FileDeletion {
    std::string_view lastThree;
    bool reportFailure;
};

// From the view, a wv recording loses its sound, date and labels, but keeps its notes; a qv recording loses its
// notes too. A file outside the client folders loses the same as a wv recording.
inline constexpr std::array<FileDeletion, 3> kViewDeletesWv{{{"", true}, {"ddt", false}, {"mrk", false}}};
inline constexpr std::array<FileDeletion, 4> kViewDeletesQv{
    {{"", true}, {"ddt", false}, {"txt", false}, {"mrk", false}}};
// From the list, the sound, the notes and the date go; the labels stay. As from the view, only a sound that
// stays is reported: "Error deleting File!" speaks of the recording, not of its notes.
inline constexpr std::array<FileDeletion, 3> kListDeletes{{{"", true}, {"txt", false}, {"ddt", false}}};

// Deletes `set` for the sound `soundPath`, in order, showing "Error deleting File!" for each reported failure and
// going on with the rest. Returns true when the sound is gone.
bool deleteFileSet(const std::filesystem::path& soundPath, std::span<const FileDeletion> set, Prompt& prompt);

// The files of the recording on screen, once the view has asked kConfirmDeleteRecording and closed it. For a
// client, the wv stem of `recordingNumber` when its sound exists, else the qv stem; for work without a client,
// `recordingPath` and its side files. Returns true when the sound is gone.
bool DeleteRecordingFilesFromView(const ClientFolder& folder, int recordingNumber,
                                  const std::filesystem::path& recordingPath, Prompt& prompt);

// The files of a row of the recording list: the wv stem for kinds 0 and 2, the qv stem for 1 and 3. A recording
// sent to backup shows kSentToBackup and nothing changes; otherwise the person is asked kConfirmDeleteRecording.
// Returns true when the files were deleted and the row goes.
bool DeleteRecordingFilesFromList(const ClientFolder& folder, int number, FileKind kind, Prompt& prompt);

// The files removed when a client is deleted from the client list, in this order ("*.txt" twice, as always).
inline constexpr std::array<std::string_view, 7> kClientListDeletePatterns{"*.wav", "*.txt", "*.ddt", "*.txt",
                                                                           "*.mrk", "*.rtf", "*.f0"};
// The files removed when the open client is deleted from the menu.
inline constexpr std::array<std::string_view, 7> kClientMenuDeletePatterns{"*.wav", "*.dat", "*.ddt", "*.txt",
                                                                           "*.mrk", "*.rtf", "*.f0"};

// Deletes the files of `folder` that match each pattern in turn ("*" any run of characters, "?" one character,
// letters in any case). Returns false when some matching file could not be deleted.
bool DeleteMatchingFiles(const std::filesystem::path& folder, std::span<const std::string_view> patterns);
