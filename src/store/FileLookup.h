// Finding a file whatever the case of its name. A data root copied from a Windows machine may spell
// PAC007\WV001.WAV where the program asks for pac007/wv001.wav; both name the same recording, so every probe and
// every open of a recording's files goes through here.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// The path as it is spelled on disk. Each part that exists only under another case is replaced by that spelling;
// the exact spelling wins where it exists, and among several other spellings the first in byte order does. Parts
// from the first one that does not exist in any case are kept as given, so the result is also the name under which
// a missing file is to be created (in its folder as the disk spells it).
std::filesystem::path findFileIgnoringCase(const std::filesystem::path& path);

// The regular file matching `path` in any case, or nothing when there is none.
std::optional<std::filesystem::path> findExistingFile(const std::filesystem::path& path);

// A byte with the ASCII letters folded to lower case; names are matched in this folding, the program's own names
// (pac, wv, qv, the extensions, "Other Files") being ASCII, and other bytes must match exactly.
inline char foldAsciiCase(char c) noexcept { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

// The files of one folder, read once for many lookups in a row (the recording list asks for some 900 names), with
// the same rule as findExistingFile: the exact spelling first, then the first other spelling in byte order.
class FolderListing {
public:
    explicit FolderListing(const std::filesystem::path& folder);  // the folder itself is found in any case too
    std::optional<std::filesystem::path> findFile(std::string_view name) const;

private:
    std::filesystem::path m_folder;
    std::map<std::string, std::set<std::string>> m_namesByFolded;  // regular files only
};
