#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "TempDir.h"
#include "WaveData.h"
#include "store/OpenOtherFile.h"

namespace {

StereoChooser choose(std::optional<StereoChoice> choice) {
    return [choice] { return choice; };
}

}  // namespace

TEST(OpenOtherFile, StereoIsFoldedAsChosenAndMarked) {
    FakePrompt prompt;
    const auto path = kWaveData / "stereo-22050.wav";
    LoadedRecording recording;
    recording.RecordingNumber = 4;
    recording.Modified = true;
    const OtherFileOpening mixed = OpenOtherFile(recording, path, choose(StereoChoice::Mix), prompt);
    ASSERT_EQ(mixed.result, OtherFileResult::Opened);
    EXPECT_EQ(mixed.title, "File - " + path.string());
    EXPECT_EQ(std::vector<std::int16_t>(recording.samples().begin(), recording.samples().end()),
              (std::vector<std::int16_t>{0, -1, 32767, -32767, 7}));  // truncated toward zero
    EXPECT_EQ(*recording.format(), (WaveFormat{1, 1, 22050, 44100, 2, 16, 0, {}}));
    EXPECT_TRUE(recording.OpenedStereoAsMono);
    EXPECT_EQ(recording.RecordingNumber, -1);
    EXPECT_EQ(recording.RecordingPath, path);
    EXPECT_FALSE(recording.Modified);

    OpenOtherFile(recording, path, choose(StereoChoice::Left), prompt);
    EXPECT_EQ(recording.samples()[2], 32767);
    EXPECT_EQ(recording.samples()[4], 7);
    OpenOtherFile(recording, path, choose(StereoChoice::Right), prompt);
    EXPECT_EQ(recording.samples()[3], -32767);
    EXPECT_EQ(recording.samples()[4], 8);

    ASSERT_EQ(OpenOtherFile(recording, kWaveData / "mono-11025.wav", choose(std::nullopt), prompt).result,
              OtherFileResult::Opened);
    EXPECT_FALSE(recording.OpenedStereoAsMono);
    EXPECT_TRUE(prompt.shown.empty());

    const OtherFileOpening refused = OpenOtherFile(recording, path, choose(std::nullopt), prompt);
    EXPECT_EQ(refused.result, OtherFileResult::Refused);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"The file can´t be opened!"});
    EXPECT_FALSE(recording.hasSamples());
}

TEST(OpenOtherFile, AnUnreadableFileShowsNothingAndAClientFileLoadsAsItStands) {
    TempDir dir;
    FakePrompt prompt;
    dir.write("PAC001/WV001.WAV", waveData("stereo-48000-8-bit.wav"));
    dir.write("bad.wav", "RIFF....WAVEjunk");
    LoadedRecording recording;
    ASSERT_EQ(recording.LoadSamples(dir / "pac001/wv001.wav"), 1);
    EXPECT_EQ(recording.SampleCount(), 4u);  // stereo stays interleaved: twice the apparent duration
    EXPECT_EQ(OpenOtherFile(recording, dir / "bad.wav", choose(StereoChoice::Mix), prompt).result,
              OtherFileResult::Unreadable);
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(recording.SampleCount(), 4u);
}
