// The client table against independent dBase readers and writers: GDAL (ogrinfo, ogr2ogr) and dbview.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "ClientTables.h"
#include "FakePrompt.h"
#include "TempDir.h"

namespace {

struct FieldShape {
    const char* name;
    const char* ogrType;  // how GDAL names the dBase type
    char type;
    int length;
};
const FieldShape kFields[] = {
    {"CODIGO", "Integer", 'N', 4},   {"NOME", "String", 'C', 60},     {"TIPO", "Integer", 'N', 4},
    {"DATANASC", "String", 'C', 12}, {"ENDERECO", "String", 'C', 60}, {"CIDADE", "String", 'C', 30},
    {"ESTADO", "String", 'C', 4},    {"CEP", "String", 'C', 12},      {"FONER", "String", 'C', 14},
    {"FONEC", "String", 'C', 14},    {"OBS", "String", 'C', 100},
};

using Row = std::array<std::string, 11>;  // the eleven values in field order, as text

// Two clients with every field filled, each value shorter than its field.
const Row kClients[] = {
    {"12", "Ana Paula Lima", "1", "03151990", "Rua da Aurora 1200 apto 31", "Recife", "PE", "50050-000",
     "(81)3222-1111", "(81)9999-0000", "Professora, disfonia leve"},
    {"1000", "Bruno Souza", "3", "12011985", "Av. Boa Viagem 50", "Jaboatao", "PE", "54400-000", "(81)3333-2222",
     "(81)9888-7777", "Cantor lirico; tenor"},
};

bool haveTool(const std::string& name) { return std::system(("command -v " + name + " >/dev/null 2>&1").c_str()) == 0; }

std::string run(const std::string& command) {
    std::string output;
    if (std::FILE* pipe = ::popen(command.c_str(), "r")) {
        char buffer[4096];
        std::size_t count;
        while ((count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) output.append(buffer, count);
        ::pclose(pipe);
    }
    return output;
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) result.push_back(line);
    return result;
}

PacienteRecord recordOf(const Row& row) {
    PacienteRecord r;
    r.Codigo = std::stoi(row[0]);
    setRecordText(r.Nome, row[1]);
    r.Tipo = std::stoi(row[2]);
    setRecordText(r.DataNasc, row[3]);
    setRecordText(r.Endereco, row[4]);
    setRecordText(r.Cidade, row[5]);
    setRecordText(r.Estado, row[6]);
    setRecordText(r.Cep, row[7]);
    setRecordText(r.FoneR, row[8]);
    setRecordText(r.FoneC, row[9]);
    setRecordText(r.Obs, row[10]);
    return r;
}

Row rowOf(const PacienteRecord& r) {
    return {std::to_string(r.Codigo),
            std::string(recordText(r.Nome)),
            std::to_string(r.Tipo),
            std::string(recordText(r.DataNasc)),
            std::string(recordText(r.Endereco)),
            std::string(recordText(r.Cidade)),
            std::string(recordText(r.Estado)),
            std::string(recordText(r.Cep)),
            std::string(recordText(r.FoneR)),
            std::string(recordText(r.FoneC)),
            std::string(recordText(r.Obs))};
}

std::filesystem::path writeOurTable(const TempDir& root) {
    FakePrompt prompt;
    CPacienteTable table(root.path(), prompt);
    table.CreateTable();
    for (const Row& row : kClients) EXPECT_EQ(table.InsertClient(recordOf(row)), 1);
    EXPECT_TRUE(prompt.shown.empty());
    return table.TablePath();
}

}  // namespace

TEST(Interop, GdalReadsOurTableWithTheElevenFieldsAndTheirValues) {
    if (!haveTool("ogrinfo")) GTEST_SKIP() << "ogrinfo (gdal-bin) is not installed";
    TempDir root;
    const std::string path = writeOurTable(root).string();

    std::vector<std::string> schema;
    for (const std::string& line : lines(run("ogrinfo -ro -al -so '" + path + "'"))) {
        if (line.find(": Integer (") != std::string::npos || line.find(": String (") != std::string::npos) {
            schema.push_back(line);
        }
    }
    std::vector<std::string> expectedSchema;
    for (const FieldShape& f : kFields) {
        expectedSchema.push_back(std::string(f.name) + ": " + f.ogrType + " (" + std::to_string(f.length) + ".0)");
    }
    EXPECT_EQ(schema, expectedSchema);

    // Feature lines read "  NAME (Type) = value".
    std::vector<std::map<std::string, std::string>> features;
    for (const std::string& line : lines(run("ogrinfo -ro -al -q '" + path + "'"))) {
        if (line.rfind("OGRFeature(", 0) == 0) features.emplace_back();
        const std::size_t equals = line.find(" = ");
        const std::size_t open = line.find(" (");
        if (features.empty() || line.rfind("  ", 0) != 0 || equals == std::string::npos || open > equals) continue;
        features.back()[line.substr(2, open - 2)] = line.substr(equals + 3);
    }
    ASSERT_EQ(features.size(), std::size(kClients));
    for (std::size_t i = 0; i < features.size(); ++i) {
        for (std::size_t f = 0; f < 11; ++f) EXPECT_EQ(features[i][kFields[f].name], kClients[i][f]) << kFields[f].name;
    }
}

