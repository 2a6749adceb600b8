#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

/** 4 by 2: row i of column j is 10 j + i. */
const codes table{11, 12, 13, 14, 21, 22, 23, 24};
const std::vector<codes> columns{{11, 12, 13, 14}, {21, 22, 23, 24}};

/** `extract(first, last, out)` takes rows of the table. */
template <class Cell, class Extract>
void expectRows(Extract extract)
{
    const auto taken = [&](int first, int last, std::size_t size) {
        caller_cells<Cell> out(codes(size, 70));
        extract(first, last, out.data());
        return out.values();
    };
    constexpr int none = outside<Cell>;
    EXPECT_EQ(taken(2, 3, 4), (codes{12, 13, 22, 23}));
    EXPECT_EQ(taken(1, 4, 8), table);
    EXPECT_EQ(taken(4, 4, 2), (codes{14, 24}));
    EXPECT_EQ(taken(3, 2, 4), codes(4, 70)) << "the result stays";
    EXPECT_EQ(taken(4, 5, 4), (codes{14, none, 24, none})) << "reaches outside";
    EXPECT_EQ(taken(0, 1, 4), (codes{none, 11, none, 21})) << "starts outside";
}

template <class Cell, class Function>
void expectRowsOfDense(Function extract)
{
    expectRows<Cell>([&](int first, int last, Cell* out) {
        caller_cells<Cell> x(table);
        EXPECT_EQ(extract(x.data(), 4, 2, first, last, out), 0);
        EXPECT_EQ(x.values(), table);
    });
    caller_cells<Cell> x({1, 2, 3});
    caller_cells<Cell> out({70, 70});
    extract(x.data(), 3, 0, 2, 3, out.data());
    EXPECT_EQ(out.values(), (codes{2, 3})) << "0 is one column";
    caller_cells<Cell> over(table);
    extract(over.data(), 4, 2, 2, 3, over.data());
    EXPECT_EQ(over.values(), (codes{12, 13, 22, 23, 21, 22, 23, 24})) << "over the table itself";
}

template <class Cell, class Function>
void expectRowsOfChunks(Function extract)
{
    expectRows<Cell>([&](int first, int last, Cell* out) {
        caller_chunks<Cell> x(columns);
        EXPECT_EQ(extract(x.argument(), 4, 2, first, last, out), 0);
        EXPECT_EQ(x.values(), columns);
    });
}

} // namespace

TEST(FlatTableExtract, Rows)
{
    expectRowsOfDense<double>(VB_M_ExtractMatToMatDbl);
    expectRowsOfDense<text_cell>(VB_M_ExtractMatToMatStr);
    expectRowsOfDense<double>(Cpp_Extractij);
    expectRowsOfChunks<double>(VB_M_ExtractMatToMatDblSPV);
    expectRowsOfChunks<text_cell>(VB_M_ExtractMatToMatStrSPV);
}

TEST(FlatTableExtract, Columns)
{
    const auto taken = [](int first, int last, std::size_t size) {
        caller_cells<double> x(table);
        caller_cells<double> out(codes(size, 70));
        EXPECT_EQ(VB_M_ExtractMatToMatByColDbl(x.data(), 4, 2, first, last, out.data()), 0);
        EXPECT_EQ(x.values(), table);
        return out.values();
    };
    EXPECT_EQ(taken(1, 2, 8), table);
    EXPECT_EQ(taken(2, 2, 4), (codes{21, 22, 23, 24}));
    EXPECT_EQ(taken(2, 1, 4), codes(4, 70));
    EXPECT_EQ(taken(2, 3, 8), (codes{21, 22, 23, 24, -1, -1, -1, -1}));
    EXPECT_EQ(taken(0, 1, 8), (codes{-1, -1, -1, -1, 11, 12, 13, 14}));

    caller_cells<double> x({1, 2});
    caller_cells<double> out({70, 70});
    VB_M_ExtractMatToMatByColDbl(x.data(), 2, 0, 1, 1, out.data());
    EXPECT_EQ(out.values(), (codes{1, 2})) << "0 is one column";
}
