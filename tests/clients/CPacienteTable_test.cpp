#include <gtest/gtest.h>

#include "ClientTables.h"
#include "FakePrompt.h"
#include "TempDir.h"
#include "clients/TableLock.h"
#include "store/TextFormat.h"

namespace {

class ClientTable : public ::testing::Test {
protected:
    TempDir root;
    FakePrompt prompt;
    CPacienteTable table{root.path(), prompt};

    std::filesystem::path file() const { return root / "pacb.dbf"; }
    void createWith(std::initializer_list<int> codes) {
        table.CreateTable();
        for (int code : codes) ASSERT_EQ(table.InsertClient(makeClient(code, "Client " + std::to_string(code))), 1);
    }
    std::vector<std::string> names() {
        std::vector<std::string> result;
        for (int i = 0; i < table.Count(); ++i) result.emplace_back(recordText(table.EntryAt(i)->record.Nome));
        return result;
    }
    // A table of the eleven fields whose first two fields are as given, row by row.
    void writeRows(const std::vector<std::vector<std::string>>& rows) {
        writeForeignTable(file(), kPacienteFields, rows);
    }
};

}  // namespace

TEST_F(ClientTable, AnEmptyTableLoadsWithNoEntriesAndOfferTheFirstCode) {
    table.CreateTable();
    EXPECT_TRUE(table.TableExists());
    EXPECT_EQ(table.LoadClients(), 0);
    EXPECT_EQ(table.Count(), 0);
    EXPECT_EQ(table.EntryAt(0), nullptr);
    EXPECT_EQ(table.NextFreeCode(), 1);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ClientTable, TheNextFreeCodeIsTheLowestUnusedWhateverTheRowOrder) {
    const struct {
        std::vector<int> codes;
        int next;
    } cases[] = {
        {{1, 2, 4}, 3}, {{4, 2, 1}, 3}, {{2, 3}, 1}, {{1, 1, 2}, 3}, {{3, 2, 1}, 4}, {{-5, 0, 1}, 2}, {{1000}, 1},
    };
    for (const auto& c : cases) {
        std::vector<std::vector<std::string>> rows;
        for (int code : c.codes) rows.push_back({std::to_string(code)});
        writeRows(rows);
        ASSERT_GE(table.LoadClients(), 0);
        EXPECT_EQ(table.NextFreeCode(), c.next) << "rows " << ::testing::PrintToString(c.codes);
    }
}

TEST_F(ClientTable, EveryFieldReadsBackAsWrittenAtTheLongestInput) {
    table.CreateTable();
    // Each input one character shorter than its field, with blanks inside, and bytes of a legacy code page.
    const std::string start = "Jo\xE3o da Silva  Ara\xFAjo ";
    const std::string name = start + std::string(59 - start.size(), 'N');
    PacienteRecord record = makeClient(7, name, 3);
    setRecordText(record.DataNasc, "02312000");
    setRecordText(record.Endereco, std::string(58, 'E') + "9");
    setRecordText(record.Cidade, "S\xE3o Paulo" + std::string(29 - 9, 'c'));
    setRecordText(record.Estado, "S P");
    setRecordText(record.Cep, "01310-10 00");
    setRecordText(record.FoneR, "(11) 5555-121");
    setRecordText(record.FoneC, "\xEC\xA0\x84\xED\x99\x94 5555");  // UTF-8 text stays bytes as well
    setRecordText(record.Obs, std::string(98, 'o') + "!");
    ASSERT_EQ(name.size(), 59u);
    ASSERT_EQ(table.InsertClient(record), 1);

    ASSERT_EQ(table.LoadClients(), 1);
    ASSERT_EQ(table.Count(), 1);
    const PacienteEntry& entry = *table.EntryAt(0);
    EXPECT_EQ(entry.codigoText, "7   ");
    EXPECT_EQ(entry.tipoText, "3   ");
    EXPECT_EQ(entry.record.Codigo, 7);
    EXPECT_EQ(entry.record.Tipo, 3);
    EXPECT_EQ(entry.Selected, 0);
    EXPECT_EQ(recordText(entry.record.Nome), name);
    for (auto [read, written] : {std::pair{recordText(entry.record.DataNasc), recordText(record.DataNasc)},
                                 {recordText(entry.record.Endereco), recordText(record.Endereco)},
                                 {recordText(entry.record.Cidade), recordText(record.Cidade)},
                                 {recordText(entry.record.Estado), recordText(record.Estado)},
                                 {recordText(entry.record.Cep), recordText(record.Cep)},
                                 {recordText(entry.record.FoneR), recordText(record.FoneR)},
                                 {recordText(entry.record.FoneC), recordText(record.FoneC)},
                                 {recordText(entry.record.Obs), recordText(record.Obs)}}) {
        EXPECT_EQ(read, written);
    }
}

