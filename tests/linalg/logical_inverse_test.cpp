#include "linalg/logical_inverse.h"

#include <gtest/gtest.h>

TEST(LogicalInverse, MakesOnesOfZerosAndZerosOfTheRest)
{
    short int cells[] = {0, 1, -1, 7, 0, -32768};
    matrix<short int> flags(3, 2, cells, true);
    M_Inverse(flags, 3, 2);
    EXPECT_EQ(std::vector<short int>(cells, cells + 6), (std::vector<short int>{1, 0, 0, 0, 1, 0}));
    M_Inverse(flags, 1, 2);
    EXPECT_EQ(std::vector<short int>(cells, cells + 6), (std::vector<short int>{0, 0, 0, 1, 1, 0}));
}

TEST(LogicalInverse, OfNothingDoesNothing)
{
    short int cell = 5;
    matrix<short int> flags(1, 1, &cell, true);
    M_Inverse(flags, 0, 1);
    M_Inverse(flags, 1, 0);
    M_Inverse(flags, -1, -1);
    EXPECT_EQ(cell, 5);
}

TEST(LogicalInverse, ReachesNothingOutsideTheTable)
{
    short int cells[] = {0, 3};
    matrix<short int> flags(1, 1, cells, true);
    M_Inverse(flags, 1, 2);
    EXPECT_EQ(cells[0], 1);
    EXPECT_EQ(cells[1], 3);
}
