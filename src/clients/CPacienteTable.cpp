#include "CPacienteTable.h"

#include <new>
#include <optional>

#include "DbfFilter.h"
#include "TableLock.h"
#include "store/FileLookup.h"
#include "store/Prompt.h"
#include "store/TextFormat.h"

namespace {

using Columns = std::array<int, kPacienteFields.size()>;  // where each of the eleven fields is in this file

bool isCodigo(std::string_view name) noexcept {
    constexpr std::string_view kCodigoName = kPacienteFields[kCodigo].name;
    if (name.size() != kCodigoName.size()) return false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = (name[i] >= 'a' && name[i] <= 'z') ? static_cast<char>(name[i] - 'a' + 'A') : name[i];
        if (c != kCodigoName[i]) return false;
    }
    return true;
}

bool isAllBlank(std::string_view text) noexcept { return text.find_first_not_of(" \t") == std::string_view::npos; }

// Numbers go into the file as "%d" through the same assignment as text: left-justified and blank padded, so
// code 12 stands as "12" and two blanks.
void assignFields(DbfTable& table, const Columns& columns, const PacienteRecord& record) {
    table.assign(columns[kCodigo], formatText("%d", record.Codigo));
    table.assign(columns[kNome], recordText(record.Nome));
    table.assign(columns[kTipo], formatText("%d", record.Tipo));
    table.assign(columns[kDataNasc], recordText(record.DataNasc));
    table.assign(columns[kEndereco], recordText(record.Endereco));
    table.assign(columns[kCidade], recordText(record.Cidade));
    table.assign(columns[kEstado], recordText(record.Estado));
    table.assign(columns[kCep], recordText(record.Cep));
    table.assign(columns[kFoneR], recordText(record.FoneR));
    table.assign(columns[kFoneC], recordText(record.FoneC));
    table.assign(columns[kObs], recordText(record.Obs));
}

bool hasCode(DbfTable& table, const Columns& columns, int code) {
    for (table.top(); !table.eof(); table.skip()) {
        if (dbfFieldToInt(table.fieldText(columns[kCodigo])) == code) return true;
    }
    return false;
}

PacienteEntry readEntry(const DbfTable& table, const Columns& columns) {
    PacienteEntry entry;
    entry.codigoText = table.fieldText(columns[kCodigo]);
    entry.tipoText = table.fieldText(columns[kTipo]);
    PacienteRecord& record = entry.record;
    record.Codigo = dbfFieldToInt(entry.codigoText);
    record.Tipo = dbfFieldToInt(entry.tipoText);
    const auto cut = [&](PacienteField field, auto& buffer) {
        setRecordText(buffer, cutFieldText(table.fieldText(columns[field])));
    };
    cut(kNome, record.Nome);
    cut(kDataNasc, record.DataNasc);
    cut(kEndereco, record.Endereco);
    cut(kCidade, record.Cidade);
    cut(kEstado, record.Estado);
    cut(kCep, record.Cep);
    cut(kFoneR, record.FoneR);
    cut(kFoneC, record.FoneC);
    cut(kObs, record.Obs);
    return entry;
}

}  // namespace

std::string_view cutFieldText(std::string_view text) noexcept {
    for (std::size_t i = text.size(); i-- > 1;) {
        if (text[i] == ' ' && text[i - 1] != ' ') return text.substr(0, i);
    }
    return {};
}

struct CPacienteTable::OpenedTable {
    DbfTable table;
    Columns columns{};
};

CPacienteTable::CPacienteTable(std::filesystem::path dataRoot, Prompt& prompt)
    : m_dataRoot(std::move(dataRoot)), m_prompt(prompt) {}

void CPacienteTable::SetFileName(std::filesystem::path name) { m_fileName = std::move(name); }

std::filesystem::path CPacienteTable::TablePath() const { return findFileIgnoringCase(m_dataRoot / m_fileName); }

