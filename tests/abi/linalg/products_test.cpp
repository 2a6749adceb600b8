#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;
using integers = std::vector<int>;

/** A table of whole numbers, whose products are exact in any order. */
struct whole_table {
    int rows;
    int cols;
    numbers cells;

    double at(int i, int j) const { return cells[static_cast<std::size_t>(i + rows * j)]; }
    double* data() { return cells.data(); }
};

whole_table counting(int rows, int cols, int start)
{
    whole_table made{rows, cols, {}};
    for (int k = 0; k < rows * cols; ++k) {
        made.cells.push_back((start + 3 * k) % 11 - 5);
    }
    return made;
}

whole_table transposed(const whole_table& x)
{
    whole_table made{x.cols, x.rows, {}};
    for (int i = 0; i < x.rows; ++i) {
        for (int j = 0; j < x.cols; ++j) {
            made.cells.push_back(x.at(i, j));
        }
    }
    return made;
}

whole_table times(const whole_table& a, const whole_table& b)
{
    whole_table made{a.rows, b.cols, {}};
    for (int j = 0; j < b.cols; ++j) {
        for (int i = 0; i < a.rows; ++i) {
            double sum = 0.0;
            for (int k = 0; k < a.cols; ++k) {
                sum += a.at(i, k) * b.at(k, j);
            }
            made.cells.push_back(sum);
        }
    }
    return made;
}

whole_table diagonalOf(const numbers& d)
{
    const int n = static_cast<int>(d.size());
    whole_table made{n, n, numbers(d.size() * d.size(), 0.0)};
    for (std::size_t k = 0; k < d.size(); ++k) {
        made.cells[k * (d.size() + 1)] = d[k];
    }
    return made;
}

guarded<double> roomFor(const whole_table& expected)
{
    return guarded<double>(numbers(expected.cells.size(), 9.0));
}

/** A caller's labelled table of the cells. */
ST_MVect labelled(caller_memory& caller, const whole_table& x)
{
    std::vector<ST_Vect> columns;
    std::vector<std::u16string> names;
    for (int j = 0; j < x.cols; ++j) {
        const auto first = x.cells.begin() + x.rows * j;
        columns.push_back(caller.column(u"x", numbers(first, first + x.rows)));
        names.push_back(u"x");
    }
    return caller.table(columns, names);
}

numbers cellsOf(const ST_MVect& table)
{
    numbers found;
    for (int j = 0; j < table.nbcols; ++j) {
        const numbers column = numbersIn<double>(columnOf(table, j).Vect);
        found.insert(found.end(), column.begin(), column.end());
    }
    return found;
}

whole_table blankLike(whole_table x)
{
    x.cells.assign(x.cells.size(), 9.0);
    return x;
}

whole_table symmetricTable(int n)
{
    const whole_table x = counting(n, n, 2);
    return times(x, transposed(x));
}

} // namespace

TEST(FlatProducts, OfTwoTables)
{
    whole_table a = counting(4, 3, 1);
    whole_table b = counting(3, 2, 4);
    whole_table c = counting(4, 2, 7);
    whole_table d = counting(5, 3, 2);
    guarded<double> ab = roomFor(times(a, b));
    EXPECT_EQ(VB_M_ProductAB(a.data(), 4, 3, b.data(), 2, ab.data()), 0);
    EXPECT_EQ(valuesOf(ab), times(a, b).cells);
    guarded<double> heeding = roomFor(times(a, b));
    EXPECT_EQ(VB_M_ProductABMissing(a.data(), 4, 3, b.data(), 2, heeding.data()), 0);
    EXPECT_EQ(valuesOf(heeding), times(a, b).cells);
    guarded<double> trAB = roomFor(times(transposed(a), c));
    EXPECT_EQ(VB_M_ProductTrAB(a.data(), 4, 3, c.data(), 2, trAB.data()), 0);
    EXPECT_EQ(valuesOf(trAB), times(transposed(a), c).cells);
    guarded<double> aTrB = roomFor(times(a, transposed(d)));
    EXPECT_EQ(VB_M_ProductATrB(a.data(), 4, 3, d.data(), 5, aTrB.data()), 0);
    EXPECT_EQ(valuesOf(aTrB), times(a, transposed(d)).cells);
}

