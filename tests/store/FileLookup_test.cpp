#include <gtest/gtest.h>

#include "TempDir.h"
#include "store/FileLookup.h"

TEST(FileLookup, NamesCopiedFromWindowsAreFoundInAnyCase) {
    TempDir root;
    root.write("PAC007/WV001.WAV", "a");
    root.write("PAC007/wv002.wav", "b");
    root.write("PAC007/Wv002.WAV", "c");
    EXPECT_EQ(findExistingFile(root / "pac007/wv001.wav"), root / "PAC007/WV001.WAV");
    EXPECT_EQ(findExistingFile(root / "pac007/wv002.wav"), root / "PAC007/wv002.wav");  // the exact one wins
    EXPECT_EQ(findExistingFile(root / "PAC007/WV002.WAV"), root / "PAC007/Wv002.WAV");  // then byte order
    EXPECT_FALSE(findExistingFile(root / "pac007/wv003.wav").has_value());
    EXPECT_FALSE(findExistingFile(root / "pac007").has_value());  // a folder is not a file
    // A file still to be made gets the folder as the disk spells it.
    EXPECT_EQ(findFileIgnoringCase(root / "pac007/wv003.ddt"), root / "PAC007/wv003.ddt");
    EXPECT_EQ(findFileIgnoringCase(root / "pac008/wv003.ddt"), root / "pac008/wv003.ddt");

    // A listing read once answers by the same rule.
    const FolderListing listing(root / "pac007");
    EXPECT_EQ(listing.findFile("wv001.wav"), root / "PAC007/WV001.WAV");
    EXPECT_EQ(listing.findFile("wv002.wav"), root / "PAC007/wv002.wav");
    EXPECT_EQ(listing.findFile("WV002.WAV"), root / "PAC007/Wv002.WAV");
    EXPECT_FALSE(listing.findFile("wv003.wav").has_value());
}
