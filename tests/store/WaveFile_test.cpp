#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "TempDir.h"
#include "WaveData.h"
#include "store/WaveFile.h"

static WaveWriter writerAt(int index) {
    WaveWriter writer;
    writer.SetRecordFormat(index);
    return writer;
}

TEST(WaveWrite, WritesThePlainPcmHeaderWhateverFormatWasLoadedAndRefusesWhereItCannot) {
    TempDir dir;
    FakePrompt prompt;
    const std::int16_t samples[] = {1, -2, 0x1234};
    ASSERT_EQ(writerAt(5).WaveWrite(dir / "a.wav", 6, samples, prompt), 1);
    EXPECT_EQ(dir.read("a.wav"), waveData("written-mono.wav"));

    WaveWriter writer;  // as loaded from an extensible stereo file: tag 0xFFFE, 22 extra bytes, a wrong byte rate
    writer.format = {0xFFFE, 2, 44100, 12345, 4, 16, 22, std::vector<std::uint8_t>(22, 7)};
    ASSERT_EQ(writer.WaveWrite(dir / "s.wav", 5, samples, prompt), 1);  // the odd last byte is dropped
    EXPECT_EQ(dir.read("s.wav"), waveData("written-stereo.wav"));
    EXPECT_TRUE(prompt.shown.empty());

    // A missing folder or a read-only file: the user is told, and nothing on disk changes.
    std::filesystem::permissions(dir / "s.wav", std::filesystem::perms::owner_read);
    for (const auto& target : {dir / "missing" / "b.wav", dir / "s.wav"}) {
        prompt.shown.clear();
        EXPECT_EQ(writer.WaveWrite(target, 2, samples, prompt), 0);
        EXPECT_EQ(prompt.shown, std::vector<std::string>{"The " + target.string() +
                                                         " file can´t be recorded!\nVerify if the file is opened!"});
        EXPECT_FALSE(writer.createdAt().has_value());
    }
    EXPECT_FALSE(std::filesystem::exists(dir / "missing"));
    EXPECT_EQ(dir.read("s.wav"), waveData("written-stereo.wav"));
}

TEST(WaveWrite, SetRecordFormatFollowsTheTableOfTenFormats) {
    const std::uint32_t rates[] = {8000, 8000, 11025, 11025, 22050, 22050, 44100, 44100, 50000, 50000};
    for (int index = 0; index < 10; ++index) {
        const std::uint16_t width = index % 2 == 0 ? 1 : 2;
        const WaveFormat expected{1, 1, rates[index], rates[index] * width, width, std::uint16_t(8 * width), 0, {}};
        EXPECT_EQ(writerAt(index).format, expected) << "index " << index;
    }
}

// Each line of cases.txt names a file, the code it loads with and the number of 16-bit values it gives.
TEST(WaveLoad, ResultCodesFollowTheShapeOfTheFile) {
    std::ifstream list(kWaveData / "cases.txt");
    int cases = 0;
    std::string file, code;
    for (std::size_t values = 0; list >> file >> code >> values; ++cases) {
        const WaveLoadResult loaded = WaveLoad(kWaveData / file);
        EXPECT_EQ(loaded.code, std::stoi(code, nullptr, 16)) << file;
        EXPECT_EQ(loaded.samples.size(), values) << file;
        EXPECT_TRUE(loaded.code == kWaveOk || loaded.format == WaveFormat{}) << file;
    }
    EXPECT_EQ(cases, 22);
    EXPECT_EQ(WaveLoad(kWaveData / "absent.wav").code, kWaveCannotOpen);
    EXPECT_EQ(WaveLoad(kWaveData).code, kWaveCannotOpen);
}

TEST(WaveLoad, FormatRecordKeepsExtraBytesOnlyForTagsOtherThanPcm) {
    const WaveLoadResult pcm = WaveLoad(kWaveData / "pcm-with-extra-size.wav");
    ASSERT_EQ(pcm.code, kWaveOk);
    EXPECT_EQ(pcm.format.cbSize, 0);  // plain PCM never has extra bytes, whatever the chunk holds
    EXPECT_TRUE(pcm.format.extra.empty());
    const WaveLoadResult ext = WaveLoad(kWaveData / "extensible-24-bit.wav");
    ASSERT_EQ(ext.code, kWaveOk);
    EXPECT_EQ(ext.format.cbSize, 22);
    EXPECT_EQ(std::string(ext.format.extra.begin(), ext.format.extra.end()),
              std::string("\x10\0\x04\0\0\0", 6) + "0123456789abcdef");
    EXPECT_EQ(ext.samples.size(), 3u);  // 24-bit samples come back as 16-bit units; callers test the width
}