TEST(FlatProducts, MayWriteOverWhatTheyRead)
{
    whole_table a = counting(3, 3, 1);
    whole_table b = counting(3, 3, 4);
    guarded<double> first(a.cells);
    VB_M_ProductAB(first.data(), 3, 3, b.data(), 3, first.data());
    EXPECT_EQ(valuesOf(first), times(a, b).cells);
    guarded<double> second(b.cells);
    VB_M_ProductTrAB(a.data(), 3, 3, second.data(), 3, second.data());
    EXPECT_EQ(valuesOf(second), times(transposed(a), b).cells);
    guarded<double> squared(a.cells);
    VB_M_ProductTrAA(squared.data(), 3, 3, squared.data());
    EXPECT_EQ(valuesOf(squared), times(transposed(a), a).cells);
    guarded<double> three(a.cells);
    VB_M_ProductABTrA(three.data(), 3, 3, b.data(), 0, three.data());
    EXPECT_EQ(valuesOf(three), times(times(a, b), transposed(a)).cells);
    guarded<double> vector(numbers{1, 2, 3});
    VB_M_ProductBV(a.data(), 3, 3, vector.data(), vector.data());
    EXPECT_EQ(valuesOf(vector), times(a, whole_table{3, 1, {1, 2, 3}}).cells);
}

TEST(FlatProducts, OfIntegers)
{
    integers a{2147483647, 3, 1, 4};
    integers b{2, 5};
    guarded<int> ab{9, 9};
    EXPECT_EQ(VB_M_ProductABLng(a.data(), 2, 2, b.data(), 1, ab.data()), 0);
    EXPECT_EQ(valuesOf(ab), (integers{3, 26}));
    integers x{46340, 46340, 1, 2};
    guarded<int> own{9, 9, 9, 9};
    EXPECT_EQ(Cpp_M_ProductTrAALng(x.data(), 2, 2, own.data()), 0);
    EXPECT_EQ(valuesOf(own), (integers{-2147483647 - 1, 139020, 139020, 5}));
}

