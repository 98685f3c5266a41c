#include "app/SettingsFiles.h"

#include <gtest/gtest.h>

#include <string>

#include "TempDir.h"
#include "app/CommandLineInfo.h"
#include "app/ScreenCheck.h"
#include "controls/DecimalText.h"

namespace {

std::string le32(std::uint32_t v) {
    return {static_cast<char>(v), static_cast<char>(v >> 8), static_cast<char>(v >> 16), static_cast<char>(v >> 24)};
}

}  // namespace

TEST(SettingsFiles, MissingFilesGiveTheirDefaults) {
    TempDir home;
    EXPECT_EQ(ReadLanguage(home.path()), LanguageId::Korean);
    EXPECT_EQ(ReadScreenMode(home.path()), 4);
    EXPECT_EQ(ReadRecordInput(home.path(), 0), 0);
    EXPECT_EQ(ReadRecordInput(home.path(), 1), 1);  // a missing cfr.dat leaves the input as it was
    const RecordingMarker marker = TakeRecordingMarker(home.path());
    EXPECT_FALSE(marker.present);
    EXPECT_FALSE(marker.lastRecordingBroken());
    EXPECT_EQ(marker.updateRateIndex, -1);
}

TEST(SettingsFiles, IntegersAreLittleEndianWithNoHeader) {
    TempDir home;
    ASSERT_TRUE(WriteLanguage(home.path(), LanguageId::Korean));
    EXPECT_EQ(home.read("lang.dat"), le32(2));
    home.write("conf.dat", le32(3));
    home.write("cfr.dat", le32(1));
    EXPECT_EQ(ReadScreenMode(home.path()), 3);
    EXPECT_EQ(ReadRecordInput(home.path(), 0), 1);
    home.write("conf.dat", le32(0xFFFFFFFFu));  // signed: -1
    EXPECT_EQ(ReadScreenMode(home.path()), -1);
    home.write("lang.dat", le32(0x01000000u));  // a big-endian 1 would read as 16777216
    EXPECT_EQ(static_cast<int>(ReadLanguage(home.path())), 16777216);
}

TEST(SettingsFiles, ShortFilesCountAsMissing) {
    TempDir home;
    home.write("lang.dat", std::string("\x00\x00", 2));
    home.write("conf.dat", "");
    EXPECT_EQ(ReadLanguage(home.path()), LanguageId::Korean);
    EXPECT_EQ(ReadScreenMode(home.path()), 4);
}

TEST(SettingsFiles, RecordingMarkerIsReadOnceAndDeleted) {
    TempDir home;
    home.write("sy1.log", le32(0) + le32(3));
    RecordingMarker marker = TakeRecordingMarker(home.path());
    EXPECT_TRUE(marker.lastRecordingBroken());
    EXPECT_EQ(marker.updateRateIndex, 3);
    EXPECT_FALSE(std::filesystem::exists(home / "sy1.log"));
    EXPECT_FALSE(TakeRecordingMarker(home.path()).present);

    home.write("sy1.log", le32(1) + le32(2));  // ended properly: no warning, but the rate is kept
    marker = TakeRecordingMarker(home.path());
    EXPECT_TRUE(marker.present);
    EXPECT_FALSE(marker.lastRecordingBroken());
    EXPECT_EQ(marker.updateRateIndex, 2);
    EXPECT_FALSE(std::filesystem::exists(home / "sy1.log"));
}

TEST(ScreenCheck, SizesAndColoursDecideTheStart) {
    EXPECT_EQ(JudgeScreen({32, 1152, 864}), ScreenVerdict::Fits);
    EXPECT_EQ(JudgeScreen({32, 900, 600}), ScreenVerdict::Fits);
    EXPECT_EQ(JudgeScreen({32, 800, 720}), ScreenVerdict::Fits);
    EXPECT_EQ(JudgeScreen({32, 1024, 600}), ScreenVerdict::Fits);
    EXPECT_EQ(JudgeScreen({32, 1000, 700}), ScreenVerdict::BetweenTheLayouts);
    EXPECT_EQ(JudgeScreen({32, 801, 601}), ScreenVerdict::BetweenTheLayouts);
    EXPECT_EQ(JudgeScreen({32, 1023, 768}), ScreenVerdict::BetweenTheLayouts);
    EXPECT_EQ(JudgeScreen({4, 1024, 768}), ScreenVerdict::NeedsOtherResolution);
    EXPECT_EQ(JudgeScreen({8, 800, 600}), ScreenVerdict::Fits);
    EXPECT_EQ(JudgeScreen({32, 799, 600}), ScreenVerdict::NeedsOtherResolution);
    EXPECT_EQ(JudgeScreen({32, 1920, 599}), ScreenVerdict::NeedsOtherResolution);
}

TEST(ScreenCheck, ScreenModesBelowFourNameAFixedSize) {
    const int expected[4][2] = {{800, 600}, {1024, 768}, {1280, 800}, {1280, 1024}};
    for (int mode = 0; mode < 4; ++mode) {
        const auto size = FixedSizeOfScreenMode(mode);
        ASSERT_TRUE(size.has_value()) << mode;
        EXPECT_EQ(size->width, expected[mode][0]);
        EXPECT_EQ(size->height, expected[mode][1]);
    }
    EXPECT_FALSE(FixedSizeOfScreenMode(4).has_value());
    EXPECT_FALSE(FixedSizeOfScreenMode(-1).has_value());
}

TEST(CommandLine, StandardFlagsOnlyAndPathsStayPaths) {
    EXPECT_TRUE(ParseCommandLine({"sonalys"}).showSplash);
    EXPECT_FALSE(ParseCommandLine({"sonalys", "/Embedding"}).showSplash);
    EXPECT_FALSE(ParseCommandLine({"sonalys", "-automation"}).showSplash);
    const CommandLineInfo withFile = ParseCommandLine({"sonalys", "/home/ana/voz.wav"});
    EXPECT_TRUE(withFile.showSplash);
    EXPECT_EQ(withFile.fileName, "/home/ana/voz.wav");
    EXPECT_TRUE(ParseCommandLine({"sonalys", "-unknown"}).fileName.isEmpty());
}

TEST(DecimalText, CommaAndFixedDecimals) {
    EXPECT_EQ(DecimalText(2048.0, 1), "2048,0");
    EXPECT_EQ(DecimalText(2.25, 1), "2,2");  // round half to even in binary: 2.25 is exact, ties go to even
    EXPECT_EQ(DecimalText(-0.5, 2), "-0,50");
}