TEST(CutRule, TrailingBlanksGoAndAFullFieldLosesItsLastWord) {
    const struct {
        const char* field;
        const char* read;
    } cases[] = {
        {"ANA   ", "ANA"}, {"      ", ""},  {"A  B  ", "A  B"},  // embedded double blanks stay
        {" X  ", " X"},    {"AB CD", "AB"}, {"ABCDE", ""},       // a full field: last word lost, or all
        {"A", ""},         {"", ""},        {"AB C ", "AB C"},
    };
    for (const auto& c : cases) EXPECT_EQ(cutFieldText(c.field), c.read) << '"' << c.field << '"';
}

TEST_F(ClientTable, AFullWidthNameFromAnotherToolLosesItsLastWordOrAllOfIt) {
    const std::string withBlank = "MARIA DA CONCEICAO " + std::string(60 - 19 - 6, 'X') + " SOUZA";
    const std::string withoutBlank(60, 'M');
    ASSERT_EQ(withBlank.size(), 60u);
    writeRows({{"1", withBlank}, {"2", withoutBlank}});
    ASSERT_EQ(table.LoadClients(), 2);
    EXPECT_EQ(names(), (std::vector<std::string>{withBlank.substr(0, 60 - 6), ""}));
}

TEST_F(ClientTable, NumbersWrittenRightJustifiedByAnotherToolReadAndMatch) {
    writeRows({{"  12", "Direita"}, {"3", "Esquerda"}});
    EXPECT_EQ(table.LoadClients("CODIGO=12"), 1);
    EXPECT_EQ(names(), std::vector<std::string>{"Direita"});
    EXPECT_EQ(table.EntryAt(0)->codigoText, "  12");
}

TEST_F(ClientTable, AFilterLoadsTheMatchesAndReturnsTheLastMatchingRecordNumber) {
    // A table written elsewhere may hold one code twice.
    writeRows({{"5", "Client 5"}, {"7", "Client 7"}, {"5", "Client 5 again"}});
    EXPECT_EQ(table.LoadClients("CODIGO=5"), 3);
    EXPECT_EQ(listedCodes(table), (std::vector<int>{5, 5}));
    EXPECT_EQ(table.LoadClients("CODIGO = 7"), 2);
    EXPECT_EQ(listedCodes(table), std::vector<int>{7});
    EXPECT_EQ(table.EntryAt(1), nullptr);
    // No match: the count is 0 and the previous list is gone.
    table.LoadClients("CODIGO=9");
    EXPECT_EQ(table.Count(), 0);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ClientTable, AFilterOtherThanAnEqualityOfTheCodeIsRefusedAndTheListKept) {
    createWith({1, 2, 3});
    ASSERT_EQ(table.LoadClients(""), 3);
    for (const char* filter : {"NOME=1", "CODIGO>1", "CODIGO=1 .OR. CODIGO=2", "CODIGO=um"}) {
        prompt.shown.clear();
        EXPECT_EQ(table.LoadClients(filter), -1) << filter;
        EXPECT_EQ(prompt.shown,
                  std::vector<std::string>{formatText("The client search \"%s\" can\xC2\xB4t be understood!\n"
                                                      "Only CODIGO = number is accepted.",
                                                      filter)});
        EXPECT_EQ(table.Count(), 3);
    }
}

TEST_F(ClientTable, UpdatingARowPastTheEndOrMinusOneChangesTheLastRow) {
    for (int recordNumber : {2, -1, 3, 4, 1000}) {
        std::filesystem::remove(file());
        createWith({1, 2, 3});
        table.UpdateClient(recordNumber, makeClient(9, "Changed"));
        ASSERT_EQ(table.LoadClients(), 3);
        const std::vector<int> expected = recordNumber == 2 ? std::vector<int>{1, 9, 3} : std::vector<int>{1, 2, 9};
        EXPECT_EQ(listedCodes(table), expected) << "record " << recordNumber;
    }
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ClientTable, DeletingPacksTheTableAndMovesLaterRecordsUp) {
    createWith({1, 2, 3, 4});
    EXPECT_EQ(table.DeleteClient(2), 1);
    EXPECT_EQ(table.LoadClients("CODIGO=3"), 2);  // record numbers move up after a delete
    EXPECT_EQ(table.DeleteClient(99), 1);         // past the end: the last row goes
    EXPECT_EQ(table.DeleteClient(-1), 1);
    ASSERT_EQ(table.LoadClients(), 1);
    EXPECT_EQ(listedCodes(table), std::vector<int>{1});
    EXPECT_EQ(table.DeleteClient(1), 1);  // the only row
    EXPECT_EQ(readBytes(file()).size(), 386u);
    EXPECT_EQ(table.LoadClients(), 0);
    EXPECT_EQ(table.Count(), 0);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST_F(ClientTable, WithNoRowToChangeNothingIsWrittenAndTheUserIsTold) {
    table.CreateTable();
    const auto empty = readBytes(file());
    EXPECT_EQ(table.DeleteClient(-1), -1);
    table.UpdateClient(1, makeClient(1, "Nobody"));
    createWith({1});
    const auto one = readBytes(file());
    EXPECT_EQ(table.DeleteClient(0), -1);
    table.UpdateClient(-2, makeClient(1, "Nobody"));
    EXPECT_EQ(readBytes(file()), one);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(4, std::string(kClientRowMissing)));
    EXPECT_EQ(empty.size(), 386u);
}

