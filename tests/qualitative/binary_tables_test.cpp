#include "qualitative/binary_tables.h"

#include "support/near_tables.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <memory>

using namespace korvel::test;

namespace
{

using doubles = std::vector<double>;

constexpr double eps = 2.220446049250313e-16;

short int isBinary(const doubles& x, short int skipMissing)
{
    return V_IsBinary(vectorOf(x), static_cast<int>(x.size()), skipMissing);
}

short int isOneOf(const doubles& x, double a, double b, short int skipMissing)
{
    matrix<double> vector = vectorOf(x);
    return V_IsBinaryXY(&vector, vector.nbrows, a, b, skipMissing);
}

doubles converted(const doubles& x)
{
    matrix<double> vector = vectorOf(x);
    V_ConvertBinaryTo01(&vector, vector.nbrows);
    return {vector.data, vector.data + vector.nbElem};
}

/** The result, and the sum of the reference row. */
std::pair<int, int> isDisjunctive(int rows, doubles cells, std::vector<short int> flags)
{
    matrix<double> table(rows, static_cast<int>(cells.size()) / rows, cells.data(), true);
    int sum = -77;
    const short int result =
        M_IsDisjTable(&table, rows, table.nbcols, flags.empty() ? nullptr : flags.data(), sum);
    return {result, sum};
}

using outcome = std::pair<int, int>;

} // namespace

TEST(Binarize, TellsZeroFromAllOtherNumbers)
{
    const doubles numbers{0.0, -0.0,   eps / 2,     -eps / 2,      eps,        -eps,
                          3.0, -1e300, MISSING_DBL, belowSentinel, notANumber, -infinite};
    const doubles kept{0, 0, 0, 0, 1, 1, 1, 1, MISSING_DBL, 1, 1, 1};
    matrix<double> x = vectorOf(numbers);
    matrix<double> result(12, 1, 77.0);
    M_Binarize(&x, 12, 1, &result);
    for (int k = 0; k < 12; ++k) {
        EXPECT_SAME_BITS(result[k], kept[static_cast<std::size_t>(k)]) << k;
    }
    auto chunk = std::make_unique<matrix<double>>(x);
    matrix<double>* chunks[] = {chunk.get(), chunk.get()};
    M_Binarize2(&x, 12, 1);
    M_Binarize2SPV(chunks, 1, 12);
    for (int k = 0; k < 12; ++k) {
        const double expected = k == 8 ? 1.0 : kept[static_cast<std::size_t>(k)];
        EXPECT_SAME_BITS(x[k], expected) << "in place a missing number is 1: " << k;
        EXPECT_SAME_BITS((*chunk)[k], expected) << k;
    }
}

TEST(Binarize, ReachesOnlyTheCellsThatAreAskedFor)
{
    matrix<double> x(3, 2, 5.0);
    M_Binarize2(&x, 2, 1);
    EXPECT_EQ((doubles{x.data, x.data + 6}), (doubles{1, 1, 5, 5, 5, 5}));
    matrix<double> first(3, 1, 5.0);
    matrix<double> second(3, 1, 5.0);
    matrix<double>* chunks[] = {&first, &second};
    M_Binarize2SPV(chunks, 2, 1);
    EXPECT_EQ((doubles{first[0], first[1], second[0], second[1]}), (doubles{1, 5, 1, 5}));
}

TEST(DisjunctiveTest, ComparesSumsAndTheLastColumn)
{
    EXPECT_EQ(isDisjunctive(2, {1, 0, 0, 1}, {}), (outcome{-1, 1}));
    EXPECT_EQ(isDisjunctive(2, {1, 0, 1, 1}, {}), (outcome{0, 2})) << "sums differ";
    EXPECT_EQ(isDisjunctive(2, {1, 0, 0, 1, 5, 5}, {}), (outcome{0, 6})) << "a constant last column";
    EXPECT_EQ(isDisjunctive(3, {1, 0.5, 1, 0, 0.5, 0}, {}), (outcome{-1, 1}))
        << "only some rows differ in it";
    EXPECT_EQ(isDisjunctive(2, {0.5, 1, 1, 0}, {}), (outcome{-1, 1}))
        << "the sum of the reference row is truncated";
    EXPECT_EQ(isDisjunctive(2, {1, 0, 0, 1 + 2e-12}, {}), (outcome{0, 1}));
    EXPECT_EQ(isDisjunctive(2, {1, 0, 0, 1 + 5e-13}, {}), (outcome{-1, 1}));
    EXPECT_EQ(isDisjunctive(1, {1, 0}, {}), (outcome{0, 1}));
}

TEST(DisjunctiveTest, PassesOverDifferencesWithinTheTolerance)
{
    EXPECT_EQ(isDisjunctive(2, {0.7, 0.7, 0.3, 0.3 + eps}, {}), (outcome{0, 1}));
    EXPECT_EQ(isDisjunctive(2, {0.7, 0.7, 0.3, 0.3 + 2 * eps}, {}), (outcome{-1, 1}));
    EXPECT_EQ(isDisjunctive(2, {1, 1, 0, notANumber}, {}), (outcome{0, 1})) << "no NaN is a difference";
    EXPECT_EQ(isDisjunctive(2, {-1.5, -1.5, 0, 0.5}, {}), (outcome{-1, -1})) << "truncated towards 0";
}

