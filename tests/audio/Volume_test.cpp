// The rules every mixer line keeps, whatever mixer stands behind it.
#include <gtest/gtest.h>

#include "FakeVolume.h"

TEST(Volume, ValuesOutsideTheRangeAreIgnoredEveryChannelGetsTheSameLevel) {
    FakeVolume line(10, 200, {30, 70});
    ASSERT_EQ(line.Enable(), 1);
    EXPECT_EQ(line.GetMinimum(), 10);
    EXPECT_EQ(line.GetMaximum(), 200);
    EXPECT_EQ(line.GetCurrent(), 30);  // the first channel speaks for the line
    for (const int outside : {9, 201, -1}) line.SetCurrent(outside);
    EXPECT_TRUE(line.writes.empty());
    line.SetCurrent(10);
    line.SetCurrent(200);
    EXPECT_EQ(line.writes, (std::vector<std::vector<int>>{{10, 10}, {200, 200}}));
}
