#include "ReplacingFile.h"

#include <cerrno>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <io.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

// The file a chain of symbolic links ends at; a relative link is read from the link's own folder.
fs::path followLinks(fs::path path) {
    for (int hop = 0; hop < 40; ++hop) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error))) break;
        fs::path next = fs::read_symlink(path, error);
        if (error) break;
        path = next.is_absolute() ? std::move(next) : path.parent_path() / next;
    }
    return path;
}

#if defined(_WIN32)
bool isReadOnly(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return !error && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::FILE* createTemporary(const fs::path& temporary, const fs::path&) { return _wfopen(temporary.c_str(), L"wbx"); }
#else
// No write bit at all is read-only even for the administrator, who passes every access test.
bool isReadOnly(const fs::path& path) {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) return false;
    return (info.st_mode & 0222) == 0 || ::access(path.c_str(), W_OK) != 0;
}

// The temporary is made private and then given the old file's owner and mode, so its bytes are never readable
// by more people than the old file's were.
std::FILE* createTemporary(const fs::path& temporary, const fs::path& target) {
    struct stat old {};
    const bool replacing = ::stat(target.c_str(), &old) == 0;
    const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, replacing ? 0600 : 0666);
    if (descriptor < 0) return nullptr;
    if (replacing) {
        if (::fchown(descriptor, old.st_uid, old.st_gid) != 0)
            (void)::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid);
        (void)::fchmod(descriptor, old.st_mode & 07777);
    }
    std::FILE* file = ::fdopen(descriptor, "wb");
    if (file == nullptr) ::close(descriptor);
    return file;
}
#endif

bool flushToDisk(std::FILE* file) noexcept {
    if (std::fflush(file) != 0) return false;
#if defined(_WIN32)
    return _commit(_fileno(file)) == 0;
#else
    return ::fsync(fileno(file)) == 0;
#endif
}

}  // namespace

ReplacingFile::ReplacingFile(const fs::path& target) : m_target(followLinks(target)) {
    if (isReadOnly(m_target)) {
        m_failed = true;
        return;
    }
    // The temporary sits in the same folder so that the final rename never crosses file systems.
    for (int attempt = 0; attempt < 100 && m_file == nullptr; ++attempt) {
        m_temporary = m_target;
        m_temporary += ".new" + std::to_string(attempt);
        std::error_code error;
        if (std::filesystem::exists(m_temporary, error)) continue;
        m_file = createTemporary(m_temporary, m_target);
        if (m_file == nullptr && errno != EEXIST) break;
    }
    if (m_file == nullptr) m_failed = true;
}

ReplacingFile::~ReplacingFile() {
    if (m_file != nullptr) std::fclose(m_file);
    if (!m_committed && !m_temporary.empty()) {
        std::error_code ignored;
        std::filesystem::remove(m_temporary, ignored);
    }
}

bool ReplacingFile::write(const void* data, std::size_t size) noexcept {
    if (m_failed || m_file == nullptr) return false;
    if (size != 0 && std::fwrite(data, 1, size, m_file) != size) m_failed = true;
    return !m_failed;
}

bool ReplacingFile::commit() noexcept {
    if (m_failed || m_file == nullptr) return false;
    const bool flushed = flushToDisk(m_file);
    const bool closed = std::fclose(m_file) == 0;
    m_file = nullptr;
    if (!flushed || !closed) {
        m_failed = true;
        return false;
    }
    std::error_code error;
    std::filesystem::rename(m_temporary, m_target, error);
    if (error) {
        m_failed = true;
        return false;
    }
    m_committed = true;
    return true;
}
