#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"
#include "support/special_values.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = -1.79769313486231e308;

/** A square table, dense or as separate columns, so that one test serves both forms of a function. */
struct dense_form {
    guarded<double> block;
    int order;

    dense_form(const doubles& cells, int n) : block(cells), order(n) {}
    doubles cells() const { return valuesOf(block); }

    short int isSymmetric() { return VB_M_IsSymmetric(block.data(), order); }
    int symmetrize() { return VB_M_Symmetrize(block.data(), order, order); }
    int kind() { return VB_M_CheckIfSimOrDissim(block.data(), order, order); }
    int triangle(short int bMirror) { return VB_M_IsTriangular(block.data(), order, bMirror); }
};

struct chunked_form {
    caller_columns columns;
    int order;

    chunked_form(const doubles& cells, int n) : columns(cut(cells, n)), order(n) {}

    doubles cells() const
    {
        doubles joined;
        for (const doubles& column : columns.values()) {
            joined.insert(joined.end(), column.begin(), column.end());
        }
        return joined;
    }

    short int isSymmetric() { return VB_M_IsSymmetricSPV(columns.argument(), order); }
    int symmetrize() { return VB_M_SymmetrizeSPV(columns.argument(), order, order); }
    int kind() { return VB_M_CheckIfSimOrDissimSPV(columns.argument(), order, order); }
    int triangle(short int bMirror) { return VB_M_IsTriangularSPV(columns.argument(), order, bMirror); }

private:
    static caller_columns::columns cut(const doubles& cells, int n)
    {
        caller_columns::columns found;
        for (auto first = cells.begin(); first != cells.end(); first += n) {
            found.emplace_back(first, first + n);
        }
        return found;
    }
};

template <class Form>
class FlatSquare : public ::testing::Test
{
};
using forms = ::testing::Types<dense_form, chunked_form>;
TYPED_TEST_SUITE(FlatSquare, forms);

/** Equal cells, a NaN to a NaN. */
void expectCells(const doubles& actual, const doubles& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_TRUE(actual[k] == expected[k] || (std::isnan(actual[k]) && std::isnan(expected[k])))
            << "cell " << k << ": " << actual[k] << ", not " << expected[k];
    }
}

} // namespace

TYPED_TEST(FlatSquare, IsSymmetricWhenThePairsAreExactlyEqual)
{
    struct given {
        int n;
        doubles cells;
        short int expected;
    };
    for (const given& table : std::vector<given>{
             {1, {5}, -1},
             {1, {notANumber}, -1},
             {2, {1, 2, 2, 3}, -1},
             {2, {1, 2, std::nextafter(2.0, 3.0), 3}, 0},
             {2, {1, 0.0, -0.0, 3}, -1},
             {2, {1, missing, missing, 3}, -1},
             {2, {1, missing, 2, 3}, 0},
             {2, {notANumber, 2, 2, notANumber}, -1},
             {2, {1, notANumber, notANumber, 3}, 0},
             {3, {1, 2, 3, 2, 5, 6, 3, 6, 9}, -1},
             {3, {1, 2, 3, 2, 5, 6, 3, 7, 9}, 0},
         }) {
        TypeParam x(table.cells, table.n);
        EXPECT_EQ(x.isSymmetric(), table.expected) << ::testing::PrintToString(table.cells);
        expectCells(x.cells(), table.cells);
    }
    TypeParam none({1, 2, 3, 4}, 2);
    none.order = 0;
    EXPECT_EQ(none.isSymmetric(), -1);
}

TYPED_TEST(FlatSquare, SymmetrizeTakesTheMeanOfEachPair)
{
    TypeParam x({1, 2, missing, 6, 5, missing, 4, missing, notANumber}, 3);
    EXPECT_EQ(x.symmetrize(), 0);
    expectCells(x.cells(), {1, 4, 4, 4, 5, missing, 4, missing, notANumber});
    EXPECT_EQ(x.symmetrize(), 0);
    expectCells(x.cells(), {1, 4, 4, 4, 5, missing, 4, missing, notANumber});

    constexpr double smallest = 5e-324;
    TypeParam exact({1, smallest, belowSentinel, smallest, 1, 2, 2, belowSentinel, 1}, 3);
    exact.symmetrize();
    constexpr double half = belowSentinel / 2.0;
    expectCells(exact.cells(), {1, smallest, half, smallest, 1, half, half, half, 1});

    TypeParam y({1, 3, missing, 4}, 2);
    y.symmetrize();
    expectCells(y.cells(), {1, 3, 3, 4});
    y.order = 0;
    y.symmetrize();
    expectCells(y.cells(), {1, 3, 3, 4});
}

