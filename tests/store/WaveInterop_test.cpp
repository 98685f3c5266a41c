// Files that real tools write are read or refused as the reader's rules say, and every file our writer makes is
// one those tools read back exactly.
#include <gtest/gtest.h>

#include <random>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "WaveBytes.h"
#include "store/OpenOtherFile.h"
#include "store/WaveFile.h"

namespace {

bool haveSox() { return toolAvailable("sox") && toolAvailable("soxi"); }

long soxi(const char* flag, const std::filesystem::path& file) {
    return std::stol(runCommand(std::string("soxi ") + flag + " " + quoted(file)).output);
}

// The samples as sox decodes them, as 16-bit little-endian values.
std::vector<std::int16_t> soxDecode16(const std::filesystem::path& file) {
    const std::string raw = runCommand("sox " + quoted(file) + " -t raw -e signed -b 16 -L -").output;
    std::vector<std::int16_t> samples(raw.size() / 2);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(static_cast<unsigned char>(raw[2 * i]) |
                                               (static_cast<unsigned char>(raw[2 * i + 1]) << 8));
    return samples;
}

std::vector<std::int16_t> mixed(const std::vector<std::int16_t>& interleaved) {
    std::vector<std::int16_t> mono;
    for (std::size_t k = 0; k + 1 < interleaved.size(); k += 2)
        mono.push_back(static_cast<std::int16_t>((interleaved[k] + interleaved[k + 1]) / 2));
    return mono;
}

std::vector<std::int16_t> loadedSamples(const LoadedRecording& recording) {
    return {recording.samples().begin(), recording.samples().end()};
}

}  // namespace

TEST(WaveInterop, SoxFilesAtEveryRateWidthAndLayoutAreReadOrRefusedByTheRules) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    for (const std::uint32_t rate : {8000u, 11025u, 22050u, 44100u, 48000u}) {
        for (const std::uint16_t channels : {1, 2}) {
            for (const std::uint16_t bits : {8, 16, 24}) {
                const std::string what = std::to_string(rate) + " Hz, " + std::to_string(channels) + " ch, " +
                                         std::to_string(bits) + " bits";
                const auto file = dir / "sox.wav";
                ASSERT_EQ(
                    runCommand("sox -R -n -r " + std::to_string(rate) + " -c " + std::to_string(channels) + " -b " +
                               std::to_string(bits) + " " + quoted(file) + " synth 0.05 sine 300 sine 500 2>/dev/null")
                        .exitCode,
                    0)
                    << what;
                const long frames = soxi("-s", file);
                const WaveLoadResult loaded = WaveLoad(file);
                ASSERT_EQ(loaded.code, kWaveOk) << what;
                EXPECT_EQ(loaded.format.nSamplesPerSec, rate) << what;
                EXPECT_EQ(loaded.format.nChannels, channels) << what;
                EXPECT_EQ(loaded.format.wBitsPerSample, bits) << what;
                EXPECT_EQ(loaded.samples.size(), static_cast<std::size_t>(frames * channels * (bits / 8) / 2)) << what;

                FakePrompt prompt;
                LoadedRecording recording;
                const OtherFileOpening opening = OpenOtherFile(
                    recording, file, [] { return StereoChoice::Mix; }, prompt);
                if (rate != 44100 && rate != 22050 && rate != 11025) {
                    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kFileRateMustBe)}) << what;
                } else if (bits != 16) {
                    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kFileMustBe16Bits)}) << what;
                } else {
                    ASSERT_EQ(opening.result, OtherFileResult::Opened) << what;
                    const std::vector<std::int16_t> decoded = soxDecode16(file);
                    EXPECT_EQ(loaded.samples, decoded) << what;
                    EXPECT_EQ(loadedSamples(recording), channels == 2 ? mixed(decoded) : decoded) << what;
                }
            }
        }
    }
}

