// The client table when memory runs out at any allocation: the user is told, the operation gives its failure
// value, what was read so far stays, and the file on disk is never damaged.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "ClientTables.h"
#include "TempDir.h"
#include "store/Prompt.h"

namespace {

std::atomic<long> allocationsLeft{-1};  // how many allocations succeed before one fails; -1 for no limit

// Records what it is shown without allocating, so that it works while memory is refused.
class CountingPrompt final : public Prompt {
public:
    int shownCount = 0;
    std::string_view lastText;
    void showOk(std::string_view text) override {
        ++shownCount;
        lastText = text;
    }
    bool askYesNo(std::string_view) override { return false; }
};

// Runs `operation` with memory refused after `allowed` allocations.
template <class Operation>
auto withMemoryFailingAfter(long allowed, Operation operation) {
    allocationsLeft = allowed;
    auto result = operation();
    allocationsLeft = -1;
    return result;
}

}  // namespace

// The replacement pairs malloc with free; the compiler cannot see that and would warn at each delete.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif
void* operator new(std::size_t size) {
    long left = allocationsLeft.load();
    while (left > 0 && !allocationsLeft.compare_exchange_weak(left, left - 1)) {
    }
    if (left == 0) throw std::bad_alloc();
    if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

TEST(NoMemory, ALoadThatRunsOutKeepsWhatWasReadAndSaysSo) {
    TempDir root;
    CountingPrompt prompt;
    CPacienteTable table(root.path(), prompt);
    table.CreateTable();
    for (int code : {1, 2, 3}) ASSERT_EQ(table.InsertClient(makeClient(code, "Cliente")), 1);
    for (long allowed = 0;; ++allowed) {
        ASSERT_EQ(table.LoadClients(), 3);
        prompt.shownCount = 0;
        const int result = withMemoryFailingAfter(allowed, [&] { return table.LoadClients(); });
        const std::vector<int> codes = listedCodes(table);
        const std::vector<int> all = {1, 2, 3};
        ASSERT_LE(codes.size(), all.size());
        EXPECT_EQ(codes, std::vector<int>(all.begin(), all.begin() + static_cast<long>(codes.size())));
        if (result >= 0) {
            EXPECT_EQ(result, 3);
            EXPECT_EQ(codes.size(), 3u);
            EXPECT_EQ(prompt.shownCount, 0);
            break;
        }
        EXPECT_EQ(result, -1);
        EXPECT_EQ(prompt.shownCount, 1) << "after " << allowed << " allocations";
        EXPECT_EQ(prompt.lastText, "Error - There is no free memory available!");
        ASSERT_LT(allowed, 10000);
    }
}

TEST(NoMemory, AChangeThatRunsOutLeavesTheTableAsItWas) {
    TempDir root;
    CountingPrompt prompt;
    CPacienteTable table(root.path(), prompt);
    table.CreateTable();
    ASSERT_EQ(table.InsertClient(makeClient(1, "Cliente")), 1);
    const std::vector<std::uint8_t> before = readBytes(root / "pacb.dbf");
    for (long allowed = 0;; ++allowed) {
        prompt.shownCount = 0;
        const int result = withMemoryFailingAfter(allowed, [&] { return table.InsertClient(makeClient(2, "Novo")); });
        if (result == 1) {
            EXPECT_EQ(prompt.shownCount, 0);
            ASSERT_EQ(table.LoadClients(), 2);
            break;
        }
        EXPECT_EQ(result, 0);
        EXPECT_EQ(prompt.shownCount, 1) << "after " << allowed << " allocations";
        EXPECT_EQ(readBytes(root / "pacb.dbf"), before) << "after " << allowed << " allocations";
        ASSERT_LT(allowed, 10000);
    }
}
