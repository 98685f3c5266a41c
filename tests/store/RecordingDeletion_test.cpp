#include <gtest/gtest.h>

#include <set>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "store/RecordingDeletion.h"

static std::set<std::string> filesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename());
    return names;
}

// From the view a wv recording keeps its notes and a qv one loses them; from the list both keep their labels.
// Only a sound that stays is reported: a side file that cannot go is passed over in silence. Immutable files
// resist even the superuser.
TEST(DeleteRecording, EachWayRemovesItsOwnFilesAndReportsOnlyASoundThatStays) {
    const std::string confirm(kConfirmDeleteRecording);
    const struct {
        bool fromList;
        const char* stem;
        const char* stuck;
        std::vector<std::string> shown;
        std::set<std::string> left;
    } cases[] = {
        {false, "wv004", "", {}, {"wv004.txt", "wv004.bkp", "wv004.rtf"}},
        {false, "qv004", "", {}, {"qv004.bkp", "qv004.rtf"}},
        {true, "WV004", "", {confirm}, {"WV004.mrk", "WV004.bkp", "WV004.rtf"}},  // copied from Windows
        {true, "qv004", "", {confirm}, {"qv004.mrk", "qv004.bkp", "qv004.rtf"}},
        {false, "wv004", "wv004.wav", {"Error deleting File!"}, {"wv004.wav", "wv004.txt", "wv004.bkp", "wv004.rtf"}},
        {true, "wv004", "wv004.txt", {confirm}, {"wv004.txt", "wv004.mrk", "wv004.bkp", "wv004.rtf"}},
    };
    for (const auto& c : cases) {
        TempDir root;
        FakePrompt prompt;
        for (const char* ext : {".wav", ".ddt", ".mrk", ".txt", ".bkp", ".rtf"})
            root.write("pac003/" + std::string(c.stem) + ext, "x");
        const std::string stuck = quoted(root / "pac003" / c.stuck);
        if (*c.stuck && runCommand("chattr +i " + stuck + " 2>/dev/null").exitCode != 0) continue;
        const bool wv = c.stem[0] == 'w' || c.stem[0] == 'W';
        if (c.fromList) {
            DeleteRecordingFilesFromList({root.path(), 3}, 4, wv ? FileKind::WvWithDate : FileKind::QvWithDate, prompt);
        } else {
            DeleteRecordingFilesFromView({root.path(), 3}, 4, root / "pac003/wv004.wav", prompt);
        }
        if (*c.stuck) runCommand("chattr -i " + stuck);
        EXPECT_EQ(prompt.shown, c.shown) << c.stem << c.stuck;
        EXPECT_EQ(filesIn(root / "pac003"), c.left) << c.stem << c.stuck;
    }
}

// Asking first, and refusing a recording sent to backup, are checked where the recording list dialog deletes.
TEST(DeleteRecording, OutsideTheClientsTheFilesGoByTheSoundsPath) {
    TempDir root;
    FakePrompt prompt;
    root.touch({"Other Files/Take One.WAV", "Other Files/Take One.ddt", "Other Files/Take One.mrk",
                "Other Files/Take One.txt"});
    EXPECT_TRUE(
        DeleteRecordingFilesFromView({root.path(), OutsideClientCode}, 5, root / "Other Files/Take One.WAV", prompt));
    EXPECT_EQ(filesIn(root / "Other Files"), std::set<std::string>{"Take One.txt"});
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(DeleteClient, WildcardsRemoveTheirFilesInAnyCase) {
    TempDir root;
    root.touch({"pac009/wv001.wav", "pac009/QV002.WAV", "pac009/wv001.txt", "pac009/wv001.ddt", "pac009/wv001.mrk",
                "pac009/report.rtf", "pac009/wv001.f0", "pac009/wv001.bkp", "pac009/conf.dat", "pac009/a.wave"});
    EXPECT_TRUE(DeleteMatchingFiles(root / "pac009", kClientListDeletePatterns));
    EXPECT_EQ(filesIn(root / "pac009"), (std::set<std::string>{"wv001.bkp", "conf.dat", "a.wave"}));
    EXPECT_TRUE(DeleteMatchingFiles(root / "pac009", kClientMenuDeletePatterns));
    EXPECT_EQ(filesIn(root / "pac009"), (std::set<std::string>{"wv001.bkp", "a.wave"}));
}
