#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "TempDir.h"
#include "WaveBytes.h"
#include "store/WaveFile.h"

using namespace wavebytes;

namespace {

WaveWriter writerAt(int index) {
    WaveWriter writer;
    writer.SetRecordFormat(index);
    return writer;
}

struct ReaderCase {
    const char* what;
    std::string bytes;
    int code;
    std::size_t values;
};

}  // namespace

TEST(WaveWrite, WritesTheFixedPlainPcmHeaderAndLittleEndianSamples) {
    TempDir dir;
    FakePrompt prompt;
    const std::int16_t samples[] = {1, -2, 0x1234};
    ASSERT_EQ(writerAt(5).WaveWrite(dir / "a.wav", 6, samples, prompt), 1);
    const unsigned char expected[] = {
        'R', 'I', 'F', 'F', 44,   0,    0, 0, 'W',  'A',  'V',  'E',  'f',  'm', 't', ' ', 18, 0, 0, 0,  //
        1,   0,   1,   0,   0x22, 0x56, 0, 0, 0x44, 0xAC, 0,    0,    2,    0,   16,  0,   0,  0,        //
        'd', 'a', 't', 'a', 6,    0,    0, 0, 1,    0,    0xFE, 0xFF, 0x34, 0x12};
    EXPECT_EQ(dir.read("a.wav"), std::string(std::begin(expected), std::end(expected)));

    WaveWriter writer;  // as loaded from an extensible stereo file: tag 0xFFFE, 22 extra bytes, a wrong byte rate
    writer.format = {0xFFFE, 2, 44100, 12345, 4, 16, 22, std::vector<std::uint8_t>(22, 7)};
    ASSERT_EQ(writer.WaveWrite(dir / "s.wav", 5, samples, prompt), 1);  // the odd last byte is dropped
    EXPECT_EQ(dir.read("s.wav"),
              riff(chunk("fmt ", fmtBody(1, 2, 44100, 16) + le16(0)) + chunk("data", pcm16({1, -2}))));
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
    EXPECT_EQ(dir.read("s.wav").size(), 46u + 4u);
}

TEST(WaveWrite, SetRecordFormatFollowsTheTableOfTenFormats) {
    const std::uint32_t rates[] = {8000, 8000, 11025, 11025, 22050, 22050, 44100, 44100, 50000, 50000};
    for (int index = 0; index < 10; ++index) {
        const std::uint16_t width = index % 2 == 0 ? 1 : 2;
        const WaveFormat expected{1, 1, rates[index], rates[index] * width, width, std::uint16_t(8 * width), 0, {}};
        EXPECT_EQ(writerAt(index).format, expected) << "index " << index;
    }
}