TEST(FlatProducts, HeedMissingCellsWhereTheyAreToldTo)
{
    numbers a{1, 3, MISSING_DBL, 4};
    numbers b{1, 2};
    guarded<double> c{9, 9};
    EXPECT_EQ(VB_M_ProductABMissing(a.data(), 2, 2, b.data(), 1, c.data()), 0);
    EXPECT_EQ(valuesOf(c), (numbers{MISSING_DBL, 11}));
    numbers v{2, MISSING_DBL};
    guarded<double> y{9, 9};
    EXPECT_EQ(VB_M_ProductVB(v.data(), 2, a.data(), 2, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (numbers{MISSING_DBL, MISSING_DBL}));
    v[1] = 1;
    EXPECT_EQ(VB_M_ProductVB(v.data(), 2, a.data(), 2, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (numbers{5, MISSING_DBL}));
}

TEST(FlatProducts, OfATableWithItself)
{
    whole_table a = counting(4, 3, 1);
    const whole_table tr = transposed(a);
    numbers down{2, -1, 3, 5};
    numbers along{4, 7, -2};
    whole_table downSquare = diagonalOf(down);
    whole_table alongSquare = diagonalOf(along);
    downSquare.cells[1] = 99; // only the diagonal is read
    alongSquare.cells[1] = 99;
    const whole_table byRows = times(times(tr, diagonalOf(down)), a);
    const whole_table byColumns = times(times(a, diagonalOf(along)), tr);
    guarded<double> trAA = roomFor(byRows);
    EXPECT_EQ(VB_M_ProductTrAA(a.data(), 4, 3, trAA.data()), 0);
    EXPECT_EQ(valuesOf(trAA), times(tr, a).cells);
    guarded<double> aTrA = roomFor(byColumns);
    EXPECT_EQ(VB_M_ProductATrA(a.data(), 4, 3, aTrA.data()), 0);
    EXPECT_EQ(valuesOf(aTrA), times(a, tr).cells);
    guarded<double> trADA = roomFor(byRows);
    EXPECT_EQ(VB_M_ProductTrADA(a.data(), 4, 3, downSquare.data(), trADA.data()), 0);
    EXPECT_EQ(valuesOf(trADA), byRows.cells);
    guarded<double> trAdA = roomFor(byRows);
    EXPECT_EQ(VB_M_ProductTrADiagVA(a.data(), 4, 3, down.data(), trAdA.data()), 0);
    EXPECT_EQ(valuesOf(trAdA), byRows.cells);
    guarded<double> aDTrA = roomFor(byColumns);
    EXPECT_EQ(VB_M_ProductADTrA(a.data(), 4, 3, alongSquare.data(), aDTrA.data()), 0);
    EXPECT_EQ(valuesOf(aDTrA), byColumns.cells);
    guarded<double> adTrA = roomFor(byColumns);
    EXPECT_EQ(VB_M_ProductADiagVTrA(a.data(), 4, 3, along.data(), adTrA.data()), 0);
    EXPECT_EQ(valuesOf(adTrA), byColumns.cells);
}

TEST(FlatProducts, WithADiagonalBetweenTwoTables)
{
    whole_table a = counting(4, 3, 1);
    whole_table b = counting(3, 2, 4);
    whole_table c = counting(5, 3, 6);
    numbers d{4, 7, -2};
    const whole_table scaled = times(a, diagonalOf(d));
    guarded<double> first = roomFor(times(scaled, b));
    EXPECT_EQ(VB_M_ProductADiagVB(a.data(), 4, 3, d.data(), b.data(), 2, first.data()), 0);
    EXPECT_EQ(valuesOf(first), times(scaled, b).cells);
    guarded<double> second = roomFor(times(scaled, transposed(c)));
    EXPECT_EQ(VB_M_ProductADiagVTrB(a.data(), 4, 3, d.data(), c.data(), 5, second.data()), 0);
    EXPECT_EQ(valuesOf(second), times(scaled, transposed(c)).cells);
}

TEST(FlatProducts, OfLabelledTables)
{
    caller_memory caller;
    const whole_table a = counting(4, 3, 1);
    const whole_table b = counting(3, 2, 4);
    const whole_table c = counting(4, 2, 7);
    const whole_table d = counting(5, 3, 2);
    const whole_table inner = symmetricTable(3);
    ST_MVect left = labelled(caller, a);
    ST_MVect right = labelled(caller, b);
    ST_MVect below = labelled(caller, c);
    ST_MVect rows = labelled(caller, d);
    ST_MVect middle = labelled(caller, inner);
    const auto expectCells = [](const ST_MVect& actual, const whole_table& expected) {
        EXPECT_EQ(cellsOf(actual), expected.cells);
        EXPECT_EQ(actual.nbcols, expected.cols);
        EXPECT_EQ(actual.nbrowsmax, expected.rows);
        EXPECT_EQ(actual.samenbrows, -1);
    };
    ST_MVect ab = labelled(caller, blankLike(times(a, b)));
    ab.nbcols = 0;
    ab.nbrowsmax = 0;
    EXPECT_EQ(Cpp_M_ProductAB_ST(&left, 4, 3, &right, 2, &ab), 0);
    expectCells(ab, times(a, b));
    ST_MVect trAC = labelled(caller, blankLike(times(transposed(a), c)));
    EXPECT_EQ(Cpp_M_ProductTrAB_ST(&left, 4, 3, &below, 2, &trAC), 0);
    expectCells(trAC, times(transposed(a), c));
    ST_MVect aTrD = labelled(caller, blankLike(times(a, transposed(d))));
    EXPECT_EQ(Cpp_M_ProductATrB_ST(&left, 4, 3, &rows, 5, &aTrD), 0);
    expectCells(aTrD, times(a, transposed(d)));
    const whole_table three = times(times(a, inner), transposed(a));
    for (const short int symmetric : {short{0}, short{-1}, short{1}}) {
        ST_MVect result = labelled(caller, blankLike(three));
        EXPECT_EQ(Cpp_M_ProductABTrA_ST(&left, 4, 3, &middle, symmetric, &result), 0);
        expectCells(result, three);
    }
    const whole_table lopsided = counting(3, 3, 1);
    ST_MVect crooked = labelled(caller, lopsided);
    ST_MVect whole = labelled(caller, blankLike(three));
    Cpp_M_ProductABTrA_ST(&left, 4, 3, &crooked, 1, &whole);
    expectCells(whole, times(times(a, lopsided), transposed(a)));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatProducts, OfThreeTables)
{
    whole_table a = counting(4, 3, 1);
    const whole_table tr = transposed(a);
    whole_table inner = symmetricTable(3);
    whole_table outer = symmetricTable(4);
    for (const short int symmetric : {short{0}, short{-1}, short{1}}) {
        const whole_table aBTrA = times(times(a, inner), tr);
        guarded<double> first = roomFor(aBTrA);
        EXPECT_EQ(VB_M_ProductABTrA(a.data(), 4, 3, inner.data(), symmetric, first.data()), 0);
        EXPECT_EQ(valuesOf(first), aBTrA.cells);
        const whole_table trABA = times(times(tr, outer), a);
        guarded<double> second = roomFor(trABA);
        EXPECT_EQ(VB_M_ProductTrABA(a.data(), 4, 3, outer.data(), symmetric, second.data()), 0);
        EXPECT_EQ(valuesOf(second), trABA.cells);
    }
    whole_table b = counting(3, 2, 4);
    whole_table c = counting(2, 5, 3);
    const whole_table abc = times(times(a, b), c);
    guarded<double> third = roomFor(abc);
    EXPECT_EQ(VB_M_ProductABC(a.data(), 4, 3, b.data(), 2, c.data(), 5, third.data()), 0);
    EXPECT_EQ(valuesOf(third), abc.cells);
    whole_table d = counting(4, 2, 6);
    const whole_table trADC = times(times(tr, d), c);
    guarded<double> fourth = roomFor(trADC);
    EXPECT_EQ(VB_M_ProductTrABC(a.data(), 4, 3, d.data(), 2, c.data(), 5, fourth.data()), 0);
    EXPECT_EQ(valuesOf(fourth), trADC.cells);
    whole_table e = counting(2, 3, 6);
    const whole_table aTrEC = times(times(a, transposed(e)), c);
    guarded<double> fifth = roomFor(aTrEC);
    EXPECT_EQ(VB_M_ProductATrBC(a.data(), 4, 3, e.data(), 2, c.data(), 5, fifth.data()), 0);
    EXPECT_EQ(valuesOf(fifth), aTrEC.cells);
    whole_table v = counting(2, 1, 5);
    const whole_table trADv = times(times(tr, d), v);
    guarded<double> sixth = roomFor(trADv);
    EXPECT_EQ(Cpp_M_ProductTrABV(a.data(), 4, 3, d.data(), 2, v.data(), sixth.data()), 0);
    EXPECT_EQ(valuesOf(sixth), trADv.cells);
}

TEST(FlatProducts, WithVectors)
{
    whole_table b = counting(4, 3, 1);
    whole_table three = counting(3, 1, 2);
    whole_table four = counting(4, 1, 3);
    guarded<double> bV = roomFor(times(b, three));
    EXPECT_EQ(VB_M_ProductBV(b.data(), 4, 3, three.data(), bV.data()), 0);
    EXPECT_EQ(valuesOf(bV), times(b, three).cells);
    const numbers down = times(transposed(b), four).cells;
    guarded<double> trBV(numbers(3, 9.0));
    EXPECT_EQ(VB_M_ProductTrBV(b.data(), 4, 3, four.data(), trBV.data()), 0);
    EXPECT_EQ(valuesOf(trBV), down);
    guarded<double> vB(numbers(3, 9.0));
    EXPECT_EQ(VB_M_ProductVB(four.data(), 4, b.data(), 3, vB.data()), 0);
    EXPECT_EQ(valuesOf(vB), down);
    guarded<double> vTrB(numbers(4, 9.0));
    EXPECT_EQ(VB_M_ProductVTrB(three.data(), 3, b.data(), 4, vTrB.data()), 0);
    EXPECT_EQ(valuesOf(vTrB), times(b, three).cells);
    whole_table square = counting(3, 3, 4);
    whole_table other = counting(3, 1, 6);
    const whole_table bilinear = times(times(transposed(other), square), three);
    EXPECT_TRUE(
        sameBits(VB_M_ProductTrV1BV2(other.data(), 3, square.data(), three.data()), bilinear.cells[0]));
    const whole_table quadratic = times(times(transposed(three), square), three);
    EXPECT_TRUE(sameBits(VB_M_ProductTrVBV(three.data(), 3, square.data()), quadratic.cells[0]));
}

TEST(FlatProducts, OfNothing)
{
    guarded<double> c{9, 9};
    EXPECT_EQ(VB_M_ProductAB(nullptr, 2, 0, nullptr, 1, c.data()), 0);
    EXPECT_EQ(valuesOf(c), (numbers{0, 0}));
    guarded<double> kept{9, 9};
    EXPECT_EQ(VB_M_ProductAB(nullptr, 0, 0, nullptr, 0, kept.data()), 0);
    EXPECT_EQ(VB_M_ProductABTrA(nullptr, 0, 0, nullptr, 0, kept.data()), 0);
    EXPECT_EQ(valuesOf(kept), (numbers{9, 9}));
    EXPECT_TRUE(sameBits(VB_M_ProductTrVBV(nullptr, 0, nullptr), 0.0));
}