TEST(DisjunctiveTest, ReadsFlagsFromTheSecondOn)
{
    const doubles cells{1, 9, 0, 1, 0, 9, 1, 0};
    EXPECT_EQ(isDisjunctive(4, cells, {0, 0, 0, 0}), (outcome{0, 1}));
    EXPECT_EQ(isDisjunctive(4, cells, {0, 1, 0, 0}), (outcome{-1, 1})) << "any flag leaves a later row out";
    EXPECT_EQ(isDisjunctive(4, cells, {-1, 1, 0, 0}), (outcome{-1, 1})) << "the first flag has no influence";
    EXPECT_EQ(isDisjunctive(4, cells, {0, -1, 0, 0}), (outcome{0, 18})) << "the flagged row is the reference";
    EXPECT_EQ(isDisjunctive(4, cells, {0, -1, -1, 0}), (outcome{-1, 1})) << "the last one of the run";
    EXPECT_EQ(isDisjunctive(4, cells, {0, -1, -1, -1}), (outcome{0, 1})) << "which ends with the table";
    EXPECT_EQ(isDisjunctive(4, cells, {0, -1, -1, -1, -1}), (outcome{0, 1})) << "whatever stands behind it";
}

TEST(DisjunctiveTest, WithoutColumnsOrRows)
{
    matrix<double> table(3, 1, 1.0);
    int sum = -77;
    EXPECT_EQ(M_IsDisjTable(&table, 3, 0, nullptr, sum), -1);
    EXPECT_EQ(sum, 0);
    matrix<double> none(0, 1, nullptr, true);
    EXPECT_EQ(M_IsDisjTable(&none, 0, 1, nullptr, sum), 0);
}

TEST(IsBinary, HasAtMostTwoValues)
{
    EXPECT_EQ(isBinary({1, 2, 1, 2}, 0), -1);
    EXPECT_EQ(isBinary({1, 2, 3}, 0), 0);
    EXPECT_EQ(isBinary({1, 1}, 0), -1) << "a constant vector";
    EXPECT_EQ(isBinary({1, 1 + eps, 2, 2 - eps}, 0), -1);
    EXPECT_EQ(isBinary({1, 1 + 2 * eps, 2}, 0), 0);
    EXPECT_EQ(isBinary({1}, 0), 0) << "a single value";
    EXPECT_EQ(isBinary({}, 0), -1);
    EXPECT_EQ(isBinary({}, -1), 0);
    EXPECT_EQ(isBinary({0, notANumber}, 0), 0);
    EXPECT_EQ(isBinary({0, notANumber}, -1), 0);
    EXPECT_EQ(isBinary({infinite, 1, 1}, 0), 0) << "an infinity is not the same as itself";
    EXPECT_EQ(isBinary({1, infinite}, 0), -1);
}

TEST(IsBinary, PassesMissingNumbersOverWhenTold)
{
    EXPECT_EQ(isBinary({1, MISSING_DBL, 2}, -1), -1);
    EXPECT_EQ(isBinary({MISSING_DBL, notANumber, -infinite, 1, 2}, -1), -1);
    EXPECT_EQ(isBinary({1, 2, belowSentinel}, -1), 0) << "later on only the missing number itself";
    EXPECT_EQ(isBinary({MISSING_DBL, MISSING_DBL}, -1), 0);
    EXPECT_EQ(isBinary({MISSING_DBL, 1}, -1), 0) << "the first is the last element";
    EXPECT_EQ(isBinary({1, MISSING_DBL}, -1), -1);
    for (const short int skip : {short{0}, short{1}}) {
        EXPECT_EQ(isBinary({1, 2, MISSING_DBL}, skip), 0);
        EXPECT_EQ(isBinary({MISSING_DBL, 1, 1}, skip), 0);
        EXPECT_EQ(isBinary({MISSING_DBL, MISSING_DBL}, skip), 0);
    }
}

TEST(IsBinary, OfTwoGivenValues)
{
    EXPECT_EQ(isOneOf({0, 1, 1 + eps}, 1, 0, 0), -1);
    EXPECT_EQ(isOneOf({0, 1, 2}, 1, 0, 0), 0);
    EXPECT_EQ(isOneOf({1, 1}, 1, 0, 0), -1);
    EXPECT_EQ(isOneOf({1}, 1, 0, 0), 0);
    EXPECT_EQ(isOneOf({}, 1, 0, 0), -1);
    EXPECT_EQ(isOneOf({}, 1, 0, -1), 0);
    EXPECT_EQ(isOneOf({0, MISSING_DBL, 1}, 1, 0, -1), -1);
    EXPECT_EQ(isOneOf({0, MISSING_DBL, 1}, 1, 0, 0), 0);
    EXPECT_EQ(isOneOf({notANumber, 0, 1}, 1, 0, -1), -1) << "at the start a NaN is passed over too";
    EXPECT_EQ(isOneOf({0, notANumber, 1}, 1, 0, -1), 0);
    EXPECT_EQ(isOneOf({MISSING_DBL, 1}, 1, 0, -1), 0);
}

