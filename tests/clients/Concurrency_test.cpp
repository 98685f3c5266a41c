// Two copies of the program inserting into one table at the same moment: each insert waits for the other's to
// finish, and no row is lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "ClientTables.h"
#include "FakePrompt.h"
#include "TempDir.h"

#if !defined(_WIN32)
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace {

pid_t startWorker(const std::filesystem::path& root, int first, int count) {
    const std::string worker = CLIENTS_INSERT_WORKER;
    const std::string rootText = root.string();
    const std::string firstText = std::to_string(first);
    const std::string countText = std::to_string(count);
    char* const argv[] = {const_cast<char*>(worker.c_str()), const_cast<char*>(rootText.c_str()),
                          const_cast<char*>(firstText.c_str()), const_cast<char*>(countText.c_str()), nullptr};
    pid_t pid = -1;
    if (::posix_spawn(&pid, worker.c_str(), nullptr, nullptr, argv, environ) != 0) return -1;
    return pid;
}

int exitStatusOf(pid_t pid) {
    int status = 0;
    if (::waitpid(pid, &status, 0) != pid || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

}  // namespace

TEST(Concurrency, TwoProcessesInsertingAtOnceBothSucceedAndNoRowIsLost) {
    TempDir root;
    FakePrompt prompt;
    CPacienteTable table(root.path(), prompt);
    table.CreateTable();
    constexpr int kEach = 40;
    const pid_t first = startWorker(root.path(), 1, kEach);
    const pid_t second = startWorker(root.path(), 101, kEach);
    ASSERT_GT(first, 0);
    ASSERT_GT(second, 0);
    std::ofstream(root / "go").close();  // both start together
    EXPECT_EQ(exitStatusOf(first), 0);
    EXPECT_EQ(exitStatusOf(second), 0);

    ASSERT_EQ(table.LoadClients(), 2 * kEach);
    const std::vector<int> codes = listedCodes(table);
    std::set<int> expected;
    for (int i = 0; i < kEach; ++i) expected.insert({1 + i, 101 + i});
    EXPECT_EQ(std::set<int>(codes.begin(), codes.end()), expected);
    // Each program's rows keep the order it inserted them in.
    std::vector<int> firstOnes, secondOnes;
    std::copy_if(codes.begin(), codes.end(), std::back_inserter(firstOnes), [](int c) { return c < 100; });
    std::copy_if(codes.begin(), codes.end(), std::back_inserter(secondOnes), [](int c) { return c > 100; });
    EXPECT_TRUE(std::is_sorted(firstOnes.begin(), firstOnes.end()));
    EXPECT_TRUE(std::is_sorted(secondOnes.begin(), secondOnes.end()));
    EXPECT_TRUE(prompt.shown.empty());
}
#endif
