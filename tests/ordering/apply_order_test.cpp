#include "ordering/apply_order.h"

#include "support/random_cells.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <vector>

using namespace korvel::test;

TEST(ApplyOrder, InPlaceReadsTheTablesOwnSpareSlot)
{
    matrix<double> x = vectorOf<double>({1, 2, 3});
    x.oobValue = 9.0;
    matrix<double> order = vectorOf<double>({3, 7, 1});
    SortApply2(&x, 3, 1, &order);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), (std::vector<double>{3, 9, 1}));
}

TEST(ApplyOrder, ReadsAndLeavesTheSpareSlotOfEachColumnOfARecord)
{
    cST_MVect<double> table(3, 2);
    for (int j = 0; j < 2; ++j) {
        matrix<double>& column = table.Vectors[static_cast<std::size_t>(j)].Vect;
        for (int i = 0; i < 3; ++i) {
            column[i] = 10.0 * j + i + 1;
        }
        column.oobValue = 9.0 + j;
    }
    matrix<double> order = vectorOf<double>({3, 7, 1});
    SortApply2(table, 3, 2, &order);
    const auto cells = [&](std::size_t j) {
        const matrix<double>& column = table.Vectors[j].Vect;
        return std::vector<double>(column.data, column.data + 3);
    };
    EXPECT_EQ(cells(0), (std::vector<double>{3, 9, 1}));
    EXPECT_EQ(cells(1), (std::vector<double>{13, 10, 11}));
    // Each store into a column leaves its value there too.
    EXPECT_EQ(table.Vectors[0].Vect.oobValue, 1.0);
    EXPECT_EQ(table.Vectors[1].Vect.oobValue, 11.0);
}

TEST(ApplyOrder, TheResultMayBeTheTable)
{
    std::vector<double> cells{1, 2, 3, 4, 5, 6};
    matrix<double> x(3, 2, cells.data(), true);
    matrix<double> out(3, 2, cells.data(), true);
    matrix<double> order = vectorOf<double>({2, 3, 1});
    SortApply(&x, 3, 2, &order, &out);
    EXPECT_EQ(cells, (std::vector<double>{2, 3, 1, 5, 6, 4}));

    std::vector<int> integers{1, 2, 3};
    matrix<int> y(3, 1, integers.data(), true);
    matrix<int> yOut(3, 1, integers.data(), true);
    SortApply(&y, 3, 1, &order, &yOut);
    EXPECT_EQ(integers, (std::vector<int>{2, 3, 1}));

    matrix<text> texts(3, 1, text());
    const text names[] = {u"one", u"two", u"three"};
    std::copy(std::begin(names), std::end(names), texts.data);
    SortApply(&texts, 3, 1, &order, &texts);
    EXPECT_EQ(std::vector<text>(texts.data, texts.data + 3), (std::vector<text>{u"two", u"three", u"one"}));
}

TEST(ApplyOrder, InPlaceMovesIntegersFlagsAndTexts)
{
    matrix<double> order = vectorOf<double>({2, 3, 1});
    matrix<int> integers = vectorOf<int>({1, 2, 3, 4, 5, 6});
    integers.nbrows = 3;
    integers.nbcols = 2;
    SortApply2(&integers, 3, 2, &order);
    EXPECT_EQ(std::vector<int>(integers.data, integers.data + 6), (std::vector<int>{2, 3, 1, 5, 6, 4}));
    matrix<short int> flags = vectorOf<short int>({-1, 0, 7});
    SortApply2(&flags, 3, 1, &order);
    EXPECT_EQ(std::vector<short int>(flags.data, flags.data + 3), (std::vector<short int>{0, 7, -1}));
    matrix<text> texts(3, 1, text(u"one"));
    texts.data[1] = u"two";
    texts.data[2] = u"three";
    SortApply2(&texts, 3, 1, &order);
    EXPECT_EQ(std::vector<text>(texts.data, texts.data + 3), (std::vector<text>{u"two", u"three", u"one"}));
}
