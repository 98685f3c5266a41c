// Setting up the frame's mixer lines, and the record input chosen in the record settings.
#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "FakeVolume.h"
#include "TempDir.h"
#include "app/CConfGravar.h"
#include "app/MixerVolumes.h"
#include "app/SettingsFiles.h"

namespace {

constexpr const char* kVerify =
    "Verify if other Program is using the audio channel or if your audio devices are installed properly!\n"
    "Do you want to Continue?";
constexpr const char* kMicMissing = "Mic. Input can´t be found!\nDo You want to Continue?";
constexpr const char* kAttention = "Attention! Select the Audio Input in the Windows Record Control!";
constexpr const char* kCannotDefine = "Warning! It´s not Possible to Define the Selected Input!";

// A mixer whose master line exists when `master` says so and whose input exists for the inputs listed.
MixerVolumes::Factory fakeMixer(bool master, std::vector<int> inputs, std::vector<int>* madeFor = nullptr) {
    return [=](MixerLine line, int input) -> std::unique_ptr<IVolume> {
        auto volume = std::make_unique<FakeVolume>();
        if (line == MixerLine::Master) volume->found = master;
        if (line == MixerLine::Input) {
            volume->found = std::find(inputs.begin(), inputs.end(), input) != inputs.end();
            if (madeFor != nullptr) madeFor->push_back(input);
        }
        return volume;
    };
}

}  // namespace

TEST(MixerVolumes, SetUpAsksOnceForAMissingMixerAndNoGivesEveryLineUp) {
    struct Case {
        bool master;
        std::vector<int> inputs;
        bool answer;
        std::vector<std::string> asked;
        bool masterKept, inputKept;
    };
    const std::vector<Case> cases = {
        {true, {0, 1}, true, {}, true, true},
        {false, {0, 1}, true, {kVerify}, false, false},  // no mixer reached: the input is not sought
        {false, {0, 1}, false, {kVerify}, false, false},
        {true, {}, true, {kMicMissing}, true, false},
        {true, {}, false, {kMicMissing}, false, false},
    };
    for (const Case& c : cases) {
        FakePrompt prompt;
        prompt.defaultAnswer = c.answer;
        MixerVolumes mixer;
        EXPECT_EQ(mixer.SetUp(fakeMixer(c.master, c.inputs), 0, prompt), c.answer);
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
    std::vector<int> madeFor;
    MixerVolumes mixer;
    ASSERT_TRUE(mixer.SetUp(fakeMixer(true, {0}, &madeFor), 0, prompt));

    EXPECT_EQ(ApplyRecordInput(0, 0, mixer, prompt, home.path()), 0);
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(ReadRecordInput(home.path(), -1), 0);
    EXPECT_EQ(madeFor, (std::vector<int>{0, 0}));  // the same input still gets its line anew

    // This card has no line input: the warning follows the reminder, and the input slider has no line.
    EXPECT_EQ(ApplyRecordInput(0, 1, mixer, prompt, home.path()), 1);
    EXPECT_EQ(prompt.shown, (std::vector<std::string>{kAttention, kCannotDefine}));
    EXPECT_EQ(ReadRecordInput(home.path(), -1), 1);
    EXPECT_EQ(mixer.line(MixerLine::Input), nullptr);
}
