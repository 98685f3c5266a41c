#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "ClientTables.h"
#include "clients/TableLock.h"
#include "store/TextFormat.h"

TEST_F(ClientTable, TheNextFreeCodeIsTheLowestUnusedWhateverTheRowOrder) {
    const std::pair<std::vector<int>, int> cases[] = {{{4, 2, 1}, 3}, {{2, 3}, 1}, {{1, 1, 2}, 3}, {{-5, 0, 1}, 2}};
    for (const auto& [codes, next] : cases) {
        std::vector<std::vector<std::string>> rows;
        for (int code : codes) rows.push_back({std::to_string(code)});
        writeRows(rows);
        ASSERT_EQ(table.LoadClients(), static_cast<int>(codes.size()));
        EXPECT_EQ(table.NextFreeCode(), next) << ::testing::PrintToString(codes);
    }
}

TEST(CutRule, TrailingBlanksGoAndAFullFieldLosesItsLastWord) {
    const std::pair<const char*, const char*> cases[] = {{"ANA   ", "ANA"}, {"      ", ""},  {"A  B  ", "A  B"},
                                                         {" X  ", " X"},    {"AB CD", "AB"}, {"ABCDE", ""},
                                                         {"A", ""},         {"", ""},        {"AB C ", "AB C"}};
    for (const auto& [field, read] : cases) EXPECT_EQ(cutFieldText(field), read) << '"' << field << '"';
}

TEST_F(ClientTable, AFilterLoadsTheMatchesOrIsRefusedAndTheListKept) {
    writeRows({{"5", "A"}, {"7", "B"}, {"5", "C"}});  // a table written elsewhere may hold one code twice
    EXPECT_EQ(table.LoadClients("CODIGO=5"), 3);      // the last matching record number
    EXPECT_EQ(codes(), (std::vector<int>{5, 5}));
    EXPECT_EQ(table.LoadClients("  codigo =\t7 "), 2);
    EXPECT_EQ(codes(), std::vector<int>{7});
    for (const char* filter : {"NOME=1", "CODIGO>1", "CODIGO=1 .OR. CODIGO=2", "CODIGO=um", "CODIGO=99999999999"}) {
        EXPECT_EQ(table.LoadClients(filter), -1) << filter;
        EXPECT_EQ(prompt.last(), formatText(kFilterNotUnderstood.data(), filter));
        EXPECT_EQ(codes(), std::vector<int>{7});
    }
}

TEST_F(ClientTable, UpdatingOrDeletingARowPastTheEndOrMinusOneChangesTheLastRow) {
    const struct {
        bool remove;
        int recordNumber;
        std::vector<int> left;
    } cases[] = {{false, 2, {1, 9, 3}}, {false, -1, {1, 2, 9}}, {false, 1000, {1, 2, 9}},
                 {true, 2, {1, 3}},     {true, -1, {1, 2}},     {true, 99, {1, 2}}};
    for (const auto& c : cases) {
        std::filesystem::remove(file());
        createWith({1, 2, 3});
        if (c.remove) {
            EXPECT_EQ(table.DeleteClient(c.recordNumber), 1);
        } else {
            table.UpdateClient(c.recordNumber, makeClient(9, "Changed"));
        }
        ASSERT_EQ(table.LoadClients(), static_cast<int>(c.left.size()));
        EXPECT_EQ(codes(), c.left) << c.remove << " " << c.recordNumber;
    }
    EXPECT_TRUE(prompt.shown.empty());
    while (table.DeleteClient(1) == 1) {
    }
    EXPECT_EQ(bytes().size(), 386u);  // with no row left to change, the user is told
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kClientRowMissing)});
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
        refuseEveryChange();
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
    EXPECT_EQ(table.Count(), 2);
    refuseEveryChange();
    EXPECT_EQ(table.Count(), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(4, "File not found!"));
    EXPECT_FALSE(table.TableExists());
}

TEST_F(ClientTable, InsertRefusesACodeThatDoesNotFitOrIsTaken) {
    createWith({5, 2, 9999});
    const std::string before = bytes();
    for (int code : {10000, 0, -1, 2}) EXPECT_EQ(table.InsertClient(makeClient(code, "Outra")), 0) << code;
    EXPECT_EQ(prompt.shown, (std::vector<std::string>{
                                formatText(kCodeDoesNotFit.data(), 10000), formatText(kCodeDoesNotFit.data(), 0),
                                formatText(kCodeDoesNotFit.data(), -1), formatText(kCodeTaken.data(), 2)}));
    EXPECT_EQ(bytes(), before);
}

// Tables of another tool and damaged headers, made by tests/data/clients/make-invalid-tables.py.
TEST_F(ClientTable, AnInvalidOrDamagedFileIsRefusedAndNeverOverwritten) {
    createWith({1, 2});
    const std::string good = bytes();
    int seen = 0;
    for (const auto& entry : std::filesystem::directory_iterator(SONALYS_SOURCE_DIR "/tests/data/clients/invalid")) {
        const std::string what = entry.path().filename().string();
        root.write("pacb.dbf", good);
        ASSERT_EQ(table.LoadClients(), 2);
        std::filesystem::copy_file(entry.path(), file(), std::filesystem::copy_options::overwrite_existing);
        const std::string damaged = bytes();
        prompt.shown.clear();
        EXPECT_EQ(table.LoadClients(), -1) << what;
        EXPECT_EQ(table.Count(), 2) << what;
        refuseEveryChange();
        EXPECT_EQ(prompt.shown, std::vector<std::string>(4, "Invalid File!")) << what;
        EXPECT_EQ(bytes(), damaged) << what;
        ++seen;
    }
    EXPECT_EQ(seen, 12);
}

TEST_F(ClientTable, AWriterWaitsABoundedTimeForAnotherWriterAndThenGivesUp) {
    createWith({1});
    const std::string before = bytes();
    table.SetLockWait(std::chrono::milliseconds(50));
    const TableLock other(file(), std::chrono::milliseconds(0));
    ASSERT_EQ(other.status(), TableLockStatus::Locked);
    EXPECT_EQ(table.InsertClient(makeClient(2, "B")), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kTableInUse)});
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(table.LoadClients(), 1);  // reading needs no lock
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
    createWith({1, 2, 3});
    const std::string oldBytes = bytes();
    for (int failAt = 0;; ++failAt) {
        int steps = 0;
        table.SetWriterFactory([&](const std::filesystem::path& target) {
            return std::make_unique<FailingWriter>(openReplacingWriter(target), failAt, steps);
        });
        prompt.shown.clear();
        table.UpdateClient(2, makeClient(2, "B"));
        table.SetWriterFactory(openReplacingWriter);
        ASSERT_EQ(table.LoadClients(), 3) << "failing at step " << failAt;
        if (failAt >= steps) {                 // every step passed: the change is in
            EXPECT_EQ(failAt, 1 + 3 + 1 + 1);  // header, rows, end byte, commit
            EXPECT_TRUE(prompt.shown.empty());
            EXPECT_EQ(recordText(table.EntryAt(1)->record.Nome), "B");
            break;
        }
        EXPECT_EQ(bytes(), oldBytes) << "failing at step " << failAt;
        EXPECT_EQ(prompt.shown, std::vector<std::string>{formatText(kTableNotWritten.data(), file().string().c_str())});
        ASSERT_LT(failAt, 100);
    }
}
