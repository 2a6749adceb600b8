#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"

#include <gtest/gtest.h>
#include <new>
#include <vector>

using namespace korvel::test;

namespace
{

/** What to expect alike of all forms that put two tables side by side. */
struct beside_case {
    const char* name;
    int rowsA;
    int colsA;
    codes a;
    int rowsB;
    int colsB;
    codes b;
    codes merged;
};

const std::vector<beside_case> besideCases{
    {"tables of one height", 2, 2, {1, 2, 3, 4}, 2, 3, {5, 6, 7, 8, 9, 10}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
    {"a column count of 0 is one column", 2, 0, {1, 2}, 2, 0, {3, 4}, {1, 2, 3, 4}},
    {"a shorter second table", 3, 1, {1, 2, 3}, 2, 2, {4, 5, 6, 7}, {1, 2, 3, 4, 5, 0, 6, 7, 0}},
    {"a shorter first table", 1, 2, {1, 2}, 3, 1, {3, 4, 5}, {1, 0, 0, 2, 0, 0, 3, 4, 5}},
    {"tables of no rows", 0, 2, {}, 0, 1, {}, {}},
};

template <class Cell, class Function>
void expectSideBySide(Function merge)
{
    for (const beside_case& with : besideCases) {
        SCOPED_TRACE(with.name);
        caller_cells<Cell> a(with.a);
        caller_cells<Cell> b(with.b);
        caller_cells<Cell> out(codes(with.merged.size(), 70));
        EXPECT_EQ(merge(a.data(), with.rowsA, with.colsA, b.data(), with.rowsB, with.colsB, out.data()), 0);
        EXPECT_EQ(out.values(), with.merged);
        EXPECT_EQ(a.values(), with.a);
        EXPECT_EQ(b.values(), with.b);
    }
}

/** In place the first table keeps its height, and cells that nothing is stored in keep their value. */
template <class Cell, class Function>
void expectAddedColumns(Function merge)
{
    const auto added = [&](int rowsA, int colsA, const codes& a, int rowsB, int colsB, const codes& b) {
        caller_cells<Cell> table(a);
        caller_cells<Cell> other(b);
        EXPECT_EQ(merge(table.data(), rowsA, colsA, other.data(), rowsB, colsB), 0);
        EXPECT_EQ(other.values(), b);
        return table.values();
    };
    EXPECT_EQ(added(2, 1, {1, 2, 70, 70, 70, 70}, 2, 2, {3, 4, 5, 6}), (codes{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(added(2, 0, {1, 2, 70, 70}, 2, 0, {3, 4}), (codes{1, 2, 3, 4})) << "0 is one column";
    EXPECT_EQ(added(2, 1, {1, 2, 70, 70}, 1, 1, {3}), (codes{1, 2, 3, 70})) << "a shorter second table";
    EXPECT_EQ(added(2, 1, {1, 2, 70, 70, 70, 70}, 3, 2, {3, 4, 5, 6, 7, 8}), (codes{1, 2, 3, 4, 6, 7}))
        << "a longer second table";
    EXPECT_EQ(added(0, 1, {}, 0, 1, {}), codes{});

    // A table beside itself.
    caller_cells<Cell> twice({1, 2, 70, 70});
    EXPECT_EQ(merge(twice.data(), 2, 1, twice.data(), 2, 1), 0);
    EXPECT_EQ(twice.values(), (codes{1, 2, 1, 2}));
}

template <class Cell, class Function>
void expectOneBelowTheOther(Function merge)
{
    const auto merged = [&](const codes& a, const codes& b) {
        caller_cells<Cell> upper(a);
        caller_cells<Cell> lower(b);
        caller_cells<Cell> out(codes(a.size() + b.size(), 70));
        EXPECT_EQ(merge(upper.data(), static_cast<int>(a.size()), lower.data(), static_cast<int>(b.size()),
                        out.data()),
                  0);
        EXPECT_EQ(upper.values(), a);
        EXPECT_EQ(lower.values(), b);
        return out.values();
    };
    EXPECT_EQ(merged({1, 2, 3}, {4, 5}), (codes{1, 2, 3, 4, 5}));
    EXPECT_EQ(merged({}, {4, 5}), (codes{4, 5})) << "a copy of the second";
    EXPECT_EQ(merged({1}, {}), (codes{1}));
    EXPECT_EQ(merged({}, {}), codes{});
}

template <class Cell, class Function>
void expectAppended(Function merge)
{
    caller_cells<Cell> a({1, 2, 70, 70, 70});
    caller_cells<Cell> b({3, 4});
    EXPECT_EQ(merge(a.data(), 2, b.data(), 2), 0);
    EXPECT_EQ(a.values(), (codes{1, 2, 3, 4, 70}));
    EXPECT_EQ(merge(a.data(), 4, b.data(), 0), 0);
    EXPECT_EQ(a.values(), (codes{1, 2, 3, 4, 70}));
    EXPECT_EQ(merge(a.data(), 0, b.data(), 1), 0);
    EXPECT_EQ(a.values(), (codes{3, 2, 3, 4, 70}));
}

} // namespace

TEST(FlatTableMerge, SideBySide)
{
    expectSideBySide<double>(VB_HMergeTablesDbl);
    expectSideBySide<short int>(VB_HMergeTablesBool);
    expectSideBySide<text_cell>(VB_HMergeTablesStr);
}

TEST(FlatTableMerge, SideBySideInPlace)
{
    expectAddedColumns<double>(VB_HMergeTablesDbl2);
    expectAddedColumns<int>(VB_HMergeTablesLng2);
    expectAddedColumns<short int>(VB_HMergeTablesBool2);
    expectAddedColumns<text_cell>(VB_HMergeTablesStr2);
}

TEST(FlatTableMerge, SideBySideMayWriteOverWhatItReads)
{
    caller_cells<double> first({1, 2, 70, 70});
    caller_cells<double> other({3, 4});
    VB_HMergeTablesDbl(first.data(), 2, 1, other.data(), 2, 1, first.data());
    EXPECT_EQ(first.values(), (codes{1, 2, 3, 4}));
    caller_cells<double> second({1, 2, 70, 70});
    VB_HMergeTablesDbl(other.data(), 2, 1, second.data(), 2, 1, second.data());
    EXPECT_EQ(second.values(), (codes{3, 4, 1, 2}));
    caller_cells<double> uneven({1, 2, 3, 70, 70, 70});
    VB_HMergeTablesDbl(other.data(), 2, 1, uneven.data(), 3, 1, uneven.data());
    EXPECT_EQ(uneven.values(), (codes{3, 4, 0, 1, 2, 3}));
}

TEST(FlatTableMerge, SideBySideInPlaceOnChunks)
{
    caller_chunks<double> a({{1, 2}, {70, 70}, {70, 70}});
    caller_cells<double> dense({3, 4, 5, 6});
    EXPECT_EQ(VB_HMergeTablesDbl2SPV(a.argument(), 2, 1, dense.data(), 2, 2), 0);
    EXPECT_EQ(a.values(), (std::vector<codes>{{1, 2}, {3, 4}, {5, 6}}));

    caller_cells<double> vector({7, 8, 9});
    EXPECT_EQ(VB_HMergeTablesDbl2SPV(a.argument(), 2, 2, vector.data(), 3, 0), 0);
    EXPECT_EQ(a.values(), (std::vector<codes>{{1, 2}, {3, 4}, {7, 8}})) << "0 is one column";

    caller_chunks<double> chunks({{11}, {12}});
    EXPECT_EQ(VB_HMergeTablesDbl2SPV2(a.argument(), 2, 1, chunks.argument(), 1, 2), 0);
    EXPECT_EQ(a.values(), (std::vector<codes>{{1, 2}, {11, 4}, {12, 8}}));
    EXPECT_EQ(chunks.values(), (std::vector<codes>{{11}, {12}}));
}

TEST(FlatTableMerge, TwoVectors)
{
    const auto merged = [](const codes& a, const codes& b) {
        caller_cells<double> left(a);
        caller_cells<double> right(b);
        caller_cells<double> out(codes(2 * std::max(a.size(), b.size()), 70));
        EXPECT_EQ(VB_HMergeVectors(left.data(), static_cast<int>(a.size()), right.data(),
                                   static_cast<int>(b.size()), out.data()),
                  0);
        return out.values();
    };
    EXPECT_EQ(merged({1, 2}, {3, 4}), (codes{1, 2, 3, 4}));
    EXPECT_EQ(merged({1, 2, 3}, {4}), (codes{1, 2, 3, 4, 0, 0}));
    EXPECT_EQ(merged({}, {4, 5}), (codes{0, 0, 4, 5}));
    EXPECT_EQ(merged({}, {}), codes{});
}

TEST(FlatTableMerge, AVectorAndATable)
{
    struct vector_case {
        const char* name;
        int rows, cols;
        codes x, v;
        int outRows, outCols;
        codes tableFirst, vectorFirst;
    };
    const std::vector<vector_case> cases{
        {"of one height", 2, 2, {1, 2, 3, 4}, {8, 9}, 2, 3, {1, 2, 3, 4, 8, 9}, {8, 9, 1, 2, 3, 4}},
        {"0 is one column", 2, 0, {1, 2}, {8, 9}, 2, 2, {1, 2, 8, 9}, {8, 9, 1, 2}},
        {"a larger result",
         1,
         1,
         {1},
         {8, 9},
         3,
         3,
         {1, 0, 0, 8, 9, 0, 0, 0, 0},
         {8, 9, 0, 1, 0, 0, 0, 0, 0}},
        {"a shorter vector", 2, 1, {1, 2}, {8}, 2, 2, {1, 2, 8, 0}, {8, 0, 1, 2}},
        {"a shorter table", 1, 1, {1}, {8, 9}, 2, 2, {1, 0, 8, 9}, {8, 9, 1, 0}},
        {"a wider result", 1, 1, {1}, {8}, 1, 4, {1, 8, 0, 0}, {8, 1, 0, 0}},
        {"a lower result", 2, 1, {1, 2}, {8, 9}, 1, 2, {1, 8}, {8, 1}},
        {"a narrower result", 2, 1, {1, 2}, {8, 9}, 2, 0, {1, 2}, {8, 9}},
    };
    for (const vector_case& with : cases) {
        SCOPED_TRACE(with.name);
        caller_cells<double> x(with.x);
        caller_cells<double> v(with.v);
        const int n = static_cast<int>(with.v.size());
        caller_cells<double> out(codes(with.tableFirst.size(), 70));
        EXPECT_EQ(VB_HMergeTableVect(x.data(), with.rows, with.cols, v.data(), n, out.data(), with.outRows,
                                     with.outCols),
                  0);
        EXPECT_EQ(out.values(), with.tableFirst);
        caller_cells<double> second(codes(with.vectorFirst.size(), 70));
        EXPECT_EQ(VB_HMergeVectTable(v.data(), n, x.data(), with.rows, with.cols, second.data(), with.outRows,
                                     with.outCols),
                  0);
        EXPECT_EQ(second.values(), with.vectorFirst);
        EXPECT_EQ(x.values(), with.x);
        EXPECT_EQ(v.values(), with.v);
    }
}

TEST(FlatTableMerge, AVectorAddedInPlace)
{
    const auto added = [](int rows, int cols, const codes& x, const codes& v) {
        caller_cells<double> table(x);
        caller_cells<double> vector(v);
        EXPECT_EQ(VB_HMergeTableVect2(table.data(), rows, cols, vector.data(), static_cast<int>(v.size())),
                  0);
        return table.values();
    };
    EXPECT_EQ(added(2, 2, {1, 2, 3, 4, 70, 70}, {8, 9}), (codes{1, 2, 3, 4, 8, 9}));
    EXPECT_EQ(added(2, 0, {1, 2, 70, 70}, {8, 9}), (codes{1, 2, 8, 9}));
    EXPECT_EQ(added(2, 1, {1, 2, 70, 70}, {8}), (codes{1, 2, 8, 70}));
    EXPECT_EQ(added(1, 1, {1, 70}, {8, 9}), (codes{1, 8}));
}

TEST(FlatTableMerge, AVectorAndOneColumn)
{
    const auto merged = [](int col, int outRows) {
        caller_cells<double> v({8, 9});
        caller_cells<double> x({1, 2, 3, 4});
        caller_cells<double> out(codes(static_cast<std::size_t>(2 * outRows), 70));
        EXPECT_EQ(VB_HMergeVectColDbl(v.data(), 2, x.data(), 2, 2, col, out.data(), outRows), 0);
        return out.values();
    };
    EXPECT_EQ(merged(2, 2), (codes{8, 9, 3, 4}));
    EXPECT_EQ(merged(1, 3), (codes{8, 9, 0, 1, 2, 0}));
    EXPECT_EQ(merged(1, 1), (codes{8, 1}));
    EXPECT_EQ(merged(3, 2), (codes{8, 9, -1, -1})) << "no such column";
    EXPECT_EQ(merged(0, 2), (codes{8, 9, -1, -1})) << "no such column";

    const auto uneven = [](int n, int rows) {
        caller_cells<double> v({8, 9});
        caller_cells<double> x({1, 2});
        caller_cells<double> out(codes(4, 70));
        EXPECT_EQ(VB_HMergeVectColDbl(v.data(), n, x.data(), rows, 1, 1, out.data(), 2), 0);
        return out.values();
    };
    EXPECT_EQ(uneven(1, 2), (codes{8, 0, 1, 2})) << "a shorter vector";
    EXPECT_EQ(uneven(2, 1), (codes{8, 9, 1, 0})) << "a shorter column";

    caller_cells<double> v({8, 9});
    caller_cells<double> x({1, 2});
    caller_cells<double> out(codes(4, 70));
    EXPECT_EQ(VB_HMergeVectColDbl(v.data(), 2, x.data(), 2, 0, 1, out.data(), 2), 0);
    EXPECT_EQ(out.values(), (codes{8, 9, 1, 2})) << "0 is one column";
}

TEST(FlatTableMerge, AResultOfNegativeHeightIsRefusedAndNotWritten)
{
    const codes before{1, 2, 3, 4, 5, 6};
    caller_cells<double> x(before);
    caller_cells<double> out(before);
    double* const middle = out.data() + 3;
    EXPECT_THROW(VB_HMergeTablesDbl(x.data(), -1, 1, x.data(), -2, 1, middle), std::bad_alloc);
    EXPECT_THROW(VB_HMergeVectors(x.data(), -1, x.data(), -2, middle), std::bad_alloc);
    EXPECT_THROW(VB_HMergeTableVect(x.data(), 1, 1, x.data(), 1, middle, -1, 3), std::bad_alloc);
    EXPECT_THROW(VB_HMergeVectTable(x.data(), 1, x.data(), 1, 1, middle, -1, 3), std::bad_alloc);
    EXPECT_THROW(VB_VMergeTablesDbl(x.data(), -1, 1, x.data(), 0, 2, middle), std::bad_alloc);
    EXPECT_EQ(out.values(), before);
    EXPECT_EQ(x.values(), before);
}

TEST(FlatTableMerge, OneVectorBelowTheOther)
{
    expectOneBelowTheOther<double>(VB_VMergeVectorsDbl);
    expectOneBelowTheOther<text_cell>(VB_VMergeVectorsStr);
    expectAppended<double>(VB_VMergeVectorsDbl2);
    expectAppended<short int>(VB_VMergeVectorsBool2);
    expectAppended<text_cell>(VB_VMergeVectorsStr2);

    caller_cells<double> lower({1, 2, 70});
    caller_cells<double> upper({9});
    VB_VMergeVectorsDbl(upper.data(), 1, lower.data(), 2, lower.data());
    EXPECT_EQ(lower.values(), (codes{9, 1, 2}));
}

TEST(FlatTableMerge, OneTableBelowTheOther)
{
    struct below_case {
        const char* name;
        int rowsA, colsA;
        std::vector<codes> a; // column by column
        int rowsB, colsB;
        codes b, merged;
    };
    const std::vector<below_case> cases{
        {"of one width", 2, 2, {{1, 2}, {3, 4}}, 1, 2, {5, 6}, {1, 2, 5, 3, 4, 6}},
        {"a narrower second", 1, 2, {{1}, {2}}, 2, 1, {5, 6}, {1, 5, 6, 2, 0, 0}},
        {"a narrower first", 1, 1, {{1}}, 2, 2, {5, 6, 7, 8}, {1, 5, 6, 0, 7, 8}},
        {"no first", 0, 1, {{}}, 2, 1, {5, 6}, {5, 6}},
        {"no second", 2, 1, {{1, 2}}, 0, 1, {}, {1, 2}},
        {"0 is one column", 1, 1, {{1}}, 1, 0, {5}, {1, 5}},
    };
    for (const below_case& with : cases) {
        SCOPED_TRACE(with.name);
        codes flat;
        for (const codes& column : with.a) {
            flat.insert(flat.end(), column.begin(), column.end());
        }
        caller_cells<double> a(flat);
        caller_cells<double> b(with.b);
        caller_cells<double> out(codes(with.merged.size(), 70));
        EXPECT_EQ(VB_VMergeTablesDbl(a.data(), with.rowsA, with.colsA, b.data(), with.rowsB, with.colsB,
                                     out.data()),
                  0);
        EXPECT_EQ(out.values(), with.merged);

        caller_chunks<double> chunks(with.a);
        caller_cells<double> second(codes(with.merged.size(), 70));
        EXPECT_EQ(Cpp_VMergeTablesDblSPV(chunks.argument(), with.rowsA, with.colsA, b.data(), with.rowsB,
                                         with.colsB, second.data()),
                  0);
        EXPECT_EQ(second.values(), with.merged);
        EXPECT_EQ(chunks.values(), with.a);
        EXPECT_EQ(b.values(), with.b);
    }

    caller_cells<double> a({1, 2});
    caller_cells<double> b({5});
    caller_cells<double> out(codes(3, 70));
    EXPECT_EQ(VB_VMergeTablesDbl(a.data(), 2, 0, b.data(), 1, 0, out.data()), 0);
    EXPECT_EQ(out.values(), (codes{1, 2, 5}));

    caller_cells<double> grown({1, 2, 3, 4, 70, 70});
    caller_cells<double> row({8, 9});
    VB_VMergeTablesDbl(grown.data(), 2, 2, row.data(), 1, 2, grown.data());
    EXPECT_EQ(grown.values(), (codes{1, 2, 8, 3, 4, 9})) << "over its own first table";
}