bool CPacienteTable::TableExists() const {
    std::error_code error;
    const auto status = std::filesystem::status(TablePath(), error);
    return !error && std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool CPacienteTable::RequireTable(const std::filesystem::path& name) {
    std::error_code error;
    const auto status = std::filesystem::status(findFileIgnoringCase(m_dataRoot / name), error);
    if (!error && std::filesystem::exists(status) && !std::filesystem::is_directory(status)) return true;
    m_prompt.showOk(kFileNotFound);
    return false;
}

// -1, or a number at or past the last row, means the last row. A table with no rows, or a number below -1 or
// 0, has no row to change: that is refused rather than guessed, so no other client is overwritten.
bool CPacienteTable::positionRow(DbfTable& table, int recordNumber) {
    if (table.recordCount() == 0 || recordNumber == 0 || recordNumber < -1) {
        m_prompt.showOk(kClientRowMissing);
        return false;
    }
    if (recordNumber == -1 || table.recordCount() <= recordNumber) {
        table.bottom();
    } else {
        table.go(recordNumber);
    }
    return true;
}

std::optional<CPacienteTable::OpenedTable> CPacienteTable::openTable() {
    DbfOpenResult result = DbfTable::open(TablePath());
    if (result.status == DbfOpenStatus::CannotOpen) {
        m_prompt.showOk(kFileNotFound);
        return std::nullopt;
    }
    if (result.status != DbfOpenStatus::Ok || result.table->fieldCount() != static_cast<int>(kPacienteFields.size())) {
        m_prompt.showOk(kInvalidFile);
        return std::nullopt;
    }
    // Each of the eleven names must be there, holding its value as text (character or numeric); another tool's
    // table may order or size them otherwise.
    OpenedTable opened{std::move(*result.table), {}};
    for (std::size_t i = 0; i < kPacienteFields.size(); ++i) {
        const int column = opened.table.fieldIndex(kPacienteFields[i].name);
        if (column < 0 || (opened.table.field(column).type != 'C' && opened.table.field(column).type != 'N')) {
            m_prompt.showOk(kInvalidFile);
            return std::nullopt;
        }
        opened.columns[i] = column;
    }
    return opened;
}

// Reads the table, changes it and writes it back, all under the whole-table lock, so that a row another copy of
// the program adds meanwhile is never lost. `change` returns false, after telling the user, to write nothing.
template <class Change>
bool CPacienteTable::changeTable(Change&& change) {
    TableLock lock(TablePath(), m_lockWait);
    if (lock.status() == TableLockStatus::Busy) {
        m_prompt.showOk(kTableInUse);
        return false;
    }
    if (lock.status() == TableLockStatus::CannotOpen) {
        m_prompt.showOk(formatText(m_prompt.inLanguage(kTableNotWritten).c_str(), TablePath().string().c_str()));
        return false;
    }
    std::optional<OpenedTable> opened = openTable();
    if (!opened) return false;
    if (!opened->table.sizeMatchesHeader()) {
        m_prompt.showOk(formatText(kTableReadOnly.data(), TablePath().string().c_str()));
        return false;
    }
    if (!change(*opened)) return false;
    return saveTable(opened->table);
}

bool CPacienteTable::saveTable(const DbfTable& table) {
    std::unique_ptr<TableFileWriter> writer = m_writerFactory(TablePath());
    if (writer && table.write(*writer, dbfToday())) return true;
    m_prompt.showOk(formatText(m_prompt.inLanguage(kTableNotWritten).c_str(), TablePath().string().c_str()));
    return false;
}

void CPacienteTable::CreateTable() {
    try {
        TableLock lock(TablePath(), m_lockWait);
        if (lock.status() == TableLockStatus::Busy) {
            m_prompt.showOk(kTableInUse);
            return;
        }
        // Another copy of the program may have made it while this one waited.
        if (TableExists()) return;
        const DbfTable table = DbfTable::create(kPacienteFields);
        std::unique_ptr<TableFileWriter> writer = m_writerFactory(TablePath());
        if (!writer || !table.write(*writer, dbfToday())) {
            m_prompt.showOk(formatText(m_prompt.inLanguage(kTableNotCreated).c_str(), TablePath().string().c_str()));
        }
    } catch (const std::bad_alloc&) {
        showNoMemory();
    }
}

int CPacienteTable::LoadClients(std::string_view filter) {
    try {
        if (!RequireTable(m_fileName)) return -1;
        std::optional<DbfEquality> equality;
        if (!isAllBlank(filter)) {
            equality = parseDbfEquality(filter);
            if (!equality || !isCodigo(equality->field)) {
                m_prompt.showOk(
                    formatText(m_prompt.inLanguage(kFilterNotUnderstood).c_str(), std::string(filter).c_str()));
                return -1;
            }
        }
        std::optional<OpenedTable> opened = openTable();
        if (!opened) return -1;
        DbfTable& table = opened->table;
        // The list is reloaded often: a mismatched table is told once, until it matches again or another opens.
        const bool mismatched = !table.sizeMatchesHeader();
        if (mismatched && m_readOnlyToldFor != TablePath())
            m_prompt.showOk(formatText(kTableReadOnly.data(), TablePath().string().c_str()));
        m_readOnlyToldFor = mismatched ? TablePath() : std::filesystem::path{};
        m_entries.clear();
        int last = 0;
        for (table.top(); !table.eof(); table.skip()) {
            if (equality && dbfFieldToInt(table.fieldText(opened->columns[kCodigo])) != equality->value) continue;
            if (!appendEntry(table, opened->columns)) return -1;
            last = table.recNo();
        }
        return last;
    } catch (const std::bad_alloc&) {
        showNoMemory();
        return -1;
    }
}

// A failed allocation keeps the entries read so far, as a list that ends early.
bool CPacienteTable::appendEntry(const DbfTable& table, const std::array<int, 11>& columns) {
    try {
        m_entries.push_back(readEntry(table, columns));
        return true;
    } catch (const std::bad_alloc&) {
        showNoMemory();
        return false;
    }
}

PacienteEntry* CPacienteTable::EntryAt(int index) {
    if (index < 0 || index >= Count()) return nullptr;
    return &m_entries[static_cast<std::size_t>(index)];
}

const PacienteEntry* CPacienteTable::EntryAt(int index) const {
    if (index < 0 || index >= Count()) return nullptr;
    return &m_entries[static_cast<std::size_t>(index)];
}

int CPacienteTable::NextFreeCode() const {
    int candidate = lowestCodeNotListed(1);
    while (clientFolderHoldsFiles(candidate)) candidate = lowestCodeNotListed(candidate + 1);
    return candidate;
}

// The lowest code from `from` up that no entry has. Only the count's worth of codes past `from` can be taken, so
// one mark per such code finds it in one pass; if even that memory is missing, the list is scanned from the head
// for each candidate in turn, which gives the same code.
int CPacienteTable::lowestCodeNotListed(int from) const {
    try {
        std::vector<bool> used(m_entries.size() + 1, false);
        for (const PacienteEntry& entry : m_entries) {
            const std::int64_t slot = static_cast<std::int64_t>(entry.record.Codigo) - from;
            if (slot >= 0 && static_cast<std::size_t>(slot) < used.size()) used[static_cast<std::size_t>(slot)] = true;
        }
        std::size_t slot = 0;
        while (used[slot]) ++slot;
        return from + static_cast<int>(slot);
    } catch (const std::bad_alloc&) {
        int candidate = from;
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            if (m_entries[i].record.Codigo == candidate) {
                ++candidate;
                i = static_cast<std::size_t>(-1);
            }
        }
        return candidate;
    }
}

