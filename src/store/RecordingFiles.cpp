#include "RecordingFiles.h"

#include <optional>

#include "DateFile.h"
#include "FileLookup.h"
#include "LoadedRecording.h"
#include "Prompt.h"
#include "TextFormat.h"
#include "base/Assert.h"

namespace fs = std::filesystem;

namespace {

// More free numbers in a row than this end the search for the highest number in use.
constexpr int kLongestFreeRun = 15;

std::string fileName(std::string_view prefix, int number, std::string_view extension) {
    const std::string stem(prefix);
    const std::string suffix(extension);
    return formatText("%s%03d.%s", stem.c_str(), number, suffix.c_str());
}

std::optional<fs::path> find(const FolderListing& files, std::string_view prefix, int number,
                             std::string_view extension) {
    return files.findFile(fileName(prefix, number, extension));
}

bool exists(const FolderListing& files, std::string_view prefix, int number, std::string_view extension) {
    return find(files, prefix, number, extension).has_value();
}

FileKind kindOf(bool wvSound, bool backup, bool dateFile) {
    if (wvSound) return dateFile ? FileKind::WvWithDate : FileKind::WvWithoutDate;
    if (backup) return FileKind::SentToBackup;
    return dateFile ? FileKind::QvWithDate : FileKind::QvWithoutDate;
}

}  // namespace

fs::path ClientFolder::path() const {
    SONALYS_ASSERT(code != kNoClient);
    if (code == OutsideClientCode) return dataRoot / kOtherFilesFolder;
    return dataRoot / formatText("pac%03d", code);
}

fs::path recordingFilePath(const ClientFolder& folder, std::string_view prefix, int number,
                           std::string_view extension) {
    return folder.path() / fileName(prefix, number, extension);
}

fs::path RecordingStemPath(const ClientFolder& folder, int number, std::uint32_t rate) {
    return recordingFilePath(folder, rate == kQvRate ? "qv" : "wv", number, "wav");
}

fs::path ScratchRecordingPath(const fs::path& dataRoot) { return dataRoot / kScratchFileName; }

int NextRecordingNumber(const ClientFolder& folder, Prompt& prompt) {
    if (folder.code == kNoClient) return -1;
    const FolderListing files(folder.path());
    int highest = 0;
    int freeRun = 0;
    for (int number = 1; number <= kLastRecordingNumber; ++number) {
        const bool used = exists(files, "wv", number, "wav") || exists(files, "wv", number, "bkp") ||
                          exists(files, "qv", number, "wav") || exists(files, "qv", number, "bkp");
        if (!used) {
            if (++freeRun > kLongestFreeRun) break;
        } else {
            freeRun = 0;
            highest = number;
        }
    }
    if (highest >= kLastRecordingNumber) {
        prompt.showOk(kTooManyFiles);
        return -1;
    }
    return highest + 1;
}

int NewRecordingPath(LoadedRecording& recording, std::string& title, const ClientFolder& folder,
                     std::string_view clientName, std::uint32_t recordRate, Prompt& prompt) {
    const int number = NextRecordingNumber(folder, prompt);
    if (number == -1) return 0;
    recording.RecordingNumber = number;
    if (folder.code == OutsideClientCode) {
        title.clear();
        recording.RecordingPath = folder.path() / kScratchFileName;
    } else {
        const std::string name(clientName);
        title = formatText(prompt.inLanguage(kRecordingTitle).c_str(), name.c_str(), number);
        recording.RecordingPath = RecordingStemPath(folder, number, recordRate);
    }
    return 1;
}

RecordingProbe ProbeRecording(const ClientFolder& folder, int number, Prompt& prompt) {
    return probeRecording(FolderListing(folder.path()), number, prompt);
}

RecordingProbe probeRecording(const FolderListing& files, int number, Prompt& prompt) {
    // The probes run in this order; the qv date file, looked at only when there is a qv sound, replaces the wv one.
    const auto wvSound = find(files, "wv", number, "wav");
    const auto wvBackup = find(files, "wv", number, "bkp");
    auto dateFile = find(files, "wv", number, "ddt");
    const auto qvSound = find(files, "qv", number, "wav");
    const auto qvBackup = wvBackup ? std::nullopt : find(files, "qv", number, "bkp");
    if (qvSound) dateFile = find(files, "qv", number, "ddt");
    const auto& backup = wvBackup ? wvBackup : qvBackup;

    RecordingProbe probe;
    if (!wvSound && !backup && !qvSound) return probe;
    probe.exists = true;
    probe.kind = kindOf(wvSound.has_value(), backup.has_value(), dateFile.has_value());
    if (probe.kind == FileKind::SentToBackup) {
        probe.time = fileCreationTime(*backup).value_or(0);
    } else {
        // "The sound" whose date counts is the qv one whenever it exists, as for the date file.
        probe.time = fileCreationTime(qvSound ? *qvSound : *wvSound).value_or(0);
        if (dateFile) {
            const std::int64_t written = ReadDateFile(*dateFile, prompt);
            // A time too far from today for any calendar date is as unusable as a short text.
            if (written != -1 && calendarDateFromUnixTime(written)) probe.time = written;
        }
    }
    probe.date = calendarDateFromUnixTime(probe.time).value_or(CalendarDate{1970, 1, 1});
    return probe;
}

std::string ListRowText(const CalendarDate& date, int number, int languageId, const Prompt& prompt) {
    const std::string text = prompt.inLanguage(languageId == 2 ? kListRowTextYearFirst : kListRowText);
    switch (languageId) {
    case 1:
    case 3: return formatText(text.c_str(), date.day, date.month, date.year, number);
    case 2: return formatText(text.c_str(), date.year, date.month, date.day, number);
    default: return formatText(text.c_str(), date.month, date.day, date.year, number);
    }
}

std::vector<RecordingListRow> ListRecordings(const ClientFolder& folder, int languageId, Prompt& prompt) {
    std::vector<RecordingListRow> rows;
    const FolderListing files(folder.path());
    for (int number = 1; number <= kLastListedNumber; ++number) {
        const RecordingProbe probe = probeRecording(files, number, prompt);
        if (!probe.exists) continue;
        rows.push_back(
            {number, probe.kind, dateSortKey(probe.date), ListRowText(probe.date, number, languageId, prompt)});
    }
    return rows;
}
