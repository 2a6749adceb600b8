#include "containers/matrix.h"
#include "support/bits.h"

using korvel::test::sameBits;

TEST(Matrix, OwnedTablesHaveAtLeastOneColumn)
{
    const matrix<double> owned(3, 0, 1.0);
    EXPECT_EQ(owned.nbrows, 3);
    EXPECT_EQ(owned.nbcols, 1);
    EXPECT_EQ(owned.nbElem, 3u);
}
