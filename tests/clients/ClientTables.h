// Helpers for the client-table tests: clients to insert, and tables to hand to the table as another tool would.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "clients/CPacienteTable.h"
#include "clients/DbfTable.h"
#include "clients/PacienteRecord.h"
#include "clients/TableFileWriter.h"

inline PacienteRecord makeClient(int code, std::string_view name, int tipo = 0) {
    PacienteRecord record;
    record.Codigo = code;
    record.Tipo = tipo;
    setRecordText(record.Nome, name);
    return record;
}

inline std::vector<std::uint8_t> readBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void writeBytes(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

// A table with the given fields and rows of raw field texts, as another program could have written it.
inline void writeForeignTable(const std::filesystem::path& path, std::span<const DbfFieldSpec> fields,
                              const std::vector<std::vector<std::string>>& rows) {
    DbfTable table = DbfTable::create(fields);
    for (const auto& row : rows) {
        table.appendBlank();
        for (std::size_t i = 0; i < row.size(); ++i) table.assign(static_cast<int>(i), row[i]);
    }
    const auto writer = openReplacingWriter(path);
    table.write(*writer, DbfDate{2024, 5, 17});
}

// The codes of the list, in list order.
inline std::vector<int> listedCodes(const CPacienteTable& table) {
    std::vector<int> codes;
    for (int i = 0; i < table.Count(); ++i) codes.push_back(table.EntryAt(i)->record.Codigo);
    return codes;
}
