#include "qualitative/disjunctive_tables.h"

#include "reference/category_codes.h"
#include "support/near_tables.h"
#include "support/text_tables.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

using namespace korvel::test;

namespace
{

using doubles = std::vector<double>;

/** The disjunctive table of two variables: x with the categories a, b and c of frequency 1, 2 and 4; y with p
 * and q. */
doubles table(const std::vector<text>& x, const std::vector<text>& y, int coding, int option,
              const doubles& frequencies = {1, 3, 2, 4, 4, 0})
{
    const int n = static_cast<int>(x.size());
    std::vector<text> cells(x);
    cells.insert(cells.end(), y.begin(), y.end());
    matrix<text> data = textTable(n, cells);
    matrix<text> names = textTable(2, {u"a", u"p", u"b", u"q", u"c", u""});
    doubles given(frequencies);
    matrix<double> sums(2, 3, given.data(), false);
    matrix<int> counts(2, 1);
    counts[0] = 3;
    counts[1] = 2;
    matrix<double> result;
    BuildDisjunctiveTable(data, n, 2, 5, counts, names, sums, result, coding, option);
    EXPECT_EQ(result.nbrows, n);
    EXPECT_EQ(result.nbcols, 5);
    return {result.data, result.data + result.nbElem};
}

/** The row of one pair of cells. */
doubles row(const text& x, const text& y, int coding, int option)
{
    return table({x}, {y}, coding, option);
}

} // namespace

TEST(DisjunctiveTable, MarksTheCategoryOfEachRow)
{
    EXPECT_EQ(row(u"a", u"q", 0, 0), (doubles{1, 0, 0, 0, 1}));
    EXPECT_EQ(row(u"c", u"p", 0, 0), (doubles{0, 0, 1, 1, 0})) << "of the last category only its own column";
    EXPECT_EQ(row(u"b", u"p", 0, 2), (doubles{0, 1, 0, 1, 0}));
    EXPECT_EQ(table({u"a", u"b"}, {u"p", u"q"}, 0, 0), (doubles{1, 0, 0, 1, 0, 0, 1, 0, 0, 1}))
        << "column by column";
}

TEST(DisjunctiveTable, CodesTheLastCategory)
{
    EXPECT_EQ(row(u"c", u"q", 1, 0), (doubles{0, 0, 1, 0, 1}));
    EXPECT_EQ(row(u"c", u"q", 2, 0), (doubles{-1, -1, 1, -1, 0}));
    EXPECT_EQ(row(u"c", u"q", 3, 0), (doubles{-0.25, -0.5, 1, -0.75, 1}));
    EXPECT_EQ(row(u"b", u"p", 2, 2), (doubles{0, 1, 0, 1, 0})) << "not the others";
    EXPECT_EQ(row(u"c", u"q", 4, 0), (doubles{0, 0, 1, 0, 1})) << "another coding writes nothing";
}

TEST(DisjunctiveTable, MarksFirstCategoriesAsTheOptionSays)
{
    for (const int coding : {1, 2, 3, 4, -1}) {
        EXPECT_EQ(row(u"a", u"p", coding, 0), (doubles{0, 0, 0, 0, 0}));
        EXPECT_EQ(row(u"a", u"p", coding, 1), (doubles{1, 0, 0, 0, 0}));
        EXPECT_EQ(row(u"a", u"p", coding, 2), (doubles{1, 0, 0, 1, 0}));
        EXPECT_EQ(row(u"a", u"p", coding, 3), (doubles{0, 0, 0, 0, 0}));
    }
}

TEST(DisjunctiveTable, OfTwoCategoriesWithoutTheFirst)
{
    const doubles rows = table({u"a", u"a"}, {u"p", u"q"}, 2, 0);
    EXPECT_EQ((doubles{rows[6], rows[8]}), (doubles{0, 0})) << "a row in the first category";
    EXPECT_EQ((doubles{rows[7], rows[9]}), (doubles{-1, 0})) << "the -1 alone tells one in the last";
    const doubles withFirst = table({u"a", u"a"}, {u"p", u"q"}, 2, 2);
    EXPECT_EQ((doubles{withFirst[6], withFirst[8]}), (doubles{1, 0}));
    EXPECT_EQ((doubles{withFirst[7], withFirst[9]}), (doubles{-1, 1}));
    const doubles ofFirstVariable = table({u"a", u"a"}, {u"p", u"q"}, 2, 1);
    EXPECT_EQ((doubles{ofFirstVariable[7], ofFirstVariable[9]}), (doubles{-1, 1}));
    const doubles withoutMinus = table({u"a", u"a"}, {u"p", u"q"}, 1, 0);
    EXPECT_EQ((doubles{withoutMinus[7], withoutMinus[9]}), (doubles{0, 1})) << "another coding";
}

