#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

/** 3 by 3: row i of column j is 10 j + i. */
const codes square{11, 12, 13, 21, 22, 23, 31, 32, 33};
const std::vector<codes> squareColumns{{11, 12, 13}, {21, 22, 23}, {31, 32, 33}};

template <class Cell, class Function>
void expectBlocks(Function copyBlock)
{
    const auto block = [&](int firstRow, int lastRow, int firstCol, int lastCol, std::size_t size) {
        caller_cells<Cell> x(square);
        caller_cells<Cell> out(codes(size, 70));
        EXPECT_EQ(copyBlock(x.data(), 3, 3, firstRow, lastRow, firstCol, lastCol, out.data()), 0);
        EXPECT_EQ(x.values(), square);
        return out.values();
    };
    constexpr int none = outside<Cell>;
    EXPECT_EQ(block(2, 3, 1, 2, 4), (codes{12, 13, 22, 23}));
    EXPECT_EQ(block(1, 3, 1, 3, 9), square);
    EXPECT_EQ(block(1, 3, 2, 3, 6), (codes{21, 22, 23, 31, 32, 33})) << "whole columns";
    EXPECT_EQ(block(2, 2, 3, 3, 1), (codes{32}));
    EXPECT_EQ(block(3, 2, 1, 3, 3), (codes(3, 70))) << "no rows";
    EXPECT_EQ(block(1, 3, 3, 2, 3), (codes(3, 70))) << "no columns";
    EXPECT_EQ(block(3, 4, 3, 4, 4), (codes{33, none, none, none})) << "reaches outside";
    EXPECT_EQ(block(0, 1, 0, 1, 4), (codes{none, none, none, 11})) << "starts outside";

    caller_cells<Cell> x({1, 2});
    caller_cells<Cell> out({70});
    copyBlock(x.data(), 2, 0, 2, 2, 1, 1, out.data());
    EXPECT_EQ(out.values(), (codes{2})) << "0 is one column";
}

template <class Function>
void expectChunkBlocks(Function copyBlock)
{
    const auto block = [&](int firstRow, int lastRow, int firstCol, int lastCol, std::vector<codes> out) {
        caller_chunks<double> x(squareColumns);
        caller_chunks<double> to(out);
        EXPECT_EQ(copyBlock(x.argument(), 3, 3, firstRow, lastRow, firstCol, lastCol, to.argument()), 0);
        EXPECT_EQ(x.values(), squareColumns);
        return to.values();
    };
    using columns = std::vector<codes>;
    EXPECT_EQ(block(2, 3, 1, 2, {{70, 70}, {70, 70}}), (columns{{12, 13}, {22, 23}}));
    EXPECT_EQ(block(2, 2, 2, 3, {{70, 71}, {72, 73}}), (columns{{22, 71}, {32, 73}}));
    EXPECT_EQ(block(3, 4, 3, 3, {{70, 70}}), (columns{{33, -1}}));
    EXPECT_EQ(block(2, 1, 1, 1, {{70}}), (columns{{70}}));
    EXPECT_EQ(block(1, 1, 2, 1, {{70}}), (columns{{70}}));
}

template <class Cell, class Function>
void expectPasted(Function paste)
{
    const auto pasted = [&](int row, int col) {
        caller_cells<Cell> x({1, 2, 3, 4});
        caller_cells<Cell> y(square);
        EXPECT_EQ(paste(x.data(), 2, 2, y.data(), 3, 3, row, col), 0);
        EXPECT_EQ(x.values(), (codes{1, 2, 3, 4}));
        return y.values();
    };
    EXPECT_EQ(pasted(1, 1), (codes{1, 2, 13, 3, 4, 23, 31, 32, 33}));
    EXPECT_EQ(pasted(2, 2), (codes{11, 12, 13, 21, 1, 2, 31, 3, 4}));
    EXPECT_EQ(pasted(3, 3), (codes{11, 12, 13, 21, 22, 23, 31, 32, 1})) << "reaches outside";
    EXPECT_EQ(pasted(0, 0), (codes{4, 12, 13, 21, 22, 23, 31, 32, 33})) << "starts outside";
    EXPECT_EQ(pasted(4, 1), square);
    EXPECT_EQ(pasted(1, -5), square);

    caller_cells<Cell> x({1});
    caller_cells<Cell> y({7, 8});
    paste(x.data(), 1, 0, y.data(), 2, 0, 2, 1);
    EXPECT_EQ(y.values(), (codes{7, 1})) << "0 is one column";
}

