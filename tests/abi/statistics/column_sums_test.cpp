#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

} // namespace

TEST(FlatColumnSums, ByRowByColumnAndOverall)
{
    guarded<double> x{1, 2, gone, 4, 5, 6};
    guarded<double> rows{7, 7};
    guarded<double> cols{7, 7, 7};
    EXPECT_EQ(VB_M_SumByRows(x.data(), 2, 3, rows.data()), 0);
    EXPECT_EQ(valuesOf(rows), (doubles{6, 12}));
    EXPECT_EQ(VB_M_SumByCols(x.data(), 2, 3, cols.data()), 0);
    EXPECT_EQ(valuesOf(cols), (doubles{3, 4, 11}));
    EXPECT_TRUE(sameBits(VB_M_SumOfElem(x.data(), 2, 3), 18));
    EXPECT_TRUE(sameBits(VB_M_SumOfElem(nullptr, 0, 3), 0));
    const doubles ofRows{26, 56};
    const doubles ofCols{5, 16, 61};
    EXPECT_EQ(Cpp_M_SumBySquareRows(x.data(), 2, 3, rows.data()), 0);
    EXPECT_EQ(valuesOf(rows), ofRows);
    EXPECT_EQ(Cpp_M_SumBySquareCols(x.data(), 2, 3, cols.data()), 0);
    EXPECT_EQ(valuesOf(cols), ofCols);
    EXPECT_EQ(VB_M_SquaredRows(x.data(), 2, 3, rows.data()), 0);
    EXPECT_EQ(valuesOf(rows), ofRows);
    EXPECT_EQ(VB_M_SquaredColumns(x.data(), 2, 3, cols.data()), 0);
    EXPECT_EQ(valuesOf(cols), ofCols);
}
