#include "FileLookup.h"

#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool sameIgnoringCase(const std::string& a, const std::string& b) noexcept {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (foldAsciiCase(a[i]) != foldAsciiCase(b[i])) return false;
    return true;
}

std::optional<fs::path> matchInFolder(const fs::path& folder, const fs::path& name) {
    std::error_code error;
    fs::directory_iterator entries(folder.empty() ? fs::path(".") : folder, error);
    if (error) return std::nullopt;
    const std::string wanted = name.string();
    std::optional<std::string> best;
    for (const fs::directory_entry& entry : entries) {
        std::string candidate = entry.path().filename().string();
        if (sameIgnoringCase(candidate, wanted) && (!best || candidate < *best)) best = std::move(candidate);
    }
    if (!best) return std::nullopt;
    return fs::path(*best);
}

std::string folded(std::string_view name) {
    std::string out(name);
    for (char& c : out) c = foldAsciiCase(c);
    return out;
}

bool isSearchablePart(const fs::path& part) {
    return !part.empty() && part != "." && part != ".." && !part.has_root_name() && !part.has_root_directory();
}

}  // namespace

fs::path findFileIgnoringCase(const fs::path& path) {
    std::error_code error;
    if (fs::exists(path, error)) return path;
    fs::path resolved;
    bool searching = true;
    for (const fs::path& part : path) {
        if (!searching || !isSearchablePart(part)) {
            resolved /= part;
            continue;
        }
        fs::path exact = resolved / part;
        if (fs::exists(exact, error)) {
            resolved = std::move(exact);
        } else if (auto match = matchInFolder(resolved, part)) {
            resolved /= *match;
        } else {
            resolved = std::move(exact);
            searching = false;
        }
    }
    return resolved;
}

std::optional<fs::path> findExistingFile(const fs::path& path) {
    fs::path found = findFileIgnoringCase(path);
    std::error_code error;
    if (!fs::is_regular_file(found, error)) return std::nullopt;
    return found;
}

FolderListing::FolderListing(const fs::path& folder) : m_folder(findFileIgnoringCase(folder)) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(m_folder, error)) {
        if (!entry.is_regular_file(error)) continue;
        std::string name = entry.path().filename().string();
        m_namesByFolded[folded(name)].insert(std::move(name));
    }
}

std::optional<fs::path> FolderListing::findFile(std::string_view name) const {
    const auto found = m_namesByFolded.find(folded(name));
    if (found == m_namesByFolded.end()) return std::nullopt;
    const std::set<std::string>& spellings = found->second;
    const auto exact = spellings.find(std::string(name));
    return m_folder / (exact != spellings.end() ? *exact : *spellings.begin());
}
