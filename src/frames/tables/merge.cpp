#include "frames/tables/merge.h"

#include "frames/frame.h"
#include "tables/merge.h"

#include <algorithm>

using namespace korvel;

namespace
{

template <class Cell>
int sideBySide(const Cell* a, int rowsA, int colsA, const Cell* b, int rowsB, int colsB, Cell* out)
{
    auto merged = frame::filling(out, std::max(rowsA, rowsB), colsA + colsB);
    auto left = frame::source(merged, a, rowsA, colsA);
    auto right = frame::source(merged, b, rowsB, colsB);
    auto* result = &merged;
    HMergeTables(&left, rowsA, colsA, &right, rowsB, colsB, result);
    frame::bringBack(merged, out);
    return 0;
}

template <class Cell>
int addColumns(Cell* a, int rowsA, int colsA, const Cell* b, int rowsB, int colsB)
{
    auto table = frame::changing(a, rowsA, colsA + colsB);
    auto added = frame::besides(table, b, rowsB, colsB);
    HMergeTables(&table, rowsA, colsA, &added, rowsB, colsB);
    frame::bringBack(table, a);
    return 0;
}

template <class Cell>
int oneBelowTheOther(const Cell* a, int nA, const Cell* b, int nB, Cell* out)
{
    auto merged = frame::filling(out, nA + nB);
    auto upper = frame::source(merged, a, nA);
    auto lower = frame::source(merged, b, nB);
    VMergeVectors(&upper, nA, &lower, nB, &merged);
    frame::bringBack(merged, out);
    return 0;
}

} // namespace

int VB_HMergeTablesDbl(const double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB,
                       double* out)
{
    return sideBySide(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB), out);
}

int VB_HMergeTablesBool(const short int* a, int rowsA, int colsA, const short int* b, int rowsB, int colsB,
                        short int* out)
{
    return sideBySide(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB), out);
}

int VB_HMergeTablesStr(OLECHAR* const* a, int rowsA, int colsA, OLECHAR* const* b, int rowsB, int colsB,
                       OLECHAR** out)
{
    return sideBySide(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB), out);
}

int VB_HMergeTablesDbl2(double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB)
{
    return addColumns(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB));
}

int VB_HMergeTablesLng2(int* a, int rowsA, int colsA, const int* b, int rowsB, int colsB)
{
    return addColumns(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB));
}

int VB_HMergeTablesBool2(short int* a, int rowsA, int colsA, const short int* b, int rowsB, int colsB)
{
    return addColumns(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB));
}

int VB_HMergeTablesStr2(OLECHAR** a, int rowsA, int colsA, OLECHAR* const* b, int rowsB, int colsB)
{
    return addColumns(a, rowsA, frame::columns(colsA), b, rowsB, frame::columns(colsB));
}

int VB_HMergeTablesDbl2SPV(Hostarray** a, int rowsA, int colsA, const double* b, int rowsB, int colsB)
{
    const auto table = frame::chunks(a, colsA + frame::columns(colsB), rowsA);
    auto added = frame::borrow(b, rowsB, frame::columns(colsB));
    HMergeTables(table.get(), rowsA, colsA, &added, rowsB, frame::columns(colsB));
    return 0;
}

int VB_HMergeTablesDbl2SPV2(Hostarray** a, int rowsA, int colsA, Hostarray** b, int rowsB, int colsB)
{
    const auto table = frame::chunks(a, colsA + colsB, rowsA);
    const auto added = frame::chunks(b, colsB, rowsB);
    HMergeTables(table.get(), rowsA, colsA, added.get(), rowsB, colsB);
    return 0;
}

int VB_HMergeVectors(const double* a, int nA, const double* b, int nB, double* out)
{
    auto merged = frame::filling(out, std::max(nA, nB), 2);
    const auto left = frame::source(merged, a, nA);
    const auto right = frame::source(merged, b, nB);
    frame::clearUnless(nA == nB, merged);
    HMergeVectors(left.data, nA, right.data, nB, &merged);
    return 0;
}

