#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "store/WaveFile.h"

namespace {

struct CliRun {
    int status = -1;
    std::string out, err;
    std::vector<std::string> lines() const { return splitLines(out); }
};

CliRun runF0(const TempDir& dir, const std::string& arguments) {
    const CommandResult run = runCommand(SONALYS_CLI_PATH " f0 " + arguments + " 2>" + quoted(dir / "stderr.txt"));
    return {run.exitCode, run.output, dir.read("stderr.txt")};
}

// A sine of `hz` written as a WAV file of `channels` channels at `rate` Hz and `bits` bits.
std::string writeSine(const TempDir& dir, const std::string& name, int rate, double hz, double seconds,
                      int channels = 1, int bits = 16) {
    const auto ch = std::uint16_t(channels), align = std::uint16_t(channels * bits / 8);
    WaveWriter writer;
    writer.format = {1, ch, std::uint32_t(rate), std::uint32_t(rate) * align, align, std::uint16_t(bits), 0, {}};
    std::vector<std::int16_t> samples;
    for (int i = 0; i < static_cast<int>(rate * seconds); ++i)
        for (int c = 0; c < channels; ++c)
            samples.push_back(
                static_cast<std::int16_t>(std::lround(8000 * std::sin(2 * 3.141592653589793 * hz * i / rate))));
    FakePrompt prompt;
    EXPECT_EQ(writer.WaveWrite(dir / name, static_cast<std::uint32_t>(samples.size() * 2), samples.data(), prompt), 1);
    return (dir / name).string();
}

}  // namespace

TEST(CommandF0, PrintsOneRowPerFrameAtTheFramesOwnTime) {
    TempDir dir;
    // 25 s at 11025 Hz: chunks of 10 and 15 s; the step is 122 samples, so frame 90 lies before 1 s.
    const CliRun result = runF0(dir, writeSine(dir, "a.wav", 11025, 200, 25));
    ASSERT_EQ(result.status, 0) << result.err;
    const std::vector<std::string> lines = result.lines();
    ASSERT_EQ(lines.size(), 1u + 900 + 1350);
    EXPECT_EQ(lines[0], "time_s,f0_hz");
    EXPECT_EQ(lines[1].substr(0, 9), "0.000000,");
    EXPECT_EQ(lines[1 + 90].substr(0, 9), "0.995918,");   // 90 * 122 / 11025
    EXPECT_EQ(lines[1 + 899].substr(0, 9), "9.948118,");  // 899 * 122 / 11025
    EXPECT_EQ(lines[1 + 900].substr(0, 10), "10.000000,");
    EXPECT_NEAR(std::stod(lines[1 + 450].substr(9)), 200.0, 4.0);
}

TEST(CommandF0, StereoIsMixedAndStatsSummariseTheVoicedFrames) {
    TempDir dir;
    const CliRun result = runF0(dir, "--stats " + writeSine(dir, "s.wav", 22050, 200, 3, 2));
    ASSERT_EQ(result.status, 0) << result.err;
    const std::vector<std::string> lines = result.lines();
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_EQ(lines[0], "statistic,hz,semitones_re_100hz");
    EXPECT_EQ(lines[1].substr(0, 5), "mean,");
    EXPECT_NEAR(std::stod(lines[1].substr(5)), 200.0, 4.0);
    EXPECT_NEAR(std::stod(lines[1].substr(lines[1].rfind(',') + 1)), 12.0, 0.3);  // an octave above 100 Hz
    EXPECT_EQ(lines[6].substr(0, 16), "voiced_fraction,");
    EXPECT_GT(std::stod(lines[6].substr(16)), 0.95);
}

TEST(CommandF0, OptionsRunTheSameChunkedPath) {
    TempDir dir;
    const std::string file = writeSine(dir, "o.wav", 22050, 150, 2);
    const CliRun slower = runF0(dir, file + " --frame-rate 50 --threads 1");
    ASSERT_EQ(slower.status, 0) << slower.err;
    EXPECT_EQ(slower.lines().size(), 1u + 100);
    EXPECT_EQ(slower.lines()[2].substr(0, 9), "0.020000,");
    const CliRun narrow = runF0(dir, file + " --min-f0 200 --max-f0 400");
    ASSERT_EQ(narrow.status, 0);
    EXPECT_NE(narrow.out, runF0(dir, file).out);
    EXPECT_EQ(runF0(dir, file + " --threads 0").status, 1);
    const CliRun inconsistent = runF0(dir, file + " --min-f0 500 --max-f0 400");
    EXPECT_EQ(inconsistent.status, 1);
    EXPECT_NE(inconsistent.err.find("F0: min(max)_f0 parameter inconsistent with record frequency"), std::string::npos);
}

TEST(CommandF0, RefusesFilesItCannotTrack) {
    TempDir dir;
    const std::pair<std::string, const char*> files[] = {{writeSine(dir, "low.wav", 3000, 200, 1), "4000 Hz"},
                                                         {writeSine(dir, "b8.wav", 22050, 200, 1, 1, 8), "16-bit"}};
    for (const auto& [file, says] : files) {
        const CliRun refused = runF0(dir, file);
        EXPECT_EQ(refused.status, 2);
        EXPECT_NE(refused.err.find(says), std::string::npos) << refused.err;
        EXPECT_TRUE(refused.out.empty());
    }
    EXPECT_EQ(runF0(dir, (dir / "missing.wav").string()).status, 2);
}
