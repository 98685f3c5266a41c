// The whole-table lock: an operating-system advisory lock, so that two copies of the program on one data root
// (two clinicians on a shared folder) change the table one after the other and never lose each other's rows.
//
// The lock is taken on a small companion file beside the table ("pacb.lck" for "pacb.dbf"), never on the table
// itself: a changed table is written as a new file and renamed over the old one, and a lock held on the old file
// would not stop anyone who opens the new one. The companion file is left in place; it holds no data.
#pragma once

#include <chrono>
#include <filesystem>

enum class TableLockStatus {
    Locked,       // this process holds the lock until the object goes
    Busy,         // another holder kept it for the whole wait
    CannotOpen,   // the companion file could not be opened or created (a folder we may not write to)
    Unsupported,  // the file system has no locks; the caller goes on without one, as a lone program would
};

class TableLock {
public:
    // Tries for the lock of the table at `tablePath`, waiting up to `wait` while another holder has it.
    explicit TableLock(const std::filesystem::path& tablePath,
                       std::chrono::milliseconds wait = std::chrono::milliseconds(10000));
    ~TableLock();  // releases the lock
    TableLock(const TableLock&) = delete;
    TableLock& operator=(const TableLock&) = delete;

    TableLockStatus status() const noexcept { return m_status; }
    static std::filesystem::path lockPathFor(const std::filesystem::path& tablePath);

private:
    TableLockStatus m_status = TableLockStatus::CannotOpen;
#if defined(_WIN32)
    void* m_handle = nullptr;
#else
    int m_descriptor = -1;
#endif
};
