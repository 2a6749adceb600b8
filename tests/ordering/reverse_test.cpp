#include "ordering/reverse.h"

#include "support/random_cells.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

TEST(Reverse, TheResultMayBeTheVector)
{
    for (const int n : {0, 1, 2, 3, 4, 5}) {
        std::vector<double> numbers{1, 2, 3, 4, 5};
        std::vector<short int> flags{1, 2, 3, 4, 5};
        std::vector<double> expected = numbers;
        std::reverse(expected.begin(), expected.begin() + n);
        matrix<double> x(5, 1, numbers.data(), true);
        matrix<double> out(5, 1, numbers.data(), true);
        V_Reverse(&x, n, &out);
        EXPECT_EQ(numbers, expected) << n;
        V_ReverseBool(flags.data(), n, flags.data());
        EXPECT_EQ(std::vector<double>(flags.begin(), flags.end()), expected) << n;
    }
    short int untouched = 7;
    V_ReverseBool(&untouched, -1, &untouched);
    EXPECT_EQ(untouched, 7);
}

TEST(Reverse, OntoItselfLeavesAVectorThatDoesNotHoldTheCount)
{
    matrix<double> x = vectorOf<double>({1, 2, 3});
    V_Reverse(&x, 4, &x);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), (std::vector<double>{1, 2, 3}));
}

TEST(Reverse, InPlaceLeavesAVectorThatDoesNotHoldTheCount)
{
    matrix<double> x = vectorOf<double>({1, 2, 3});
    V_Reverse2(&x, 4);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), (std::vector<double>{1, 2, 3}));
}

TEST(Reverse, InPlaceTurnsIntegersAndFlags)
{
    matrix<int> integers = vectorOf<int>({1, 2, 3, 4});
    V_Reverse2(&integers, 3);
    EXPECT_EQ(std::vector<int>(integers.data, integers.data + 4), (std::vector<int>{3, 2, 1, 4}));
    matrix<short int> flags = vectorOf<short int>({-1, 0, 7, 8});
    V_Reverse2(&flags, 4);
    EXPECT_EQ(std::vector<short int>(flags.data, flags.data + 4), (std::vector<short int>{8, 7, 0, -1}));
}
