// The crash marker as the next start reads it.
#include "audio/CrashMarker.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "FakePrompt.h"
#include "TempDir.h"

namespace {

TEST(CrashMarker, ACaptureThatNeverEndedWarnsOnceAndKeepsTheUpdateRate) {
    TempDir root;
    FakePrompt prompt;
    ASSERT_TRUE(writeCrashMarker(root.path(), {kCaptureRunning, 5}));
    EXPECT_EQ(root.read("sy1.log"), std::string("\0\0\0\0\5\0\0\0", 8));  // two little-endian 32-bit integers
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), 5);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kNotEndedProperly)});
    EXPECT_FALSE(std::filesystem::exists(root / "sy1.log"));

    // Gone after the first start: the next one neither warns nor remembers.
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), -1);
    EXPECT_EQ(prompt.shown.size(), 1u);

    // A capture that ended properly: no warning, the update rate is still remembered.
    ASSERT_TRUE(writeCrashMarker(root.path(), {kCaptureClosed, 2}));
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), 2);
    EXPECT_EQ(prompt.shown.size(), 1u);

    // A marker cut short is no marker, and is deleted all the same.
    root.write("sy1.log", std::string("\0\0\0", 3));
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), -1);
    EXPECT_EQ(prompt.shown.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(root / "sy1.log"));

    // A file cut after its first number still warns; the update rate is then unknown.
    root.write("sy1.log", std::string("\0\0\0\0", 4));
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), -1);
    EXPECT_EQ(prompt.shown.size(), 2u);
}

}  // namespace
