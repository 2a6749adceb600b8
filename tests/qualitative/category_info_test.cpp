#include "qualitative/category_info.h"

#include "reference/categories.h"
#include "support/near_tables.h"
#include "support/special_values.h"
#include "support/text_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using texts = std::vector<text>;
using doubles = std::vector<double>;

/** One variable of the given texts, of which each row weighs 1 where nothing else is said. */
struct one_variable {
    matrix<text> modes, names;
    matrix<double> modeFrequencies, frequencies;
    matrix<int> counts;
    int total = -7;

    explicit one_variable(const texts& cells, short int sort = 0, doubles given = {})
    {
        matrix<text> data = textVector(cells);
        given.resize(cells.size(), 1.0);
        matrix<double> weights = vectorOf(given);
        M_InfoQuali(&data, data.nbrows, 1, &modes, &modeFrequencies, &counts, &names, &frequencies, &weights,
                    &total, sort);
    }

    [[nodiscard]] texts found() const
    {
        texts all = textsOf(names);
        all.resize(static_cast<std::size_t>(counts[0]));
        return all;
    }
    [[nodiscard]] doubles sums() const { return {frequencies.data, frequencies.data + counts[0]}; }
};

} // namespace

TEST(CategoryInfo, ListsInOrderOfFirstAppearance)
{
    const one_variable x({u"b", u"", u"a", u"b", u"B", u"a", u"b ", u"b"});
    EXPECT_EQ(x.found(), (texts{u"b", u"a", u"B", u"b "}));
    EXPECT_EQ(x.sums(), (doubles{3, 2, 1, 1}));
    EXPECT_EQ(x.modes[0], u"b");
    EXPECT_EQ(x.modeFrequencies[0], 3.0);
    EXPECT_EQ(x.total, 4);
    EXPECT_EQ(x.names.nbrows, 1);
    EXPECT_EQ(x.names.nbcols, 8) << "as wide as there are rows";
    EXPECT_EQ(x.frequencies.nbcols, 8);
    EXPECT_EQ(x.names.getElement(0, 4), u"") << "left over";
    EXPECT_EQ(x.frequencies.getElement(0, 4), 0.0);
}

TEST(CategoryInfo, SumsWeightsInTheOrderOfTheRows)
{
    const one_variable x({u"a", u"b", u"a", u"a"}, 0, {1.0, 2.0, 1e-16, 1e-16});
    EXPECT_EQ(x.sums(), (doubles{1.0, 2.0})) << "each is lost in the sum before it";
    const one_variable y({u"a", u"b"}, 0, {MISSING_DBL, -0.0});
    EXPECT_SAME_BITS(y.frequencies[0], MISSING_DBL) << "a missing weight is a number";
    EXPECT_SAME_BITS(y.frequencies[1], -0.0) << "the first weight is the frequency";
}

TEST(CategoryInfo, OfARowOfWeightZeroIsACategory)
{
    const one_variable x({u"a", u"b"}, 0, {2.0, 0.0});
    EXPECT_EQ(x.found(), (texts{u"a", u"b"}));
    EXPECT_EQ(x.sums(), (doubles{2.0, 0.0}));
}

TEST(CategoryInfo, TheModeIsTheFirstOfTiedCategoriesAlsoWhenSorted)
{
    for (const short int sort : {short{0}, short{-1}}) {
        const one_variable x({u"c", u"b", u"a", u"b", u"c"}, sort);
        EXPECT_EQ(x.modes[0], u"c");
        EXPECT_EQ(x.modeFrequencies[0], 2.0);
    }
    const one_variable negative({u"a", u"b", u"c"}, 0, {-3, -1, -2});
    EXPECT_EQ(negative.modes[0], u"b") << "the largest frequency may be negative";
    EXPECT_EQ(negative.modeFrequencies[0], -1.0);
    const one_variable unordered({u"a", u"b"}, 0, {notANumber, 5});
    EXPECT_EQ(unordered.modes[0], u"a") << "nothing is larger than a NaN";
}

TEST(CategoryInfo, SortsNumbersByTheirValueAndKeepsTheirNames)
{
    const one_variable x({u"10", u"9", u"1,5", u"9"}, -1);
    EXPECT_EQ(x.found(), (texts{u"1,5", u"9", u"10"}));
    EXPECT_EQ(x.sums(), (doubles{1, 2, 1}));
    EXPECT_EQ(one_variable({u"12 months", u"3 months", u"1e1 years"}, -1).found(),
              (texts{u"3 months", u"1e1 years", u"12 months"}));
    EXPECT_EQ(one_variable({u"0.00", u"-1", u"0"}, -1).found(), (texts{u"-1", u"0.00", u"0"}));
}

