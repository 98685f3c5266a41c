// A change to the table interrupted at any write (a crash, a full disk) must leave a table that loads, holding
// either the old rows or the new ones.
#include <gtest/gtest.h>

#include <functional>

#include "ClientTables.h"
#include "FakePrompt.h"
#include "TempDir.h"
#include "store/TextFormat.h"

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

struct Change {
    const char* what;
    std::function<void(CPacienteTable&)> run;
    std::vector<std::string> newNames;
};

std::vector<std::string> loadedNames(CPacienteTable& table) {
    std::vector<std::string> names;
    if (table.LoadClients() < 0) return {"(does not load)"};
    for (int i = 0; i < table.Count(); ++i) names.emplace_back(recordText(table.EntryAt(i)->record.Nome));
    return names;
}

}  // namespace

TEST(CrashSafety, AChangeInterruptedAtEveryWriteLeavesTheOldTableOrTheNewOne) {
    const std::vector<std::string> oldNames = {"Ana", "Bia", "Caio"};
    const Change changes[] = {
        {"update", [](CPacienteTable& t) { t.UpdateClient(2, makeClient(2, "Beatriz")); }, {"Ana", "Beatriz", "Caio"}},
        {"delete", [](CPacienteTable& t) { t.DeleteClient(2); }, {"Ana", "Caio"}},
        {"insert", [](CPacienteTable& t) { t.InsertClient(makeClient(4, "Davi")); }, {"Ana", "Bia", "Caio", "Davi"}},
    };
    for (const Change& change : changes) {
        TempDir root;
        FakePrompt prompt;
        CPacienteTable table(root.path(), prompt);
        table.CreateTable();
        for (int i = 0; i < 3; ++i) table.InsertClient(makeClient(i + 1, oldNames[static_cast<std::size_t>(i)]));
        const std::vector<std::uint8_t> oldBytes = readBytes(root / "pacb.dbf");

        // The header, each row, the end byte and the commit: one failure point each.
        const int expectedSteps = 1 + static_cast<int>(change.newNames.size()) + 1 + 1;
        for (int failAt = 0;; ++failAt) {
            int steps = 0;
            table.SetWriterFactory([&](const std::filesystem::path& target) {
                return std::make_unique<FailingWriter>(openReplacingWriter(target), failAt, steps);
            });
            prompt.shown.clear();
            change.run(table);
            table.SetWriterFactory(openReplacingWriter);
            if (failAt >= steps) {  // every step passed: the change is in
                EXPECT_EQ(failAt, expectedSteps) << change.what;
                EXPECT_TRUE(prompt.shown.empty()) << change.what;
                EXPECT_EQ(loadedNames(table), change.newNames) << change.what;
                break;
            }
            EXPECT_EQ(readBytes(root / "pacb.dbf"), oldBytes) << change.what << " failing at step " << failAt;
            EXPECT_EQ(loadedNames(table), oldNames) << change.what << " failing at step " << failAt;
            EXPECT_EQ(prompt.shown, std::vector<std::string>{formatText(
                                        "The client table %s can\xC2\xB4t be written!\nThe previous table was kept "
                                        "unchanged.",
                                        (root / "pacb.dbf").string().c_str())});
            // Nothing is left behind beside the table but its lock file.
            std::vector<std::string> files;
            for (const auto& entry : std::filesystem::directory_iterator(root.path())) {
                files.push_back(entry.path().filename().string());
            }
            std::sort(files.begin(), files.end());
            EXPECT_EQ(files, (std::vector<std::string>{"pacb.dbf", "pacb.lck"}));
            ASSERT_LT(failAt, 100);
        }
    }
}
