// Which scratch file a capture streams into. Two copies of the program may share a data root (two clinicians on a
// shared folder): each capture holds the lock of its scratch file, under the same discipline as the client table, so
// that no take is ever written over by another. The program's own grav.tmp is used whenever it is free; a capture
// that finds it held by another copy takes the first free of grav2.tmp to grav9.tmp instead.
#pragma once

#include <filesystem>
#include <memory>

class TableLock;

class ScratchFileClaim {
public:
    static constexpr int kMostCaptures = 9;  // copies of the program recording into one data root at once

    ScratchFileClaim();
    ~ScratchFileClaim();  // releases the lock
    ScratchFileClaim(const ScratchFileClaim&) = delete;
    ScratchFileClaim& operator=(const ScratchFileClaim&) = delete;

    // Takes the first scratch file of `dataRoot` that no other capture holds. False when every one is held.
    bool claim(const std::filesystem::path& dataRoot);
    void release() noexcept;
    bool held() const noexcept { return m_lock != nullptr; }
    const std::filesystem::path& path() const noexcept { return m_path; }

private:
    std::filesystem::path m_path;
    std::unique_ptr<TableLock> m_lock;
};
