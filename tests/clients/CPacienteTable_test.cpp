#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <set>

#include "ClientTables.h"
#include "clients/TableLock.h"
#include "store/TextFormat.h"

TEST_F(ClientTable, TheNextFreeCodeIsTheLowestUnusedWhateverTheRowOrder) {
    const struct {
        std::vector<int> codes;
        int next;
    } cases[] = {{{}, 1},        {{1, 2, 4}, 3}, {{4, 2, 1}, 3},  {{2, 3}, 1},
                 {{1, 1, 2}, 3}, {{3, 2, 1}, 4}, {{-5, 0, 1}, 2}, {{1000}, 1}};
    for (const auto& c : cases) {
        std::vector<std::vector<std::string>> rows;
        for (int code : c.codes) rows.push_back({std::to_string(code)});
        writeRows(rows);
        ASSERT_EQ(table.LoadClients(), static_cast<int>(c.codes.size()));
        EXPECT_EQ(table.NextFreeCode(), c.next) << "rows " << ::testing::PrintToString(c.codes);
    }
    EXPECT_EQ(table.EntryAt(1), nullptr);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(CutRule, TrailingBlanksGoAndAFullFieldLosesItsLastWord) {
    const std::pair<const char*, const char*> cases[] = {{"ANA   ", "ANA"}, {"      ", ""},  {"A  B  ", "A  B"},
                                                         {" X  ", " X"},    {"AB CD", "AB"}, {"ABCDE", ""},
                                                         {"A", ""},         {"", ""},        {"AB C ", "AB C"}};
    for (const auto& [field, read] : cases) EXPECT_EQ(cutFieldText(field), read) << '"' << field << '"';
    EXPECT_EQ(ClientFolderName(7), "pac007");
    EXPECT_EQ(ClientFolderName(1000), "pac1000");
}

TEST_F(ClientTable, AFilterLoadsTheMatchesOrIsRefusedAndTheListKept) {
    writeRows({{"5", "A"}, {"7", "B"}, {"5", "C"}});  // a table written elsewhere may hold one code twice
    EXPECT_EQ(table.LoadClients("CODIGO=5"), 3);      // the last matching record number
    EXPECT_EQ(codes(), (std::vector<int>{5, 5}));
    EXPECT_EQ(table.LoadClients("CODIGO = 7"), 2);
    EXPECT_EQ(codes(), std::vector<int>{7});
    for (const char* filter : {"NOME=1", "CODIGO>1", "CODIGO=1 .OR. CODIGO=2", "CODIGO=um"}) {
        prompt.shown.clear();
        EXPECT_EQ(table.LoadClients(filter), -1) << filter;
        EXPECT_EQ(prompt.shown, std::vector<std::string>{formatText("The client search \"%s\" can\xC2\xB4t be "
                                                                    "understood!\nOnly CODIGO = number is accepted.",
                                                                    filter)});
        EXPECT_EQ(codes(), std::vector<int>{7});
    }
    table.LoadClients("CODIGO=9");
    EXPECT_EQ(table.Count(), 0);
}

TEST_F(ClientTable, UpdatingOrDeletingARowPastTheEndOrMinusOneChangesTheLastRow) {
    for (int recordNumber : {2, -1, 3, 1000}) {
        std::filesystem::remove(file());
        createWith({1, 2, 3});
        table.UpdateClient(recordNumber, makeClient(9, "Changed"));
        ASSERT_EQ(table.LoadClients(), 3);
        EXPECT_EQ(codes(), (recordNumber == 2 ? std::vector<int>{1, 9, 3} : std::vector<int>{1, 2, 9})) << recordNumber;
    }
    std::filesystem::remove(file());
    createWith({1, 2, 3, 4});
    EXPECT_EQ(table.DeleteClient(2), 1);
    EXPECT_EQ(table.LoadClients("CODIGO=3"), 2);  // record numbers move up after a delete
    EXPECT_EQ(table.DeleteClient(99), 1);
    EXPECT_EQ(table.DeleteClient(-1), 1);
    ASSERT_EQ(table.LoadClients(), 1);
    EXPECT_EQ(codes(), std::vector<int>{1});
    EXPECT_EQ(table.DeleteClient(1), 1);
    EXPECT_EQ(bytes().size(), 386u);
    EXPECT_TRUE(prompt.shown.empty());

    const std::string empty = bytes();  // with no row to change, nothing is written and the user is told
    EXPECT_EQ(table.DeleteClient(-1), -1);
    table.UpdateClient(1, makeClient(1, "Nobody"));
    EXPECT_EQ(bytes(), empty);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(2, std::string(kClientRowMissing)));
}