template <class Cell, class Function>
void expectCopiedAndPasted(Function copyPaste)
{
    const auto pasted = [&](int firstRow, int lastRow, int firstCol, int lastCol, int row, int col) {
        caller_cells<Cell> x(square);
        caller_cells<Cell> y({1, 2, 3, 4, 5, 6, 7, 8});
        EXPECT_EQ(copyPaste(x.data(), 3, 3, firstRow, lastRow, firstCol, lastCol, y.data(), 4, 2, row, col),
                  0);
        EXPECT_EQ(x.values(), square);
        return y.values();
    };
    constexpr int none = outside<Cell>;
    EXPECT_EQ(pasted(2, 3, 1, 2, 3, 1), (codes{1, 2, 12, 13, 5, 6, 22, 23}));
    EXPECT_EQ(pasted(1, 1, 3, 3, 4, 2), (codes{1, 2, 3, 4, 5, 6, 7, 31}));
    EXPECT_EQ(pasted(1, 2, 1, 2, 4, 2), (codes{1, 2, 3, 4, 5, 6, 7, 11})) << "reaches outside";
    EXPECT_EQ(pasted(3, 4, 3, 3, 1, 1), (codes{33, none, 3, 4, 5, 6, 7, 8})) << "reads outside";
    EXPECT_EQ(pasted(3, 2, 1, 1, 1, 1), (codes{1, 2, 3, 4, 5, 6, 7, 8})) << "no rows";

    caller_cells<Cell> within(square);
    copyPaste(within.data(), 3, 3, 1, 2, 1, 2, within.data(), 3, 3, 2, 2);
    EXPECT_EQ(within.values(), (codes{11, 12, 13, 21, 11, 12, 31, 21, 22})) << "within one table";

    caller_cells<Cell> x({1, 2});
    caller_cells<Cell> y({7, 8});
    copyPaste(x.data(), 2, 0, 1, 1, 1, 1, y.data(), 2, 0, 2, 1);
    EXPECT_EQ(y.values(), (codes{7, 1})) << "0 is one column";
}

} // namespace

TEST(FlatTableBlocks, CopyBlock)
{
    expectBlocks<double>(VB_M_CopyBlock);
    expectBlocks<text_cell>(VB_M_CopyBlockStr);
    expectChunkBlocks(VB_M_CopyBlockSPV);
    expectChunkBlocks(Cpp_M_CopyBlockSPV2);
}

TEST(FlatTableBlocks, CopyBlockOfATriangle)
{
    // Of the symmetric table 11 12 13, 12 22 23, 13 23 33.
    const std::vector<codes> triangle{{11, 12, 13}, {22, 23}, {33}};
    const auto block = [&](int firstRow, int lastRow, int firstCol, int lastCol, std::vector<codes> out) {
        caller_chunks<double> x(triangle);
        caller_chunks<double> to(out);
        EXPECT_EQ(Cpp_M_CopyBlockSPV2_T(x.argument(), 3, firstRow, lastRow, firstCol, lastCol, to.argument()),
                  0);
        EXPECT_EQ(x.values(), triangle);
        return to.values();
    };
    using columns = std::vector<codes>;
    EXPECT_EQ(block(1, 3, 1, 3, {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}),
              (columns{{11, 12, 13}, {12, 22, 23}, {13, 23, 33}}));
    EXPECT_EQ(block(2, 3, 1, 2, {{0, 0}, {0, 0}}), (columns{{12, 13}, {22, 23}}));
    EXPECT_EQ(block(1, 2, 3, 3, {{0, 0}}), (columns{{13, 23}}));
    EXPECT_EQ(block(2, 1, 3, 3, {{70, 70}}), (columns{{70, 70}}));
    EXPECT_EQ(block(3, 4, 2, 2, {{0, 0}}), (columns{{23, -1}})) << "reaches outside";
}

TEST(FlatTableBlocks, Paste)
{
    expectPasted<double>(VB_M_PasteBlock);
    expectPasted<int>(VB_M_PasteBlockLng);
}

TEST(FlatTableBlocks, CopyAndPaste)
{
    expectCopiedAndPasted<double>(Cpp_M_CopyPasteBlock);
    expectCopiedAndPasted<text_cell>(Cpp_M_CopyPasteBlockStr);

    caller_chunks<double> x(squareColumns);
    caller_chunks<double> y({{1, 2}, {3, 4}, {5, 6}});
    EXPECT_EQ(Cpp_M_CopyPasteBlockSPV(x.argument(), 3, 3, 2, 3, 1, 2, y.argument(), 2, 3, 1, 2), 0);
    EXPECT_EQ(y.values(), (std::vector<codes>{{1, 2}, {12, 13}, {22, 23}}));
    EXPECT_EQ(Cpp_M_CopyPasteBlockSPV(x.argument(), 3, 3, 3, 4, 1, 1, y.argument(), 2, 3, 2, 1), 0);
    EXPECT_EQ(y.values(), (std::vector<codes>{{1, 13}, {12, 13}, {22, 23}})) << "reaches outside";
    EXPECT_EQ(Cpp_M_CopyPasteBlockSPV(x.argument(), 3, 3, 1, 2, 1, 1, y.argument(), 2, 3, 0, 1), 0);
    EXPECT_EQ(y.values(), (std::vector<codes>{{12, 13}, {12, 13}, {22, 23}})) << "starts outside";
    EXPECT_EQ(x.values(), squareColumns);
}