TEST(WaveInterop, ListChunksAndChunksAfterTheDataArePassedOver) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    const auto plain = dir / "plain.wav";
    ASSERT_EQ(runCommand("sox -R -n -r 22050 -c 1 -b 16 " + quoted(plain) + " synth 0.1 sine 440").exitCode, 0);
    const std::string bytes = dir.read("plain.wav");
    const std::size_t dataAt = bytes.find("data");
    ASSERT_NE(dataAt, std::string::npos);
    using namespace wavebytes;
    const std::string list = chunk("LIST", "INFOINAM" + le32(6) + "vowel" + std::string(1, '\0'));
    const std::string chunks = bytes.substr(12, dataAt - 12) + list + bytes.substr(dataAt) + chunk("cue ", le32(0));
    dir.write("extra.wav", riff(chunks));
    const std::vector<std::int16_t> decoded = soxDecode16(dir / "extra.wav");  // sox agrees it is the same sound
    ASSERT_EQ(decoded, soxDecode16(plain));
    const WaveLoadResult loaded = WaveLoad(dir / "extra.wav");
    ASSERT_EQ(loaded.code, kWaveOk);
    EXPECT_EQ(loaded.samples, decoded);
}

TEST(WaveInterop, AFileWrittenToAPipeClaimsMoreThanItHoldsAndIsRefused) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    const auto file = dir / "piped.wav";
    // Writing to a pipe, sox cannot go back to fix the sizes and leaves a data chunk of about 2 GB.
    ASSERT_EQ(
        runCommand("sox -R -n -r 22050 -c 1 -b 16 -t wav - synth 0.05 sine 440 2>/dev/null | cat > " + quoted(file))
            .exitCode,
        0);
    const WaveLoadResult loaded = WaveLoad(file);
    EXPECT_EQ(loaded.code, kWaveDataTruncated);
    EXPECT_TRUE(loaded.samples.empty());
}

TEST(WaveInterop, SpeechFromEspeakOpensAsItIs) {
    if (!toolAvailable("espeak-ng") || !haveSox()) GTEST_SKIP() << "espeak-ng or sox is not installed";
    TempDir dir;
    const auto file = dir / "speech.wav";
    ASSERT_EQ(runCommand("espeak-ng -w " + quoted(file) + " 'The rainbow is a division of white light.'").exitCode, 0);
    FakePrompt prompt;
    LoadedRecording recording;
    ASSERT_EQ(OpenOtherFile(
                  recording, file, [] { return std::nullopt; }, prompt)
                  .result,
              OtherFileResult::Opened);
    EXPECT_EQ(recording.format()->nSamplesPerSec, static_cast<std::uint32_t>(soxi("-r", file)));
    EXPECT_EQ(loadedSamples(recording), soxDecode16(file));
    EXPECT_GT(recording.SampleCount(), 10000u);
}

TEST(WaveInterop, EveryFileOurWriterMakesReadsBackInSox) {
    if (!haveSox()) GTEST_SKIP() << "sox is not installed";
    TempDir dir;
    std::mt19937 random(11);
    std::vector<std::int16_t> samples(22050);
    for (auto& s : samples) s = static_cast<std::int16_t>(random());
    struct Case {
        int index;
        std::uint16_t channels;
    };
    for (const Case c : {Case{3, 1}, Case{5, 1}, Case{7, 1}, Case{5, 2}}) {
        FakePrompt prompt;
        WaveWriter writer;
        writer.SetRecordFormat(c.index);
        if (c.channels == 2) {  // a stereo file saved as it stood, interleaved
            writer.format.nChannels = 2;
            writer.format.nBlockAlign = 4;
        }
        const auto file = dir / ("w" + std::to_string(c.index) + "c" + std::to_string(c.channels) + ".wav");
        ASSERT_EQ(writer.WaveWrite(file, static_cast<std::uint32_t>(samples.size() * 2), samples.data(), prompt), 1);
        const std::string what = file.filename().string();
        EXPECT_EQ(soxi("-r", file), static_cast<long>(writer.format.nSamplesPerSec)) << what;
        EXPECT_EQ(soxi("-c", file), c.channels) << what;
        EXPECT_EQ(soxi("-b", file), 16) << what;
        EXPECT_EQ(soxi("-s", file), static_cast<long>(samples.size() / c.channels)) << what;
        EXPECT_EQ(soxDecode16(file), samples) << what;
    }
}