TYPED_TEST(FlatSquare, TellsSimilaritiesFromDissimilarities)
{
    struct given {
        int n;
        doubles cells;
        int expected;
    };
    for (const given& table : std::vector<given>{
             {2, {0, 3, 3, 0}, 2},
             {2, {0, 3, 4, 0}, 2},
             {2, {0, 0, 0, 0}, 2},
             {1, {0}, 2},
             {1, {7}, 1},
             {1, {missing}, 0},
             {2, {1, 0.5, 0.5, 1}, 1},
             {2, {1, -0.5, 0.5, 1}, 1},
             {2, {1, 1, 1, 1}, 1},
             {2, {1, 1.5, 0, 1}, 0},
             {2, {1, 0.5, 0.5, 2}, 0},
             {2, {0, -1, 3, 0}, 0},
             {2, {0, -1, -2, 0}, 1},
             {2, {0, missing, 3, 0}, 2},
             {2, {1, missing, 0.5, 1}, 1},
             {2, {missing, 1, 1, missing}, 0},
             {2, {0, 1, 1, missing}, 0},
             {2, {1, 1, 1, missing}, 0},
             {2, {0, notANumber, 1, 0}, 0},
             {2, {notANumber, 0, 0, notANumber}, 0},
             {3, {0, 1, 2, 1, 0, 3, 2, 3, 0}, 2},
             {3, {0, 1, 2, 1, 0, 3, 2, 3, 1}, 0},
         }) {
        TypeParam x(table.cells, table.n);
        EXPECT_EQ(x.kind(), table.expected) << ::testing::PrintToString(table.cells);
        expectCells(x.cells(), table.cells);
    }
    TypeParam none({1, 2, 3, 4}, 2);
    none.order = 0;
    EXPECT_EQ(none.kind(), 0);
}

TYPED_TEST(FlatSquare, TellsWhichHalfIsFilledAndMirrorsIt)
{
    struct given {
        int n;
        doubles cells;
        int expected;
        doubles mirrored;
    };
    // Cells column after column: of order 2 the second is below the diagonal, the third above it.
    for (const given& table : std::vector<given>{
             {1, {5}, 2, {5}},
             {2, {1, 0, 4, 1}, 2, {1, 4, 4, 1}},
             {2, {1, missing, 4, 1}, 2, {1, 4, 4, 1}},
             {2, {1, 4, 0, 1}, 1, {1, 4, 4, 1}},
             {2, {1, 4, missing, 1}, 1, {1, 4, 4, 1}},
             {2, {1, 4, 5, 1}, 0, {1, 4, 5, 1}},
             {2, {1, missing, 0, 1}, 2, {1, 0, 0, 1}},
             {2, {1, 0, missing, 1}, 2, {1, missing, missing, 1}},
             {2, {1, -0.0, 4, 1}, 2, {1, 4, 4, 1}},
             {2, {1, notANumber, 0, 1}, 1, {1, notANumber, notANumber, 1}},
             {2, {1, 0, notANumber, 1}, 2, {1, notANumber, notANumber, 1}},
             {2, {1, notANumber, 2, 1}, 0, {1, notANumber, 2, 1}},
             {2, {1, belowSentinel, 0, 1}, 1, {1, belowSentinel, belowSentinel, 1}},
             {3, {1, 0, 0, 2, 3, 0, 0, 4, 5}, 2, {1, 2, 0, 2, 3, 4, 0, 4, 5}},
             {3, {1, 0, 7, 0, 3, 0, 0, 0, 5}, 1, {1, 0, 7, 0, 3, 0, 7, 0, 5}},
             {3, {1, 0, 7, 0, 3, 0, 0, 1, 5}, 0, {1, 0, 7, 0, 3, 0, 0, 1, 5}},
         }) {
        TypeParam x(table.cells, table.n);
        for (const short int bMirror : std::vector<short int>{0, 1, -2}) {
            EXPECT_EQ(x.triangle(bMirror), table.expected) << ::testing::PrintToString(table.cells);
            expectCells(x.cells(), table.cells);
        }
        EXPECT_EQ(x.triangle(-1), table.expected) << ::testing::PrintToString(table.cells);
        expectCells(x.cells(), table.mirrored);
    }
    TypeParam none({1, 2, 3, 4}, 2);
    for (const int n : {1, 0}) {
        none.order = n;
        EXPECT_EQ(none.triangle(-1), 2);
        expectCells(none.cells(), {1, 2, 3, 4});
    }
}

