// Files that real tools write are read or refused as the reader's rules say, and every file our writer makes is
// one those tools read back exactly.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "store/OpenOtherFile.h"
#include "store/WaveFile.h"

namespace {

class WaveInterop : public ::testing::Test {
protected:
    void SetUp() override {
        if (!toolAvailable("sox") || !toolAvailable("soxi")) GTEST_SKIP() << "sox is not installed";
    }
    TempDir dir;
    FakePrompt prompt;
    LoadedRecording recording;
};

long soxi(const char* flag, const std::filesystem::path& file) {
    return std::stol(runCommand(std::string("soxi ") + flag + " " + quoted(file)).output);
}

// Two tones of 50 ms made by sox, written to `to` (a quoted path, or "-t wav -" with a pipe in `then`).
bool soxSynth(std::uint32_t rate, int channels, int bits, const std::string& to, const std::string& then = "") {
    return runCommand("sox -R -n -r " + std::to_string(rate) + " -c " + std::to_string(channels) + " -b " +
                      std::to_string(bits) + " " + to + " synth 0.05 sine 300 sine 500 2>/dev/null" + then)
               .exitCode == 0;
}

// The samples as sox decodes them, as 16-bit values in the machine's own byte order.
std::vector<std::int16_t> soxDecode16(const std::filesystem::path& file) {
    const std::string raw = runCommand("sox " + quoted(file) + " -t raw -e signed -b 16 -").output;
    std::vector<std::int16_t> samples(raw.size() / 2);
    std::memcpy(samples.data(), raw.data(), 2 * samples.size());
    return samples;
}

}  // namespace

TEST_F(WaveInterop, SoxFilesAtEveryRateWidthAndLayoutAreReadOrRefusedByTheRules) {
    const auto file = dir / "sox.wav";
    for (const std::uint32_t rate : {8000u, 11025u, 22050u, 44100u, 48000u}) {
        for (const std::uint16_t channels : {1, 2}) {
            for (const std::uint16_t bits : {8, 16, 24}) {
                const std::string what = std::to_string(rate) + " Hz, " + std::to_string(channels) + " ch, " +
                                         std::to_string(bits) + " bits";
                ASSERT_TRUE(soxSynth(rate, channels, bits, quoted(file))) << what;
                const WaveLoadResult load = WaveLoad(file);
                ASSERT_EQ(load.code, kWaveOk) << what;
                EXPECT_EQ(load.format.nSamplesPerSec, rate) << what;
                EXPECT_EQ(load.format.nChannels, channels) << what;
                EXPECT_EQ(load.format.wBitsPerSample, bits) << what;
                EXPECT_EQ(load.samples.size(), std::size_t(soxi("-s", file) * channels * (bits / 8) / 2)) << what;

                prompt.shown.clear();
                const auto opening = OpenOtherFile(
                    recording, file, [] { return StereoChoice::Mix; }, prompt);
                if (rate != 44100 && rate != 22050 && rate != 11025) {
                    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kFileRateMustBe)}) << what;
                } else if (bits != 16) {
                    EXPECT_EQ(prompt.shown, std::vector<std::string>{std::string(kFileMustBe16Bits)}) << what;
                } else {
                    ASSERT_EQ(opening.result, OtherFileResult::Opened) << what;
                    const std::vector<std::int16_t> decoded = soxDecode16(file);
                    EXPECT_EQ(load.samples, decoded) << what;
                    std::vector<std::int16_t> mixed = decoded;  // stereo: the mean of each pair, toward zero
                    if (channels == 2) {
                        mixed.clear();
                        for (std::size_t k = 0; k + 1 < decoded.size(); k += 2)
                            mixed.push_back(static_cast<std::int16_t>((decoded[k] + decoded[k + 1]) / 2));
                    }
                    EXPECT_EQ(recording.samples(), mixed) << what;
                }
            }
        }
    }
    // Writing to a pipe, sox cannot go back to fix the sizes and leaves a data chunk of about 2 GB.
    ASSERT_TRUE(soxSynth(22050, 1, 16, "-t wav -", " | cat > " + quoted(dir / "piped.wav")));
    EXPECT_EQ(WaveLoad(dir / "piped.wav").code, kWaveDataTruncated);
}

TEST_F(WaveInterop, EveryFileOurWriterMakesReadsBackInSox) {
    std::mt19937 random(11);
    std::vector<std::int16_t> samples(100000);  // many copy blocks of the reader
    for (auto& s : samples) s = static_cast<std::int16_t>(random());
    for (const auto& [index, channels] : {std::pair{3, 1}, {5, 1}, {7, 1}, {5, 2}}) {
        WaveWriter writer;
        writer.SetRecordFormat(index);
        if (channels == 2) {  // a stereo file saved as it stood, interleaved
            writer.format.nChannels = 2;
            writer.format.nBlockAlign = 4;
        }
        const auto file = dir / ("w" + std::to_string(index) + "c" + std::to_string(channels) + ".wav");
        ASSERT_EQ(writer.WaveWrite(file, static_cast<std::uint32_t>(samples.size() * 2), samples.data(), prompt), 1);
        const std::string what = file.filename().string();
        EXPECT_EQ(soxi("-r", file), static_cast<long>(writer.format.nSamplesPerSec)) << what;
        EXPECT_EQ(soxi("-c", file), channels) << what;
        EXPECT_EQ(soxi("-b", file), 16) << what;
        EXPECT_EQ(soxi("-s", file), static_cast<long>(samples.size()) / channels) << what;
        EXPECT_EQ(soxDecode16(file), samples) << what;
        EXPECT_EQ(WaveLoad(file).samples, samples) << what;
    }
}