// Any file at all in the folder, in whatever case it is spelled, belongs to someone: a recording, its notes or
// a report of an earlier client whose row has gone.
bool CPacienteTable::clientFolderHoldsFiles(int code) const {
    std::error_code error;
    const std::filesystem::directory_iterator entries(findFileIgnoringCase(m_dataRoot / ClientFolderName(code)), error);
    return !error && entries != std::filesystem::directory_iterator();
}

int CPacienteTable::InsertClient(const PacienteRecord& record) {
    try {
        if (!RequireTable(m_fileName)) return 0;
        const bool inserted = changeTable([&](OpenedTable& opened) {
            // A cut code would name another client's row and folder, so a code that does not fit is refused.
            const std::string code = formatText("%d", record.Codigo);
            const int width = opened.table.field(opened.columns[kCodigo]).length;
            if (record.Codigo < 1 || code.size() > static_cast<std::size_t>(width)) {
                m_prompt.showOk(formatText(m_prompt.inLanguage(kCodeDoesNotFit).c_str(), record.Codigo));
                return false;
            }
            // Two copies of the program on one data root may both have offered the same free code; the second
            // insert finds the first one's row here, under the lock, and refuses rather than share a folder.
            if (hasCode(opened.table, opened.columns, record.Codigo)) {
                m_prompt.showOk(formatText(m_prompt.inLanguage(kCodeTaken).c_str(), record.Codigo));
                return false;
            }
            opened.table.appendBlank();
            assignFields(opened.table, opened.columns, record);
            return true;
        });
        return inserted ? 1 : 0;
    } catch (const std::bad_alloc&) {
        showNoMemory();
        return 0;
    }
}

void CPacienteTable::UpdateClient(int recordNumber, const PacienteRecord& record) {
    try {
        if (!RequireTable(m_fileName)) {
            m_entries.clear();
            return;
        }
        changeTable([&](OpenedTable& opened) {
            if (!positionRow(opened.table, recordNumber)) return false;
            assignFields(opened.table, opened.columns, record);
            return true;
        });
    } catch (const std::bad_alloc&) {
        showNoMemory();
    }
}

int CPacienteTable::DeleteClient(int recordNumber) {
    try {
        if (!RequireTable(m_fileName)) {
            m_entries.clear();
            return -1;
        }
        const bool deleted = changeTable([&](OpenedTable& opened) {
            if (!positionRow(opened.table, recordNumber)) return false;
            opened.table.markDeleted();
            opened.table.pack();
            return true;
        });
        return deleted ? 1 : -1;
    } catch (const std::bad_alloc&) {
        showNoMemory();
        return -1;
    }
}

void CPacienteTable::showNoMemory() noexcept {
    try {
        m_prompt.showOk(kNoFreeMemory);
    } catch (...) {
        // With no memory even for the message there is nothing more to tell.
    }
}
