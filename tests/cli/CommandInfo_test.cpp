#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "store/WaveFile.h"

static CommandResult info(const std::string& arguments) {
    return runCommand(SONALYS_CLI_PATH " info " + arguments + " 2>&1");
}

// What info says of `values` 16-bit values written in the format of `formatIndex` with `channels` channels.
static CommandResult infoOfWritten(const std::filesystem::path& path, int formatIndex, std::uint16_t channels,
                                   std::size_t values) {
    FakePrompt prompt;
    WaveWriter writer;
    writer.SetRecordFormat(formatIndex);
    writer.format.nChannels = channels;
    writer.format.nBlockAlign = static_cast<std::uint16_t>(2 * channels);
    const std::vector<std::int16_t> samples(values, 100);
    EXPECT_EQ(writer.WaveWrite(path, static_cast<std::uint32_t>(values * 2), samples.data(), prompt), 1);
    return info(quoted(path));
}

TEST(CliInfo, PrintsTheFormatTheLengthAndTheVerdict) {
    TempDir dir;
    const CommandResult mono = infoOfWritten(dir / "mono.wav", 5, 1, 11025);  // half a second at 22050 Hz
    EXPECT_EQ(mono.exitCode, 0);
    EXPECT_EQ(mono.output,
              "format_tag,1\nchannels,1\nsample_rate,22050\navg_bytes_per_sec,44100\nblock_align,2\n"
              "bits_per_sample,16\nextra_size,0\nvalues,11025\nduration_s,0.500\nopens_as_other_file,yes\nreason,\n");

    const CommandResult stereo = infoOfWritten(dir / "stereo.wav", 7, 2, 44100);  // 22050 frames at 44100 Hz
    EXPECT_NE(stereo.output.find("values,44100\nduration_s,0.500\nopens_as_other_file,yes\n"), std::string::npos)
        << stereo.output;

    const CommandResult phone = infoOfWritten(dir / "phone.wav", 1, 1, 800);
    EXPECT_EQ(phone.exitCode, 0);
    EXPECT_NE(phone.output.find("duration_s,0.100\nopens_as_other_file,no\n"
                                "reason,\"File rate must be 44100 Hz, 22050 Hz or 11025 Hz!\"\n"),
              std::string::npos)
        << phone.output;
}

TEST(CliInfo, RefusedFilesGiveAClearMessageAndStatus2) {
    TempDir dir;
    dir.write("notes.wav", "these are not sounds");
    for (const auto& [file, says] :
         {std::pair{"notes.wav", "not a RIFF WAVE file"}, {"absent.wav", "could not be opened"}}) {
        const CommandResult refused = info(quoted(dir / file));
        EXPECT_EQ(refused.exitCode, 2);
        EXPECT_NE(refused.output.find(says), std::string::npos) << refused.output;
    }

    EXPECT_EQ(info("").exitCode, 1);
}