int VB_HMergeTableVect(const double* x, int rows, int cols, const double* v, int n, double* out, int outRows,
                       int outCols)
{
    auto merged = frame::filling(out, outRows, frame::columns(outCols));
    auto table = frame::source(merged, x, rows, frame::columns(cols));
    const auto vector = frame::source(merged, v, n);
    frame::clearUnless(rows >= outRows && n >= outRows && table.nbcols + 1 >= merged.nbcols, merged);
    HMergeTableVect(&table, rows, table.nbcols, vector.data, n, &merged, outRows, merged.nbcols);
    return 0;
}

int VB_HMergeTableVect2(double* x, int rows, int cols, const double* v, int n)
{
    auto table = frame::changing(x, rows, frame::columns(cols) + 1);
    const auto vector = frame::besides(table, v, n);
    HMergeTableVect2(&table, frame::columns(cols), vector.data, n);
    return 0;
}

int VB_HMergeVectTable(const double* v, int n, const double* x, int rows, int cols, double* out, int outRows,
                       int outCols)
{
    auto merged = frame::filling(out, outRows, frame::columns(outCols));
    const auto vector = frame::source(merged, v, n);
    auto table = frame::source(merged, x, rows, frame::columns(cols));
    frame::clearUnless(rows >= outRows && n >= outRows && table.nbcols + 1 >= merged.nbcols, merged);
    HMergeVectTable(vector.data, n, &table, rows, table.nbcols, &merged, outRows, merged.nbcols);
    return 0;
}

int VB_HMergeVectColDbl(const double* v, int n, const double* x, int rows, int cols, int col, double* out,
                        int outRows)
{
    auto merged = frame::filling(out, outRows, 2);
    const auto vector = frame::source(merged, v, n);
    auto table = frame::source(merged, x, rows, frame::columns(cols));
    frame::clearUnless(rows >= outRows && n >= outRows, merged);
    HMergeVectCol(vector.data, n, &table, rows, col, &merged, outRows);
    return 0;
}

int VB_VMergeVectorsDbl(const double* a, int nA, const double* b, int nB, double* out)
{
    return oneBelowTheOther(a, nA, b, nB, out);
}

int VB_VMergeVectorsStr(OLECHAR* const* a, int nA, OLECHAR* const* b, int nB, OLECHAR** out)
{
    return oneBelowTheOther(a, nA, b, nB, out);
}

int VB_VMergeVectorsDbl2(double* a, int nA, const double* b, int nB)
{
    auto vector = frame::changing(a, nA + nB);
    auto added = frame::besides(vector, b, nB);
    VMergeVectors2(&vector, nA, &added, nB);
    frame::bringBack(vector, a);
    return 0;
}

int VB_VMergeVectorsBool2(short int* a, int nA, const short int* b, int nB)
{
    auto vector = frame::changing(a, nA + nB);
    auto added = frame::besides(vector, b, nB);
    VMergeVectorsBool2(&vector, nA, &added, nB);
    frame::bringBack(vector, a);
    return 0;
}

int VB_VMergeVectorsStr2(OLECHAR** a, int nA, OLECHAR* const* b, int nB)
{
    auto vector = frame::changing(a, nA + nB);
    auto added = frame::besides(vector, b, nB);
    VMergeVectors2(&vector, nA, &added, nB);
    frame::bringBack(vector, a);
    return 0;
}

int VB_VMergeTablesDbl(const double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB,
                       double* out)
{
    auto merged = frame::filling(out, rowsA + rowsB, std::max(frame::columns(colsA), frame::columns(colsB)));
    auto upper = frame::source(merged, a, rowsA, frame::columns(colsA));
    auto lower = frame::source(merged, b, rowsB, frame::columns(colsB));
    frame::clearUnless(upper.nbcols == lower.nbcols, merged);
    VMergeTables(&upper, rowsA, upper.nbcols, &lower, rowsB, lower.nbcols, &merged);
    return 0;
}

int Cpp_VMergeTablesDblSPV(Hostarray** a, int rowsA, int colsA, const double* b, int rowsB, int colsB,
                           double* out)
{
    auto merged = frame::filling(out, rowsA + rowsB, std::max(colsA, frame::columns(colsB)));
    const auto upper = frame::chunks(a, colsA, rowsA);
    auto lower = frame::source(merged, b, rowsB, frame::columns(colsB));
    frame::clearUnless(colsA == lower.nbcols, merged);
    VMergeTablesSPV(upper.get(), rowsA, colsA, &lower, rowsB, lower.nbcols, &merged);
    return 0;
}
