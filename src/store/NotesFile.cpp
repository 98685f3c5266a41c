#include "NotesFile.h"

#include <fstream>
#include <iterator>
#include <new>

#include "FileLookup.h"
#include "Prompt.h"
#include "ReplacingFile.h"
#include "SideFiles.h"

std::optional<std::string> ReadNotesFile(const std::filesystem::path& recordingPath) {
    std::ifstream in(findFileIgnoringCase(SideFilePath(recordingPath, "txt")), std::ios::binary);
    if (!in) return std::nullopt;
    try {
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

int WriteNotesFile(const std::filesystem::path& recordingPath, std::string_view bytes, Prompt& prompt) {
    ReplacingFile file(findFileIgnoringCase(SideFilePath(recordingPath, "txt")));
    if (!file.write(bytes.data(), bytes.size()) || !file.commit()) {
        prompt.showOk(kErrorSavingNotesFile);
        return 0;
    }
    return 1;
}