TEST(WaveLoad, ResultCodesFollowTheShapeOfTheFile) {
    const std::string fmt = chunk("fmt ", fmtBody(1, 1, 22050, 16));
    const std::string data = chunk("data", pcm16({1, 2, 3}));
    const std::string list = chunk("LIST", "INFOISFT" + le32(5) + "sox!" + std::string(1, '\0'));
    const std::vector<ReaderCase> cases = {
        {"plain", riff(fmt + data), kWaveOk, 3},
        {"LIST between fmt and data", riff(fmt + list + data), kWaveOk, 3},
        {"chunks after data", riff(fmt + data + list + chunk("id3 ", "abc")), kWaveOk, 3},
        {"odd chunk padded before data", riff(fmt + chunk("junk", "x") + data), kWaveOk, 3},
        {"fmt after data", riff(data + fmt), kWaveOk, 3},
        {"18-byte fmt", riff(chunk("fmt ", fmtBody(1, 1, 22050, 16) + le16(0)) + data), kWaveOk, 3},
        {"RIFF size left wrong by a pipe", "RIFF" + le32(0x7FFFF024) + "WAVE" + fmt + data, kWaveOk, 3},
        {"data of 5 bytes", riff(fmt + chunk("data", pcm16({1, 2}) + "x")), kWaveOk, 2},
        {"data of 5 bytes, the last one missing", riff(fmt) + "data" + le32(5) + pcm16({1, 2}), kWaveOk, 2},
        {"empty data", riff(fmt + chunk("data", "")), kWaveOk, 0},
        {"empty file", "", kWaveNotWave, 0},
        {"RIFF header cut short", "RIFF" + le32(100) + "WA", kWaveNotWave, 0},
        {"big-endian RIFX", "RIFX" + riff(fmt + data).substr(4), kWaveNotWave, 0},
        {"RIFF but not WAVE", "RIFF" + le32(4) + "AVI ", kWaveNotWave, 0},
        {"fmt shorter than 16", riff(chunk("fmt ", fmtBody(1, 1, 22050, 16).substr(0, 14)) + data), kWaveNotWave, 0},
        {"fmt cut by the end of file", riff("fmt " + le32(16) + fmtBody(1, 1, 22050, 16).substr(0, 10)),
         kWaveFormatUnreadable, 0},
        {"extra size cut by the end of file", riff("fmt " + le32(18) + fmtBody(3, 1, 22050, 32)), kWaveFormatUnreadable,
         0},
        {"extra bytes cut by the end of file",
         riff("fmt " + le32(40) + fmtBody(0xFFFE, 1, 22050, 16) + le16(22) + "abc"), kWaveNotWave, 0},
        {"no fmt chunk", riff(data), kWaveChunkNotFound, 0},
        {"no data chunk", riff(fmt + list), kWaveChunkNotFound, 0},
        {"data claims one value more than the file holds", riff(fmt) + "data" + le32(8) + pcm16({1, 2, 3}),
         kWaveDataTruncated, 0},
        // The claim never decides the memory taken: 4 GB claimed is refused, not allocated.
        {"data claims 4 GB", riff(fmt) + "data" + le32(0xFFFFFFFF) + pcm16({1, 2}), kWaveDataTruncated, 0},
    };
    TempDir dir;
    for (const ReaderCase& c : cases) {
        dir.write("case.wav", c.bytes);
        const WaveLoadResult loaded = WaveLoad(dir / "case.wav");
        EXPECT_EQ(loaded.code, c.code) << c.what;
        EXPECT_EQ(loaded.samples.size(), c.values) << c.what;
        EXPECT_TRUE(c.code == kWaveOk || loaded.format == WaveFormat{}) << c.what;
    }
    EXPECT_EQ(WaveLoad(dir / "absent.wav").code, kWaveCannotOpen);
    EXPECT_EQ(WaveLoad(dir.path()).code, kWaveCannotOpen);
}

TEST(WaveLoad, FormatRecordKeepsExtraBytesOnlyForTagsOtherThanPcm) {
    TempDir dir;
    dir.write("pcm18.wav", riff(chunk("fmt ", fmtBody(1, 1, 11025, 16) + le16(9)) + chunk("data", pcm16({4}))));
    const WaveLoadResult pcm = WaveLoad(dir / "pcm18.wav");
    ASSERT_EQ(pcm.code, kWaveOk);
    EXPECT_EQ(pcm.format.cbSize, 0);  // plain PCM never has extra bytes, whatever the chunk holds
    EXPECT_TRUE(pcm.format.extra.empty());

    const std::string extra = le16(16) + le32(4) + "0123456789abcdef";
    dir.write("ext.wav",
              riff(chunk("fmt ", fmtBody(0xFFFE, 2, 48000, 24) + le16(22) + extra) + chunk("data", "abcdef")));
    const WaveLoadResult ext = WaveLoad(dir / "ext.wav");
    ASSERT_EQ(ext.code, kWaveOk);
    EXPECT_EQ(ext.format.cbSize, 22);
    EXPECT_EQ(std::string(ext.format.extra.begin(), ext.format.extra.end()), extra);
    EXPECT_EQ(ext.samples.size(), 3u);  // 24-bit samples come back as 16-bit units; callers test the width
}

TEST(WaveReadSamples, ReadsInPiecesWithinWhatTheChunkHasLeft) {
    TempDir dir;
    dir.write("p.wav", simpleWave(1, 22050, pcm16({10, 20, 30, 40, 50})) + chunk("LIST", "tail"));
    WaveOpenResult opened = WaveOpen(dir / "p.wav");
    ASSERT_EQ(opened.code, kWaveOk);
    ASSERT_EQ(WaveFindData(opened.handle), kWaveOk);
    std::int16_t buffer[8] = {};
    std::uint32_t count = 0;
    EXPECT_EQ(WaveReadSamples(opened.handle, buffer, 4, count), kWaveOk);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(WaveReadSamples(opened.handle, buffer + 2, 100, count), kWaveOk);  // only 6 bytes are left
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(WaveReadSamples(opened.handle, buffer + 5, 100, count), kWaveOk);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(std::vector<std::int16_t>(buffer, buffer + 6), (std::vector<std::int16_t>{10, 20, 30, 40, 50, 0}));
}
