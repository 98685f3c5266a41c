#include <fstream>

#include "ClientTables.h"

// The empty table as the published layout lays it down, made by tests/data/clients/make-empty-pacb.py.
TEST_F(ClientTable, ACreatedTableHasThePublishedLayoutAndAMemoFlagIsWrittenBackPlain) {
    std::ifstream in(SONALYS_SOURCE_DIR "/tests/data/clients/empty-pacb.dbf", std::ios::binary);
    const std::string empty{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    ASSERT_EQ(empty.size(), 386u);
    table.CreateTable();
    std::string made = bytes();
    made.replace(1, 3, empty.substr(1, 3));  // only the day it was made may differ
    EXPECT_EQ(made, empty);

    ASSERT_EQ(table.InsertClient(makeClient(12, "Jo\xE3o")), 1);  // bytes of a legacy code page kept as they are
    ASSERT_EQ(table.LoadClients(), 1);
    EXPECT_EQ(recordText(table.EntryAt(0)->record.Nome), "Jo\xE3o");
    const std::string written = bytes();
    // A table marked as having memo fields is written back as the plain table it is.
    root.write("pacb.dbf", "\x83" + written.substr(1));
    ASSERT_EQ(table.InsertClient(makeClient(13, "B")), 1);
    EXPECT_EQ(bytes()[0], '\x03');
}
