#include "frames/table_blocks.h"

#include "frames/frame.h"
#include "tables/block_copy.h"
#include "tables/blocks.h"

using namespace korvel;

namespace
{

template <class Cell>
int paste(Cell* x, int rows, int cols, Cell* y, int yRows, int yCols, int row, int col)
{
    auto larger = frame::changing(y, yRows, yCols);
    auto table = frame::besides(larger, x, rows, cols);
    M_PasteBlock(&table, rows, cols, &larger, row, col);
    return 0;
}

} // namespace

int VB_M_CopyBlock(double* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                   double* out)
{
    auto block = frame::filling(out, countOf(firstRow, lastRow), countOf(firstCol, lastCol));
    auto table = frame::besides(block, x, rows, frame::columns(cols));
    M_CopyBlock(&table, firstRow, lastRow, firstCol, lastCol, &block);
    frame::bringBack(block, out);
    return 0;
}

int VB_M_CopyBlockStr(OLECHAR** x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                      OLECHAR** out)
{
    auto block = frame::filling(out, countOf(firstRow, lastRow), countOf(firstCol, lastCol));
    auto table = frame::besides(block, x, rows, frame::columns(cols));
    M_CopyBlock(&table, firstRow, lastRow, firstCol, lastCol, &block);
    frame::bringBack(block, out);
    return 0;
}

int VB_M_CopyBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                      Hostarray** out)
{
    const auto table = frame::chunks(x, cols, rows);
    const auto block = frame::chunks(out, countOf(firstCol, lastCol), countOf(firstRow, lastRow));
    M_CopyBlockSPV(table.get(), firstRow, lastRow, firstCol, lastCol, block.get());
    return 0;
}

int Cpp_M_CopyBlockSPV2(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                        int lastCol, Hostarray** out)
{
    const auto table = frame::chunks(x, cols, rows);
    const auto block = frame::chunks(out, countOf(firstCol, lastCol), countOf(firstRow, lastRow));
    M_CopyBlockSPV2(table.get(), firstRow, lastRow, firstCol, lastCol, block.get());
    return 0;
}

int Cpp_M_CopyBlockSPV2_T(Hostarray** x, int n, int firstRow, int lastRow, int firstCol, int lastCol,
                          Hostarray** out)
{
    const auto table = frame::triangularChunks(x, n);
    const auto block = frame::chunks(out, countOf(firstCol, lastCol), countOf(firstRow, lastRow));
    M_CopyBlockSPV2_T(table.get(), firstRow, lastRow, firstCol, lastCol, block.get());
    return 0;
}

int VB_M_PasteBlock(double* x, int rows, int cols, double* y, int yRows, int yCols, int row, int col)
{
    return paste(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int VB_M_PasteBlockLng(int* x, int rows, int cols, int* y, int yRows, int yCols, int row, int col)
{
    return paste(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int Cpp_M_CopyPasteBlock(double* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                         double* y, int yRows, int yCols, int row, int col)
{
    auto other = frame::changing(y, yRows, frame::columns(yCols));
    auto table = frame::besides(other, x, rows, frame::columns(cols));
    M_CopyPasteBlock(&table, firstRow, lastRow, firstCol, lastCol, &other, row, col);
    frame::bringBack(other, y);
    return 0;
}

int Cpp_M_CopyPasteBlockStr(OLECHAR** x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                            int lastCol, OLECHAR** y, int yRows, int yCols, int row, int col)
{
    auto other = frame::changing(y, yRows, frame::columns(yCols));
    auto table = frame::besides(other, x, rows, frame::columns(cols));
    M_CopyPasteBlockStr(&table, firstRow, lastRow, firstCol, lastCol, &other, row, col);
    frame::bringBack(other, y);
    return 0;
}

int Cpp_M_CopyPasteBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                            int lastCol, Hostarray** y, int yRows, int yCols, int row, int col)
{
    const auto table = frame::chunks(x, cols, rows);
    const auto other = frame::chunks(y, yCols, yRows);
    M_CopyPasteBlockSPV(table.get(), firstRow, lastRow, firstCol, lastCol, other.get(), row, col);
    return 0;
}