TEST(CategoryInfo, SortsByTextWhenOneNameIsNoNumber)
{
    EXPECT_EQ(one_variable({u"0", u"word"}, -1).found(), (texts{u"0", u"word"}));
    EXPECT_EQ(one_variable({u"9", u"word", u"10"}, -1).found(), (texts{u"10", u"9", u"word"}));
    EXPECT_EQ(one_variable({u"b", u"ab", u"a", u"B", u"\u00E9"}, -1).found(),
              (texts{u"B", u"a", u"ab", u"b", u"\u00E9"}));
}

TEST(CategoryInfo, LeavesEqualNumbersInTheirOrder)
{
    EXPECT_EQ(one_variable({u"2", u"1.0", u"1", u"01"}, -1).found(), (texts{u"1.0", u"1", u"01", u"2"}));
}

TEST(CategoryInfo, SortsOnlyWhenTheFlagIsMinusOne)
{
    EXPECT_EQ(one_variable({u"b", u"a"}, 1).found(), (texts{u"b", u"a"}));
    EXPECT_EQ(one_variable({u"b", u"a"}, 0).found(), (texts{u"b", u"a"}));
}

TEST(CategoryInfo, OfAnEmptyColumnIsOneCategoryWithoutAName)
{
    for (const texts& cells : {texts{u"", u""}, texts{}}) {
        const one_variable x(cells, -1);
        EXPECT_EQ(x.counts[0], 1);
        EXPECT_EQ(x.total, 1);
        EXPECT_EQ(x.modes[0], u"");
        EXPECT_EQ(x.modeFrequencies[0], 0.0);
        EXPECT_EQ(x.found(), texts{u""});
        EXPECT_EQ(x.sums(), doubles{0.0});
    }
}

TEST(CategoryInfo, WithoutWeightsCountsRows)
{
    matrix<text> data = textTable(3, {u"a", u"b", u"a", u"x", u"", u"x"});
    matrix<text> modes, names;
    matrix<double> modeFrequencies, frequencies;
    matrix<int> counts;
    int total = 0;
    M_InfoQuali(&data, 3, 2, &modes, &modeFrequencies, &counts, &names, &frequencies, nullptr, &total, 0);
    EXPECT_EQ(rowOf(frequencies, 0), (doubles{2, 1, 0}));
    EXPECT_EQ(rowOf(frequencies, 1), (doubles{2, 0, 0}));
    EXPECT_EQ(total, 3);
    EXPECT_EQ(textsOf(modes), (texts{u"a", u"x"}));
}

TEST(CategoryInfo, OfOneVariableTakesTablesOfAnyShape)
{
    const matrix<text> data = textTable(4, {u"q", u"q", u"q", u"q", u"10", u"9", u"", u"10"});
    matrix<double> weights = vectorOf(doubles{1, 2, 4, 8});
    for (const auto& [rows, cols] : {std::pair{1, 4}, std::pair{4, 1}, std::pair{2, 2}}) {
        matrix<text> names(rows, cols, u"old");
        matrix<double> frequencies(rows, cols, 77.0);
        int count = 0;
        int total = 100;
        text mode;
        double modeFrequency = 0;
        M_InfoQuali2(data, 4, 2, count, mode, modeFrequency, names, frequencies, weights, &total, -1);
        EXPECT_EQ(textsOf(names), (texts{u"9", u"10", u"old", u"old"}));
        EXPECT_EQ((doubles{frequencies.data, frequencies.data + 4}), (doubles{2, 9, 77, 77}));
        EXPECT_EQ(names.nbrows, rows);
        EXPECT_EQ(names.nbcols, cols);
        EXPECT_EQ(count, 2);
        EXPECT_EQ(total, 2);
        EXPECT_EQ(mode, u"10");
        EXPECT_EQ(modeFrequency, 9.0);
    }
}

TEST(CategoryInfo, OfOneVariableWithoutTextsIsWhatStandsInTheFirstSlot)
{
    const matrix<text> data = textVector({u"", u""});
    matrix<double> weights = vectorOf(doubles{1, 2});
    for (const short int sort : {short{0}, short{-1}}) {
        matrix<text> names = textTable(1, {u"old", u"older"});
        matrix<double> frequencies = vectorOf(doubles{77, 78});
        int count = 0;
        int total = 100;
        text mode;
        double modeFrequency = 0;
        M_InfoQuali2(data, 2, 1, count, mode, modeFrequency, names, frequencies, weights, &total, sort);
        EXPECT_EQ(count, 1);
        EXPECT_EQ(total, 1);
        EXPECT_EQ(mode, u"old");
        EXPECT_EQ(modeFrequency, 77.0);
        EXPECT_EQ(textsOf(names), (texts{u"old", u"older"}));
        EXPECT_EQ((doubles{frequencies[0], frequencies[1]}), (doubles{77, 78}));
    }
}

