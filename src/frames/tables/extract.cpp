#include "frames/tables/extract.h"

#include "frames/frame.h"
#include "tables/block_copy.h"
#include "tables/extract.h"

using namespace korvel;

namespace
{

template <class Cell>
int extract(const Cell* x, int rows, int cols, int firstRow, int lastRow, Cell* out)
{
    auto range = frame::filling(out, countOf(firstRow, lastRow), cols);
    auto table = frame::source(range, x, rows, cols);
    M_ExtractMatToMat(&table, cols, firstRow, lastRow, &range);
    frame::bringBack(range, out);
    return 0;
}

template <class Cell, class Chunks>
int extractFromChunks(const Chunks& table, int cols, int firstRow, int lastRow, Cell* out)
{
    auto range = frame::filling(out, countOf(firstRow, lastRow), cols);
    M_ExtractMatToMatSPV(table.get(), cols, firstRow, lastRow, &range);
    frame::bringBack(range, out);
    return 0;
}

} // namespace

int VB_M_ExtractMatToMatDbl(const double* x, int rows, int cols, int firstRow, int lastRow, double* out)
{
    return extract(x, rows, frame::columns(cols), firstRow, lastRow, out);
}

int VB_M_ExtractMatToMatStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow, OLECHAR** out)
{
    return extract(x, rows, frame::columns(cols), firstRow, lastRow, out);
}

int VB_M_ExtractMatToMatDblSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, double* out)
{
    return extractFromChunks(frame::chunks(x, cols, rows), cols, firstRow, lastRow, out);
}

int VB_M_ExtractMatToMatStrSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, OLECHAR** out)
{
    return extractFromChunks(frame::textChunks(x, cols, rows), cols, firstRow, lastRow, out);
}

int Cpp_Extractij(const double* x, int rows, int cols, int i, int j, double* out)
{
    auto range = frame::filling(out, countOf(i, j), frame::columns(cols));
    auto table = frame::source(range, x, rows, frame::columns(cols));
    Extractij(&table, table.nbcols, i, j, &range);
    return 0;
}

int VB_M_ExtractMatToMatByColDbl(const double* x, int rows, int cols, int firstCol, int lastCol, double* out)
{
    auto range = frame::filling(out, rows, countOf(firstCol, lastCol));
    auto table = frame::source(range, x, rows, frame::columns(cols));
    M_ExtractMatToMatByColDbl(&table, rows, firstCol, lastCol, &range);
    return 0;
}
