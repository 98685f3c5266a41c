// A file of this process's own, in memory-backed storage where there is some, through which a fuzz target hands
// its input to readers that take a path. It is removed when the process ends.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

class FuzzScratchFile {
public:
    explicit FuzzScratchFile(const char* name) {
        const std::filesystem::path shm = "/dev/shm";
        const auto folder = std::filesystem::is_directory(shm) ? shm : std::filesystem::temp_directory_path();
        m_path = folder / ("sonalys-" + std::to_string(::getpid()) + "-" + name);
    }
    ~FuzzScratchFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    FuzzScratchFile(const FuzzScratchFile&) = delete;
    FuzzScratchFile& operator=(const FuzzScratchFile&) = delete;

    const std::filesystem::path& path() const noexcept { return m_path; }
    void write(const std::uint8_t* data, std::size_t size) const {
        std::ofstream out(m_path, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }

private:
    std::filesystem::path m_path;
};