TEST(DisjunctiveTable, OfAMissingOrUnknownCell)
{
    EXPECT_EQ(row(u"", u"q", 3, 2), (doubles{MISSING_DBL, MISSING_DBL, MISSING_DBL, -0.75, 1}));
    EXPECT_EQ(row(u"?", u"P", 2, 2), (doubles{0, 0, 0, 0, 0}));
}

TEST(DisjunctiveTable, DividesByALastFrequencyOfZero)
{
    const doubles divided = table({u"c"}, {u"q"}, 3, 0, {1, 0, 0, 0, 0, 0});
    EXPECT_EQ(divided[0], -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(divided[1]));
    EXPECT_TRUE(std::isnan(divided[3]));
}

TEST(DisjunctiveTable, OfAnEmptyNameKeepsMissingCellsMissing)
{
    matrix<text> data = textVector({u"", u"a"});
    matrix<text> names = textTable(1, {u"", u"a"});
    matrix<int> counts(1, 1, 2);
    matrix<double> sums(1, 2, 1.0);
    matrix<double> result;
    BuildDisjunctiveTable(data, 2, 1, 2, counts, names, sums, result, 0, 0);
    EXPECT_EQ((doubles{result.data, result.data + 4}), (doubles{MISSING_DBL, 0, MISSING_DBL, 1}));
}

TEST(DisjunctiveTable, OfRecordsHasLabels)
{
    cST_MVect<text> data(2, 2);
    data.Vectors[0].Vect[0] = u"b";
    data.Vectors[0].Vect[1] = u"a";
    data.Vectors[1].Vect[0] = u"p";
    cST_QualiInfo info;
    info.NbCat = new matrix<int>(2, 1);
    (*info.NbCat)[0] = 2;
    (*info.NbCat)[1] = 1;
    info.CatNames = new cST_MVect<text>(2, 2);
    info.CatNames->Vectors[0].Vect[0] = u"a";
    info.CatNames->Vectors[0].Vect[1] = u"b";
    info.CatNames->Vectors[1].Vect[0] = u"p";
    info.CatFreq = new cST_MVect<double>(2, 2);
    info.CatFreq->Vectors[0].Vect[0] = 3.0;
    info.CatFreq->Vectors[0].Vect[1] = 2.0;
    info.VarLabels = new matrix<text>(textVector({u"x", u"y"}));
    cST_MVect<double> result(1, 3);
    BuildDisjunctiveTableWithCLabels_ST(data, info, result, 3, 2, -1);
    EXPECT_EQ(textsOf(result.CLabels), (std::vector<text>{u"x-a", u"x-b", u"y-p"}));
    const std::vector<doubles> expected{{-1.5, 1}, {1, 0}, {1, MISSING_DBL}};
    for (std::size_t j = 0; j < 3; ++j) {
        const matrix<double>& column = result.Vectors[j].Vect;
        EXPECT_EQ((doubles{column.data, column.data + column.nbElem}), expected[j]) << "resized to the rows";
    }
    BuildDisjunctiveTableWithCLabels_ST(data, info, result, 3, 2, 1);
    EXPECT_EQ(textsOf(result.CLabels), (std::vector<text>{u"a", u"b", u"p"})) << "only -1 sets the flag";
    cST_MVect<double> wide(2, 4);
    wide.CLabels[3] = u"old";
    BuildDisjunctiveTableWithCLabels_ST(data, info, wide, 3, 2, -1);
    EXPECT_EQ(wide.CLabels[3], u"old") << "a column that is not needed";
    cST_MVect<double> narrow(2, 1);
    BuildDisjunctiveTable_ST(data, info, narrow, 0, 0);
    EXPECT_EQ(narrow.Vectors[0].Vect[1], 1.0) << "columns that are not there are left out";
    EXPECT_EQ(narrow.CLabels[0], u"");
}