TEST_F(ClientTable, RowsDeletedByAnotherToolAreNotListedAndGoAtTheNextDelete) {
    createWith({1, 2, 3});
    DbfOpenResult opened = DbfTable::open(file());
    ASSERT_TRUE(opened.table->go(2));
    opened.table->markDeleted();
    opened.table->write(*openReplacingWriter(file()), DbfDate{2024, 1, 2});

    EXPECT_EQ(table.LoadClients(), 3);
    EXPECT_EQ(listedCodes(table), (std::vector<int>{1, 3}));
    EXPECT_EQ(table.LoadClients("CODIGO=2"), 0);
    EXPECT_EQ(table.LoadClients("CODIGO=3"), 3);  // record numbers count every row of the file
    EXPECT_EQ(table.DeleteClient(1), 1);
    EXPECT_EQ(DbfTable::open(file()).table->recordCount(), 1);
}

TEST_F(ClientTable, AMissingTableIsReportedAndEmptiesTheListOnlyForChanges) {
    createWith({1, 2});
    ASSERT_EQ(table.LoadClients(), 2);
    std::filesystem::remove(file());
    EXPECT_FALSE(table.TableExists());
    EXPECT_EQ(table.LoadClients(), -1);
    EXPECT_EQ(table.Count(), 2);
    EXPECT_EQ(table.InsertClient(makeClient(3, "C")), 0);
    EXPECT_EQ(table.Count(), 2);
    table.UpdateClient(1, makeClient(1, "A"));
    EXPECT_EQ(table.Count(), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(3, "File not found!"));

    createWith({1});
    ASSERT_EQ(table.LoadClients(), 1);
    std::filesystem::remove(file());
    prompt.shown.clear();
    EXPECT_EQ(table.DeleteClient(1), -1);
    EXPECT_EQ(table.Count(), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"File not found!"});
    EXPECT_FALSE(table.TableExists());
}

TEST_F(ClientTable, CreatingLeavesAnExistingTableAlone) {
    createWith({4});
    const auto before = readBytes(file());
    table.CreateTable();
    EXPECT_EQ(readBytes(file()), before);
}

TEST_F(ClientTable, ATableWithOtherFieldsIsInvalidAndNeverChanged) {
    std::vector<DbfFieldSpec> ten(kPacienteFields.begin(), kPacienteFields.end() - 1);
    std::vector<DbfFieldSpec> twelve(kPacienteFields.begin(), kPacienteFields.end());
    twelve.push_back({"EMAIL", 'C', 40, 0});
    std::vector<DbfFieldSpec> renamed = twelve;
    renamed.erase(renamed.begin() + 1);  // eleven fields, but no NOME
    std::vector<DbfFieldSpec> memo(kPacienteFields.begin(), kPacienteFields.end());
    memo[kObs] = {"OBS", 'M', 10, 0};  // notes kept in a memo file the table cannot reach
    for (const auto& fields : {ten, twelve, renamed, memo}) {
        createWith({1});
        ASSERT_EQ(table.LoadClients(), 1);
        writeForeignTable(file(), fields, {{"2", "Outra"}});
        const auto bytes = readBytes(file());
        prompt.shown.clear();
        EXPECT_EQ(table.LoadClients(), -1);
        EXPECT_EQ(table.Count(), 1);
        EXPECT_EQ(table.InsertClient(makeClient(5, "E")), 0);
        EXPECT_EQ(table.DeleteClient(1), -1);
        EXPECT_EQ(prompt.shown, std::vector<std::string>(3, "Invalid File!")) << fields.size() << " fields";
        EXPECT_EQ(readBytes(file()), bytes);
        std::filesystem::remove(file());
    }
}

