#include "statistics/normalize.h"

#include "reference/standardize.h"
#include "support/column_tables.h"
#include "support/near_tables.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using doubles = std::vector<double>;

namespace
{

const double none = MISSING_DBL;

doubles normalized(matrix<double> table, doubles weights = {}, std::vector<short int> flags = {})
{
    auto w = vectorOf<double>(weights);
    matrix<double>* x = &table;
    M_Normalize(x, table.nbrows, table.nbcols, weights.empty() ? nullptr : &w,
                flags.empty() ? nullptr : flags.data());
    return cellsOf(table);
}

} // namespace

TEST(Norm, EachMember)
{
    struct {
        const char* name;
        void (*run)(matrix<double>*& x, int n, matrix<double>* w);
        doubles cells;
        doubles weights;
        doubles expected;
    } const cases[] = {
        {"V_Norm",
         [](matrix<double>*& x, int n, matrix<double>*) { V_Norm(x, n); },
         {3, 4},
         {9, 9},
         {3.0 / 5, 4.0 / 5}},
        {"V_NormW",
         [](matrix<double>*& x, int n, matrix<double>* w) { V_NormW(x, n, w); },
         {1, 2},
         {4, 3},
         {1.0 / 4, 2.0 / 4}},
        {"V_NormToVal",
         [](matrix<double>*& x, int n, matrix<double>*) { V_NormToVal(x, n, 100); },
         {3, 4},
         {9, 9},
         {6, 8}},
        {"V_NormToValW",
         [](matrix<double>*& x, int n, matrix<double>* w) { V_NormToValW(x, n, 4, w); },
         {1, 2},
         {4, 3},
         {0.5, 1}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        auto x = vectorOf<double>(each.cells);
        auto w = vectorOf<double>(each.weights);
        matrix<double>* vector = &x;
        each.run(vector, 2, &w);
        EXPECT_EQ(cellsOf(x), each.expected);

        auto gaps = vectorOf<double>({none, each.cells[0], none, each.cells[1], 5});
        auto wide = vectorOf<double>({7, each.weights[0], 7, each.weights[1], 7});
        vector = &gaps;
        each.run(vector, 4, &wide);
        EXPECT_EQ(cellsOf(gaps), (doubles{none, each.expected[0], none, each.expected[1], 5}))
            << "missing elements stay, and so does what is behind the count";

        each.run(vector, 0, &wide);
        each.run(vector, -1, &wide);
        EXPECT_EQ(gaps.data[1], each.expected[0]);

        auto zeros = vectorOf<double>({0, none});
        vector = &zeros;
        each.run(vector, 2, &w);
        EXPECT_TRUE(std::isnan(zeros.data[0])) << "no sum of squares";
        EXPECT_EQ(zeros.data[1], none);
    }
}

TEST(Norm, AQuotientAndAFactor)
{
    auto x = vectorOf<double>({1, 1, 1});
    matrix<double>* vector = &x;
    V_Norm(vector, 3);
    EXPECT_SAME_BITS(x.data[0], 1 / std::sqrt(3.0));
    auto y = vectorOf<double>({0.3, 0.7});
    vector = &y;
    V_NormToVal(vector, 2, 0.1);
    const double factor = std::sqrt(0.1 / (0.3 * 0.3 + 0.7 * 0.7));
    EXPECT_SAME_BITS(y.data[0], 0.3 * factor);
    EXPECT_SAME_BITS(y.data[1], 0.7 * factor);
    V_NormToVal(vector, 2, -1);
    EXPECT_TRUE(std::isnan(y.data[0])) << "no root of a negative value";
}

TEST(Normalize, TheSumOfSquaresComesToNOverNLessOne)
{
    const double factor = std::sqrt(2.0);
    EXPECT_EQ(normalized(columnTable(2, {3, 4, 0, 2})),
              (doubles{3.0 / 5 * factor, 4.0 / 5 * factor, 0, factor}));
    const auto found = normalized(columnTable(4, {1, 2, 3, 4}));
    double sum = 0.0;
    for (const double x : found) {
        sum += x * x;
    }
    EXPECT_NEAR(sum, 4.0 / 3.0, 1e-15);
}

TEST(Normalize, WeightsOfTheSquares)
{
    EXPECT_EQ(normalized(columnTable(2, {1, 2}), {5, 1}),
              (doubles{1.0 / 3 * std::sqrt(2.0), 2.0 / 3 * std::sqrt(2.0)}));
}

TEST(Normalize, WhatIsLeftOutStaysAndCountsInTheNumberOfRows)
{
    EXPECT_EQ(normalized(columnTable(4, {3, none, 100, 4}), {}, {0, 0, -1, 0}),
              (doubles{3.0 / 5 * std::sqrt(4.0 / 3), none, 100, 4.0 / 5 * std::sqrt(4.0 / 3)}));
    EXPECT_EQ(normalized(columnTable(2, {3, 4}), {}, {5, 9}), (doubles{3, 4}));
}

TEST(Normalize, NothingGuardsTheDivisions)
{
    EXPECT_EQ(normalized(columnTable(1, {3, -2})), (doubles{infinite, -infinite})) << "one row";
    EXPECT_TRUE(std::isnan(normalized(columnTable(2, {0, 0}))[0]));
    EXPECT_TRUE(std::isnan(normalized(columnTable(2, {1, 2}), {-1, -1})[0])) << "a negative sum has no root";
    auto table = columnTable(2, {3, 4});
    matrix<double>* x = &table;
    M_Normalize(x, 0, 1, nullptr, nullptr);
    M_Normalize(x, 2, 0, nullptr, nullptr);
    M_Normalize(x, -1, -1, nullptr, nullptr);
    EXPECT_EQ(cellsOf(table), (doubles{3, 4}));
}

TEST(Normalize, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        matrix<double> actual = nearTable<double>(cells, rows, cols);
        matrix<double> expected = twinOf(actual);
        const auto flags = cells.flags(rows);
        const short int* const given = cells.integer(0, 2) == 0 ? nullptr : flags.data();
        auto w = nearTable<double>(cells, rows, 1);
        std::generate_n(w.data, w.nbElem, [&] { return cells.weight(); });
        matrix<double>* const weights = cells.integer(0, 2) == 0 ? nullptr : &w;
        matrix<double>* x = &actual;
        M_Normalize(x, rows, cols, weights, const_cast<short int*>(given));
        reference::normalize(expected, rows, cols, weights, given);
        expectSame(actual, expected);
    });
}