TEST(DisjunctiveTable, OfTheFirstVariableIsWhatStartsInTheFirstColumn)
{
    matrix<text> data = textTable(1, {u"x", u"a", u"p"});
    matrix<text> names = textTable(3, {u"x", u"a", u"p"});
    matrix<int> counts(3, 1, 1);
    matrix<double> sums(3, 1, 1.0);
    matrix<double> result;
    for (const int none : {0, -1}) {
        counts[0] = none;
        BuildDisjunctiveTable(data, 1, 3, 2, counts, names, sums, result, 1, 1);
        EXPECT_EQ((doubles{result[0], result[1]}), (doubles{1, 0}))
            << "variables without columns come before";
    }
}

TEST(DisjunctiveTable, IsThatOfThePlainLoop)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::all);
        const int n = cells.integer(0, 12);
        const int p = cells.integer(0, 3);
        const int width = cells.integer(1, 6);
        matrix<text> data = randomTexts(cells, n, p, 4);
        matrix<text> names = randomTexts(cells, p, width, 4);
        matrix<int> counts = cells.integers(p + 1, 0, width + (seed % 5 == 0 ? 1 : 0));
        matrix<double> sums(p, width, 0.0);
        fillRandomly(cells, sums);
        const int total = cells.integer(1, 3 * width);
        const int coding = cells.integer(-1, 4);
        const int option = cells.integer(0, 3);
        matrix<double> result;
        matrix<double> expected(n, total, 0.0);
        BuildDisjunctiveTable(data, n, p, total, counts, names, sums, result, coding, option);
        korvel::reference::disjunctiveTable(data, n, p, counts, names, sums, expected, coding, option);
        expectSame(result, expected);
        if (HasFailure()) {
            return;
        }
    }
}

TEST(DisjunctiveTable, OfRecordsIsThatOfThePlainLoop)
{
    for (std::uint64_t seed = 1; seed <= 600; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::all);
        const int n = cells.integer(1, 12);
        const int p = cells.integer(1, 3);
        const int width = cells.integer(1, 5);
        // Rows below a shorter column are empty, as is the spare slot.
        cST_MVect<text> record(n, p);
        matrix<text> data = randomTexts(cells, n, p, 4);
        for (int j = 0; j < p; ++j) {
            const int length = seed % 3 == 0 ? cells.integer(0, n) : n;
            record.Vectors[static_cast<std::size_t>(j)].Vect.Redim(length, 1, text());
            for (int i = 0; i < n; ++i) {
                if (i < length) {
                    record.Vectors[static_cast<std::size_t>(j)].Vect[i] = data.getElement(i, j);
                } else {
                    data.setElement(i, j, text());
                }
            }
        }
        // The statistics may be of more variables than the table has.
        const matrix<text> names = randomTexts(cells, p, width, 4);
        const matrix<int> counts = cells.integers(p + 1, 0, width);
        matrix<double> sums(p, width, 0.0);
        fillRandomly(cells, sums);
        cST_QualiInfo info;
        info.NbCat = new matrix<int>(counts);
        info.CatNames = new cST_MVect<text>(width, p);
        info.CatFreq = new cST_MVect<double>(width, p);
        for (int j = 0; j < p; ++j) {
            for (int k = 0; k < width; ++k) {
                info.CatNames->Vectors[static_cast<std::size_t>(j)].Vect[k] = names.getElement(j, k);
                info.CatFreq->Vectors[static_cast<std::size_t>(j)].Vect[k] = sums.getElement(j, k);
            }
        }
        const int needed = std::accumulate(counts.data, counts.data + p, 0);
        const int given = std::max(needed + cells.integer(-2, 2), 1);
        const int coding = cells.integer(-1, 4);
        const int option = cells.integer(0, 3);
        cST_MVect<double> result(n + 3, given);
        for (auto& column : result.Vectors) {
            std::fill_n(column.Vect.data, column.Vect.nbElem, 77.0);
        }
        BuildDisjunctiveTable_ST(record, info, result, coding, option);
        matrix<double> expected(n, std::max(needed, 1), 0.0);
        korvel::reference::disjunctiveTable(data, n, p, counts, names, sums, expected, coding, option);
        for (int c = 0; c < given; ++c) {
            const matrix<double>& column = result.Vectors[static_cast<std::size_t>(c)].Vect;
            ASSERT_EQ(column.nbrows, c < needed ? n : n + 3);
            for (int i = 0; i < column.nbrows; ++i) {
                EXPECT_SAME_BITS(column[i], c < needed ? expected.getElement(i, c) : 77.0) << "column " << c;
            }
        }
        if (HasFailure()) {
            return;
        }
    }
}
