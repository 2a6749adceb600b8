#include "abi/linalg/whole_tables.h"
#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatProducts, HeedMissingCellsWhereTheyAreToldTo)
{
    numbers a{1, 3, MISSING_DBL, 4};
    numbers b{1, 2};
    guarded<double> c{9, 9};
    EXPECT_EQ(VB_M_ProductABMissing(a.data(), 2, 2, b.data(), 1, c.data()), 0);
    EXPECT_EQ(valuesOf(c), (numbers{MISSING_DBL, 11}));
    numbers v{2, MISSING_DBL};
    guarded<double> y{9, 9};
    EXPECT_EQ(VB_M_ProductVB(v.data(), 2, a.data(), 2, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (numbers{MISSING_DBL, MISSING_DBL}));
    v[1] = 1;
    EXPECT_EQ(VB_M_ProductVB(v.data(), 2, a.data(), 2, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (numbers{5, MISSING_DBL}));
}
