#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "TempDir.h"
#include "store/FileTimes.h"
#include "store/LoadedRecording.h"
#include "store/RecordingFiles.h"

const std::string kTooMany = "Number of files exceeds to 150!\nInsert a new client to continue...";

static std::string name(const char* prefix, int number, const char* extension) {
    char text[32];
    std::snprintf(text, sizeof text, "%s%03d.%s", prefix, number, extension);
    return text;
}

TEST(RecordingPaths, StemFollowsTheRateAndTheCodeHasAtLeastThreeDigits) {
    const std::filesystem::path root = "/data";
    EXPECT_EQ(RecordingStemPath({root, 7}, 150, 44101), root / "pac007" / "wv150.wav");
    EXPECT_EQ(RecordingStemPath({root, 1234}, 3, 11025), root / "pac1234" / "wv003.wav");
    EXPECT_EQ(RecordingStemPath({root, OutsideClientCode}, 2, 44100), root / "Other Files" / "qv002.wav");
    EXPECT_EQ(ScratchRecordingPath(root), root / "grav.tmp");
}

TEST(RecordingNumbering, GapsAreNeverReusedSixteenFreeNumbersEndTheScanAndItStopsAt150) {
    TempDir root;
    FakePrompt prompt;
    const ClientFolder client{root.path(), 7};
    EXPECT_EQ(NextRecordingNumber(client, prompt), 1);  // no folder yet
    root.touch({"pac007/wv001.wav", "pac007/wv002.wav", "pac007/wv009.wav", "pac007/wv010.ddt", "pac007/qv010.bkp"});
    EXPECT_EQ(NextRecordingNumber(client, prompt), 11);    // holes are not reused; a date file takes no number
    root.touch({"pac007/WV011.WAV", "pac007/qv026.wav"});  // copied from Windows; 14 free numbers (12..25)
    EXPECT_EQ(NextRecordingNumber(client, prompt), 27);
    root.touch({"pac008/wv017.wav"});
    EXPECT_EQ(NextRecordingNumber({root.path(), 8}, prompt), 1);  // 1..16 free: 17 is never seen
    root.touch({"pac008/wv016.wav"});
    EXPECT_EQ(NextRecordingNumber({root.path(), 8}, prompt), 18);

    for (int n = 1; n <= 149; n += 10) root.touch({"pac003/" + name("wv", n, "wav")});
    root.touch({"pac003/" + name("qv", 149, "bkp")});
    EXPECT_EQ(NextRecordingNumber({root.path(), 3}, prompt), 150);
    EXPECT_TRUE(prompt.shown.empty());
    root.touch({"pac003/" + name("wv", 150, "wav")});
    EXPECT_EQ(NextRecordingNumber({root.path(), 3}, prompt), -1);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{kTooMany});
    EXPECT_EQ(NextRecordingNumber({root.path(), kNoClient}, prompt), -1);  // no client: nothing, silently
    EXPECT_EQ(prompt.shown.size(), 1u);
}

TEST(NewRecordingPath, ClientGetsTheStemOfTheRateAndOtherFilesTheScratchName) {
    TempDir root;
    FakePrompt prompt;
    root.touch({"pac005/qv001.wav", "Other Files/wv004.bkp"});
    LoadedRecording recording;
    std::string title;
    ASSERT_EQ(NewRecordingPath(recording, title, {root.path(), 5}, "Ana Lima", 44100, prompt), 1);
    EXPECT_EQ(recording.RecordingNumber, 2);
    EXPECT_EQ(recording.RecordingPath, root / "pac005" / "qv002.wav");
    EXPECT_EQ(title, "Ana Lima  File - 2");

    ASSERT_EQ(NewRecordingPath(recording, title, {root.path(), OutsideClientCode}, "default", 22050, prompt), 1);
    EXPECT_EQ(recording.RecordingNumber, 5);  // numbering still runs, in "Other Files"
    EXPECT_EQ(recording.RecordingPath, root / "Other Files" / "grav.tmp");
    EXPECT_EQ(title, "");

    for (int n = 1; n <= 150; n += 7) root.touch({"pac006/" + name("qv", n, "wav")});  // 1, 8, ..., 148
    root.touch({"pac006/wv150.wav"});  // no number left: path and title stay as they were
    title = "kept";
    EXPECT_EQ(NewRecordingPath(recording, title, {root.path(), 6}, "Rui", 22050, prompt), 0);
    EXPECT_EQ(recording.RecordingPath, root / "Other Files" / "grav.tmp");
    EXPECT_EQ(title, "kept");
}

