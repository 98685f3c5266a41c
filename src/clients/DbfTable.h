// A dBASE III table held in memory: read whole from its file, walked and changed record by record, and written
// whole to a new file. Only what the client table needs: no memo fields, no indexes.
//
// The file layout: a 32-byte header (version, date of last update as year-1900/month/day, record count as a
// 32-bit number, header length and record length as 16-bit numbers, all little-endian), one 32-byte descriptor
// per field (name in 11 bytes, NUL padded; type; 4 unused bytes; length; decimals), the terminator 0x0D, then the
// records, each a delete-flag byte (blank, or '*' for a deleted record) followed by the fields' text, blank padded,
// with no separators; the file ends with 0x1A.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class TableFileWriter;

// One field of a table to be created.
struct DbfFieldSpec {
    std::string_view name;  // up to 10 characters
    char type = 'C';        // 'C' text, 'N' number (held as text as well)
    std::uint8_t length = 1;
    std::uint8_t decimals = 0;
};

// One field of an open table.
struct DbfField {
    std::string name;  // as stored, without its NUL padding
    char type = 'C';
    int length = 0;
    int decimals = 0;
    int offset = 0;  // from the start of the record, after the delete flag: the first field is at 1
};

struct DbfDate {
    int year = 1900;  // four digits; the file keeps year - 1900 in one byte
    int month = 1;
    int day = 1;
};
DbfDate dbfToday();  // the local date, for the header's date of last update

enum class DbfOpenStatus {
    Ok,
    CannotOpen,  // the file could not be opened or read
    Damaged,     // the bytes are not a sound dBASE table; `problem` says why
};

struct DbfOpenResult;

class DbfTable {
public:
    static constexpr std::uint8_t kHeaderEnd = 0x0D;
    static constexpr std::uint8_t kFileEnd = 0x1A;
    static constexpr std::uint8_t kDeletedFlag = '*';

    // An empty table with these fields (version 3, no memo), to be written with write().
    static DbfTable create(std::span<const DbfFieldSpec> fields);
    // Reads the whole file and checks its structure; nothing past its end is ever read.
    static DbfOpenResult open(const std::filesystem::path& path);
    static DbfOpenResult fromBytes(std::vector<std::uint8_t> bytes);

    int fieldCount() const noexcept { return static_cast<int>(m_fields.size()); }
    const DbfField& field(int index) const;
    int fieldIndex(std::string_view name) const noexcept;  // ignores case; -1 when there is no such field
    int recordLength() const noexcept { return m_recordLength; }
    // False when the file holds other than the rows its header counts (an extra row another tool appended, or a
    // file cut short). Such a table is read as far as its whole rows go but is never written back: a rewrite
    // would lose the rows the header does not count.
    bool sizeMatchesHeader() const noexcept { return m_sizeMatchesHeader; }
    int headerLength() const noexcept { return static_cast<int>(m_header.size()); }

    // Navigation. Records are numbered from 1; past the last one the table is at its end.
    int recordCount() const noexcept { return m_recordCount; }
    int recNo() const noexcept { return m_current; }
    bool eof() const noexcept { return m_current < 1 || m_current > m_recordCount; }
    void top() noexcept { m_current = m_recordCount > 0 ? 1 : m_recordCount + 1; }
    void bottom() noexcept { m_current = m_recordCount > 0 ? m_recordCount : 1; }
    void skip(int count = 1) noexcept;
    bool go(int recordNumber) noexcept;  // false, and nothing moves, outside 1..recordCount

    // The current record (the table must not be at its end).
    bool deleted() const;
    std::string_view fieldText(int index) const;  // the full field width, bytes as stored
    // Fills the field with blanks, then copies as much of `text` as fits: longer text is cut at the field width.
    void assign(int index, std::string_view text);
    void markDeleted();

    void appendBlank();  // adds an all-blank record at the end and moves to it
    void pack();         // removes every deleted record; the table moves to its top

    // Writes the header (plain dBASE III version, this date and the record count), the records and the end byte,
    // then commits.
    // Each part is its own write, so a writer can fail at any of them.
    bool write(TableFileWriter& writer, const DbfDate& date) const;

private:
    DbfTable() = default;
    std::string_view readDescriptors(const std::vector<std::uint8_t>& bytes, std::size_t headerLength);
    std::uint8_t* record(int recordNumber);
    const std::uint8_t* record(int recordNumber) const;

    std::vector<std::uint8_t> m_header;  // everything before the first record, descriptors included
    std::vector<DbfField> m_fields;
    int m_recordLength = 1;
    int m_recordCount = 0;
    std::vector<std::uint8_t> m_records;  // m_recordCount records of m_recordLength bytes
    int m_current = 1;
    bool m_sizeMatchesHeader = true;
};

struct DbfOpenResult {
    DbfOpenStatus status = DbfOpenStatus::CannotOpen;
    std::optional<DbfTable> table;  // set when status is Ok
    std::string_view problem;       // what is wrong with a damaged file
};
