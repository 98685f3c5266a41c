#include "ReplacingFile.h"

#include <cerrno>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool flushToDisk(std::FILE* file) noexcept {
    if (std::fflush(file) != 0) return false;
#if defined(_WIN32)
    return _commit(_fileno(file)) == 0;
#else
    return ::fsync(fileno(file)) == 0;
#endif
}

}  // namespace

ReplacingFile::ReplacingFile(std::filesystem::path target) : m_target(std::move(target)) {
    // The temporary sits in the same folder so that the final rename never crosses file systems.
    for (int attempt = 0; attempt < 100 && m_file == nullptr; ++attempt) {
        m_temporary = m_target;
        m_temporary += ".new" + std::to_string(attempt);
        std::error_code error;
        if (std::filesystem::exists(m_temporary, error)) continue;
#if defined(_WIN32)
        m_file = _wfopen(m_temporary.c_str(), L"wbx");
#else
        m_file = std::fopen(m_temporary.c_str(), "wbx");
#endif
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
