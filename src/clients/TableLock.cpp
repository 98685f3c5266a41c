#include "TableLock.h"

#include <thread>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#endif

namespace {

// How long to sleep between two tries: short enough that a waiting writer follows quickly once the holder is done.
constexpr std::chrono::milliseconds kRetryPause(10);

}  // namespace

std::filesystem::path TableLock::lockPathFor(const std::filesystem::path& tablePath) {
    std::filesystem::path lockPath = tablePath;
    lockPath.replace_extension(".lck");
    return lockPath;
}

#if defined(_WIN32)

TableLock::TableLock(const std::filesystem::path& tablePath, std::chrono::milliseconds wait) {
    const std::filesystem::path lockPath = lockPathFor(tablePath);
    HANDLE handle = CreateFileW(lockPath.c_str(), GENERIC_READ | GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return;
    m_handle = handle;
    const auto deadline = std::chrono::steady_clock::now() + wait;
    for (;;) {
        OVERLAPPED where{};
        if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &where)) {
            m_status = TableLockStatus::Locked;
            return;
        }
        const DWORD error = GetLastError();
        if (error != ERROR_LOCK_VIOLATION && error != ERROR_IO_PENDING) {
            m_status = TableLockStatus::Unsupported;
            return;
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            m_status = TableLockStatus::Busy;
            return;
        }
        std::this_thread::sleep_for(kRetryPause);
    }
}

TableLock::~TableLock() {
    if (m_handle == nullptr) return;
    if (m_status == TableLockStatus::Locked) {
        OVERLAPPED where{};
        UnlockFileEx(static_cast<HANDLE>(m_handle), 0, 1, 0, &where);
    }
    CloseHandle(static_cast<HANDLE>(m_handle));
}

#else

// flock() locks belong to one opening of the file, so two tables opened in one process exclude each other as two
// processes do; a lock file that another user created read-only can still be locked.
TableLock::TableLock(const std::filesystem::path& tablePath, std::chrono::milliseconds wait) {
    const std::filesystem::path lockPath = lockPathFor(tablePath);
    m_descriptor = ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (m_descriptor < 0) m_descriptor = ::open(lockPath.c_str(), O_RDONLY | O_CLOEXEC);
    if (m_descriptor < 0) return;
    const auto deadline = std::chrono::steady_clock::now() + wait;
    for (;;) {
        if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0) {
            m_status = TableLockStatus::Locked;
            return;
        }
        if (errno == EINTR) continue;
        if (errno != EWOULDBLOCK) {
            m_status = TableLockStatus::Unsupported;
            return;
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            m_status = TableLockStatus::Busy;
            return;
        }
        std::this_thread::sleep_for(kRetryPause);
    }
}

TableLock::~TableLock() {
    if (m_descriptor < 0) return;
    if (m_status == TableLockStatus::Locked) ::flock(m_descriptor, LOCK_UN);
    ::close(m_descriptor);
}

#endif