// Rows flagged deleted by another tool are rows like any other until the next delete packs the table; their codes
// are taken. A code whose folder holds any file is never offered: a new client would inherit those recordings.
TEST_F(ClientTable, FlaggedRowsAreListedAndNoNewClientGetsAFolderThatHoldsFiles) {
    createWith({1, 2, 3});
    DbfOpenResult opened = DbfTable::open(file());
    ASSERT_TRUE(opened.table->go(2));
    opened.table->markDeleted();
    opened.table->write(*openReplacingWriter(file()), DbfDate{2024, 1, 2});
    EXPECT_EQ(table.LoadClients("CODIGO=2"), 2);
    ASSERT_EQ(table.LoadClients(), 3);
    EXPECT_EQ(codes(), (std::vector<int>{1, 2, 3}));
    root.write("PAC004/WV001.WAV", "old voice");
    root.write("pac005/qv002.txt", "old notes");
    std::filesystem::create_directory(root / "pac006");  // an empty folder holds nobody's data
    EXPECT_EQ(table.NextFreeCode(), 6);
    EXPECT_EQ(table.DeleteClient(1), 1);
    EXPECT_EQ(DbfTable::open(file()).table->recordCount(), 1);
}

// A table copied from Windows under another case is the table: it is read and written under its own name, and
// no second table is ever made beside it.
TEST_F(ClientTable, ATableNamedInAnotherCaseIsUsedAndNeverDoubled) {
    createWith({1});
    std::filesystem::rename(file(), root / "PACB.DBF");
    EXPECT_TRUE(table.TableExists());
    table.CreateTable();
    EXPECT_EQ(table.InsertClient(makeClient(2, "B")), 1);
    ASSERT_EQ(table.LoadClients(), 2);
    EXPECT_EQ(codes(), (std::vector<int>{1, 2}));
    EXPECT_FALSE(std::filesystem::exists(file()));
    EXPECT_TRUE(prompt.shown.empty());
}

// A header that counts other rows than the file holds is never written: the table is read as far as it goes,
// every whole row listed once the user is told why, and every change refused with the reason.
TEST_F(ClientTable, ATableWhoseSizeDisagreesWithItsHeaderIsReadOnlyAndLosesNothing) {
    createWith({1, 2, 3});
    const std::string good = bytes();
    const std::string readOnly = formatText(kTableReadOnly.data(), file().string().c_str());
    const struct {
        const char* what;
        std::string bytes;
        std::vector<int> listed;
    } cases[] = {
        {"counts two of three rows", good.substr(0, 4) + '\x02' + good.substr(5), {1, 2, 3}},
        {"counts four of three rows", good.substr(0, 4) + '\x04' + good.substr(5), {1, 2, 3}},
        {"cut inside the third row", good.substr(0, 385 + 2 * 315 + 100), {1, 2}},
        {"junk after the end byte", good + "junk", {1, 2, 3}},
    };
    for (const auto& c : cases) {
        root.write("pacb.dbf", good);
        ASSERT_EQ(table.LoadClients(), 3);  // matching again: the next mismatch is told anew
        root.write("pacb.dbf", c.bytes);
        prompt.shown.clear();
        EXPECT_GE(table.LoadClients(), 0) << c.what;
        EXPECT_EQ(codes(), c.listed) << c.what;
        EXPECT_GE(table.LoadClients(), 0) << c.what;  // loaded again, as the program often does: told once
        EXPECT_EQ(table.InsertClient(makeClient(9, "C")), 0);
        table.UpdateClient(1, makeClient(1, "A"));
        EXPECT_EQ(table.DeleteClient(1), -1);
        EXPECT_EQ(prompt.shown, std::vector<std::string>(4, readOnly)) << c.what;
        EXPECT_EQ(bytes(), c.bytes) << c.what;
    }
}

TEST_F(ClientTable, AMissingTableIsReportedAndEmptiesTheListOnlyForChanges) {
    createWith({1, 2});
    ASSERT_EQ(table.LoadClients(), 2);
    std::filesystem::remove(file());
    EXPECT_FALSE(table.TableExists());
    EXPECT_EQ(table.LoadClients(), -1);
    EXPECT_EQ(table.InsertClient(makeClient(3, "C")), 0);
    EXPECT_EQ(table.Count(), 2);
    table.UpdateClient(1, makeClient(1, "A"));
    EXPECT_EQ(table.Count(), 0);
    EXPECT_EQ(table.DeleteClient(1), -1);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(4, "File not found!"));
    EXPECT_FALSE(table.TableExists());
}