TEST(ProbeRecording, FileKindFollowsWhatLiesOnDisk) {
    using enum FileKind;
    const std::pair<std::vector<std::string>, std::optional<FileKind>> rows[] = {
        {{}, std::nullopt},
        {{"wv001.ddt", "qv001.ddt", "wv001.txt"}, std::nullopt},
        {{"wv001.wav"}, WvWithoutDate},
        {{"wv001.wav", "wv001.ddt"}, WvWithDate},
        {{"wv001.wav", "wv001.ddt", "qv001.wav"}, WvWithoutDate},  // the qv date file counts
        {{"wv001.wav", "qv001.wav", "qv001.ddt"}, WvWithDate},
        {{"wv001.wav", "wv001.bkp"}, WvWithoutDate},  // the sound wins over a stale backup
        {{"wv001.bkp"}, SentToBackup},
        {{"qv001.bkp", "qv001.wav", "qv001.ddt"}, SentToBackup},  // a backup wins over a qv sound
        {{"qv001.wav"}, QvWithoutDate},
        {{"qv001.wav", "qv001.ddt"}, QvWithDate},
        {{"qv001.wav", "wv001.ddt"}, QvWithoutDate},
        {{"WV001.WAV", "Wv001.Ddt"}, WvWithDate},
    };
    for (const auto& [files, kind] : rows) {
        TempDir root;
        FakePrompt prompt;
        for (const std::string& file : files) root.write("pac009/" + file, "1262304000");
        const RecordingProbe probe = ProbeRecording({root.path(), 9}, 1, prompt);
        EXPECT_EQ(probe.exists ? std::optional(probe.kind) : std::nullopt, kind) << ::testing::PrintToString(files);
    }
}

TEST(ProbeRecording, DateComesFromTheDateFileOfTheSoundFoundOrTheFileSystem) {
    TempDir root;
    FakePrompt prompt;
    const ClientFolder client{root.path(), 2};
    const auto fileDate = [&](const char* file) { return *calendarDateFromUnixTime(*fileCreationTime(root / file)); };
    root.write("pac002/wv001.wav");
    root.write("pac002/wv001.ddt", "1262304000");  // 2010-01-01 00:00:00 UTC
    EXPECT_EQ(ProbeRecording(client, 1, prompt).date, (CalendarDate{2010, 1, 1}));
    EXPECT_EQ(ProbeRecording(client, 1, prompt).time, 1262304000);
    root.write("pac002/qv001.wav");  // now the qv date file is the one looked up, and there is none
    EXPECT_EQ(ProbeRecording(client, 1, prompt).date, fileDate("pac002/qv001.wav"));
    root.write("pac002/qv001.ddt", "10;10;");  // an import's shape: 10 seconds past 1970
    EXPECT_EQ(ProbeRecording(client, 1, prompt).date, (CalendarDate{1970, 1, 1}));
    root.write("pac002/qv001.ddt", "1;1;");  // too short to be a date: the file system's date
    EXPECT_EQ(ProbeRecording(client, 1, prompt).date, fileDate("pac002/qv001.wav"));
    root.write("pac002/wv002.bkp");
    root.write("pac002/wv002.ddt", "1262304000");  // a backup is dated by its marker alone
    EXPECT_EQ(ProbeRecording(client, 2, prompt).date, fileDate("pac002/wv002.bkp"));
    EXPECT_TRUE(prompt.shown.empty());
}

// The list itself, newest first and without number 150, is checked where the recording list dialog shows it.
TEST(RecordingList, RowsReadTheDateInTheLanguagesOrder) {
    const CalendarDate date{2010, 1, 2};
    const FakePrompt english;
    const char* rows[] = {"01/02/2010 File 5", "02/01/2010 File 5", "2010/01/02 File 5", "02/01/2010 File 5"};
    for (int lang = 0; lang < 4; ++lang) EXPECT_EQ(ListRowText(date, 5, lang, english), rows[lang]) << lang;
    EXPECT_EQ(ListRowText(date, 123, 7, english), "01/02/2010 File 123");
}
