#include "audio/TempFile.h"

bool TempFile::open(const std::filesystem::path& path, int mode) {
    close();
    const char* how = (mode == kWriteMode) ? "w+b" : "rb";
    m_file.reset(std::fopen(path.c_str(), how));
    return isOpen();
}

void TempFile::close() noexcept { m_file.reset(); }

void TempFile::rewind() noexcept {
    if (m_file) std::rewind(m_file.get());
}

std::size_t TempFile::read(void* data, std::size_t bytes) noexcept {
    if (!m_file) return 0;
    return std::fread(data, 1, bytes, m_file.get());
}

int TempFile::write(const void* data, std::size_t bytes) noexcept {
    if (!m_file) return -1;
    const std::size_t written = std::fwrite(data, 1, bytes, m_file.get());
    const bool flushed = std::fflush(m_file.get()) == 0;
    return (written == bytes && flushed) ? 1 : 0;
}

long TempFile::size() noexcept {
    if (!m_file) return -1;
    if (std::fseek(m_file.get(), 0, SEEK_END) != 0) return -1;
    return std::ftell(m_file.get());
}
