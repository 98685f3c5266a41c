#include "DbfTable.h"

#include <algorithm>
#include <cstring>
#include <ctime>
#include <fstream>

#include "TableFileWriter.h"
#include "base/Assert.h"
#include "base/ByteOrder.h"

namespace {

constexpr std::size_t kHeaderSize = 32;
constexpr std::size_t kDescriptorSize = 32;
constexpr std::size_t kNameSize = 11;
constexpr std::uint8_t kVersionDbase3 = 0x03;

// Offsets in the 32-byte header and in a field descriptor.
constexpr std::size_t kDateOffset = 1;
constexpr std::size_t kCountOffset = 4;
constexpr std::size_t kHeaderLengthOffset = 8;
constexpr std::size_t kRecordLengthOffset = 10;
constexpr std::size_t kTypeOffset = 11;
constexpr std::size_t kLengthOffset = 16;
constexpr std::size_t kDecimalsOffset = 17;

char upper(char c) noexcept { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

bool sameName(std::string_view a, std::string_view b) noexcept {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return upper(x) == upper(y); });
}

DbfOpenResult damaged(std::string_view problem) {
    DbfOpenResult result;
    result.status = DbfOpenStatus::Damaged;
    result.problem = problem;
    return result;
}

}  // namespace

DbfDate dbfToday() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#if defined(_WIN32)
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

DbfTable DbfTable::create(std::span<const DbfFieldSpec> fields) {
    DbfTable table;
    const std::size_t headerLength = kHeaderSize + kDescriptorSize * fields.size() + 1;
    SONALYS_ASSERT(headerLength <= 0xFFFF);
    table.m_header.assign(headerLength, 0);
    table.m_header[0] = kVersionDbase3;
    int offset = 1;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const DbfFieldSpec& field = fields[i];
        SONALYS_ASSERT(!field.name.empty() && field.name.size() < kNameSize && field.length > 0);
        std::uint8_t* descriptor = table.m_header.data() + kHeaderSize + kDescriptorSize * i;
        std::memcpy(descriptor, field.name.data(), field.name.size());
        descriptor[kTypeOffset] = static_cast<std::uint8_t>(field.type);
        descriptor[kLengthOffset] = field.length;
        descriptor[kDecimalsOffset] = field.decimals;
        table.m_fields.push_back({std::string(field.name), field.type, field.length, field.decimals, offset});
        offset += field.length;
    }
    table.m_header[headerLength - 1] = kHeaderEnd;
    SONALYS_ASSERT(offset <= 0xFFFF);
    table.m_recordLength = offset;
    writeLE16(table.m_header.data() + kHeaderLengthOffset, static_cast<std::uint16_t>(headerLength));
    writeLE16(table.m_header.data() + kRecordLengthOffset, static_cast<std::uint16_t>(offset));
    return table;
}

DbfOpenResult DbfTable::open(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return {};
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    if (size < 0) return {};
    in.seekg(0, std::ios::beg);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (!in.read(reinterpret_cast<char*>(bytes.data()), size)) return {};
    return fromBytes(std::move(bytes));
}

// Reads the field descriptors that follow the 32-byte header, up to the terminator. Returns the problem, or an
// empty text when the list is sound.
std::string_view DbfTable::readDescriptors(const std::vector<std::uint8_t>& bytes, std::size_t headerLength) {
    std::size_t position = kHeaderSize;
    int offset = 1;
    while (position < headerLength && bytes[position] != kHeaderEnd) {
        if (position + kDescriptorSize > headerLength) return "a field descriptor runs past the header";
        const std::uint8_t* descriptor = bytes.data() + position;
        DbfField field;
        const auto* name = reinterpret_cast<const char*>(descriptor);
        field.name.assign(name, static_cast<std::size_t>(std::find(name, name + kNameSize, '\0') - name));
        field.type = static_cast<char>(descriptor[kTypeOffset]);
        field.length = descriptor[kLengthOffset];
        field.decimals = descriptor[kDecimalsOffset];
        field.offset = offset;
        if (field.length == 0) return "a field has no width";
        offset += field.length;
        m_fields.push_back(std::move(field));
        position += kDescriptorSize;
    }
    if (position >= headerLength) return "the field list has no terminator";
    if (offset > m_recordLength) return "the fields run past the record length";
    return {};
}

