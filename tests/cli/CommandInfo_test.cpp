// sonalys-analyze info, run as the built program.
#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "store/WaveFile.h"

namespace {

CommandResult info(const std::string& arguments) {
    return runCommand(std::string(SONALYS_CLI_PATH) + " info " + arguments + " 2>&1");
}

void writeWave(const std::filesystem::path& path, int formatIndex, std::uint16_t channels, std::size_t values) {
    FakePrompt prompt;
    WaveWriter writer;
    writer.SetRecordFormat(formatIndex);
    writer.format.nChannels = channels;
    writer.format.nBlockAlign = static_cast<std::uint16_t>(2 * channels);
    const std::vector<std::int16_t> samples(values, 100);
    ASSERT_EQ(writer.WaveWrite(path, static_cast<std::uint32_t>(values * 2), samples.data(), prompt), 1);
}

}  // namespace

TEST(CliInfo, PrintsTheFormatTheLengthAndTheVerdict) {
    TempDir dir;
    writeWave(dir / "mono.wav", 5, 1, 11025);  // half a second at 22050 Hz
    const CommandResult mono = info(quoted(dir / "mono.wav"));
    EXPECT_EQ(mono.exitCode, 0);
    EXPECT_EQ(mono.output,
              "format_tag,1\nchannels,1\nsample_rate,22050\navg_bytes_per_sec,44100\nblock_align,2\n"
              "bits_per_sample,16\nextra_size,0\nvalues,11025\nduration_s,0.500\nopens_as_other_file,yes\nreason,\n");

    writeWave(dir / "stereo.wav", 7, 2, 44100);  // 22050 frames at 44100 Hz
    const CommandResult stereo = info(quoted(dir / "stereo.wav"));
    EXPECT_NE(stereo.output.find("values,44100\nduration_s,0.500\nopens_as_other_file,yes\n"), std::string::npos)
        << stereo.output;

    writeWave(dir / "phone.wav", 1, 1, 800);
    const CommandResult phone = info(quoted(dir / "phone.wav"));
    EXPECT_EQ(phone.exitCode, 0);
    EXPECT_NE(phone.output.find("duration_s,0.100\nopens_as_other_file,no\n"
                                "reason,\"File rate must be 44100 Hz, 22050 Hz or 11025 Hz!\"\n"),
              std::string::npos)
        << phone.output;
}

TEST(CliInfo, RefusedFilesGiveAClearMessageAndStatus2) {
    TempDir dir;
    dir.write("notes.wav", "these are not sounds");
    const CommandResult refused = info(quoted(dir / "notes.wav"));
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.output.find("not a RIFF WAVE file"), std::string::npos) << refused.output;

    const CommandResult missing = info(quoted(dir / "absent.wav"));
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_NE(missing.output.find("could not be opened"), std::string::npos) << missing.output;

    EXPECT_EQ(info("").exitCode, 1);
}
