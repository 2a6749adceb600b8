#include "qualitative/category_counts.h"

#include "reference/categories.h"
#include "support/text_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(CategoryCounts, AreOfDifferentTextsWithoutTheEmptyOne)
{
    const matrix<text> data = textTable(3, {u"a", u"b", u"a", u"", u"", u"", u"x", u"X", u"x "});
    matrix<int> counts(3, 1);
    EXPECT_EQ(GetMaxCat(data, 3, 3, counts), 3);
    EXPECT_EQ(rowOf(counts, 0)[0], 2);
    EXPECT_EQ(counts[1], 0);
    EXPECT_EQ(counts[2], 3);
    EXPECT_EQ(GetMaxCat(data, 2, 3, counts), 2) << "of the first rows only";
    EXPECT_EQ(GetMaxCat(data, 3, 0, counts), 0) << "without columns";
}

TEST(CategoryCounts, OfOneColumn)
{
    int count = -7;
    EXPECT_EQ(GetMaxCat(textVector({u"a", u"", u"b", u"a"}), 4, count), 2);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(GetMaxCat(textVector({u"", u""}), 2, count), 0);
    EXPECT_EQ(count, 0);
}

TEST(CategoryCounts, OfManyColumnsOnSeveralThreads)
{
    random_cells cells(5, odd_cells::none);
    const matrix<text> data = randomTexts(cells, 200, 17, 90);
    matrix<int> counts(17, 1);
    int most = 0;
    GetMaxCat(data, 200, 17, counts);
    for (int j = 0; j < 17; ++j) {
        std::vector<text> column{data.data + 200 * j, data.data + 200 * (j + 1)};
        std::sort(column.begin(), column.end());
        column.erase(std::unique(column.begin(), column.end()), column.end());
        EXPECT_EQ(counts[j], static_cast<int>(column.size()) - (column.front().empty() ? 1 : 0));
        most = std::max(most, counts[j]);
    }
    EXPECT_EQ(GetMaxCat(data, 200, 17, counts), most);
}

TEST(NamesUsedTwice, AreFoundInLaterSlotsOfAnyVariable)
{
    const auto isTwice = [](const std::vector<std::vector<text>>& variables) {
        matrix<text> names(static_cast<int>(variables.size()), 3, text());
        matrix<int> counts(names.nbrows, 1);
        for (int j = 0; j < names.nbrows; ++j) {
            const std::vector<text>& slots = variables[static_cast<std::size_t>(j)];
            counts[j] = static_cast<int>(slots.size());
            for (int k = 0; k < counts[j]; ++k) {
                names.setElement(j, k, slots[static_cast<std::size_t>(k)]);
            }
        }
        return CheckUniqueCatByVar(names, names.nbrows, 3, counts);
    };
    EXPECT_EQ(isTwice({{u"a", u"b", u"a"}}), 1) << "in one variable";
    EXPECT_EQ(isTwice({{u"a", u"b"}, {u"c", u"a"}}), 1);
    EXPECT_EQ(isTwice({{u"c", u"a"}, {u"a", u"b"}}), 1) << "the later slot may be the first variable's";
    EXPECT_EQ(isTwice({{u"a", u"b"}, {u"a", u"b"}}), 0) << "the same slots are not compared";
    EXPECT_EQ(isTwice({{u"a", u"b"}, {u"A", u"c"}}), 0);
    EXPECT_EQ(isTwice({{u"", u""}}), 1) << "empty names are equal";
    EXPECT_EQ(isTwice({}), 0);
    const matrix<text> names = textTable(2, {u"a", u"c", u"b", u"a"});
    EXPECT_EQ(CheckUniqueCatByVar(names, 2, 2, matrix<int>(2, 1, 2)), 1);
    EXPECT_EQ(CheckUniqueCatByVar(names, 1, 2, matrix<int>(2, 1, 2)), 0) << "of the first variables only";
}

TEST(NamesUsedTwice, AreThoseOfThePlainSearch)
{
    int twice = 0;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        random_cells cells(seed, odd_cells::none);
        const int p = cells.integer(0, 3);
        const int width = cells.integer(1, 4);
        matrix<text> names = randomTexts(cells, p, width, 60);
        const matrix<int> counts = cells.integers(p, -1, width + 1);
        const int expected = korvel::reference::isNameUsedTwice(names, p, counts);
        EXPECT_EQ(CheckUniqueCatByVar(names, p, width, counts), expected) << seed;
        twice += expected;
    }
    EXPECT_GT(twice, 50);
    EXPECT_LT(twice, 350);
}