TEST(Normalize, CompanionsAreDividedByTheRootsOfTheTable)
{
    auto first = columnTable(2, {3, 4, 6, 8});
    auto second = columnTable(1, {10, none});
    auto third = columnTable(3, {5, 0, 15, 1, 2, 3});
    matrix<double>* x = &first;
    matrix<double>* y = &second;
    matrix<double>* z = &third;
    M_NormalizeMatrix(x, 2, 2, y, 1, z, 3);
    const double factor = std::sqrt(2.0);
    EXPECT_EQ(cellsOf(first),
              (doubles{3.0 / 5 * factor, 4.0 / 5 * factor, 6.0 / 10 * factor, 8.0 / 10 * factor}));
    EXPECT_EQ(cellsOf(second), (doubles{2 * factor, none}));
    EXPECT_EQ(cellsOf(third),
              (doubles{factor, 0, 3 * factor, 1.0 / 10 * factor, 2.0 / 10 * factor, 3.0 / 10 * factor}));
    auto alone = columnTable(2, {3, 4});
    x = &alone;
    y = nullptr;
    z = nullptr;
    M_NormalizeMatrix(x, 2, 1, y, 0, z, -1);
    EXPECT_EQ(cellsOf(alone), (doubles{3.0 / 5 * factor, 4.0 / 5 * factor}));
}
