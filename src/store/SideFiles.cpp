#include "SideFiles.h"

std::filesystem::path SideFilePath(const std::filesystem::path& recordingPath, std::string_view threeLetters) {
    std::filesystem::path::string_type text = recordingPath.native();
    text.resize(text.size() >= 3 ? text.size() - 3 : 0);
    for (char letter : threeLetters) text.push_back(static_cast<std::filesystem::path::value_type>(letter));
    return std::filesystem::path(std::move(text));
}
