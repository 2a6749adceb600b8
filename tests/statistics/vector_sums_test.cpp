#include "statistics/vector_sums.h"
#include "support/bits.h"

using korvel::test::sameBits;

TEST(VectorSums, ShortVectorReadsTheSpareSlot)
{
    matrix<double> x(2, 1, 3.0);
    EXPECT_TRUE(sameBits(V_Sum(&x, 3, nullptr, nullptr), 3.0 + 3.0 - 1.0));
}
