// A fresh folder for one test, removed with everything in it when the test ends.
#pragma once

#include <stdlib.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <system_error>

class TempDir {
public:
    TempDir() {
        std::string name = (std::filesystem::temp_directory_path() / "sonalys-test-XXXXXX").string();
        m_path = ::mkdtemp(name.data()) ? name : throw std::system_error(errno, std::generic_category(), name);
    }
    ~TempDir() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const noexcept { return m_path; }
    std::filesystem::path operator/(std::string_view name) const { return m_path / name; }

    // Creates each named file (folders included) with the given contents.
    void write(std::string_view name, std::string_view contents = {}) const {
        const auto file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream out(file, std::ios::binary);
        out.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    }
    void touch(std::initializer_list<std::string_view> names) const {
        for (auto name : names) write(name);
    }
    std::string read(std::string_view name) const {
        std::ifstream in(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

private:
    std::filesystem::path m_path;
};
