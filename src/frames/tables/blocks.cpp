#include "frames/tables/blocks.h"

#include "frames/frame.h"
#include "tables/block_copy.h"
#include "tables/blocks.h"

using namespace korvel;

namespace
{

template <class Cell>
int copyToCorner(const Cell* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                 Cell* out)
{
    auto block = frame::filling(out, countOf(firstRow, lastRow), countOf(firstCol, lastCol));
    auto table = frame::source(block, x, rows, cols);
    M_CopyBlock(&table, firstRow, lastRow, firstCol, lastCol, &block);
    frame::bringBack(block, out);
    return 0;
}

/** `core` copies a block of chunks to the corner of others. */
template <class Core>
int copyBlockOfChunks(Core core, const frame::chunk_list<double>& table, int firstRow, int lastRow,
                      int firstCol, int lastCol, Hostarray** out)
{
    const auto block = frame::chunks(out, countOf(firstCol, lastCol), countOf(firstRow, lastRow));
    core(table.get(), firstRow, lastRow, firstCol, lastCol, block.get());
    return 0;
}

/** `core` copies a block of a table to a place in another. */
template <class Cell, class Core>
int copyAndPaste(Core core, const Cell* x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                 int lastCol, Cell* y, int yRows, int yCols, int row, int col)
{
    auto other = frame::changing(y, yRows, yCols);
    auto table = frame::besides(other, x, rows, cols);
    core(&table, firstRow, lastRow, firstCol, lastCol, &other, row, col);
    frame::bringBack(other, y);
    return 0;
}

template <class Cell>
int paste(const Cell* x, int rows, int cols, Cell* y, int yRows, int yCols, int row, int col)
{
    auto larger = frame::changing(y, yRows, yCols);
    auto table = frame::besides(larger, x, rows, cols);
    M_PasteBlock(&table, rows, cols, &larger, row, col);
    return 0;
}

} // namespace

int VB_M_CopyBlock(const double* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                   double* out)
{
    return copyToCorner(x, rows, frame::columns(cols), firstRow, lastRow, firstCol, lastCol, out);
}

int VB_M_CopyBlockStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                      int lastCol, OLECHAR** out)
{
    return copyToCorner(x, rows, frame::columns(cols), firstRow, lastRow, firstCol, lastCol, out);
}

int VB_M_CopyBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol,
                      Hostarray** out)
{
    const auto core = [](auto... arguments) { M_CopyBlockSPV(arguments...); };
    return copyBlockOfChunks(core, frame::chunks(x, cols, rows), firstRow, lastRow, firstCol, lastCol, out);
}

int Cpp_M_CopyBlockSPV2(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                        int lastCol, Hostarray** out)
{
    return copyBlockOfChunks(M_CopyBlockSPV2, frame::chunks(x, cols, rows), firstRow, lastRow, firstCol,
                             lastCol, out);
}

int Cpp_M_CopyBlockSPV2_T(Hostarray** x, int n, int firstRow, int lastRow, int firstCol, int lastCol,
                          Hostarray** out)
{
    return copyBlockOfChunks(M_CopyBlockSPV2_T, frame::triangularChunks(x, n), firstRow, lastRow, firstCol,
                             lastCol, out);
}

int VB_M_PasteBlock(const double* x, int rows, int cols, double* y, int yRows, int yCols, int row, int col)
{
    return paste(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int VB_M_PasteBlockLng(const int* x, int rows, int cols, int* y, int yRows, int yCols, int row, int col)
{
    return paste(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int Cpp_M_CopyPasteBlock(const double* x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                         int lastCol, double* y, int yRows, int yCols, int row, int col)
{
    return copyAndPaste(M_CopyPasteBlock, x, rows, frame::columns(cols), firstRow, lastRow, firstCol, lastCol,
                        y, yRows, frame::columns(yCols), row, col);
}

int Cpp_M_CopyPasteBlockStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                            int lastCol, OLECHAR** y, int yRows, int yCols, int row, int col)
{
    return copyAndPaste(M_CopyPasteBlockStr, x, rows, frame::columns(cols), firstRow, lastRow, firstCol,
                        lastCol, y, yRows, frame::columns(yCols), row, col);
}

int Cpp_M_CopyPasteBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                            int lastCol, Hostarray** y, int yRows, int yCols, int row, int col)
{
    const auto table = frame::chunks(x, cols, rows);
    const auto other = frame::chunks(y, yCols, yRows);
    M_CopyPasteBlockSPV(table.get(), firstRow, lastRow, firstCol, lastCol, other.get(), row, col);
    return 0;
}