TEST(FlatSquareTable, WhichIsNotSquareIsNoProximity)
{
    guarded<double> x(doubles{0, 1, 2, 0, 1, 3});
    EXPECT_EQ(VB_M_CheckIfSimOrDissim(x.data(), 3, 2), 0);
    EXPECT_EQ(VB_M_CheckIfSimOrDissim(x.data(), 2, 3), 0);
    caller_columns y({{0, 1, 2}, {1, 0, 3}});
    EXPECT_EQ(VB_M_CheckIfSimOrDissimSPV(y.argument(), 3, 2), 0);
}

TEST(FlatSquareTable, IsMadeSymmetricInItsTopLeftCorner)
{
    guarded<double> x(doubles{1, 2, 9, 4, 1, 9});
    VB_M_Symmetrize(x.data(), 3, 2);
    EXPECT_EQ(valuesOf(x), (doubles{1, 3, 9, 3, 1, 9}));
    guarded<double> wide(doubles{1, 2, 4, 1, 9, 9});
    VB_M_Symmetrize(wide.data(), 2, 3);
    EXPECT_EQ(valuesOf(wide), (doubles{1, 3, 3, 1, 9, 9}));
    caller_columns columns({{1, 2, 9}, {4, 1, 9}});
    VB_M_SymmetrizeSPV(columns.argument(), 3, 2);
    EXPECT_EQ(columns.values(), (caller_columns::columns{{1, 3, 9}, {3, 1, 9}}));
}

TEST(FlatSquareTable, HasAConstantDiagonal)
{
    guarded<double> x(doubles{2, 1, 5, 7, 2, 1, 0, 3, 2});
    EXPECT_EQ(VB_M_IsDiagConstant(x.data(), 3), -1);
    guarded<double> other(doubles{2, 1, 5, 7, 2, 1, 0, 3, std::nextafter(2.0, 3.0)});
    EXPECT_EQ(VB_M_IsDiagConstant(other.data(), 3), 0);
    guarded<double> none(doubles{missing, 1, 1, missing});
    EXPECT_EQ(VB_M_IsDiagConstant(none.data(), 2), -1);
    guarded<double> nans(doubles{notANumber, 1, 1, notANumber});
    EXPECT_EQ(VB_M_IsDiagConstant(nans.data(), 2), 0);
    EXPECT_EQ(VB_M_IsDiagConstant(nans.data(), 1), -1);
    EXPECT_EQ(VB_M_IsDiagConstant(nans.data(), 0), -1);
}

TEST(FlatSquareTable, IsPackedRowAfterRow)
{
    // 1 . .
    // 2 3 .
    // 4 5 6
    guarded<double> x(doubles{1, 2, 4, 77, 3, 5, 77, 77, 6});
    guarded<double> v(doubles(6));
    EXPECT_EQ(Cpp_M_CopySymMatToVector(x.data(), 3, v.data()), 0);
    EXPECT_EQ(valuesOf(v), (doubles{1, 2, 3, 4, 5, 6}));
    guarded<double> y(doubles(9));
    EXPECT_EQ(Cpp_M_CopyVectorToSymMat(v.data(), 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 4, 2, 3, 5, 4, 5, 6}));

    EXPECT_EQ(Cpp_M_CopySymMatToVector(y.data(), 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 3, 4, 5, 6, 4, 5, 6})) << "one array for both";
    EXPECT_EQ(Cpp_M_CopyVectorToSymMat(y.data(), 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 4, 2, 3, 5, 4, 5, 6})) << "one array for both";

    EXPECT_EQ(Cpp_M_CopySymMatToVector(x.data(), 0, v.data()), 0);
    EXPECT_EQ(Cpp_M_CopyVectorToSymMat(v.data(), 0, y.data()), 0);
    EXPECT_EQ(valuesOf(v), (doubles{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 4, 2, 3, 5, 4, 5, 6}));
}

TEST(FlatSquareTable, OfSimilaritiesBecomesDissimilarities)
{
    guarded<double> x(doubles{1, 0.25, missing, 0.25, 1, -0.5, 0.75, -0.5, 1});
    EXPECT_EQ(VB_M_TransformSimToDissim(x.data(), 3), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 0.75, missing, 0.75, 0, 1.5, 0.25, 1.5, 0}));
    guarded<double> none(doubles{missing});
    EXPECT_EQ(VB_M_TransformSimToDissim(none.data(), 1), 0);
    EXPECT_EQ(VB_M_TransformSimToDissim(x.data(), 0), 0);
    EXPECT_EQ(valuesOf(none), doubles{missing});
    guarded<double> lowest(doubles{0, belowSentinel, missing, -1.0});
    EXPECT_EQ(VB_M_TransformSimToDissim(lowest.data(), 2), 0);
    EXPECT_EQ(valuesOf(lowest), (doubles{0, -belowSentinel, missing, 1})) << "missing is one number only";
}
