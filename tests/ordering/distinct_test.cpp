#include "ordering/distinct.h"

#include "support/column_tables.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

TEST(Distinct, AreCountedAndLeaveTheVectorAsItIs)
{
    matrix<double> x = vectorOf<double>({2, MISSING_DBL, 1, 2, MISSING_DBL});
    EXPECT_EQ(V_NbDistinct(&x, 5), 3);
    EXPECT_EQ(cellsOf(x), (std::vector<double>{2, MISSING_DBL, 1, 2, MISSING_DBL}));
    EXPECT_EQ(V_NbDistinct(&x, 1), 1);
    for (const int none : {0, -1}) {
        EXPECT_EQ(V_NbDistinct(&x, none), 1);
    }
    matrix<double> close = vectorOf<double>({1, 1 + 1e-16, 1 + 4.440892098500626e-16});
    EXPECT_EQ(V_NbDistinct(&close, 3), 2);
}

TEST(Distinct, OfIntegersAndTextsAreExact)
{
    matrix<int> x = vectorOf<int>({3, MISSING_LNG, 3, 2, 4});
    EXPECT_EQ(V_NbDistinct(&x, 5), 4);
    EXPECT_EQ(V_NbDistinct(&x, 3), 2);
    EXPECT_EQ(V_NbDistinct(&x, 0), 1);
    EXPECT_EQ(x.data[0], 3);
    matrix<text> labels(4, 1, text(u"a"));
    labels.data[1] = u"A";
    labels.data[2] = u"";
    EXPECT_EQ(V_NbDistinct(&labels, 4), 3);
    EXPECT_EQ(V_NbDistinct(&labels, 0), 1);
    EXPECT_EQ(labels.data[1], u"A");
}

TEST(Distinct, AreListedInOrder)
{
    matrix<double> x = vectorOf<double>({2, 1, 2});
    matrix<double> out(3, 1, 9.0);
    int n = -1;
    V_ExtractDistinct(&x, 3, &out, &n);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(cellsOf(out), (std::vector<double>{1, 2, 9}));
    EXPECT_EQ(cellsOf(x), (std::vector<double>{2, 1, 2}));
}

TEST(Distinct, BeyondTheResultReachItsSpareSlot)
{
    matrix<double> x = vectorOf<double>({5, 4, 3});
    matrix<double> out(1, 1, 9.0);
    int n = -1;
    V_ExtractDistinct(&x, 3, &out, &n);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(out.data[0], 3.0);
    EXPECT_EQ(out.oobValue, 5.0);
}
