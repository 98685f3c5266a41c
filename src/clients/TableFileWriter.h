// Where a rewritten table goes. The table is never changed in place: its new bytes are written in order to a
// writer, and only a committed writer replaces the file on disk. The program uses a writer over a temporary file
// that is renamed over the table; tests hand in writers that fail at a chosen step.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>

class TableFileWriter {
public:
    virtual ~TableFileWriter() = default;
    virtual bool write(std::span<const std::uint8_t> bytes) = 0;  // false once any write has failed
    virtual bool commit() = 0;  // the new bytes replace the old file only if this returns true
};

using TableWriterFactory = std::function<std::unique_ptr<TableFileWriter>(const std::filesystem::path& target)>;

// Writes beside `target` and renames over it on commit; an abandoned writer leaves the old file untouched.
std::unique_ptr<TableFileWriter> openReplacingWriter(const std::filesystem::path& target);
