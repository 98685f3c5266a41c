// Setting up the frame's mixer lines, and the record input chosen in the record settings.
#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "FakeVolume.h"
#include "TempDir.h"
#include "app/CConfGravar.h"
#include "app/MixerVolumes.h"
#include "app/SettingsFiles.h"

TEST(MixerVolumes, SetUpAsksOnceForAMissingMixerAndNoGivesEveryLineUp) {
    const std::string verify =
        "Verify if other Program is using the audio channel or if your audio devices are installed properly!\n"
        "Do you want to Continue?";
    const std::string micMissing = "Mic. Input can´t be found!\nDo You want to Continue?";
    struct Case {
        bool master;
        std::vector<int> inputs;
        bool answer;
        std::vector<std::string> asked;
        bool masterKept, inputKept;
    };
    const std::vector<Case> cases = {
        {true, {0, 1}, true, {}, true, true},
        {false, {0, 1}, true, {verify}, false, false},  // no mixer reached: the input is not sought
        {false, {0, 1}, false, {verify}, false, false},
        {true, {}, true, {micMissing}, true, false},
        {true, {}, false, {micMissing}, false, false},
    };
    for (const Case& c : cases) {
        FakePrompt prompt;
        prompt.defaultAnswer = c.answer;
        ScriptedMixer lines(c.master, c.inputs);
        MixerVolumes mixer;
        EXPECT_EQ(mixer.SetUp(lines.factory(), 0, prompt), c.answer);
        EXPECT_EQ(prompt.shown, c.asked);
        EXPECT_EQ(mixer.line(MixerLine::Master) != nullptr, c.masterKept);
        EXPECT_EQ(mixer.line(MixerLine::Input) != nullptr, c.inputKept);
    }
    FakePrompt prompt;
    MixerVolumes none;
    EXPECT_TRUE(none.SetUp(nullptr, 0, prompt));  // a program with no mixer asks nothing
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(MixerVolumes, AChosenInputIsPointedOutOnlyWhenItChangesAndItsLineIsMadeAnew) {
    TempDir home;
    FakePrompt prompt;
    ScriptedMixer lines(true, {0});
    MixerVolumes mixer;
    ASSERT_TRUE(mixer.SetUp(lines.factory(), 0, prompt));

    EXPECT_EQ(ApplyRecordInput(0, 0, mixer, prompt, home.path()), 0);
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(ReadRecordInput(home.path(), -1), 0);
    EXPECT_EQ(lines.inputsMade, (std::vector<int>{0, 0}));  // the same input still gets its line anew

    // This card has no line input: the warning follows the reminder, and the input slider has no line.
    EXPECT_EQ(ApplyRecordInput(0, 1, mixer, prompt, home.path()), 1);
    EXPECT_EQ(prompt.shown,
              (std::vector<std::string>{"Attention! Select the Audio Input in the Windows Record Control!",
                                        "Warning! It´s not Possible to Define the Selected Input!"}));
    EXPECT_EQ(ReadRecordInput(home.path(), -1), 1);
    EXPECT_EQ(mixer.line(MixerLine::Input), nullptr);
}
