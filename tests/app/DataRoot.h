// Data roots for the shell's tests: a fresh folder with a client table made through the real table, clients in
// it, their folders and recordings; and the table's rows read back.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "FakePrompt.h"
#include "TempDir.h"
#include "clients/CPacienteTable.h"

struct ClientSpec {
    int code;
    std::string name;
    int tipo = 0;
};

inline PacienteRecord makeRecord(const ClientSpec& client) {
    PacienteRecord record;
    record.Codigo = client.code;
    setRecordText(record.Nome, client.name);
    record.Tipo = client.tipo;
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
inline std::int64_t utcSeconds(int year, int month, int day) {
    using namespace std::chrono;
    return sys_seconds{sys_days{std::chrono::year{year} / month / day}}.time_since_epoch().count();
}

// The client table's live rows, in order, as the table itself reads them back (its bytes on disk are the client
// table's own tests' concern).
inline std::vector<PacienteRecord> tableRecords(const std::filesystem::path& root) {
    FakePrompt quiet;
    CPacienteTable table(root, quiet);
    table.SetFileName(std::string(kClientTableName));
    table.LoadClients();
    std::vector<PacienteRecord> records;
    for (int i = 0; i < table.Count(); ++i) records.push_back(table.EntryAt(i)->record);
    return records;
}

// The names in the table's rows, in order.
inline std::vector<std::string> tableNames(const std::filesystem::path& root) {
    std::vector<std::string> names;
    for (const PacienteRecord& record : tableRecords(root)) names.emplace_back(recordText(record.Nome));
    return names;
}
