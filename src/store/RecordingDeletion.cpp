#include "RecordingDeletion.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <vector>

#include "FileLookup.h"
#include "Prompt.h"
#include "SideFiles.h"

namespace fs = std::filesystem;

namespace {

bool removeFile(const fs::path& path) {
    std::error_code error;
    return fs::remove(path, error) && !error;
}

bool matchesWildcard(std::string_view name, std::string_view pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern.front() == '*') {
        for (std::size_t skip = 0; skip <= name.size(); ++skip)
            if (matchesWildcard(name.substr(skip), pattern.substr(1))) return true;
        return false;
    }
    if (name.empty()) return false;
    if (pattern.front() != '?' && foldAsciiCase(pattern.front()) != foldAsciiCase(name.front())) return false;
    return matchesWildcard(name.substr(1), pattern.substr(1));
}

}  // namespace

bool deleteFileSet(const fs::path& soundPath, std::span<const FileDeletion> set, Prompt& prompt) {
    bool soundGone = true;
    for (const FileDeletion& deletion : set) {
        const fs::path path = deletion.lastThree.empty() ? soundPath : SideFilePath(soundPath, deletion.lastThree);
        const auto found = findExistingFile(path);
        if (!found || removeFile(*found)) continue;
        if (deletion.lastThree.empty()) soundGone = false;
        if (deletion.reportFailure) prompt.showOk(kErrorDeletingFile);
    }
    return soundGone;
}

bool DeleteRecordingFilesFromView(const ClientFolder& folder, int recordingNumber, const fs::path& recordingPath,
                                  Prompt& prompt) {
    if (folder.code == OutsideClientCode) return deleteFileSet(recordingPath, kViewDeletesWv, prompt);
    const fs::path wvSound = recordingFilePath(folder, "wv", recordingNumber, "wav");
    if (findExistingFile(wvSound)) return deleteFileSet(wvSound, kViewDeletesWv, prompt);
    return deleteFileSet(recordingFilePath(folder, "qv", recordingNumber, "wav"), kViewDeletesQv, prompt);
}

bool DeleteRecordingFilesFromList(const ClientFolder& folder, int number, FileKind kind, Prompt& prompt) {
    if (kind == FileKind::SentToBackup) {
        prompt.showOk(kSentToBackup);
        return false;
    }
    if (!prompt.askYesNo(kConfirmDeleteRecording)) return false;
    const bool wv = kind == FileKind::WvWithDate || kind == FileKind::WvWithoutDate;
    deleteFileSet(recordingFilePath(folder, wv ? "wv" : "qv", number, "wav"), kListDeletes, prompt);
    return true;
}

bool DeleteMatchingFiles(const fs::path& folder, std::span<const std::string_view> patterns) {
    bool allDeleted = true;
    for (const std::string_view pattern : patterns) {
        std::error_code error;
        std::vector<fs::path> matching;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
            if (entry.is_regular_file(error) && matchesWildcard(entry.path().filename().string(), pattern))
                matching.push_back(entry.path());
        }
        std::sort(matching.begin(), matching.end());
        for (const fs::path& path : matching) allDeleted = removeFile(path) && allDeleted;
    }
    return allDeleted;
}
