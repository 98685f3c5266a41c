#include "DateFile.h"

#include <fstream>
#include <string>

#include "FileLookup.h"
#include "FileTimes.h"
#include "Prompt.h"
#include "ReplacingFile.h"
#include "SideFiles.h"
#include "TextFormat.h"

namespace {

// A date file holds at most a dozen characters; reading stops here so that a stray large file costs nothing.
constexpr std::size_t kLongestDateText = 4096;
constexpr std::size_t kShortestDateText = 6;  // five characters or fewer are no date
constexpr int kFileSpectrogramMode = 9;

std::optional<std::string> readDateText(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string text(kLongestDateText, '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return text;
}

bool isWrittenTime(std::string_view text) {
    if (text.size() < kShortestDateText) return false;
    if (text.front() == '-') text.remove_prefix(1);
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

int writeDateText(const std::filesystem::path& recordingPath, const std::string& text, Prompt& prompt) {
    ReplacingFile file(findFileIgnoringCase(SideFilePath(recordingPath, "ddt")));
    if (!file.write(text.data(), text.size()) || !file.commit()) {
        prompt.showOk(kErrorSavingDateFile);
        return 0;
    }
    return 1;
}

}  // namespace

int WriteDateFile(const std::filesystem::path& recordingPath, Prompt& prompt,
                  std::optional<std::int64_t> creationTime) {
    std::string text;
    if (const auto sound = findExistingFile(recordingPath)) {
        if (!creationTime) creationTime = fileCreationTime(*sound);
        // Only the low half of the 64-bit time is printed, as a signed 32-bit number.
        if (creationTime) text = formatText("%d", static_cast<std::int32_t>(static_cast<std::uint32_t>(*creationTime)));
    }
    return writeDateText(recordingPath, text, prompt);
}

int WriteImportDateFile(const std::filesystem::path& recordingPath, int displayMode, Prompt& prompt) {
    const int written = displayMode == kFileSpectrogramMode ? 1 : displayMode;
    return writeDateText(recordingPath, formatText("%d;%d;", written, written), prompt);
}

std::int64_t dateFromText(std::string_view text) {
    if (text.size() < kShortestDateText) return -1;
    return truncateToInt64(leadingNumber(text));
}

std::int64_t ReadDateFile(const std::filesystem::path& dateFilePath, Prompt& prompt) {
    const auto text = readDateText(findFileIgnoringCase(dateFilePath));
    if (!text) {
        prompt.showOk(kErrorOpeningDateFile);
        return -1;
    }
    return dateFromText(*text);
}

std::optional<std::int64_t> recordingCreationTime(const std::filesystem::path& recordingPath) {
    const auto sound = findExistingFile(recordingPath);
    if (!sound) return std::nullopt;
    if (const auto dateFile = findExistingFile(SideFilePath(*sound, "ddt"))) {
        const auto text = readDateText(*dateFile);
        if (text && isWrittenTime(*text)) return dateFromText(*text);
    }
    return fileCreationTime(*sound);
}