TEST_F(ClientTable, InsertAppendsAndRefusesACodeThatDoesNotFitOrIsTaken) {
    createWith({5, 2, 9999});
    table.CreateTable();  // an existing table is left alone
    ASSERT_EQ(table.LoadClients(), 3);
    EXPECT_EQ(codes(), (std::vector<int>{5, 2, 9999}));
    const std::string before = bytes();
    for (int code : {10000, 0, -1}) {
        EXPECT_EQ(table.InsertClient(makeClient(code, "Demais")), 0);
        EXPECT_EQ(prompt.last(), formatText("The client code %d can\xC2\xB4t be stored in the client table!\n"
                                            "The client was not inserted.",
                                            code));
    }
    EXPECT_EQ(table.InsertClient(makeClient(2, "Outra")), 0);
    EXPECT_EQ(prompt.last(), "The client code 2 was just given to another client!\nThe client was not inserted.");
    EXPECT_EQ(bytes(), before);
}

TEST_F(ClientTable, AnInvalidOrDamagedFileIsRefusedAndNeverOverwritten) {
    createWith({1, 2});
    const std::string good = bytes();
    const auto with = [&](auto change) {
        std::string b = good;
        change(b);
        return b;
    };
    const auto foreign = [&](std::vector<DbfFieldSpec> fields) {
        writeForeignTable(root / "other.dbf", fields, {{"2", "Outra"}});
        return root.read("other.dbf");
    };
    std::vector<DbfFieldSpec> twelve(kPacienteFields.begin(), kPacienteFields.end());
    twelve.push_back({"EMAIL", 'C', 40, 0});
    std::vector<DbfFieldSpec> noNome = twelve, memo(kPacienteFields.begin(), kPacienteFields.end());
    noNome.erase(noNome.begin() + 1);
    memo[kObs] = {"OBS", 'M', 10, 0};  // notes kept in a memo file the table cannot reach
    const std::pair<const char*, std::string> cases[] = {
        {"ten fields", foreign({kPacienteFields.begin(), kPacienteFields.end() - 1})},
        {"twelve fields", foreign(twelve)},
        {"eleven fields but no NOME", foreign(noNome)},
        {"a memo field", foreign(memo)},
        {"shorter than a header", good.substr(0, 20)},
        {"empty", ""},
        {"header length past the end of the file", with([](auto& b) { b[9] = 0x40; })},
        {"header length too small", with([](auto& b) { b[8] = 20, b[9] = 0; })},
        {"descriptor running past the header", with([](auto& b) { b[8] = 32 + 16, b[9] = 0; })},
        {"no terminator after the descriptors", with([](auto& b) { b[384] = 'X'; })},
        {"fields longer than the record", with([](auto& b) { b[10] = '\xC8', b[11] = 0; })},
        {"a field of no width", with([](auto& b) { b[32 + 32 * 3 + 16] = 0; })},
    };
    for (const auto& [what, damaged] : cases) {
        root.write("pacb.dbf", good);
        ASSERT_EQ(table.LoadClients(), 2);
        root.write("pacb.dbf", damaged);
        prompt.shown.clear();
        EXPECT_EQ(table.LoadClients(), -1) << what;
        EXPECT_EQ(table.Count(), 2) << what;
        EXPECT_EQ(table.InsertClient(makeClient(3, "C")), 0);
        table.UpdateClient(1, makeClient(1, "A"));
        EXPECT_EQ(table.DeleteClient(1), -1);
        EXPECT_EQ(prompt.shown, std::vector<std::string>(4, "Invalid File!")) << what;
        EXPECT_EQ(bytes(), damaged) << what;
    }
}

TEST_F(ClientTable, AWriterWaitsABoundedTimeForAnotherWriterAndThenGivesUp) {
    createWith({1});
    const std::string before = bytes();
    table.SetLockWait(std::chrono::milliseconds(50));
    {
        TableLock other(file(), std::chrono::milliseconds(0));
        ASSERT_EQ(other.status(), TableLockStatus::Locked);
        EXPECT_EQ(table.InsertClient(makeClient(2, "B")), 0);
        EXPECT_EQ(table.DeleteClient(1), -1);
        EXPECT_EQ(prompt.shown, std::vector<std::string>(2, std::string(kTableInUse)));
        EXPECT_EQ(bytes(), before);
        EXPECT_EQ(table.LoadClients(), 1);  // reading needs no lock
    }
    EXPECT_EQ(table.InsertClient(makeClient(2, "B")), 1);
}