TEST(Interop, DbviewReadsOurTableWithTheElevenFieldsAndTheirValues) {
    if (!haveTool("dbview")) GTEST_SKIP() << "dbview is not installed";
    TempDir root;
    const std::string path = writeOurTable(root).string();

    std::vector<std::string> schema;
    for (const std::string& line : lines(run("dbview -e -r -o '" + path + "'"))) {
        std::istringstream words(line);
        std::string name, type, length, decimals;
        if (words >> name >> type >> length >> decimals && name != "Field") {
            schema.push_back(name + " " + type + " " + length + " " + decimals);
        }
    }
    std::vector<std::string> expectedSchema;
    for (const FieldShape& f : kFields) {
        expectedSchema.push_back(std::string(f.name) + " " + f.type + " " + std::to_string(f.length) + " 0");
    }
    EXPECT_EQ(schema, expectedSchema);

    // Browse mode: one line per record, each field trimmed and followed by the delimiter.
    std::vector<Row> rows;
    for (const std::string& line : lines(run("dbview -b -t -r -d '|' '" + path + "'"))) {
        Row row;
        std::size_t start = 0;
        for (std::string& value : row) {
            const std::size_t end = line.find('|', start);
            if (end == std::string::npos) break;
            value = line.substr(start, end - start);
            start = end + 1;
        }
        rows.push_back(row);
    }
    ASSERT_EQ(rows.size(), std::size(kClients));
    for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i], kClients[i]);
}

TEST(Interop, ATableWrittenByGdalFromACsvLoadsWithTheSameValues) {
    if (!haveTool("ogr2ogr")) GTEST_SKIP() << "ogr2ogr (gdal-bin) is not installed";
    TempDir work;
    std::ofstream csv(work / "pacientes.csv");
    std::ofstream types(work / "pacientes.csvt");
    for (std::size_t f = 0; f < 11; ++f) {
        csv << (f ? "," : "") << kFields[f].name;
        types << (f ? "," : "") << '"' << kFields[f].ogrType << '(' << kFields[f].length << ")\"";
    }
    csv << "\n";
    types << "\n";
    // The second client leaves its optional fields empty, as a client with no birth date or phone would.
    const Row rows[] = {kClients[0], {"7", "Carla Dias", "2", "", "", "Olinda", "", "", "", "", ""}};
    for (const Row& row : rows) {
        for (std::size_t f = 0; f < 11; ++f) csv << (f ? "," : "") << '"' << row[f] << '"';
        csv << "\n";
    }
    csv.close();
    types.close();
    run("ogr2ogr -f 'ESRI Shapefile' '" + (work / "out").string() + "' '" + (work / "pacientes.csv").string() +
        "' 2>&1");
    const std::filesystem::path written = work / "out" / "pacientes.dbf";
    ASSERT_TRUE(std::filesystem::exists(written));

    DbfOpenResult opened = DbfTable::open(written);
    ASSERT_EQ(opened.status, DbfOpenStatus::Ok);
    ASSERT_EQ(opened.table->fieldCount(), 11);
    for (int f = 0; f < 11; ++f) {
        const DbfField& field = opened.table->field(f);
        EXPECT_EQ(field.name, kFields[f].name);
        EXPECT_EQ(field.type, kFields[f].type) << field.name;
        EXPECT_EQ(field.length, kFields[f].length) << field.name;
    }

    TempDir root;
    std::filesystem::copy_file(written, root / "pacb.dbf");
    FakePrompt prompt;
    CPacienteTable table(root.path(), prompt);
    ASSERT_EQ(table.LoadClients(), 2);
    ASSERT_EQ(table.Count(), 2);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(rowOf(table.EntryAt(i)->record), rows[i]);
    EXPECT_EQ(table.EntryAt(0)->codigoText, "  12");  // GDAL justifies numbers to the right
    EXPECT_EQ(table.LoadClients("CODIGO = 7"), 2);
    EXPECT_EQ(table.NextFreeCode(), 1);
    EXPECT_TRUE(prompt.shown.empty());
}
