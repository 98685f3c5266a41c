#include <gtest/gtest.h>

#include "ClientTables.h"
#include "FakePrompt.h"
#include "TempDir.h"
#include "clients/DbfFilter.h"

namespace {

struct Descriptor {
    const char* name;
    char type;
    int length;
};
// The client table's fields as the file format lays them down, typed out here rather than taken from the code.
const Descriptor kExpectedFields[] = {
    {"CODIGO", 'N', 4},    {"NOME", 'C', 60},   {"TIPO", 'N', 4},   {"DATANASC", 'C', 12},
    {"ENDERECO", 'C', 60}, {"CIDADE", 'C', 30}, {"ESTADO", 'C', 4}, {"CEP", 'C', 12},
    {"FONER", 'C', 14},    {"FONEC", 'C', 14},  {"OBS", 'C', 100},
};

std::vector<std::uint8_t> expectedEmptyTable(const DbfDate& date) {
    std::vector<std::uint8_t> bytes(32, 0);
    bytes[0] = 0x03;
    bytes[1] = static_cast<std::uint8_t>(date.year - 1900);
    bytes[2] = static_cast<std::uint8_t>(date.month);
    bytes[3] = static_cast<std::uint8_t>(date.day);
    const int headerLength = 32 + 11 * 32 + 1;                                        // 385
    const int recordLength = 1 + 4 + 60 + 4 + 12 + 60 + 30 + 4 + 12 + 14 + 14 + 100;  // 315
    bytes[8] = headerLength & 0xFF;
    bytes[9] = headerLength >> 8;
    bytes[10] = recordLength & 0xFF;
    bytes[11] = recordLength >> 8;
    for (const Descriptor& field : kExpectedFields) {
        std::uint8_t descriptor[32] = {};
        std::memcpy(descriptor, field.name, std::strlen(field.name));
        descriptor[11] = static_cast<std::uint8_t>(field.type);
        descriptor[16] = static_cast<std::uint8_t>(field.length);
        bytes.insert(bytes.end(), std::begin(descriptor), std::end(descriptor));
    }
    bytes.push_back(0x0D);
    bytes.push_back(0x1A);
    return bytes;
}

}  // namespace

TEST(DbfTable, ACreatedClientTableHasTheExactPublishedLayout) {
    TempDir root;
    FakePrompt prompt;
    CPacienteTable clients(root.path(), prompt);
    const DbfDate before = dbfToday();
    clients.CreateTable();
    const DbfDate after = dbfToday();
    const std::vector<std::uint8_t> bytes = readBytes(root / "pacb.dbf");
    // The header carries the day it was written; around midnight that is either of the two days.
    const std::vector<std::uint8_t> expected =
        bytes == expectedEmptyTable(after) ? expectedEmptyTable(after) : expectedEmptyTable(before);
    EXPECT_EQ(bytes, expected);
    EXPECT_EQ(expected.size(), 386u);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(DbfTable, ARecordIsTheDeleteFlagThenEachFieldLeftJustifiedAndBlankPadded) {
    TempDir root;
    FakePrompt prompt;
    CPacienteTable clients(root.path(), prompt);
    clients.CreateTable();
    PacienteRecord record = makeClient(12, "ANA LIMA", 1);
    setRecordText(record.DataNasc, "03151990");
    setRecordText(record.Cidade, "Recife");
    setRecordText(record.Obs, "rouca");
    ASSERT_EQ(clients.InsertClient(record), 1);

    const std::vector<std::uint8_t> bytes = readBytes(root / "pacb.dbf");
    ASSERT_EQ(bytes.size(), 385u + 315u + 1u);
    EXPECT_EQ(bytes[4], 1);  // record count
    EXPECT_EQ(bytes[5] | bytes[6] | bytes[7], 0);
    const auto pad = [](std::string text, std::size_t width) { return text.append(width - text.size(), ' '); };
    const std::string expectedRecord = " " + pad("12", 4) + pad("ANA LIMA", 60) + pad("1", 4) + pad("03151990", 12) +
                                       pad("", 60) + pad("Recife", 30) + pad("", 4) + pad("", 12) + pad("", 14) +
                                       pad("", 14) + pad("rouca", 100);
    ASSERT_EQ(expectedRecord.size(), 315u);
    EXPECT_EQ(std::string(bytes.begin() + 385, bytes.begin() + 700), expectedRecord);
    EXPECT_EQ(std::string(bytes.begin() + 386, bytes.begin() + 390), "12  ");
    EXPECT_EQ(bytes.back(), 0x1A);
}

TEST(DbfTable, PackRemovesEveryDeletedRecordAndKeepsTheOrderOfTheRest) {
    const DbfFieldSpec fields[] = {{"N", 'N', 3, 0}};
    DbfTable table = DbfTable::create(fields);
    for (const char* value : {"1", "2", "3", "4", "5"}) {
        table.appendBlank();
        table.assign(0, value);
    }
    for (int number : {1, 3, 5}) {
        ASSERT_TRUE(table.go(number));
        table.markDeleted();
    }
    table.pack();
    ASSERT_EQ(table.recordCount(), 2);
    std::string kept;
    for (table.top(); !table.eof(); table.skip()) kept += std::string(table.fieldText(0)) + "|";
    EXPECT_EQ(kept, "2  |4  |");
    EXPECT_FALSE(table.go(3));
    table.bottom();
    EXPECT_EQ(table.recNo(), 2);
}

TEST(DbfTable, AssignCutsAtTheFieldWidthAfterFillingWithBlanks) {
    const DbfFieldSpec fields[] = {{"A", 'C', 5, 0}, {"B", 'C', 3, 0}};
    DbfTable table = DbfTable::create(fields);
    table.appendBlank();
    table.assign(1, "xyz");
    table.assign(0, "abcdefgh");
    EXPECT_EQ(table.fieldText(0), "abcde");
    EXPECT_EQ(table.fieldText(1), "xyz");  // the neighbour is untouched by the longer text
    table.assign(0, "ab");
    EXPECT_EQ(table.fieldText(0), "ab   ");
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
}

TEST(DbfFilter, NumericTextReadsWithBlanksOnEitherSide) {
    EXPECT_EQ(dbfFieldToInt("12  "), 12);
    EXPECT_EQ(dbfFieldToInt("  12"), 12);
    EXPECT_EQ(dbfFieldToInt(" -7 "), -7);
    EXPECT_EQ(dbfFieldToInt("    "), 0);
    EXPECT_EQ(dbfFieldToInt("4x2"), 4);
    EXPECT_EQ(dbfFieldToInt("99999999999999999999"), 2147483647);
    EXPECT_EQ(dbfFieldToInt("-99999999999999999999"), -2147483647 - 1);
}
