// The crash marker as the next start reads it, and the scratch file's answers to a write.
#include "audio/CrashMarker.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "FakePrompt.h"
#include "TempDir.h"
#include "audio/TempFile.h"

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

TEST(TempFile, AWriteAnswersOneForAllZeroForShortAndMinusOneWithNoFile) {
    TempDir root;
    TempFile file;
    const char bytes[5] = {1, 2, 3, 4, 5};
    EXPECT_EQ(file.write(bytes, 5), -1);
    EXPECT_EQ(file.size(), -1);
    ASSERT_TRUE(file.open(root / "grav.tmp", TempFile::kWriteMode));
    EXPECT_EQ(file.write(bytes, 5), 1);
    EXPECT_EQ(std::filesystem::file_size(root / "grav.tmp"), 5u);  // on disk before any close
    EXPECT_EQ(file.size(), 5);
    file.rewind();
    char back[5] = {};
    EXPECT_EQ(file.read(back, 5), 5u);
    EXPECT_EQ(std::string(back, 5), std::string(bytes, 5));

    // Opening for reading closes the file first; a file that is not there does not open.
    EXPECT_FALSE(file.open(root / "missing.tmp", TempFile::kReadMode));
    EXPECT_FALSE(file.isOpen());
    if (std::filesystem::exists("/dev/full")) {
        ASSERT_TRUE(file.open("/dev/full", TempFile::kWriteMode));
        EXPECT_EQ(file.write(bytes, 5), 0);
    }
}

}  // namespace