TEST(CategoryInfo, OfAFixedNumberLooksAtSoManySlots)
{
    matrix<text> data = textTable(4, {u"10", u"9", u"10", u"", u"b", u"a", u"c", u"c"});
    matrix<text> modes, names;
    matrix<double> modeFrequencies, rows, sums;
    int total = -7;
    const matrix<double> weights = vectorOf(doubles{0.5, 0.25, 4, 1});
    M_InfoQuali3(data, 4, 2, 4, 3, modes, modeFrequencies, names, rows, sums, weights, &total, -1);
    EXPECT_EQ(rowOf(names, 0), (texts{u"", u"9", u"10", u""}))
        << "the empty slot sorts as the missing number";
    EXPECT_EQ(rowOf(rows, 0), (doubles{0, 1, 2, 0}));
    EXPECT_EQ(rowOf(sums, 0), (doubles{0, 0.25, 4.5, 0}));
    EXPECT_EQ(rowOf(names, 1), (texts{u"a", u"b", u"c", u""}));
    EXPECT_EQ(rowOf(sums, 1), (doubles{0.25, 0.5, 5, 0}));
    EXPECT_EQ(textsOf(modes), (texts{u"10", u"c"}));
    EXPECT_EQ(modeFrequencies[0], 2.0);
    EXPECT_EQ(total, 6);

    M_InfoQuali3(data, 4, 2, 4, 2, modes, modeFrequencies, names, rows, sums, weights, &total, -1);
    EXPECT_EQ(rowOf(names, 1), (texts{u"a", u"b", u"c", u""})) << "the third category is not looked at";
    EXPECT_EQ(modes[1], u"b") << "nor is its number of rows";
    EXPECT_EQ(total, 4);

    matrix<text> words = textVector({u"b", u"a"});
    M_InfoQuali3(words, 2, 1, 3, 3, modes, modeFrequencies, names, rows, sums, weights, &total, -1);
    EXPECT_EQ(rowOf(names, 0), (texts{u"", u"a", u"b"})) << "the empty text sorts first";
    M_InfoQuali3(words, 2, 1, 3, 0, modes, modeFrequencies, names, rows, sums, weights, &total, -1);
    EXPECT_EQ(rowOf(names, 0), (texts{u"b", u"a", u""}));
    EXPECT_EQ(modes[0], u"");
    EXPECT_EQ(modeFrequencies[0], 0.0);
    EXPECT_EQ(total, 0);
}

// The plain twin searches backwards, so it also tells what becomes of categories for which there is no room.
TEST(CategoryInfo, IsThatOfThePlainSearch)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::none : odd_cells::all);
        const int n = seed % 10 == 0 ? cells.integer(200, 600) : cells.integer(0, 40);
        const int p = cells.integer(0, 4);
        const matrix<text> data = randomTexts(cells, n, p, cells.integer(1, n + 20));
        matrix<double> weights = seed % 7 == 0 ? cells.weights(std::max(n - 3, 0)) : cells.weights(n);
        const int width = cells.integer(0, 4) == 0 ? cells.integer(1, 12) : n + 5;
        const short int sort = seed % 3 == 0 ? short{0} : short{-1};

        matrix<text> modes, names;
        matrix<double> modeFrequencies, frequencies, sums;
        matrix<int> counts;
        int total = 0;
        M_InfoQuali2(data, n, p, width, counts, modes, modeFrequencies, names, frequencies, weights, &total,
                     sort);
        const auto expected = korvel::reference::infoQuali2(data, n, p, width, weights, sort == -1);
        expectSame(names, expected.names);
        expectSame(frequencies, expected.frequencies);
        expectSame(modes, expected.modes);
        expectSame(modeFrequencies, expected.modeFrequencies);
        expectSame(counts, expected.counts);
        EXPECT_EQ(total, expected.total);

        matrix<text> copy(data);
        const int count = cells.integer(1, width);
        M_InfoQuali3(copy, n, p, width, count, modes, modeFrequencies, names, frequencies, sums, weights,
                     &total, sort);
        const auto fixed = korvel::reference::infoQuali3(data, n, p, width, count, weights, sort == -1);
        expectSame(names, fixed.names);
        expectSame(frequencies, fixed.frequencies);
        expectSame(sums, fixed.second);
        expectSame(modes, fixed.modes);
        EXPECT_EQ(total, fixed.total);
        if (HasFailure()) {
            return;
        }
    }
}
