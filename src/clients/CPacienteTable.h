// The client table: the one object over "pacb.dbf", the flat dBASE III file that holds everything the program
// knows about its clients, and the list of clients built from it in memory.
//
// Every operation opens the file, does its work and closes it again, so the file can be copied or swapped at any
// moment between two operations. A change is never made in place: the whole table is written to a new file that
// is renamed over the old one, so a crash or a full disk leaves the old table or the new one, never a mix. Changes
// are made under the whole-table lock, so two copies of the program on one data root change it one at a time.
#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "DbfTable.h"
#include "PacienteEntry.h"
#include "PacienteRecord.h"
#include "TableFileWriter.h"
#include "store/DeclaredText.h"

struct Prompt;

inline constexpr std::string_view kFileNotFound = SONALYS_TEXT("Sonalys", "File not found!");
inline constexpr std::string_view kInvalidFile = SONALYS_TEXT("Sonalys", "Invalid File!");
inline constexpr std::string_view kNoFreeMemory = SONALYS_TEXT("Sonalys", "Error - There is no free memory available!");
// What the user is told where the table cannot do as asked; nothing is changed in each case.
inline constexpr std::string_view kTableNotWritten =
    SONALYS_TEXT("Sonalys", "The client table %s can´t be written!\nThe previous table was kept unchanged.");
inline constexpr std::string_view kTableNotCreated = SONALYS_TEXT("Sonalys", "The client table %s can´t be created!");
inline constexpr std::string_view kTableInUse =
    SONALYS_TEXT("Sonalys", "The client table is being changed by another user!\nTry again in a moment.");
inline constexpr std::string_view kFilterNotUnderstood =
    SONALYS_TEXT("Sonalys", "The client search \"%s\" can´t be understood!\nOnly CODIGO = number is accepted.");
inline constexpr std::string_view kClientRowMissing =
    SONALYS_TEXT("Sonalys", "This client is not in the client table!");
inline constexpr std::string_view kCodeDoesNotFit =
    SONALYS_TEXT("Sonalys", "The client code %d can´t be stored in the client table!\nThe client was not inserted.");

// A table whose header counts other rows than the file holds is only read: writing it would lose rows.
inline constexpr std::string_view kTableReadOnly =
    "The client table %s does not match its own header!\nIt is opened read-only and no change is written to it.";
inline constexpr std::string_view kCodeTaken =
    SONALYS_TEXT("Sonalys", "The client code %d was just given to another client!\nThe client was not inserted.");

inline constexpr std::string_view kClientTableName = "pacb.dbf";

// The eleven fields in their fixed order. A table must have exactly these names; another tool's table may give
// them other widths.
enum PacienteField : int { kCodigo, kNome, kTipo, kDataNasc, kEndereco, kCidade, kEstado, kCep, kFoneR, kFoneC, kObs };
inline constexpr std::array<DbfFieldSpec, 11> kPacienteFields{{
    {"CODIGO", 'N', 4, 0},
    {"NOME", 'C', 60, 0},
    {"TIPO", 'N', 4, 0},
    {"DATANASC", 'C', 12, 0},
    {"ENDERECO", 'C', 60, 0},
    {"CIDADE", 'C', 30, 0},
    {"ESTADO", 'C', 4, 0},
    {"CEP", 'C', 12, 0},
    {"FONER", 'C', 14, 0},
    {"FONEC", 'C', 14, 0},
    {"OBS", 'C', 100, 0},
}};

// How a text field is read back: scanning from the last character down to the second, the text ends at the
// first blank that follows a non-blank; with no such blank it is empty. Trailing blanks go and an all-blank field
// reads empty. Inputs are kept one character shorter than their field so that a trailing blank always exists; a
// value that fills its field loses its last word, and one with no blank at all reads empty.
std::string_view cutFieldText(std::string_view text) noexcept;

class CPacienteTable {
public:
    // `dataRoot` is the folder that holds the table and the client folders; messages go to `prompt`.
    CPacienteTable(std::filesystem::path dataRoot, Prompt& prompt);

    // The table is found whatever the case of its name, like the client folders: a data root copied from Windows
    // may hold PACB.DBF, which is then read and written under that name, never doubled by a new pacb.dbf.
    void SetFileName(std::filesystem::path name);          // relative to the data root
    bool TableExists() const;                              // silent
    bool RequireTable(const std::filesystem::path& name);  // as TableExists for `name`, with "File not found!"
    void CreateTable();  // an empty table with the eleven fields; an existing table is left alone

    // Rebuilds the list from the table: every row, or with a filter "CODIGO=%d" (blanks allowed) the matching
    // rows. Returns the record number of the last row read (0 when none was), or -1 on failure; the list is
    // unchanged when the table cannot be read at all. Rows are read as they stand, those flagged deleted by
    // another tool included. A table whose size disagrees with its header is listed, with kTableReadOnly
    // at its first load.
    int LoadClients(std::string_view filter = {});
    PacienteEntry* EntryAt(int index);  // from 0; null past the last entry
    const PacienteEntry* EntryAt(int index) const;
    int Count() const noexcept { return static_cast<int>(m_entries.size()); }
    void FreeList() noexcept { m_entries.clear(); }
    // The lowest positive code that no entry of the list has and whose client folder holds no file; load with no
    // filter first. A folder left behind by an old client is never handed to a new one with its recordings.
    int NextFreeCode() const;

    int InsertClient(const PacienteRecord& record);  // appends a row; 1, or 0 after telling the user
    // Overwrites row `recordNumber` (from 1); -1, or a number past the last row, means the last row.
    void UpdateClient(int recordNumber, const PacienteRecord& record);
    // Removes a row, chosen as for UpdateClient, and packs the table; 1, or -1 on failure.
    int DeleteClient(int recordNumber);

    std::filesystem::path TablePath() const;  // as the disk spells it

    // Test seams: where rewritten tables go, and how long a writer waits for another one to finish.
    void SetWriterFactory(TableWriterFactory factory) { m_writerFactory = std::move(factory); }
    void SetLockWait(std::chrono::milliseconds wait) noexcept { m_lockWait = wait; }

private:
    struct OpenedTable;
    std::optional<OpenedTable> openTable();
    bool positionRow(DbfTable& table, int recordNumber);
    bool saveTable(const DbfTable& table);
    bool appendEntry(const DbfTable& table, const std::array<int, 11>& columns);
    void showNoMemory() noexcept;
    int lowestCodeNotListed(int from) const;
    bool clientFolderHoldsFiles(int code) const;
    template <class Change>
    bool changeTable(Change&& change);

    std::filesystem::path m_dataRoot;
    std::filesystem::path m_fileName{kClientTableName};
    Prompt& m_prompt;
    std::vector<PacienteEntry> m_entries;  // in the order read
    TableWriterFactory m_writerFactory = openReplacingWriter;
    std::chrono::milliseconds m_lockWait{10000};
    std::filesystem::path m_readOnlyToldFor;  // the mismatched table last loaded, once told so
};
