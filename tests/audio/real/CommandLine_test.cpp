// The record and play commands of sonalys-analyze on the test PulseAudio server.
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "store/WaveFile.h"

namespace {

// Runs sonalys-analyze with `arguments`; the output holds what it wrote on both streams.
CommandResult sonalysAnalyze(const std::string& arguments) {
    return runCommand(std::string(SONALYS_CLI_PATH) + " " + arguments + " 2>&1");
}

class CommandLineAudioTest : public ::testing::Test {
protected:
    void SetUp() override {
        devices = findTestDevices();
        if (!devices) GTEST_SKIP() << "no PulseAudio server with the test devices (scripts/pulse-test-server.sh)";
        drainPipe(devices->fifo);
    }
    std::optional<TestDevices> devices;
    TempDir root;
};

TEST_F(CommandLineAudioTest, RecordWritesAnUnbrokenTakeOfTheGivenLength) {
    PipeFeeder feeder(
        devices->fifo, 11025, [](std::size_t i) { return static_cast<std::int16_t>(i + 1); }, 10 * 11025);
    const std::filesystem::path take = root / "take.wav";
    const CommandResult run = sonalysAnalyze("record " + quoted(take) + " --seconds 1.5");
    feeder.stop();
    ASSERT_EQ(run.exitCode, 0) << run.output;
    EXPECT_NE(run.output.find("sample_rate,11025\n"), std::string::npos);

    const WaveLoadResult loaded = WaveLoad(take);
    ASSERT_EQ(loaded.code, kWaveOk);
    EXPECT_GT(loaded.samples.size(), 11025u * 13 / 10);
    EXPECT_LT(loaded.samples.size(), 11025u * 17 / 10);
    for (std::size_t i = 1; i < loaded.samples.size(); ++i) {
        ASSERT_EQ(static_cast<std::uint16_t>(loaded.samples[i]), static_cast<std::uint16_t>(loaded.samples[i - 1] + 1))
            << i;
    }
    EXPECT_FALSE(std::filesystem::exists(root / "grav.tmp"));  // the scratch file goes once the take is safe
}

TEST_F(CommandLineAudioTest, PlayOfARangeSoundsExactlyThatRange) {
    if (!toolAvailable("parec")) GTEST_SKIP() << "parec is missing";
    std::vector<std::int16_t> file(2 * 11025);
    for (std::size_t i = 0; i < file.size(); ++i) file[i] = static_cast<std::int16_t>(1 + i);
    WaveWriter writer;
    writer.SetRecordFormat(3);
    FakePrompt prompt;
    const std::filesystem::path path = root / "count.wav";
    ASSERT_EQ(writer.WaveWrite(path, static_cast<std::uint32_t>(file.size() * 2), file.data(), prompt), 1);

    MonitorRecording heard(devices->sink, 11025, root / "heard.raw");
    const CommandResult run = sonalysAnalyze("play " + quoted(path) + " --from 0.5 --to 1");
    runEventLoop(300);
    std::vector<std::int16_t> got = heard.stop();
    ASSERT_EQ(run.exitCode, 0) << run.output;

    // 0.5 s is sample 5512.5, rounded to 5513; 1 s is sample 11025, not played.
    std::erase(got, 0);
    const std::vector<std::int16_t> expected(file.begin() + 5513, file.begin() + 11025);
    EXPECT_EQ(got, expected);
    EXPECT_NE(run.output.find("values_played,5512\n"), std::string::npos);
}

TEST_F(CommandLineAudioTest, WrongUsageAndUnreadableFilesAreRefused) {
    EXPECT_EQ(sonalysAnalyze("record x.wav").exitCode, 1);  // no length
    EXPECT_EQ(sonalysAnalyze("record x.wav --seconds 1 --rate 8000").exitCode, 1);
    EXPECT_EQ(sonalysAnalyze("play x.wav --from 2 --to 1").exitCode, 1);
    EXPECT_EQ(sonalysAnalyze("play " + quoted(root / "missing.wav")).exitCode, 2);
}

}  // namespace
