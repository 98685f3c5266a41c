#include <gtest/gtest.h>

#include <set>

#include "FakePrompt.h"
#include "RunCommand.h"
#include "TempDir.h"
#include "store/RecordingDeletion.h"

namespace {

std::set<std::string> filesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename());
    return names;
}

void makeRecording(const TempDir& root, const std::string& stem) {
    for (const char* extension : {".wav", ".ddt", ".mrk", ".txt", ".bkp", ".rtf"}) root.write(stem + extension, "x");
}

}  // namespace

TEST(DeleteFromView, WvKeepsItsNotesQvLosesThemAndOtherFilesGoByPath) {
    TempDir root;
    FakePrompt prompt;
    makeRecording(root, "pac001/wv001");
    makeRecording(root, "pac001/qv002");
    EXPECT_TRUE(DeleteRecordingFilesFromView({root.path(), 1}, 1, root / "pac001/wv001.wav", prompt));
    EXPECT_TRUE(DeleteRecordingFilesFromView({root.path(), 1}, 2, root / "pac001/qv002.wav", prompt));
    EXPECT_EQ(filesIn(root / "pac001"),
              (std::set<std::string>{"wv001.txt", "wv001.bkp", "wv001.rtf", "qv002.bkp", "qv002.rtf"}));

    root.touch({"Other Files/Take One.WAV", "Other Files/Take One.ddt", "Other Files/Take One.mrk",
                "Other Files/Take One.txt"});
    EXPECT_TRUE(
        DeleteRecordingFilesFromView({root.path(), OutsideClientCode}, 5, root / "Other Files/Take One.WAV", prompt));
    EXPECT_EQ(filesIn(root / "Other Files"), std::set<std::string>{"Take One.txt"});
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(DeleteFromList, SoundNotesAndDateGoTheLabelsStayAndABackupIsRefused) {
    TempDir root;
    FakePrompt prompt;
    makeRecording(root, "pac002/WV001");  // copied from Windows
    makeRecording(root, "pac002/qv002");
    prompt.answers = {false, true, true};
    EXPECT_FALSE(DeleteRecordingFilesFromList({root.path(), 2}, 1, FileKind::WvWithDate, prompt));
    EXPECT_EQ(filesIn(root / "pac002").size(), 12u);  // No: nothing happens
    EXPECT_TRUE(DeleteRecordingFilesFromList({root.path(), 2}, 1, FileKind::WvWithoutDate, prompt));
    EXPECT_TRUE(DeleteRecordingFilesFromList({root.path(), 2}, 2, FileKind::QvWithDate, prompt));
    EXPECT_EQ(filesIn(root / "pac002"),
              (std::set<std::string>{"WV001.mrk", "WV001.bkp", "WV001.rtf", "qv002.mrk", "qv002.bkp", "qv002.rtf"}));
    EXPECT_EQ(prompt.shown, std::vector<std::string>(3, std::string(kConfirmDeleteRecording)));

    prompt.shown.clear();
    EXPECT_FALSE(DeleteRecordingFilesFromList({root.path(), 2}, 1, FileKind::SentToBackup, prompt));
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"This file was send to Backup!\nIt´s necessary to attach backup "
                                                     "files to access this file!"});
    EXPECT_EQ(filesIn(root / "pac002").size(), 6u);
}

// Only a sound that stays is reported: a side file that cannot go is passed over in silence. Immutable files
// resist even the superuser.
TEST(DeleteRecording, OnlyASoundThatCannotBeDeletedIsReportedAndTheOtherFilesGoAnyway) {
    struct Case {
        bool fromList;
        const char* stuck;
        std::vector<std::string> shown;
        std::set<std::string> left;
    };
    const std::string confirm(kConfirmDeleteRecording);
    for (const Case& c : std::vector<Case>{
             {false, "wv004.wav", {"Error deleting File!"}, {"wv004.wav", "wv004.txt", "wv004.bkp", "wv004.rtf"}},
             {true, "wv004.txt", {confirm}, {"wv004.txt", "wv004.mrk", "wv004.bkp", "wv004.rtf"}}}) {
        TempDir root;
        FakePrompt prompt;
        makeRecording(root, "pac003/wv004");
        const std::string stuck = quoted(root / "pac003" / c.stuck);
        if (runCommand("chattr +i " + stuck + " 2>/dev/null").exitCode != 0) GTEST_SKIP() << "no immutable files";
        if (c.fromList) {
            DeleteRecordingFilesFromList({root.path(), 3}, 4, FileKind::WvWithDate, prompt);
        } else {
            DeleteRecordingFilesFromView({root.path(), 3}, 4, root / "pac003/wv004.wav", prompt);
        }
        runCommand("chattr -i " + stuck);
        EXPECT_EQ(prompt.shown, c.shown) << c.stuck;
        EXPECT_EQ(filesIn(root / "pac003"), c.left) << c.stuck;
    }
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
