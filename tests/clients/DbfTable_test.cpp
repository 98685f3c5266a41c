#include <cstring>

#include "ClientTables.h"
#include "clients/DbfFilter.h"

namespace {

// The empty client table as the file format lays it down, typed out here rather than taken from the code.
std::string expectedEmptyTable(const DbfDate& date) {
    const std::pair<const char*, int> fields[] = {{"CODIGO", 4},    {"NOME", 60},   {"TIPO", 4},   {"DATANASC", 12},
                                                  {"ENDERECO", 60}, {"CIDADE", 30}, {"ESTADO", 4}, {"CEP", 12},
                                                  {"FONER", 14},    {"FONEC", 14},  {"OBS", 100}};
    const int headerLength = 32 + 11 * 32 + 1;                                        // 385
    const int recordLength = 1 + 4 + 60 + 4 + 12 + 60 + 30 + 4 + 12 + 14 + 14 + 100;  // 315
    std::string bytes(32, '\0');
    bytes[0] = 0x03;
    bytes[1] = static_cast<char>(date.year - 1900);
    bytes[2] = static_cast<char>(date.month);
    bytes[3] = static_cast<char>(date.day);
    bytes[8] = static_cast<char>(headerLength & 0xFF);
    bytes[9] = static_cast<char>(headerLength >> 8);
    bytes[10] = static_cast<char>(recordLength & 0xFF);
    bytes[11] = static_cast<char>(recordLength >> 8);
    for (const auto& [name, length] : fields) {
        std::string descriptor(32, '\0');
        descriptor.replace(0, std::strlen(name), name);
        descriptor[11] = std::string_view(name) == "CODIGO" || std::string_view(name) == "TIPO" ? 'N' : 'C';
        descriptor[16] = static_cast<char>(length);
        bytes += descriptor;
    }
    return bytes + "\x0D\x1A";
}

}  // namespace

TEST_F(ClientTable, ACreatedTableAndARecordHaveTheExactPublishedLayout) {
    const DbfDate before = dbfToday();
    table.CreateTable();
    const DbfDate after = dbfToday();
    // The header carries the day it was written; around midnight that is either of the two days.
    EXPECT_EQ(bytes(), bytes() == expectedEmptyTable(after) ? expectedEmptyTable(after) : expectedEmptyTable(before));
    EXPECT_EQ(bytes().size(), 386u);

    // A name one character shorter than its field, blanks inside, bytes of a legacy code page kept as they are.
    const std::string name = "Jo\xE3o da Silva  Ara\xFAjo " + std::string(59 - 23, 'N');
    PacienteRecord record = makeClient(12, name, 1);
    setRecordText(record.DataNasc, "03151990");
    setRecordText(record.Cidade, "Recife");
    setRecordText(record.Obs, "rouca");
    ASSERT_EQ(table.InsertClient(record), 1);
    const std::string written = bytes();
    ASSERT_EQ(written.size(), 385u + 315u + 1u);
    EXPECT_EQ(written.substr(4, 4), std::string("\x01\0\0\0", 4));  // record count
    const auto pad = [](std::string text, std::size_t width) { return text.append(width - text.size(), ' '); };
    const std::string expectedRecord = " " + pad("12", 4) + pad(name, 60) + pad("1", 4) + pad("03151990", 12) +
                                       pad("", 60) + pad("Recife", 30) + pad("", 4) + pad("", 12) + pad("", 14) +
                                       pad("", 14) + pad("rouca", 100);
    EXPECT_EQ(written.substr(385), expectedRecord + "\x1A");
    EXPECT_TRUE(prompt.shown.empty());

    ASSERT_EQ(table.LoadClients(), 1);
    EXPECT_EQ(names(), std::vector<std::string>{name});
    EXPECT_EQ(table.EntryAt(0)->codigoText, "12  ");
    EXPECT_EQ(table.EntryAt(0)->tipoText, "1   ");
    // A table marked as having memo fields is written back as the plain table it is.
    root.write("pacb.dbf", "\x83" + written.substr(1));
    ASSERT_EQ(table.InsertClient(makeClient(13, "B")), 1);
    EXPECT_EQ(bytes()[0], '\x03');
    ASSERT_EQ(table.LoadClients("CODIGO=12"), 1);
    table.EntryAt(0)->Selected = 1;  // the backup mark lives in the list only
    ASSERT_EQ(table.LoadClients("CODIGO=12"), 1);
    EXPECT_EQ(table.EntryAt(0)->Selected, 0);
}

TEST(DbfFilter, AnEqualityOfAFieldWithAnIntegerIsUnderstoodWithOrWithoutBlanks) {
    for (const char* text : {"CODIGO=12", "CODIGO = 12", "  CODIGO=   12  ", "codigo=+12", "CODIGO\t=\t12"}) {
        const auto equality = parseDbfEquality(text);
        ASSERT_TRUE(equality.has_value()) << text;
        EXPECT_EQ(equality->value, 12) << text;
    }
    EXPECT_EQ(parseDbfEquality("CODIGO=-3")->value, -3);
    for (const char* text : {"", "CODIGO", "CODIGO=", "CODIGO==12", "CODIGO=12 AND TIPO=1", "CODIGO>12", "CODIGO=1.5",
                             "CODIGO=abc", "CODIGO=12x", "=12", "CODIGO=99999999999", "'CODIGO'=1", "CODIGO=+-1"}) {
        EXPECT_FALSE(parseDbfEquality(text).has_value()) << text;
    }
    const std::pair<const char*, int> numbers[] = {{"12  ", 12},
                                                   {"  12", 12},
                                                   {" -7 ", -7},
                                                   {"    ", 0},
                                                   {"4x2", 4},
                                                   {"99999999999999999999", INT32_MAX},
                                                   {"-99999999999999999999", INT32_MIN}};
    for (const auto& [text, value] : numbers) EXPECT_EQ(dbfFieldToInt(text), value) << '"' << text << '"';
}