TEST_F(ClientTable, TwoProcessesInsertingAtOnceBothSucceedAndNoRowIsLost) {
    table.CreateTable();
    constexpr int kEach = 40;
    int startPipe[2];
    ASSERT_EQ(::pipe(startPipe), 0);
    std::vector<pid_t> children;
    for (int first : {1, 101}) {
        const pid_t pid = ::fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {  // another copy of the program, as a clinician at another computer
            char go;
            ::close(startPipe[1]);
            if (::read(startPipe[0], &go, 1) != 0) ::_exit(3);  // both start when the pipe closes
            FakePrompt silent;
            CPacienteTable other(root.path(), silent);
            for (int code = first; code < first + kEach; ++code)
                if (other.InsertClient(makeClient(code, "Worker")) != 1) ::_exit(1);
            ::_exit(0);
        }
        children.push_back(pid);
    }
    ::close(startPipe[0]);
    ::close(startPipe[1]);
    for (pid_t pid : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(pid, &status, 0), pid);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    ASSERT_EQ(table.LoadClients(), 2 * kEach);
    const std::vector<int> listed = codes();
    std::set<int> expected;
    for (int i = 0; i < kEach; ++i) expected.insert({1 + i, 101 + i});
    EXPECT_EQ(std::set<int>(listed.begin(), listed.end()), expected);
}

namespace {

// Passes writes to the real writer until the chosen step, where it fails as a full disk or a crash would.
class FailingWriter final : public TableFileWriter {
public:
    FailingWriter(std::unique_ptr<TableFileWriter> real, int failAt, int& steps)
        : m_real(std::move(real)), m_failAt(failAt), m_steps(steps) {}
    bool write(std::span<const std::uint8_t> bytes) override { return step() && m_real->write(bytes); }
    bool commit() override { return step() && m_real->commit(); }

private:
    bool step() { return m_steps++ != m_failAt; }
    std::unique_ptr<TableFileWriter> m_real;
    int m_failAt;
    int& m_steps;
};

}  // namespace

TEST_F(ClientTable, AChangeInterruptedAtEveryWriteLeavesTheOldTableOrTheNewOne) {
    const std::vector<std::string> oldNames = {"Client 1", "Client 2", "Client 3"};
    const std::tuple<const char*, std::function<void()>, std::vector<std::string>> changes[] = {
        {"update", [&] { table.UpdateClient(2, makeClient(2, "B")); }, {"Client 1", "B", "Client 3"}},
        {"delete", [&] { table.DeleteClient(2); }, {"Client 1", "Client 3"}},
        {"insert", [&] { table.InsertClient(makeClient(4, "D")); }, {"Client 1", "Client 2", "Client 3", "D"}},
    };
    for (const auto& [what, change, newNames] : changes) {
        std::filesystem::remove(file());
        createWith({1, 2, 3});
        const std::string oldBytes = bytes();
        const int expectedSteps = 1 + static_cast<int>(newNames.size()) + 1 + 1;  // header, rows, end, commit
        for (int failAt = 0;; ++failAt) {
            int steps = 0;
            table.SetWriterFactory([&](const std::filesystem::path& target) {
                return std::make_unique<FailingWriter>(openReplacingWriter(target), failAt, steps);
            });
            prompt.shown.clear();
            change();
            table.SetWriterFactory(openReplacingWriter);
            ASSERT_GE(table.LoadClients(), 0) << what << " failing at step " << failAt;
            if (failAt >= steps) {  // every step passed: the change is in
                EXPECT_EQ(failAt, expectedSteps) << what;
                EXPECT_TRUE(prompt.shown.empty()) << what;
                EXPECT_EQ(names(), newNames) << what;
                break;
            }
            EXPECT_EQ(bytes(), oldBytes) << what << " failing at step " << failAt;
            EXPECT_EQ(prompt.shown, std::vector<std::string>{formatText("The client table %s can\xC2\xB4t be written!\n"
                                                                        "The previous table was kept unchanged.",
                                                                        file().string().c_str())});
            std::set<std::string> files;  // nothing is left behind beside the table but its lock file
            for (const auto& entry : std::filesystem::directory_iterator(root.path()))
                files.insert(entry.path().filename().string());
            EXPECT_EQ(files, (std::set<std::string>{"pacb.dbf", "pacb.lck"}));
            ASSERT_LT(failAt, 100);
        }
    }
}
