#include <gtest/gtest.h>

#include <sstream>

#include "FakePrompt.h"
#include "TempDir.h"
#include "store/GraphLabel.h"

namespace {

GraphLabel label(std::int32_t viewFirst, std::int32_t viewLast, std::int32_t textFirst, std::int32_t textLast,
                 std::string text) {
    GraphLabel l;
    l.ViewFirst = viewFirst;
    l.ViewLast = viewLast;
    l.TextFirst = textFirst;
    l.TextLast = textLast;
    l.Text = std::move(text);
    return l;
}

GraphLabelTable readText(const std::string& text) {
    std::istringstream in(text);
    GraphLabelTable table;
    table.readLabels(in);
    return table;
}

}  // namespace

TEST(ReadLabelToken, DoubleSemicolonEndsATokenAndASingleOneBelongsToIt) {
    std::istringstream in("5;;a;b;;x;;;;7;;abc");
    std::string token;
    EXPECT_EQ(ReadLabelToken(token, in), 1);
    EXPECT_EQ(token, "5");  // one character is a token
    EXPECT_EQ(ReadLabelToken(token, in), 1);
    EXPECT_EQ(token, "a;b");
    EXPECT_EQ(ReadLabelToken(token, in), 1);
    EXPECT_EQ(token, "x");
    // An empty token stops at once, its second semicolon left to begin the next token.
    EXPECT_EQ(ReadLabelToken(token, in), 0);
    EXPECT_EQ(ReadLabelToken(token, in), 1);
    EXPECT_EQ(token, ";7");
    EXPECT_EQ(ReadLabelToken(token, in), 0);  // cut short by the end of the file
    EXPECT_EQ(token, "");
    EXPECT_EQ(ReadLabelToken(token, in), 0);
}

TEST(LabelFile, OneLabelIsWrittenAsItsTokensAndReadBack) {
    TempDir dir;
    FakePrompt prompt;
    GraphLabelTable table;
    table.add(label(0, 22050, 4410, 4470, "Vowel"));
    ASSERT_EQ(table.WriteLabelFile(dir / "wv001.wav", prompt), 1);
    EXPECT_EQ(dir.read("wv001.mrk"), "1;;0;;22050;;4410;;4470;;Vowel;;");

    GraphLabelTable back;
    back.ReadLabelFile(dir / "WV001.WAV");  // any case of the name
    ASSERT_EQ(back.count(), 1);
    EXPECT_EQ(back[0], table[0]);
    EXPECT_TRUE(prompt.shown.empty());
}

TEST(LabelFile, FreedLabelsAreLeftOutAndNoLabelLeavesAStaleFileAlone) {
    TempDir dir;
    FakePrompt prompt;
    GraphLabelTable table;
    table.add(label(1, 2, 3, 4, "a"));
    table.add(label(5, 6, 7, 8, "b;c"));
    table.add(label(9, 10, 11, 12, "d"));
    table[1].Free = 1;
    ASSERT_EQ(table.WriteLabelFile(dir / "qv002.wav", prompt), 1);
    EXPECT_EQ(dir.read("qv002.mrk"), "2;;1;;2;;3;;4;;a;;9;;10;;11;;12;;d;;");

    table[0].Free = 1;
    table[2].Free = 1;
    ASSERT_EQ(table.WriteLabelFile(dir / "qv002.wav", prompt), 1);
    EXPECT_EQ(dir.read("qv002.mrk"), "2;;1;;2;;3;;4;;a;;9;;10;;11;;12;;d;;");  // untouched
    EXPECT_EQ(readText("2;;1;;2;;3;;4;;a;;9;;10;;11;;12;;d;;").usedCount(), 2);

    EXPECT_EQ(table.add(label(0, 0, 0, 0, "e")), 0);  // the first freed slot is reused
    EXPECT_EQ(table.WriteLabelFile(dir / "gone/qv002.wav", prompt), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"Error saving File!"});

    EXPECT_TRUE(DeleteLabelFile(dir / "QV002.WAV"));
    EXPECT_FALSE(std::filesystem::exists(dir / "qv002.mrk"));
}

TEST(LabelFile, SemicolonsInTextsSurviveExceptAtTheEnd) {
    GraphLabelTable table;
    table.add(label(0, 100, 10, 20, "x;y"));
    table.add(label(0, 100, 30, 40, "end;"));
    table.add(label(0, 100, 50, 60, "z"));
    TempDir dir;
    FakePrompt prompt;
    table.WriteLabelFile(dir / "a.wav", prompt);
    EXPECT_EQ(dir.read("a.mrk"), "3;;0;;100;;10;;20;;x;y;;0;;100;;30;;40;;end;;;0;;100;;50;;60;;z;;");
    GraphLabelTable back;
    back.ReadLabelFile(dir / "a.wav");
    EXPECT_EQ(back[0].Text, "x;y");
    EXPECT_EQ(back[1].Text, "end");  // the third semicolon begins the next token: ";0" reads as 0
    EXPECT_EQ(back[2].ViewFirst, 0);
    EXPECT_EQ(back[2].TextFirst, 50);
    EXPECT_EQ(back[2].Text, "z");
}

TEST(LabelFile, ShortOrOverfullFilesNeverOverrunTheTable) {
    // Two labels counted, the second cut short: it is in use, with what could be read.
    const GraphLabelTable cut = readText("2;;1;;2;;3;;4;;Hi;;5;;6");
    ASSERT_EQ(cut.count(), 2);
    GraphLabel first = label(1, 2, 3, 4, "Hi");
    first.Free = 0;
    EXPECT_EQ(cut[0], first);
    EXPECT_EQ(cut[1].Free, 0);
    EXPECT_EQ(cut[1].ViewFirst, 5);
    EXPECT_EQ(cut[1].ViewLast, 0);
    EXPECT_EQ(cut[1].Text, "");

    std::string many = "60;;";
    for (int i = 0; i < 60; ++i) many += std::to_string(i) + ";;0;;0;;0;;t" + std::to_string(i) + ";;";
    const GraphLabelTable full = readText(many);
    EXPECT_EQ(full.count(), kGraphLabelSlots);
    EXPECT_EQ(full[49].Text, "t49");

    EXPECT_EQ(readText("").count(), 0);
    EXPECT_EQ(readText("-3;;1;;").count(), 0);
    EXPECT_EQ(readText("1;;0;;0;;0;;0;;" + std::string(400, 'a') + ";;")[0].Text.size(), kLabelTextLimit);
    EXPECT_EQ(readText(std::string("1;;0;;0;;0;;0;;ab\0cd;;", 22))[0].Text, "ab");

    GraphLabelTable table;
    for (int i = 0; i < kGraphLabelSlots; ++i) ASSERT_EQ(table.add(label(0, 0, i, i, "n")), i);
    EXPECT_EQ(table.add(label(0, 0, 0, 0, "one too many")), -1);

    GraphLabelTable absent;
    absent.ReadLabelFile("/nonexistent/wv001.wav");
    EXPECT_EQ(absent.count(), 0);
}
