#include <fstream>

#include "ClientTables.h"
#include "clients/DbfFilter.h"

// The empty table as the published layout lays it down, made by tests/data/clients/make-empty-pacb.py.
TEST_F(ClientTable, ACreatedTableAndARecordHaveTheExactPublishedLayout) {
    std::ifstream in(SONALYS_SOURCE_DIR "/tests/data/clients/empty-pacb.dbf", std::ios::binary);
    const std::string empty{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    ASSERT_EQ(empty.size(), 386u);
    table.CreateTable();
    std::string made = bytes();
    made.replace(1, 3, empty.substr(1, 3));  // only the day it was made may differ
    EXPECT_EQ(made, empty);

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
