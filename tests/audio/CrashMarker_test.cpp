// The crash marker's bytes, and markers cut short, as the next start reads them. Whole markers, running or ended,
// are read by the program's own start-up test.
#include "audio/CrashMarker.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "FakePrompt.h"
#include "TempDir.h"

namespace {

TEST(CrashMarker, IsTwoLittleEndianIntegersAndACutMarkerWarnsOnlyIfItsStateIsWhole) {
    TempDir root;
    FakePrompt prompt;
    ASSERT_TRUE(writeCrashMarker(root.path(), {kCaptureRunning, 5}));
    EXPECT_EQ(root.read("sy1.log"), std::string("\0\0\0\0\5\0\0\0", 8));
    // A marker cut inside its first number is no marker, and is deleted all the same.
    root.write("sy1.log", std::string("\0\0\0", 3));
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), -1);
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_FALSE(std::filesystem::exists(root / "sy1.log"));
    // Cut after its first number it still warns; the update rate is then unknown.
    root.write("sy1.log", std::string("\0\0\0\0", 4));
    EXPECT_EQ(takeCrashMarker(root.path(), prompt), -1);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kNotEndedProperly)});
}

}  // namespace
