#include "analysis/PolyRoots.h"

#include <gtest/gtest.h>

TEST(ClassicRand, GivesTheSmallRangeSequenceFromSeedOne) {
    ClassicRand random;
    for (int expected : {41, 18467, 6334, 26500, 19169, 15724}) EXPECT_EQ(random.next(), expected);
}
