#include "ordering/quantiles.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(Quantile, OfAShortVectorReadsTheSpareSlot)
{
    matrix<double> x(2, 1, 3.0);
    EXPECT_SAME_BITS(V_Quantile(&x, 3, 0.0), -1.0);
    EXPECT_SAME_BITS(V_Quantile(&x, 3, 0.5), 3.0);
}

TEST(Quantile, OfAColumn)
{
    matrix<double> table(3, 2, 0.0);
    for (int i = 0; i < 3; ++i) {
        table.setElement(i, 1, 10.0 * (i + 1));
    }
    matrix<double> w(3, 1, 1.0);
    short int flags[] = {0, 0, -1};
    EXPECT_SAME_BITS(M_QuantileMW(&table, 3, 2, flags, &w, 0.5), 15.0);
    EXPECT_SAME_BITS(M_QuantileMW(&table, 3, 1, flags, &w, 0.5), 0.0);
}