TEST(IsBinary, ReadsTheSpareSlotBehindTheVector)
{
    matrix<double> x = vectorOf(doubles{0, 1});
    x.oobValue = 1.0;
    EXPECT_EQ(V_IsBinary(x, 4, 0), -1);
    x.oobValue = 5.0;
    EXPECT_EQ(V_IsBinary(x, 4, 0), 0);
    EXPECT_EQ(V_IsBinaryXY(&x, 4, 0, 1, 0), 0);
}

TEST(IsBinary, OfEveryColumnByItsOwnCount)
{
    cST_MVect<double> table(3, 2);
    table.Vectors[1].Vect[0] = 1.0;
    table.Vectors[1].Vect[2] = 2.0;
    EXPECT_EQ(M_IsBinary_ST(table, 0), 0);
    table.Vectors[1].Count = 2;
    EXPECT_EQ(M_IsBinary_ST(table, 0), -1);
    table.Vectors[1].Count = 1;
    EXPECT_EQ(M_IsBinary_ST(table, 0), 0);
    table.nbcols = 1;
    EXPECT_EQ(M_IsBinary_ST(table, 0), -1);
    table.nbcols = 2;
    table.Vectors[1].Count = 2;
    table.Vectors[0].Vect[0] = 1.0;
    table.Vectors[0].Vect[1] = 2.0;
    EXPECT_EQ(M_IsBinary_ST(table, 0), 0) << "the first one alone fails";
    EXPECT_EQ(M_IsBinary_ST(*std::make_unique<cST_MVect<double>>(), 0), -1);
}

TEST(ConvertBinary, CodesTheSmallerValueAsZero)
{
    EXPECT_EQ(converted({5, 2, 5, 2}), (doubles{1, 0, 1, 0}));
    EXPECT_EQ(converted({2, 5, 2 + eps, 7}), (doubles{0, 1, 0, 7})) << "other values stay";
    EXPECT_EQ(converted({1, 1 + eps, 3}), (doubles{0, 0, 1})) << "what is the same is no second value";
    EXPECT_EQ(converted({5, 5}), (doubles{1, 1})) << "a constant positive vector";
    EXPECT_EQ(converted({0.5, 0.5}), (doubles{1, 1}));
    EXPECT_EQ(converted({-5, -5}), (doubles{0, 0}));
    EXPECT_EQ(converted({0, 0}), (doubles{0, 0}));
    EXPECT_EQ(converted({MISSING_DBL, 3, MISSING_DBL, 1}), (doubles{MISSING_DBL, 1, MISSING_DBL, 0}));
    EXPECT_EQ(converted({MISSING_DBL, 3}), (doubles{MISSING_DBL, 3})) << "the first is the last element";
    EXPECT_EQ(converted({MISSING_DBL, MISSING_DBL}), (doubles{MISSING_DBL, MISSING_DBL}));
    EXPECT_EQ(converted({-infinite, 5, -infinite, 2}), (doubles{-infinite, 1, -infinite, 0}))
        << "what is below a missing number is passed over";
    const doubles behindNaN = converted({notANumber, belowSentinel, 5, notANumber, 2});
    EXPECT_TRUE(std::isnan(behindNaN[0]) && std::isnan(behindNaN[3])) << "so is a NaN";
    EXPECT_EQ((doubles{behindNaN[1], behindNaN[2], behindNaN[4]}), (doubles{belowSentinel, 1, 0}));
    EXPECT_EQ(converted({infinite, 5}), (doubles{infinite, 0})) << "an infinity is not the same as itself";
    EXPECT_EQ(converted({3}), doubles{3});
    EXPECT_EQ(converted({}), doubles{});
}

TEST(ConvertBinary, PutsTheComplementBehindEachColumn)
{
    matrix<double> x(2, 2, 0.0);
    x[0] = 1.0;
    x[2] = 0.25;
    x[3] = MISSING_DBL;
    matrix<double> result(2, 4, 77.0);
    M_ConvertBinarytoDisjTable(&x, 2, 2, &result);
    EXPECT_EQ((doubles{result.data, result.data + 8}),
              (doubles{1, 0, 0, 1, 0.25, MISSING_DBL, 0.75, 1 - MISSING_DBL}));
}

TEST(ConvertBinary, ReachesOnlyTheCellsThatAreAskedFor)
{
    matrix<double> x(3, 2, 0.25);
    matrix<double> result(3, 4, 77.0);
    M_ConvertBinarytoDisjTable(&x, 2, 1, &result);
    EXPECT_EQ((doubles{result.data, result.data + 12}),
              (doubles{0.25, 0.25, 77, 0.75, 0.75, 77, 77, 77, 77, 77, 77, 77}));
}
