#include "qualitative/category_codes.h"

#include "reference/category_codes.h"
#include "support/near_tables.h"
#include "support/text_tables.h"

#include <gtest/gtest.h>
#include <memory>

using namespace korvel::test;

namespace
{

using doubles = std::vector<double>;

doubles cellsOf(const matrix<double>& table)
{
    return {table.data, table.data + table.nbElem};
}

} // namespace

TEST(CategoryCodes, CountFromTheFirstCode)
{
    matrix<text> data = textTable(4, {u"b", u"a", u"?", u"b", u"x", u"", u"x", u"x"});
    matrix<text> names(2, 2, text());
    names.setElement(0, 0, u"a");
    names.setElement(0, 1, u"b");
    names.setElement(1, 0, u"x");
    matrix<int> counts(2, 1);
    counts[0] = 2;
    counts[1] = 1;
    matrix<short int> flags(4, 1);
    flags[3] = 1;
    matrix<double> result(4, 2, 77.0);
    M_ReplaceStrByCodes(data, 4, 2, counts, names, flags, 5, result);
    EXPECT_EQ(cellsOf(result), (doubles{6, 5, MISSING_DBL, MISSING_DBL, 5, MISSING_DBL, 5, MISSING_DBL}));
    counts[1] = 0;
    M_ReplaceStrByCodes(data, 4, 2, counts, names, flags, 5, result);
    EXPECT_EQ(result.getElement(0, 1), MISSING_DBL) << "without categories";
}

TEST(CategoryCodes, MayLeaveCellsAsTheyWere)
{
    matrix<text> data = textVector({u"b", u"?", u"", u"a"});
    matrix<text> names = textTable(1, {u"a", u"b"});
    matrix<int> counts(1, 1, 2);
    matrix<double> result = vectorOf(doubles{70, 71, 72, 73});
    M_ReplaceCatByCodes(data, 4, 1, counts, names, result);
    EXPECT_EQ(cellsOf(result), (doubles{2, 71, 72, 1}));
}

TEST(CategoryCodes, AreThoseOfThePlainSearchInEveryForm)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::all);
        const int n = cells.integer(0, 20);
        const int p = cells.integer(0, 3);
        const int width = cells.integer(1, 12);
        matrix<text> data = randomTexts(cells, n, p, 8);
        matrix<text> names = randomTexts(cells, p, width, 8);
        matrix<int> counts = cells.integers(p, -1, width + 1);
        const auto given = cells.flags(n);
        matrix<short int> flags(n, 1);
        std::copy(given.begin(), given.end(), flags.data);
        const int firstCode = cells.integer(-3, 3);

        matrix<double> start(n, p, 77.0);
        matrix<double> expected(start);
        matrix<double> result(start);
        korvel::reference::replaceByCodes(data, n, p, counts, names, &flags, firstCode, false, expected);
        M_ReplaceStrByCodes(data, n, p, counts, names, flags, firstCode, result);
        expectSame(result, expected);

        cST_MVect<text> record(n, p);
        cST_MVect<double> codes(n, p);
        cST_MVect<double> kept(n, p);
        std::vector<matrix<double>*> chunks;
        std::vector<std::unique_ptr<matrix<double>>> owned;
        for (int j = 0; j < p; ++j) {
            std::copy_n(data.data + n * j, n, record.Vectors[static_cast<std::size_t>(j)].Vect.data);
            owned.push_back(std::make_unique<matrix<double>>(n, 1, 77.0));
            chunks.push_back(owned.back().get());
        }
        M_ReplaceStrByCodes(record, n, p, counts, names, flags, firstCode, codes);
        M_ReplaceStrByCodesSPV(data, n, p, counts, names, flags, firstCode, chunks.data());

        matrix<double> leftExpected(n, p, 0.0);
        matrix<double> leftDense(leftExpected);
        korvel::reference::replaceByCodes(data, n, p, counts, names, nullptr, 1, true, leftExpected);
        M_ReplaceCatByCodes(data, n, p, counts, names, leftDense);
        expectSame(leftDense, leftExpected);
        M_ReplaceCatByCodes(record, n, p, counts, names, kept);
        for (int j = 0; j < p; ++j) {
            const auto at = static_cast<std::size_t>(j);
            for (int i = 0; i < n; ++i) {
                EXPECT_SAME_BITS(codes.Vectors[at].Vect[i], expected.getElement(i, j));
                EXPECT_SAME_BITS((*chunks[at])[i], expected.getElement(i, j));
                EXPECT_SAME_BITS(kept.Vectors[at].Vect[i], leftExpected.getElement(i, j));
            }
        }

        matrix<double> all(n, p, 0.0);
        korvel::reference::codesOfTable(data, n, p, given, all);
        matrix<double> found;
        auto* foundAt = &found;
        std::vector<short int> raw(given);
        M_ReplaceStrByCodesBinary(&data, n, p, raw.data(), foundAt);
        EXPECT_EQ(foundAt, &found);
        EXPECT_EQ(found.nbrows, n);
        for (int k = 0; k < n * p; ++k) {
            EXPECT_SAME_BITS(found[k], all[k]);
        }
        if (HasFailure()) {
            return;
        }
    }
}

