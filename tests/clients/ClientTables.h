// Helpers for the client-table tests: clients to insert, tables as another tool would write them, and a fixture.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "FakePrompt.h"
#include "TempDir.h"
#include "clients/CPacienteTable.h"
#include "clients/DbfTable.h"
#include "clients/TableFileWriter.h"

inline PacienteRecord makeClient(int code, std::string_view name, int tipo = 0) {
    PacienteRecord record;
    record.Codigo = code;
    record.Tipo = tipo;
    setRecordText(record.Nome, name);
    return record;
}

// A table with the given fields and rows of raw field texts, as another program could have written it.
inline void writeForeignTable(const std::filesystem::path& path, std::span<const DbfFieldSpec> fields,
                              const std::vector<std::vector<std::string>>& rows) {
    DbfTable table = DbfTable::create(fields);
    for (const auto& row : rows) {
        table.appendBlank();
        for (std::size_t i = 0; i < row.size(); ++i) table.assign(static_cast<int>(i), row[i]);
    }
    table.write(*openReplacingWriter(path), DbfDate{2024, 5, 17});
}

class ClientTable : public ::testing::Test {
protected:
    TempDir root;
    FakePrompt prompt;
    CPacienteTable table{root.path(), prompt};

    std::filesystem::path file() const { return root / "pacb.dbf"; }
    std::string bytes() const { return root.read("pacb.dbf"); }
    void createWith(std::initializer_list<int> codes) {
        table.CreateTable();
        for (int code : codes) ASSERT_EQ(table.InsertClient(makeClient(code, "Client " + std::to_string(code))), 1);
    }
    void writeRows(const std::vector<std::vector<std::string>>& r) { writeForeignTable(file(), kPacienteFields, r); }
    // Insert, update and delete, each refused: the user is told and nothing is written.
    void refuseEveryChange() {
        EXPECT_EQ(table.InsertClient(makeClient(9, "C")), 0);
        table.UpdateClient(1, makeClient(1, "A"));
        EXPECT_EQ(table.DeleteClient(1), -1);
    }
    std::vector<int> codes() const {
        std::vector<int> result;
        for (int i = 0; i < table.Count(); ++i) result.push_back(table.EntryAt(i)->record.Codigo);
        return result;
    }
};
