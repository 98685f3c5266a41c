// The scratch file a capture streams into: a thin layer over stdio, so that every buffer reaches the disk as it
// arrives and a crash loses little.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>

class TempFile {
public:
    static constexpr int kWriteMode = 1;  // created empty, read and write ("w+b")
    static constexpr int kReadMode = 2;   // an existing file, read only ("rb")

    // Opens `path` in `mode`, closing a file that is open first. False when it cannot be opened.
    bool open(const std::filesystem::path& path, int mode);
    void close() noexcept;
    bool isOpen() const noexcept { return m_file != nullptr; }
    void rewind() noexcept;
    std::size_t read(void* data, std::size_t bytes) noexcept;  // bytes read
    // Appends `bytes` in one write and flushes it: 1 when all were written, 0 on a short write, -1 with no file open.
    int write(const void* data, std::size_t bytes) noexcept;
    long size() noexcept;  // moves to the end and gives its offset, -1 with no file open

private:
    struct Closer {
        void operator()(std::FILE* file) const noexcept { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> m_file;
};
