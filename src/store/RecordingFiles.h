// The files that make up the recordings of one client, and their names. Every sound of a client is a group of
// files with one stem, wvNNN or qvNNN, in the client's folder pacNNN under the data root; qv marks a sound made or
// imported at exactly 44100 Hz and wv any other rate, and the two share one space of numbers. There is no
// catalogue: what lies in the folder is the only record of which recordings exist, and every listing asks the
// file system for each number in turn.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "DeclaredText.h"
#include "FileTimes.h"

struct Prompt;
class FolderListing;
class LoadedRecording;

inline constexpr int kNoClient = -1;
inline constexpr int OutsideClientCode = 99999;  // work without a client, in the folder "Other Files"
inline constexpr int kLastRecordingNumber = 150;
// The recording list looks at numbers 1 to 149 only, while numbering reaches 150: a recording numbered 150 can
// be made but is never listed.
inline constexpr int kLastListedNumber = 149;
inline constexpr std::uint32_t kQvRate = 44100;

inline constexpr std::string_view kOtherFilesFolder = "Other Files";
inline constexpr std::string_view kScratchFileName = "grav.tmp";
inline constexpr std::string_view kTooManyFiles =
    SONALYS_TEXT("Sonalys", "Number of files exceeds to 150!\nInsert a new client to continue...");
inline constexpr std::string_view kRecordingTitle = SONALYS_TEXT("Sonalys", "%s  File - %d");
inline constexpr std::string_view kListRowText = SONALYS_TEXT("Sonalys", "%02d/%02d/%04d File %d");
// Korean dates read year, month, day; each field keeps its own width there.
inline constexpr std::string_view kListRowTextYearFirst = SONALYS_TEXT("Sonalys", "%04d/%02d/%02d File %d");

// The folder of one client's recordings: pacNNN (the code in at least three digits) under the data root, or
// "Other Files" for work without a client.
struct ClientFolder {
    std::filesystem::path dataRoot;
    int code = kNoClient;

    std::filesystem::path path() const;  // the client must not be kNoClient
};

// What the recording list makes of one number, from the files that lie on disk.
enum class FileKind {
    WvWithDate = 0,     // wv sound with a date file
    QvWithDate = 1,     // qv sound with a date file
    WvWithoutDate = 2,  // wv sound without a date file
    QvWithoutDate = 3,  // qv sound without a date file
    SentToBackup = 4,   // the sound went to a backup; only its .bkp marker is left
};

// pacNNN/qvNNN.wav for a rate of 44100 Hz, pacNNN/wvNNN.wav for any other, under the data root.
std::filesystem::path RecordingStemPath(const ClientFolder& folder, int number, std::uint32_t rate);
// A file of recording `number` with the stem prefix "wv" or "qv" and the given extension.
std::filesystem::path recordingFilePath(const ClientFolder& folder, std::string_view prefix, int number,
                                        std::string_view extension);
// Where the capture engine keeps the raw samples of a recording in progress: grav.tmp in the data root.
std::filesystem::path ScratchRecordingPath(const std::filesystem::path& dataRoot);

// The next free number: one more than the highest number in use, holes below it never reused. The scan runs from
// 1 to 150 and ends after 16 free numbers in a row, so a recording beyond such a gap is not seen. When the highest
// is 150 or more, shows "Number of files exceeds to 150!..." and returns -1; with no client, returns -1 silently.
int NextRecordingNumber(const ClientFolder& folder, Prompt& prompt);

// Takes the next number for a recording about to be made and fills RecordingNumber and RecordingPath: the stem
// path by `recordRate` for a client, whose window title becomes "%s  File - %d" (name, number); for work without a
// client, grav.tmp in "Other Files" and an empty title. Returns 1, or 0 when no number is free, leaving both alone.
int NewRecordingPath(LoadedRecording& recording, std::string& title, const ClientFolder& folder,
                     std::string_view clientName, std::uint32_t recordRate, Prompt& prompt);

struct RecordingProbe {
    bool exists = false;  // a sound or a backup marker stands under this number
    FileKind kind = FileKind::WvWithoutDate;
    std::int64_t time = 0;  // seconds since 1970 from which the date comes
    CalendarDate date;
};

// The kind and date of recording `number`. wv wins over qv, a wv sound over a stale .bkp, a .bkp over a qv sound.
// The date is the creation time of the sound (the qv one when there is a qv sound), replaced by the time in the
// date file that belongs to that sound when it holds more than 5 characters; a backup is dated by its .bkp.
RecordingProbe ProbeRecording(const ClientFolder& folder, int number, Prompt& prompt);
// The same, from a listing of the folder already read.
RecordingProbe probeRecording(const FolderListing& files, int number, Prompt& prompt);

// The list's row text "%02d/%02d/%04d File %d" in the date order of language `languageId`: day, month, year for
// Spanish (1) and Portuguese (3), year, month, day for Korean (2), month, day, year for English (0) and any other;
// the words are those of `prompt`'s screen.
std::string ListRowText(const CalendarDate& date, int number, int languageId, const Prompt& prompt);

struct RecordingListRow {
    int number = 0;
    FileKind kind = FileKind::WvWithoutDate;
    int sortKey = 0;  // the date as yyyymmdd
    std::string text;
};

// One row for each number from 1 to 149 that has a recording, in rising order of number.
std::vector<RecordingListRow> ListRecordings(const ClientFolder& folder, int languageId, Prompt& prompt);
