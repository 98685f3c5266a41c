// The client table against independent dBase readers and writers: GDAL (ogrinfo, ogr2ogr) and dbview.
#include <array>
#include <fstream>
#include <sstream>

#include "ClientTables.h"
#include "RunCommand.h"

namespace {

// How GDAL names the dBase types of the eleven fields.
const char* ogrType(const DbfFieldSpec& field) { return field.type == 'N' ? "Integer" : "String"; }

using Row = std::array<std::string, 11>;  // the eleven values in field order, as text

// Two clients with every field filled, each value shorter than its field.
const Row kClients[] = {
    {"12", "Ana Paula Lima", "1", "03151990", "Rua da Aurora 1200 apto 31", "Recife", "PE", "50050-000",
     "(81)3222-1111", "(81)9999-0000", "Professora, disfonia leve"},
    {"1000", "Bruno Souza", "3", "12011985", "Av. Boa Viagem 50", "Jaboatao", "PE", "54400-000", "(81)3333-2222",
     "(81)9888-7777", "Cantor lirico; tenor"},
};

std::vector<std::string> lines(const std::string& command) { return splitLines(runCommand(command).output); }

// The nine text buffers of a record with their places in the field order.
template <class Record, class Visit>
void eachText(Record& r, Visit visit) {
    visit(1, r.Nome), visit(3, r.DataNasc), visit(4, r.Endereco), visit(5, r.Cidade), visit(6, r.Estado);
    visit(7, r.Cep), visit(8, r.FoneR), visit(9, r.FoneC), visit(10, r.Obs);
}

PacienteRecord recordOf(const Row& row) {
    PacienteRecord r = makeClient(std::stoi(row[0]), "", std::stoi(row[2]));
    eachText(r, [&](int f, auto& buffer) { setRecordText(buffer, row[f]); });
    return r;
}

Row rowOf(const PacienteRecord& r) {
    Row row{std::to_string(r.Codigo), "", std::to_string(r.Tipo)};
    eachText(r, [&](int f, const auto& buffer) { row[f] = recordText(buffer); });
    return row;
}

class Interop : public ClientTable {
protected:
    std::string writeOurTable() {
        table.CreateTable();
        for (const Row& row : kClients) EXPECT_EQ(table.InsertClient(recordOf(row)), 1);
        EXPECT_TRUE(prompt.shown.empty());
        return quoted(file());
    }
};

}  // namespace

TEST_F(Interop, GdalReadsOurTableWithTheElevenFieldsAndTheirValues) {
    if (!toolAvailable("ogrinfo")) GTEST_SKIP() << "ogrinfo (gdal-bin) is not installed";
    const std::string path = writeOurTable();
    // Each feature lists every field as "  NAME (Type) = value".
    std::vector<std::string> fieldLines, expected;
    for (const std::string& line : lines("ogrinfo -ro -al -q " + path))
        if (line.rfind("  ", 0) == 0 && line.find(" = ") != std::string::npos) fieldLines.push_back(line);
    for (const Row& row : kClients)
        for (std::size_t f = 0; f < 11; ++f)
            expected.push_back("  " + std::string(kPacienteFields[f].name) + " (" + ogrType(kPacienteFields[f]) +
                               ") = " + row[f]);
    EXPECT_EQ(fieldLines, expected);
}

TEST_F(Interop, DbviewReadsOurTableWithTheElevenFieldsAndTheirValues) {
    if (!toolAvailable("dbview")) GTEST_SKIP() << "dbview is not installed";
    const std::string path = writeOurTable();
    std::vector<std::string> schema, expectedSchema;
    for (const std::string& line : lines("dbview -e -r -o " + path)) {
        std::istringstream words(line);
        std::string name, type, length, decimals;
        if (words >> name >> type >> length >> decimals && name != "Field")
            schema.push_back(name + " " + type + " " + length + " " + decimals);
    }
    for (const DbfFieldSpec& f : kPacienteFields)
        expectedSchema.push_back(std::string(f.name) + " " + f.type + " " + std::to_string(f.length) + " 0");
    EXPECT_EQ(schema, expectedSchema);

    std::vector<Row> rows;  // browse mode: one line per record, each field trimmed and followed by the delimiter
    for (const std::string& line : lines("dbview -b -t -r -d '|' " + path)) {
        Row& row = rows.emplace_back();
        std::size_t start = 0;
        for (std::size_t end, f = 0; f < 11 && (end = line.find('|', start)) != std::string::npos; ++f, start = end + 1)
            row[f] = line.substr(start, end - start);
    }
    EXPECT_EQ(rows, std::vector<Row>(std::begin(kClients), std::end(kClients)));
}

TEST_F(Interop, ATableWrittenByGdalFromACsvLoadsWithTheSameValues) {
    if (!toolAvailable("ogr2ogr")) GTEST_SKIP() << "ogr2ogr (gdal-bin) is not installed";
    TempDir work;
    std::ofstream csv(work / "pacientes.csv"), types(work / "pacientes.csvt");
    for (std::size_t f = 0; f < 11; ++f) {
        csv << (f ? "," : "") << kPacienteFields[f].name;
        types << (f ? "," : "") << '"' << ogrType(kPacienteFields[f]) << '(' << int(kPacienteFields[f].length) << ")\"";
    }
    // The second client leaves its optional fields empty, as a client with no birth date or phone would.
    const Row rows[] = {kClients[0], {"7", "Carla Dias", "2", "", "", "Olinda", "", "", "", "", ""}};
    for (const Row& row : rows) {
        csv << "\n";
        for (std::size_t f = 0; f < 11; ++f) csv << (f ? "," : "") << '"' << row[f] << '"';
    }
    csv << "\n";
    csv.close();
    types.close();
    runCommand("ogr2ogr -f 'ESRI Shapefile' " + quoted(work / "out") + " " + quoted(work / "pacientes.csv") + " 2>&1");
    const std::filesystem::path written = work / "out" / "pacientes.dbf";
    ASSERT_TRUE(std::filesystem::exists(written));

    std::filesystem::copy_file(written, file());
    ASSERT_EQ(table.LoadClients(), 2);  // eleven fields of the right types, or the table would be refused
    for (int i = 0; i < 2; ++i) EXPECT_EQ(rowOf(table.EntryAt(i)->record), rows[i]);
    EXPECT_EQ(table.EntryAt(0)->codigoText, "  12");  // GDAL justifies numbers to the right
    EXPECT_EQ(table.LoadClients("CODIGO = 7"), 2);
    EXPECT_EQ(table.NextFreeCode(), 1);
    EXPECT_TRUE(prompt.shown.empty());
}