DbfOpenResult DbfTable::fromBytes(std::vector<std::uint8_t> bytes) {
    if (bytes.size() < kHeaderSize + 1) return damaged("the file is shorter than a table header");
    const std::size_t headerLength = readLE16(bytes.data() + kHeaderLengthOffset);
    const std::size_t recordLength = readLE16(bytes.data() + kRecordLengthOffset);
    const std::uint64_t recordCount = readLE32(bytes.data() + kCountOffset);
    if (headerLength < kHeaderSize + 1) return damaged("the header length is too small");
    if (headerLength > bytes.size()) return damaged("the header length runs past the end of the file");
    if (recordLength < 1) return damaged("the record length is zero");
    // The rows end with the end byte or without it; any other size means the header miscounts its rows, and the
    // whole rows actually there are what is read.
    const std::uint64_t body = bytes.size() - headerLength;
    const std::uint64_t counted = recordCount * recordLength;
    const bool sizeMatches = body == counted || (body == counted + 1 && bytes.back() == kFileEnd);
    const std::uint64_t rows = sizeMatches ? recordCount : body / recordLength;
    if (rows > 0x7FFFFFFF) return damaged("the file holds more rows than a table can");

    DbfTable table;
    table.m_recordLength = static_cast<int>(recordLength);
    table.m_recordCount = static_cast<int>(rows);
    table.m_sizeMatchesHeader = sizeMatches;
    if (const std::string_view problem = table.readDescriptors(bytes, headerLength); !problem.empty()) {
        return damaged(problem);
    }
    const auto recordsBegin = bytes.begin() + static_cast<std::ptrdiff_t>(headerLength);
    table.m_records.assign(recordsBegin, recordsBegin + static_cast<std::ptrdiff_t>(rows * recordLength));
    bytes.resize(headerLength);
    table.m_header = std::move(bytes);
    table.top();

    DbfOpenResult result;
    result.status = DbfOpenStatus::Ok;
    result.table = std::move(table);
    return result;
}

const DbfField& DbfTable::field(int index) const {
    SONALYS_ASSERT(0 <= index && index < fieldCount());
    return m_fields[static_cast<std::size_t>(index)];
}

int DbfTable::fieldIndex(std::string_view name) const noexcept {
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (sameName(m_fields[i].name, name)) return static_cast<int>(i);
    }
    return -1;
}

void DbfTable::skip(int count) noexcept {
    const long long target = static_cast<long long>(m_current) + count;
    m_current = static_cast<int>(std::clamp<long long>(target, 0, static_cast<long long>(m_recordCount) + 1));
}

bool DbfTable::go(int recordNumber) noexcept {
    if (recordNumber < 1 || recordNumber > m_recordCount) return false;
    m_current = recordNumber;
    return true;
}

std::uint8_t* DbfTable::record(int recordNumber) {
    SONALYS_ASSERT(1 <= recordNumber && recordNumber <= m_recordCount);
    return m_records.data() + static_cast<std::size_t>(recordNumber - 1) * static_cast<std::size_t>(m_recordLength);
}

const std::uint8_t* DbfTable::record(int recordNumber) const {
    SONALYS_ASSERT(1 <= recordNumber && recordNumber <= m_recordCount);
    return m_records.data() + static_cast<std::size_t>(recordNumber - 1) * static_cast<std::size_t>(m_recordLength);
}

bool DbfTable::deleted() const { return record(m_current)[0] == kDeletedFlag; }

std::string_view DbfTable::fieldText(int index) const {
    const DbfField& f = field(index);
    return {reinterpret_cast<const char*>(record(m_current)) + f.offset, static_cast<std::size_t>(f.length)};
}

void DbfTable::assign(int index, std::string_view text) {
    const DbfField& f = field(index);
    std::uint8_t* target = record(m_current) + f.offset;
    std::memset(target, ' ', static_cast<std::size_t>(f.length));
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(f.length));
    if (length != 0) std::memcpy(target, text.data(), length);
}

void DbfTable::markDeleted() { record(m_current)[0] = kDeletedFlag; }

void DbfTable::appendBlank() {
    m_records.resize(m_records.size() + static_cast<std::size_t>(m_recordLength), ' ');
    ++m_recordCount;
    m_current = m_recordCount;
}

void DbfTable::pack() {
    const auto length = static_cast<std::size_t>(m_recordLength);
    std::size_t kept = 0;
    for (std::size_t from = 0; from < m_records.size(); from += length) {
        if (m_records[from] == kDeletedFlag) continue;
        if (kept != from) std::memmove(m_records.data() + kept, m_records.data() + from, length);
        kept += length;
    }
    m_records.resize(kept);
    m_recordCount = static_cast<int>(kept / length);
    top();
}

bool DbfTable::write(TableFileWriter& writer, const DbfDate& date) const {
    std::vector<std::uint8_t> header = m_header;
    // A table read with the memo flag in its version byte has no memo field (none is accepted) and no memo file;
    // it is written back as what it is, a plain table.
    header[0] = kVersionDbase3;
    header[kDateOffset] = static_cast<std::uint8_t>(std::clamp(date.year - 1900, 0, 255));
    header[kDateOffset + 1] = static_cast<std::uint8_t>(date.month);
    header[kDateOffset + 2] = static_cast<std::uint8_t>(date.day);
    writeLE32(header.data() + kCountOffset, static_cast<std::uint32_t>(m_recordCount));
    if (!writer.write(header)) return false;
    const auto length = static_cast<std::size_t>(m_recordLength);
    for (std::size_t from = 0; from < m_records.size(); from += length) {
        if (!writer.write(std::span(m_records).subspan(from, length))) return false;
    }
    const std::uint8_t end = kFileEnd;
    if (!writer.write(std::span(&end, 1))) return false;
    return writer.commit();
}