TEST_F(ClientTable, ADamagedFileIsRefusedAsInvalidAndNeverOverwritten) {
    createWith({1, 2});
    const std::vector<std::uint8_t> good = readBytes(file());
    const auto with = [&](auto change) {
        std::vector<std::uint8_t> bytes = good;
        change(bytes);
        return bytes;
    };
    const struct {
        const char* what;
        std::vector<std::uint8_t> bytes;
    } cases[] = {
        {"shorter than a header", with([](auto& b) { b.resize(20); })},
        {"empty", {}},
        {"cut inside the second record", with([](auto& b) { b.resize(385 + 315 + 100); })},
        {"record count larger than the file", with([](auto& b) { b[4] = 3; })},
        {"record count beyond any file", with([](auto& b) { b[7] = 0x80; })},
        {"header length past the end of the file", with([](auto& b) { b[9] = 0x40; })},
        {"header length too small", with([](auto& b) { b[8] = 20, b[9] = 0; })},
        {"descriptor running past the header", with([](auto& b) { b[8] = 32 + 16, b[9] = 0; })},
        {"no terminator after the descriptors", with([](auto& b) { b[384] = 'X'; })},
        {"fields longer than the record", with([](auto& b) { b[10] = 200, b[11] = 0; })},
        {"a field of no width", with([](auto& b) { b[32 + 32 * 3 + 16] = 0; })},
    };
    for (const auto& c : cases) {
        ASSERT_EQ(table.LoadClients(), 2);
        writeBytes(file(), c.bytes);
        prompt.shown.clear();
        EXPECT_EQ(table.LoadClients(), -1) << c.what;
        EXPECT_EQ(table.Count(), 2) << c.what;
        EXPECT_EQ(table.InsertClient(makeClient(3, "C")), 0);
        table.UpdateClient(1, makeClient(1, "A"));
        EXPECT_EQ(table.DeleteClient(1), -1);
        EXPECT_EQ(prompt.shown, std::vector<std::string>(4, "Invalid File!")) << c.what;
        EXPECT_EQ(readBytes(file()), c.bytes) << c.what;
        writeBytes(file(), good);
    }
}

TEST_F(ClientTable, ACodeThatDoesNotFitItsFieldIsRefusedRatherThanCut) {
    createWith({9999});
    const auto before = readBytes(file());
    for (int code : {10000, 0, -1}) {
        EXPECT_EQ(table.InsertClient(makeClient(code, "Demais")), 0);
        EXPECT_EQ(prompt.last(), formatText("The client code %d can\xC2\xB4t be stored in the client table!\n"
                                            "The client was not inserted.",
                                            code));
    }
    EXPECT_EQ(readBytes(file()), before);
}

TEST_F(ClientTable, NewRowsGoToTheEndWhateverTheirCode) {
    createWith({5, 2, 9, 1});
    EXPECT_EQ(table.LoadClients(), 4);
    EXPECT_EQ(listedCodes(table), (std::vector<int>{5, 2, 9, 1}));
}

TEST_F(ClientTable, TheSelectionMarkIsPerLoadAndLeavesTheTypeAlone) {
    table.CreateTable();
    ASSERT_EQ(table.InsertClient(makeClient(1, "Cantora", 3)), 1);
    ASSERT_EQ(table.LoadClients(), 1);
    table.EntryAt(0)->Selected = 1;
    EXPECT_EQ(table.EntryAt(0)->record.Tipo, 3);
    ASSERT_EQ(table.LoadClients(), 1);
    EXPECT_EQ(table.EntryAt(0)->Selected, 0);
}

TEST(ClientFolder, TheFolderNameHasAtLeastThreeDigits) {
    EXPECT_EQ(ClientFolderName(7), "pac007");
    EXPECT_EQ(ClientFolderName(123), "pac123");
    EXPECT_EQ(ClientFolderName(1000), "pac1000");
}

TEST_F(ClientTable, AWriterWaitsABoundedTimeForAnotherWriterAndThenGivesUp) {
    createWith({1});
    const auto before = readBytes(file());
    table.SetLockWait(std::chrono::milliseconds(50));
    {
        TableLock other(file(), std::chrono::milliseconds(0));
        ASSERT_EQ(other.status(), TableLockStatus::Locked);
        EXPECT_EQ(table.InsertClient(makeClient(2, "B")), 0);
        EXPECT_EQ(table.DeleteClient(1), -1);
        EXPECT_EQ(prompt.shown, std::vector<std::string>(2, std::string(kTableInUse)));
        EXPECT_EQ(readBytes(file()), before);
        EXPECT_EQ(table.LoadClients(), 1);  // reading needs no lock
    }
    EXPECT_EQ(table.InsertClient(makeClient(2, "B")), 1);
    EXPECT_EQ(table.LoadClients(), 2);
}

TEST_F(ClientTable, ACodeAlreadyInTheTableIsNotGivenToASecondClient) {
    createWith({1, 2});
    const auto before = readBytes(file());
    EXPECT_EQ(table.InsertClient(makeClient(2, "Outra")), 0);
    EXPECT_EQ(prompt.last(), "The client code 2 was just given to another client!\nThe client was not inserted.");
    EXPECT_EQ(readBytes(file()), before);
}
