#include <gtest/gtest.h>

#include <sstream>

#include "FakePrompt.h"
#include "TempDir.h"
#include "store/GraphLabel.h"

static GraphLabelTable readText(const std::string& text) {
    std::istringstream in(text);
    GraphLabelTable table;
    table.readLabels(in);
    return table;
}

TEST(LabelFile, LabelsAreWrittenAsTokensWithoutTheFreedOnesAndReadBack) {
    TempDir dir;
    FakePrompt prompt;
    GraphLabelTable table;
    for (const GraphLabel& label : {GraphLabel{0, 22050, 4410, 4470, "x;y"}, GraphLabel{5, 6, 7, 8, "freed"},
                                    GraphLabel{0, 100, 30, 40, "end;"}, GraphLabel{0, 100, 50, 60, "z"}})
        table.add(label);
    table[1].Free = 1;
    ASSERT_EQ(table.WriteLabelFile(dir / "wv001.wav", prompt), 1);
    const std::string written = "3;;0;;22050;;4410;;4470;;x;y;;0;;100;;30;;40;;end;;;0;;100;;50;;60;;z;;";
    EXPECT_EQ(dir.read("wv001.mrk"), written);

    GraphLabelTable back;
    back.ReadLabelFile(dir / "WV001.WAV");  // any case of the name
    ASSERT_EQ(back.count(), 3);
    EXPECT_EQ(back[0], table[0]);
    EXPECT_EQ(back[1].Text, "end");  // a semicolon at the end of a text begins the next token: ";0" reads as 0
    EXPECT_EQ(back[2].ViewFirst, 0);
    EXPECT_EQ(back[2], table[3]);

    for (int i : {0, 2, 3}) table[i].Free = 1;
    ASSERT_EQ(table.WriteLabelFile(dir / "wv001.wav", prompt), 1);
    EXPECT_EQ(dir.read("wv001.mrk"), written);             // no label left: the old file stays
    EXPECT_EQ(table.add(GraphLabel{0, 0, 0, 0, "e"}), 0);  // the first freed slot is reused
    EXPECT_TRUE(prompt.shown.empty());
    EXPECT_EQ(table.WriteLabelFile(dir / "gone/wv001.wav", prompt), 0);
    EXPECT_EQ(prompt.shown, std::vector<std::string>{"Error saving File!"});
    EXPECT_TRUE(DeleteLabelFile(dir / "WV001.WAV"));
    EXPECT_FALSE(std::filesystem::exists(dir / "wv001.mrk"));
}

TEST(LabelFile, ShortOrOverfullFilesNeverOverrunTheTable) {
    // Two labels counted, the second cut short: it is in use, with what could be read.
    const GraphLabelTable cut = readText("2;;1;;2;;3;;4;;Hi;;5;;6");
    ASSERT_EQ(cut.count(), 2);
    EXPECT_EQ(cut[0], (GraphLabel{1, 2, 3, 4, "Hi", 0, 0}));
    EXPECT_EQ(cut[1], (GraphLabel{5, 0, 0, 0, "", 0, 0}));

    std::string many = "60;;";
    for (int i = 0; i < 60; ++i) many += std::to_string(i) + ";;0;;0;;0;;t" + std::to_string(i) + ";;";
    const GraphLabelTable full = readText(many);
    EXPECT_EQ(full.count(), kGraphLabelSlots);
    EXPECT_EQ(full[49].Text, "t49");

    for (const char* text : {"", "-3;;1;;"}) EXPECT_EQ(readText(text).count(), 0);
    EXPECT_EQ(readText("1;;0;;0;;0;;0;;" + std::string(400, 'a') + ";;")[0].Text.size(), kLabelTextLimit);
    EXPECT_EQ(readText(std::string("1;;0;;0;;0;;0;;ab\0cd;;", 22))[0].Text, "ab");

    GraphLabelTable table;
    for (int i = 0; i < kGraphLabelSlots; ++i) ASSERT_EQ(table.add(GraphLabel{0, 0, i, i, "n"}), i);
    EXPECT_EQ(table.add(GraphLabel{0, 0, 0, 0, "one too many"}), -1);

    GraphLabelTable absent;
    absent.ReadLabelFile("/nonexistent/wv001.wav");
    EXPECT_EQ(absent.count(), 0);
}
