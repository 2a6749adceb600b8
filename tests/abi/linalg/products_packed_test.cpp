#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatPackedProducts, ReadTheLowerTriangle)
{
    guarded<double> s{1, 2, 3, 4, 5, 6};
    guarded<double> x{1, 10, 100};
    guarded<double> y{9, 9, 9};
    EXPECT_EQ(VB_M_ProductASymV(s.data(), 3, x.data(), y.data()), 0);
    expectCells(y, {421, 532, 654});
    guarded<double> z{9, 9, 9};
    EXPECT_EQ(VB_M_ProductVASym(x.data(), 3, s.data(), z.data()), 0);
    expectCells(z, {421, 532, 654});
    EXPECT_EQ(VB_M_ProductASymV(s.data(), 3, x.data(), x.data()), 0) << "over its own vector";
    expectCells(x, {421, 532, 654});
    EXPECT_EQ(VB_M_ProductVASym(z.data(), 2, s.data(), s.data()), 0) << "over its own table";
    expectCells(s, {421 + 2 * 532, 2 * 421 + 3 * 532, 3, 4, 5, 6});
}

TEST(FlatPackedProducts, OfTwoTablesAreATriangle)
{
    guarded<double> a{0, 1, 0};
    guarded<double> b{1, 2, 3};
    guarded<double> c{9, 9, 9};
    EXPECT_EQ(Cpp_MV_ProductAsymBsym(a.data(), 3, b.data(), c.data()), 0);
    expectCells(c, {2, 1, 2});
    EXPECT_EQ(Cpp_MV_ProductAsymBsym(a.data(), 3, b.data(), b.data()), 0);
    expectCells(b, {2, 1, 2});
}

TEST(FlatPackedProducts, OfALengthThatIsNoTriangleReadMinusOnePastTheEnd)
{
    guarded<double> a{1, 2, 3, 5};
    guarded<double> b{7, 11, 13, 17};
    guarded<double> c{9, 9, 9, 9};
    EXPECT_EQ(Cpp_MV_ProductAsymBsym(a.data(), 4, b.data(), c.data()), 0);
    expectCells(c, {29, 47, 61, 24});
}

TEST(FlatPackedProducts, OfOneVectorAreAForm)
{
    guarded<double> v{10, 100};
    guarded<double> s{1, 2, 77, 3};
    EXPECT_EQ(Cpp_M_ProductTrVSymV(v.data(), 2, s.data()), 2 * 2000 + 100 + 30000);
    EXPECT_EQ(Cpp_M_ProductTrVSymV(nullptr, 0, nullptr), 0.0);
    expectCells(s, {1, 2, 77, 3});
}
