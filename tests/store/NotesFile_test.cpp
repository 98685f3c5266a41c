#include <gtest/gtest.h>

#include "FakePrompt.h"
#include "TempDir.h"
#include "store/NotesFile.h"

TEST(NotesFile, BytesAreKeptExactlyAsTyped) {
    TempDir dir;
    FakePrompt prompt;
    const char typed[] =
        "Voz rouca\r\nap\xF3s \0exerc\xED"
        "cio";  // Windows-1252 bytes, a zero byte
    const std::string notes(typed, sizeof typed - 1);
    ASSERT_EQ(WriteNotesFile(dir / "wv001.wav", notes, prompt), 1);
    EXPECT_EQ(dir.read("wv001.txt"), notes);
    EXPECT_EQ(ReadNotesFile(dir / "wv001.wav"), notes);
    ASSERT_EQ(WriteNotesFile(dir / "wv001.wav", "", prompt), 1);  // made anew: nothing of the old notes stays
    EXPECT_EQ(ReadNotesFile(dir / "wv001.wav"), "");
    EXPECT_TRUE(prompt.shown.empty());

    dir.write("QV002.TXT", "from Windows");
    EXPECT_EQ(ReadNotesFile(dir / "qv002.wav"), "from Windows");
    EXPECT_FALSE(ReadNotesFile(dir / "qv003.wav").has_value());

    EXPECT_EQ(WriteNotesFile(dir / "gone/wv001.wav", notes, prompt), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"Error Saving Notes File!"});
}
