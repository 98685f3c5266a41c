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

TEST(SettingsFiles, MissingOrShortFilesGiveTheirDefaults) {
    TempDir home;
    EXPECT_EQ(ReadLanguage(home.path()), LanguageId::Korean);
    EXPECT_EQ(ReadScreenMode(home.path()), 4);
    EXPECT_EQ(ReadRecordInput(home.path(), 0), 0);
    EXPECT_EQ(ReadRecordInput(home.path(), 1), 1);  // a missing cfr.dat leaves the input as it was
    home.write("lang.dat", std::string("\x00\x00", 2));
    home.write("conf.dat", "");
    EXPECT_EQ(ReadLanguage(home.path()), LanguageId::Korean);
    EXPECT_EQ(ReadScreenMode(home.path()), 4);
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

TEST(ScreenCheck, SizesAndColoursDecideTheStartAndModesBelowFourNameAFixedSize) {
    using V = ScreenVerdict;
    // The program's own start checks 4-bit colour, 1000 x 700 and 1152 x 864.
    const std::vector<std::pair<ScreenInfo, V>> rows = {{{32, 900, 600}, V::Fits},
                                                        {{32, 800, 720}, V::Fits},
                                                        {{8, 800, 600}, V::Fits},
                                                        {{32, 1023, 768}, V::BetweenTheLayouts},
                                                        {{32, 799, 600}, V::NeedsOtherResolution},
                                                        {{32, 1920, 599}, V::NeedsOtherResolution}};
    for (const auto& [screen, verdict] : rows) EXPECT_EQ(JudgeScreen(screen), verdict) << screen.width;
    EXPECT_EQ(FixedSizeOfScreenMode(3)->width, 1280);
    EXPECT_EQ(FixedSizeOfScreenMode(3)->height, 1024);
    EXPECT_FALSE(FixedSizeOfScreenMode(4) || FixedSizeOfScreenMode(-1));
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
    EXPECT_EQ(DecimalText(2.25, 1), "2,2");  // round half to even in binary: 2.25 is exact, ties go to even
    EXPECT_EQ(DecimalText(-0.5, 2), "-0,50");
}
