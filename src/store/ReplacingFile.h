// Writes a file so that it is never seen half written: the bytes go to a temporary file beside the target, and
// only a complete, flushed file is renamed over it. A failure at any step leaves the old file as it was.
//
// The new file takes the place of the old one in every way the user set up: it keeps the old file's permissions
// (a client table kept private stays private) and, where the process may, its owner; a symbolic link is written
// through, so the file it names is replaced and the link still shares it; and a file made read-only is refused
// (the writer never opens), so the caller tells the user that it cannot be written.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>

class ReplacingFile {
public:
    explicit ReplacingFile(const std::filesystem::path& target);
    ~ReplacingFile();  // removes the temporary file unless commit() succeeded
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    bool isOpen() const noexcept { return m_file != nullptr; }
    bool write(const void* data, std::size_t size) noexcept;  // false once any write has failed
    bool commit() noexcept;                                   // flush to disk, then rename over the target

    const std::filesystem::path& target() const noexcept { return m_target; }
    const std::filesystem::path& temporary() const noexcept { return m_temporary; }

private:
    std::filesystem::path m_target;
    std::filesystem::path m_temporary;
    std::FILE* m_file = nullptr;
    bool m_failed = false;
    bool m_committed = false;
};