// Cells behind the end of a result reach its spare slot alone.
TEST(CategoryCodes, EndWithTheResult)
{
    cST_MVect<text> data(3, 1);
    const std::vector<text> cells{u"b", u"a", u"?"};
    std::copy(cells.begin(), cells.end(), data.Vectors[0].Vect.data);
    matrix<text> names = textTable(1, {u"a", u"b"});
    matrix<int> counts(1, 1, 2);
    matrix<short int> flags(3, 1);
    cST_MVect<double> codes(1, 1);
    M_ReplaceStrByCodes(data, 3, 1, counts, names, flags, 5, codes);
    EXPECT_EQ(cellsOf(codes.Vectors[0].Vect), doubles{6});
    EXPECT_EQ(codes.Vectors[0].Vect.oobValue, MISSING_DBL);
    M_ReplaceCatByCodes(data, 3, 1, counts, names, codes);
    EXPECT_EQ(cellsOf(codes.Vectors[0].Vect), doubles{2});
    EXPECT_EQ(codes.Vectors[0].Vect.oobValue, 1.0) << "the unknown text stores nothing";

    cST_MVect<text> replacements(2, 2);
    replacements.Vectors[0].Vect[0] = u"a";
    replacements.Vectors[1].Vect[0] = u"1";
    cST_MVect<text> recoded(1, 1);
    M_RecodeDataWithCodes_ST(data, 3, 1, replacements, 1, recoded);
    EXPECT_EQ(textsOf(recoded.Vectors[0].Vect), std::vector<text>{u"b"});
    EXPECT_EQ(recoded.Vectors[0].Vect.oobValue, u"?");

    matrix<double> marks(2, 1, 77.0);
    V_RecodeToBinary(&data.Vectors[0].Vect, 3, u"?", &marks);
    EXPECT_EQ(cellsOf(marks), (doubles{0, 0}));
    EXPECT_EQ(marks.oobValue, 1.0);
}

TEST(CategoryCodes, OfAWholeTableFollowFirstAppearance)
{
    matrix<text> data = textTable(3, {u"b", u"", u"a", u"a", u"c", u"b"});
    matrix<double>* result = nullptr;
    M_ReplaceStrByCodesBinary(&data, 3, 2, nullptr, result);
    const std::unique_ptr<matrix<double>> owner(result);
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(cellsOf(*result), (doubles{0, 1, 2, 2, 3, 0})) << "the empty text has a code of its own";
    short int flags[] = {7, 0, 0};
    M_ReplaceStrByCodesBinary(&data, 3, 2, flags, result);
    EXPECT_EQ(cellsOf(*result), (doubles{MISSING_DBL, 0, 1, MISSING_DBL, 2, 3}));
}

TEST(CategoryCodes, ReplaceTextsByOthers)
{
    cST_MVect<text> data(4, 1);
    cST_MVect<text> codes(3, 2);
    cST_MVect<text> result(4, 1);
    const std::vector<text> cells{u"a", u"b", u"", u"c"};
    const std::vector<text> wanted{u"a", u"a", u"b"};
    const std::vector<text> replacements{u"1", u"2", u""};
    std::copy(cells.begin(), cells.end(), data.Vectors[0].Vect.data);
    std::copy(wanted.begin(), wanted.end(), codes.Vectors[0].Vect.data);
    std::copy(replacements.begin(), replacements.end(), codes.Vectors[1].Vect.data);
    result.Vectors[0].Vect[0] = u"old";
    M_RecodeDataWithCodes_ST(data, 4, 1, codes, 0, result);
    EXPECT_EQ(textsOf(result.Vectors[0].Vect), (std::vector<text>{u"old", u"", u"", u""}))
        << "no codes, no result";
    M_RecodeDataWithCodes_ST(data, 4, 1, codes, 3, result);
    EXPECT_EQ(textsOf(result.Vectors[0].Vect), (std::vector<text>{u"1", u"", u"", u"c"}));
    M_RecodeDataWithCodes_ST(data, 4, 1, codes, 1, result);
    EXPECT_EQ(textsOf(result.Vectors[0].Vect), (std::vector<text>{u"1", u"b", u"", u"c"}));
}

TEST(CategoryCodes, MarkOneText)
{
    matrix<text> column = textVector({u"a", u"", u"A", u"a"});
    matrix<double> result(4, 1, 77.0);
    V_RecodeToBinary(&column, 4, u"a", &result);
    EXPECT_EQ(cellsOf(result), (doubles{1, 0, 0, 1}));
    V_RecodeToBinary(&column, 4, u"", &result);
    EXPECT_EQ(cellsOf(result), (doubles{0, 1, 0, 0}));
}
