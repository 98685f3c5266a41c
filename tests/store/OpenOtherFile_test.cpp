#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "TempDir.h"
#include "WaveData.h"
#include "store/OpenOtherFile.h"

static StereoChooser choose(std::optional<StereoChoice> choice) {
    return [choice] { return choice; };
}

// The dialog, the title, the mark and a refusal are checked where the view opens a file; here the sums that would
// overflow 16 bits, the right channel and the format the recording takes.
TEST(OpenOtherFile, StereoIsFoldedWithoutOverflowAndTakesAMonoFormat) {
    FakePrompt prompt;
    LoadedRecording recording;
    recording.Modified = true;
    const auto path = kWaveData / "stereo-22050.wav";
    const auto samples = [&] {
        return std::vector<std::int16_t>(recording.samples().begin(), recording.samples().end());
    };
    const OtherFileOpening mixed = OpenOtherFile(recording, path, choose(StereoChoice::Mix), prompt);
    ASSERT_EQ(mixed.result, OtherFileResult::Opened);
    EXPECT_EQ(mixed.title, "File - stereo-22050.wav");                           // the name alone, not the folders
    EXPECT_EQ(samples(), (std::vector<std::int16_t>{0, -1, 32767, -32767, 7}));  // truncated toward zero
    EXPECT_EQ(*recording.format(), (WaveFormat{1, 1, 22050, 44100, 2, 16, 0, {}}));
    EXPECT_FALSE(recording.Modified);
    OpenOtherFile(recording, path, choose(StereoChoice::Right), prompt);
    EXPECT_EQ(samples(), (std::vector<std::int16_t>{1, 0, 32767, -32767, 8}));
    const auto mono = OpenOtherFile(recording, kWaveData / "mono-11025.wav", choose(std::nullopt), prompt);
    ASSERT_EQ(mono.result, OtherFileResult::Opened);
    EXPECT_FALSE(recording.OpenedStereoAsMono);
    EXPECT_TRUE(prompt.shown.empty());
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
