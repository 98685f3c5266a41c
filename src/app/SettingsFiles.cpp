#include "app/SettingsFiles.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "base/ByteOrder.h"
#include "store/ReplacingFile.h"

std::optional<std::vector<std::int32_t>> ReadSettingInts(const std::filesystem::path& file, std::size_t count) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::vector<std::uint8_t> bytes(count * 4);
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (static_cast<std::size_t>(in.gcount()) != bytes.size()) return std::nullopt;
    std::vector<std::int32_t> values(count);
    for (std::size_t i = 0; i < count; ++i) values[i] = readLE32Signed(bytes.data() + 4 * i);
    return values;
}

bool WriteSettingInts(const std::filesystem::path& file, std::span<const std::int32_t> values) {
    std::vector<std::uint8_t> bytes;
    for (const std::int32_t value : values) appendLE32(bytes, static_cast<std::uint32_t>(value));
    ReplacingFile out(file);
    return out.write(bytes.data(), bytes.size()) && out.commit();
}

LanguageId ReadLanguage(const std::filesystem::path& home) {
    const auto values = ReadSettingInts(home / kLanguageFile, 1);
    return values ? static_cast<LanguageId>((*values)[0]) : kLanguageWhenMissing;
}

bool WriteLanguage(const std::filesystem::path& home, LanguageId language) {
    const std::int32_t value = static_cast<std::int32_t>(language);
    return WriteSettingInts(home / kLanguageFile, std::span(&value, 1));
}

int ReadScreenMode(const std::filesystem::path& home) {
    const auto values = ReadSettingInts(home / kScreenModeFile, 1);
    return values ? (*values)[0] : kScreenModeWhenMissing;
}

int ReadRecordInput(const std::filesystem::path& home, int current) {
    const auto values = ReadSettingInts(home / kRecordInputFile, 1);
    return values ? (*values)[0] : current;
}

bool WriteRecordInput(const std::filesystem::path& home, int input) {
    const std::int32_t value = input;
    return WriteSettingInts(home / kRecordInputFile, std::span(&value, 1));
}
