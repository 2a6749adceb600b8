#include "ordering/modes.h"

#include "support/random_cells.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(Modes, OfCodesAreTheMostFrequentAndTheSmallestOfThese)
{
    matrix<double> x = vectorOf<double>({2, 2, 0, 0, 1});
    EXPECT_EQ(V_ModeCat(&x, 5), 0.0);
    EXPECT_EQ(V_ModeCat(&x, 3), 2.0);
    matrix<double> fractions = vectorOf<double>({1.9, 1.2, 0.3, MISSING_DBL, MISSING_DBL, MISSING_DBL});
    EXPECT_EQ(V_ModeCat(&fractions, 6), 1.0) << "missing values are not counted";
    EXPECT_EQ(V_ModeCat(&fractions, 0), MISSING_DBL);
}
