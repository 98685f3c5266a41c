#include <gtest/gtest.h>

#include <filesystem>

#include "TempDir.h"
#include "store/ReplacingFile.h"

namespace fs = std::filesystem;

static bool replace(const fs::path& target, std::string_view text) {
    ReplacingFile file(target);
    return file.write(text.data(), text.size()) && file.commit();
}

// A table kept private stays private, a table shared through a link stays shared, and a file the user made
// read-only is refused and left as it was.
TEST(ReplacingFile, KeepsTheModeWritesThroughLinksAndRefusesReadOnlyFiles) {
    TempDir dir;
    dir.write("private.dbf", "old");
    const fs::perms privateMode = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(dir / "private.dbf", privateMode);
    fs::create_symlink("private.dbf", dir / "shared.dbf");
    ASSERT_TRUE(replace(dir / "shared.dbf", "new"));
    EXPECT_TRUE(fs::is_symlink(dir / "shared.dbf"));
    EXPECT_EQ(dir.read("private.dbf"), "new");
    EXPECT_EQ(fs::status(dir / "private.dbf").permissions(), privateMode);

    fs::permissions(dir / "private.dbf", fs::perms::owner_read);
    EXPECT_FALSE(replace(dir / "shared.dbf", "lost"));
    EXPECT_EQ(dir.read("private.dbf"), "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()), 2);  // no temporary left
}
