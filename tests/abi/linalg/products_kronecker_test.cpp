#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatKronecker, HasABlockForEachCellOfTheFirstTable)
{
    guarded<double> a{1, 2, 3, 4};
    guarded<double> b{5, 7};
    guarded<double> c{9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(Cpp_KroneckerTensorProduct(a.data(), 2, 2, b.data(), 1, 2, c.data()), 0);
    expectCells(c, {5, 10, 7, 14, 15, 20, 21, 28});
    guarded<double> d{1, 2, 3, 4};
    EXPECT_EQ(Cpp_KroneckerTensorProduct(d.data(), 2, 1, b.data(), 2, 1, d.data()), 0)
        << "over its own table";
    expectCells(d, {5, 7, 10, 14});
}

TEST(FlatKronecker, OfNoCellsTouchesNothing)
{
    guarded<double> c{9};
    EXPECT_EQ(Cpp_KroneckerTensorProduct(nullptr, 0, 1, c.data(), 1, 1, c.data()), 0);
    EXPECT_EQ(Cpp_KroneckerTensorProduct(c.data(), -1, -1, c.data(), -1, -1, c.data()), 0);
    EXPECT_EQ(Cpp_KroneckerTensorProduct(c.data(), 65536, 0, c.data(), 65536, 0, c.data()), 0);
    expectCells(c, {9});
}
