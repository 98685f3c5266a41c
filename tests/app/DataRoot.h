// Data roots for the shell's tests: a fresh folder with a client table made through the real table, clients in
// it, their folders and recordings; and an independent reading of pacb.dbf's rows, straight from the bytes of the
// published dBASE III layout, to check what the program left on disk.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "FakePrompt.h"
#include "TempDir.h"
#include "clients/CPacienteTable.h"

struct ClientSpec {
    int code;
    std::string name;
    int tipo = 0;
    std::string birth = {};  // eight digits month, day, year, or empty
};

inline PacienteRecord makeRecord(const ClientSpec& client) {
    PacienteRecord record;
    record.Codigo = client.code;
    setRecordText(record.Nome, client.name);
    record.Tipo = client.tipo;
    setRecordText(record.DataNasc, client.birth);
    return record;
}

// A data root with a table holding `clients` in this order, each with its folder.
class DataRoot : public TempDir {
public:
    explicit DataRoot(const std::vector<ClientSpec>& clients = {}) {
        FakePrompt quiet;
        CPacienteTable table(path(), quiet);
        table.SetFileName(std::string(kClientTableName));
        table.CreateTable();
        for (const ClientSpec& client : clients) {
            table.InsertClient(makeRecord(client));
            std::filesystem::create_directories(path() / ClientFolderName(client.code));
        }
    }
    // A recording file of client `code`, e.g. recording(3, "wv005.wav"); with `dated`, the seconds since 1970 of
    // its date file beside it.
    void recording(int code, const std::string& name, std::int64_t dated = -1) const {
        const std::string folder = ClientFolderName(code) + "/";
        write(folder + name, "RIFF");
        if (dated >= 0) write(folder + name.substr(0, name.size() - 3) + "ddt", std::to_string(dated));
    }
};

// Seconds since 1970 at midnight UTC of a calendar day.
inline std::int64_t utcSeconds(int year, unsigned month, unsigned day) {
    using namespace std::chrono;
    return sys_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}}
               .time_since_epoch()
               .count() *
           86400;
}

struct DbfRow {
    bool deleted;
    std::string codigo;  // the field's bytes, blanks included
    std::string nome;
    std::string tipo;
    std::string datanasc;
};

// Every row of a dBASE III file, read from its header: record count at byte 4, header and record lengths at 8
// and 10, each record a delete flag and then CODIGO (4), NOME (60), TIPO (4), DATANASC (12), ...
inline std::vector<DbfRow> readDbfRows(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    std::vector<DbfRow> rows;
    if (bytes.size() < 32) return rows;
    const auto u = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const std::uint32_t count = u(4) | (u(5) << 8) | (u(6) << 16) | (static_cast<std::uint32_t>(u(7)) << 24);
    const std::size_t headerLength = u(8) | (u(9) << 8);
    const std::size_t recordLength = u(10) | (u(11) << 8);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t at = headerLength + i * recordLength;
        if (at + recordLength > bytes.size()) break;
        rows.push_back({bytes[at] == '*', bytes.substr(at + 1, 4), bytes.substr(at + 5, 60), bytes.substr(at + 65, 4),
                        bytes.substr(at + 69, 12)});
    }
    return rows;
}

// The text of a field with its blank padding taken off the end.
inline std::string trimmed(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

// The names in the table's rows, in order, blanks taken off.
inline std::vector<std::string> tableNames(const std::filesystem::path& root) {
    std::vector<std::string> names;
    for (const DbfRow& row : readDbfRows(root / "pacb.dbf")) names.push_back(trimmed(row.nome));
    return names;
}
