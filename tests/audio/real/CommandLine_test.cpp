// The record and play commands of sonalys-analyze on the test PulseAudio server.
#include <gtest/gtest.h>

#include <QProcess>
#include <cmath>
#include <optional>
#include <vector>

#include "FakePrompt.h"
#include "PulseSupport.h"
#include "TempDir.h"
#include "store/WaveFile.h"

namespace {

struct CommandRun {
    int status;  // -1 when the program did not end by itself
    std::string out;
    std::string errors;
};

CommandRun sonalysAnalyze(const QStringList& arguments) {
    QProcess process;
    process.start(SONALYS_CLI_PATH, arguments);
    process.waitForFinished(60'000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
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
    const std::string take = (root / "take.wav").string();
    const CommandRun run = sonalysAnalyze({"record", QString::fromStdString(take), "--seconds", "1.5"});
    feeder.stop();
    ASSERT_EQ(run.status, 0) << run.errors;
    EXPECT_NE(run.out.find("sample_rate,11025\n"), std::string::npos);

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
    if (!haveProgram("parec")) GTEST_SKIP() << "parec is missing";
    std::vector<std::int16_t> file(2 * 11025);
    for (std::size_t i = 0; i < file.size(); ++i) file[i] = static_cast<std::int16_t>(1 + i);
    WaveWriter writer;
    writer.SetRecordFormat(3);
    FakePrompt prompt;
    const std::string path = (root / "count.wav").string();
    ASSERT_EQ(writer.WaveWrite(path, static_cast<std::uint32_t>(file.size() * 2), file.data(), prompt), 1);

    MonitorRecording heard(devices->sink, 11025, root / "heard.raw");
    const CommandRun run = sonalysAnalyze({"play", QString::fromStdString(path), "--from", "0.5", "--to", "1"});
    runEventLoop(300);
    std::vector<std::int16_t> got = heard.stop();
    ASSERT_EQ(run.status, 0) << run.errors;

    // 0.5 s is sample 5512.5, rounded to 5513; 1 s is sample 11025, not played.
    std::erase(got, 0);
    const std::vector<std::int16_t> expected(file.begin() + 5513, file.begin() + 11025);
    EXPECT_EQ(got, expected);
    EXPECT_NE(run.out.find("values_played,5512\n"), std::string::npos);
}

TEST_F(CommandLineAudioTest, WrongUsageAndUnreadableFilesAreRefused) {
    EXPECT_EQ(sonalysAnalyze({"record", "x.wav"}).status, 1);  // no length
    EXPECT_EQ(sonalysAnalyze({"record", "x.wav", "--seconds", "1", "--rate", "8000"}).status, 1);
    EXPECT_EQ(sonalysAnalyze({"play", "x.wav", "--from", "2", "--to", "1"}).status, 1);
    EXPECT_EQ(sonalysAnalyze({"play", (root / "missing.wav").string().c_str()}).status, 2);
}

}  // namespace
