#include <gtest/gtest.h>

#include "TempDir.h"
#include "store/FileLookup.h"

TEST(FileLookup, NamesCopiedFromWindowsAreFoundInAnyCase) {
    TempDir root;
    root.write("PAC007/WV001.WAV", "a");
    root.write("PAC007/wv002.wav", "b");
    root.write("PAC007/Wv002.WAV", "c");
    // The exact name wins, then the first in byte order; a listing read once answers by the same rule.
    const FolderListing listing(root / "pac007");
    const std::pair<const char*, const char*> found[] = {
        {"pac007/wv001.wav", "WV001.WAV"}, {"pac007/wv002.wav", "wv002.wav"}, {"PAC007/WV002.WAV", "Wv002.WAV"}};
    for (const auto& [asked, name] : found) {
        EXPECT_EQ(findExistingFile(root / asked), root / "PAC007" / name);
        EXPECT_EQ(listing.findFile(std::string_view(asked).substr(7)), root / "PAC007" / name);
    }
    EXPECT_FALSE(findExistingFile(root / "pac007/wv003.wav").has_value());
    EXPECT_FALSE(findExistingFile(root / "pac007").has_value());  // a folder is not a file
    // A file still to be made gets the folder as the disk spells it.
    EXPECT_EQ(findFileIgnoringCase(root / "pac007/wv003.ddt"), root / "PAC007/wv003.ddt");
    EXPECT_EQ(findFileIgnoringCase(root / "pac008/wv003.ddt"), root / "pac008/wv003.ddt");
    EXPECT_FALSE(listing.findFile("wv003.wav").has_value());
}
