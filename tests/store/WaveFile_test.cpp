#include <gtest/gtest.h>

#include <cstring>

#include "FakePrompt.h"
#include "TempDir.h"
#include "store/WaveFile.h"

namespace {

WaveWriter writerAt(int index) {
    WaveWriter writer;
    writer.SetRecordFormat(index);
    return writer;
}

}  // namespace

TEST(WaveWrite, WritesTheFixedHeaderAndLittleEndianSamples) {
    TempDir dir;
    FakePrompt prompt;
    const std::int16_t samples[] = {1, -2, 0x1234};
    ASSERT_EQ(writerAt(5).WaveWrite(dir / "a.wav", 6, samples, prompt), 1);
    const std::string bytes = dir.read("a.wav");
    const unsigned char expected[] = {
        'R', 'I', 'F', 'F', 44,   0,    0, 0, 'W',  'A',  'V',  'E',  'f',  'm', 't', ' ', 18, 0, 0, 0,  //
        1,   0,   1,   0,   0x22, 0x56, 0, 0, 0x44, 0xAC, 0,    0,    2,    0,   16,  0,   0,  0,        //
        'd', 'a', 't', 'a', 6,    0,    0, 0, 1,    0,    0xFE, 0xFF, 0x34, 0x12};
    ASSERT_EQ(bytes.size(), sizeof expected);
    EXPECT_EQ(std::memcmp(bytes.data(), expected, sizeof expected), 0);
    EXPECT_TRUE(prompt.shown.empty());

    const WaveLoadResult loaded = WaveLoad(dir / "a.wav");
    ASSERT_EQ(loaded.code, kWaveOk);
    EXPECT_EQ(loaded.format, writerAt(5).format);
    EXPECT_EQ(loaded.samples, std::vector<std::int16_t>(std::begin(samples), std::end(samples)));
}

TEST(WaveWrite, AFolderThatDoesNotExistIsReportedAndNothingIsWritten) {
    TempDir dir;
    FakePrompt prompt;
    const std::int16_t sample = 0;
    const auto target = dir / "missing" / "b.wav";
    EXPECT_EQ(writerAt(3).WaveWrite(target, 2, &sample, prompt), 0);
    ASSERT_EQ(prompt.shown.size(), 1u);
    EXPECT_EQ(prompt.shown[0], "The " + target.string() + " file can´t be recorded!\nVerify if the file is opened!");
    EXPECT_FALSE(std::filesystem::exists(target));
}
