#include "app/SettingsFiles.h"

#include <gtest/gtest.h>

#include <optional>
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

TEST(SettingsFiles, EachHoldsOneLittleEndianIntegerOrGivesItsDefault) {
    // Each file with its bytes (or none: the file is absent) and the value read back; cfr.dat's default is the
    // input in force, here 7.
    const struct {
        const char* file;
        std::optional<std::string> bytes;
        int read;
    } rows[] = {
        {"lang.dat", std::nullopt, 2},
        {"lang.dat", std::string("\x00\x00", 2), 2},
        {"lang.dat", le32(0x01000000u), 16777216},  // a big-endian 1 would read as 1
        {"conf.dat", std::nullopt, 4},
        {"conf.dat", "", 4},
        {"conf.dat", le32(3), 3},
        {"conf.dat", le32(0xFFFFFFFFu), -1},  // signed
        {"cfr.dat", std::nullopt, 7},
        {"cfr.dat", le32(1), 1},
    };
    for (const auto& row : rows) {
        TempDir home;
        if (row.bytes) home.write(row.file, *row.bytes);
        const std::string file = row.file;
        const int read = file == "lang.dat"   ? static_cast<int>(ReadLanguage(home.path()))
                         : file == "conf.dat" ? ReadScreenMode(home.path())
                                              : ReadRecordInput(home.path(), 7);
        EXPECT_EQ(read, row.read) << row.file << " " << row.bytes.value_or("absent").size();
    }
    TempDir home;
    ASSERT_TRUE(WriteLanguage(home.path(), LanguageId::Korean));
    EXPECT_EQ(home.read("lang.dat"), le32(2));
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
