#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "FakePrompt.h"
#include "TempDir.h"
#include "store/DateFile.h"
#include "store/FileTimes.h"
#include "store/WaveFile.h"

TEST(DateFile, HoldsTheLow32BitsOfTheCreationTimeOrTheImportShape) {
    TempDir dir;
    FakePrompt prompt;
    const auto now = [] { return std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()); };
    const std::int64_t before = now();
    dir.write("wv001.wav");
    const auto path = dir / "wv001.wav";
    ASSERT_EQ(WriteDateFile(path, prompt), 1);  // by default the sound file's own creation time
    const std::int64_t made = std::stoll(dir.read("wv001.ddt"));
    EXPECT_GE(made, before - 1);
    EXPECT_LE(made, now());
    EXPECT_FALSE(fileCreationTime(dir / "absent.wav").has_value());
    ASSERT_EQ(WriteDateFile(path, prompt, 1262304000), 1);
    EXPECT_EQ(dir.read("wv001.ddt"), "1262304000");
    ASSERT_EQ(WriteDateFile(path, prompt, 2147483648LL), 1);  // past 2038 the printed time wraps
    EXPECT_EQ(dir.read("wv001.ddt"), "-2147483648");
    ASSERT_EQ(WriteDateFile(dir / "wv002.wav", prompt, 1262304000), 1);  // no sound: an empty date file
    EXPECT_EQ(dir.read("wv002.ddt"), "");
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(WriteDateFile(dir / "gone/wv001.wav", prompt), 0);
    ASSERT_EQ(WriteImportDateFile(dir / "qv003.wav", 9, prompt), 1);  // an import writes the display mode twice
    EXPECT_EQ(dir.read("qv003.ddt"), "1;1;");
    ASSERT_EQ(WriteImportDateFile(dir / "qv003.wav", 10, prompt), 1);
    EXPECT_EQ(dir.read("qv003.ddt"), "10;10;");
    EXPECT_EQ(WriteImportDateFile(dir / "gone/qv003.wav", 9, prompt), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>(2, "Error Saving File!"));
}

TEST(DateFile, ReaderTakesTextsLongerThanFiveCharacters) {
    const std::pair<std::string, std::int64_t> cases[] = {
        {"12345", -1},        {"123456", 123456}, {"1;1;", -1},
        {"10;10;", 10},       {"", -1},           {"1262304000.9", 1262304000},
        {"  -77777", -77777}, {"abcdef", 0},      {"99999999999999999999999", INT64_MAX}};
    TempDir dir;
    FakePrompt prompt;
    for (const auto& [text, expected] : cases) {
        dir.write("x.ddt", text);
        EXPECT_EQ(ReadDateFile(dir / "x.ddt", prompt), expected) << '"' << text << '"';
    }
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(ReadDateFile(dir / "absent.ddt", prompt), -1);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"Error Opening .ddt file!"});
}

TEST(DateFile, SavingOverARecordingKeepsItsFirstCreationTime) {
    TempDir dir;
    FakePrompt prompt;
    const auto path = dir / "wv001.wav";
    const std::int16_t samples[] = {1, 2, 3};
    WaveWriter writer;
    writer.SetRecordFormat(5);
    ASSERT_EQ(writer.WaveWrite(path, 6, samples, prompt), 1);
    const std::int64_t first = *fileCreationTime(path);
    EXPECT_EQ(writer.createdAt(), first);

    std::this_thread::sleep_for(std::chrono::milliseconds(1100));  // so that a new file has a later time
    ASSERT_EQ(writer.WaveWrite(path, 4, samples, prompt), 1);      // saved over it, with no date file yet
    ASSERT_GT(*fileCreationTime(path), first);
    EXPECT_EQ(writer.createdAt(), first);
    ASSERT_EQ(WriteDateFile(path, prompt, writer.createdAt()), 1);
    EXPECT_EQ(dir.read("wv001.ddt"), std::to_string(first));

    ASSERT_EQ(writer.WaveWrite(path, 2, samples, prompt), 1);  // again: the date file now remembers
    EXPECT_EQ(writer.createdAt(), first);
    EXPECT_EQ(WaveLoad(path).samples, std::vector<std::int16_t>{1});
    EXPECT_TRUE(prompt.shown.empty());
}
