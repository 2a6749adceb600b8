#include "tables/columns.h"

#include "tables/block_copy.h"

#include <algorithm>

using korvel::copyBlock;
using korvel::placeOf;
using korvel::reading;
using korvel::writing;

namespace
{

template <class T>
void columnToVector(const matrix<T>& x, int rows, int col, matrix<T>& y)
{
    korvel::redimToFill(y, rows, 1, true);
    copyBlock(reading(x), placeOf(1, col), writing(y), {0, 0}, rows, 1);
}

template <class S, class T>
void duplicate(const matrix<S>& src, int col, int from, int to, matrix<T>& dst, int dstRow, int dstCol)
{
    copyBlock(reading(src), placeOf(from, col), writing(dst), placeOf(dstRow, dstCol),
              korvel::countOf(from, to), 1);
}

template <class T>
void duplicateFirst(const matrix<T>& src, int n, matrix<T>& dst)
{
    korvel::withCells(
        [n](auto in, auto& out) {
            for (int i = 0; i < n; ++i) {
                out.set(i, in[i]);
            }
        },
        korvel::readVector(src, n), korvel::writeVector(dst, n));
}

} // namespace

void CopyMatrixColToMatrixCol(const matrix<double>& x, int rows, int col, matrix<double>& y, int colTo,
                              short int bReset)
{
    if (bReset != 0) {
        y.Redim(rows, colTo, 0.0);
    }
    copyBlock(reading(x), placeOf(1, col), writing(y), placeOf(1, colTo), rows, 1);
}

void CopyMatrixRowToMatrixRow(matrix<double>* x, int cols, int row, matrix<double>*& y, int yRows, int rowTo,
                              short int bReset)
{
    if (bReset != 0) {
        y->Redim(yRows, cols, 0.0);
    }
    copyBlock(reading(*x), placeOf(row, 1), writing(*y), placeOf(rowTo, 1), 1, cols);
}

void CopyMatrixColToVector(const matrix<double>& x, int rows, int col, matrix<double>& y)
{
    columnToVector(x, rows, col, y);
}

void CopyMatrixColToOneColMatStr(const matrix<text>& x, int rows, int col, matrix<text>& y)
{
    columnToVector(x, rows, col, y);
}

void CopyMatrixColToVectorSPV(matrix<double>** x, int rows, int col, matrix<double>* y)
{
    copyBlock(reading(x), placeOf(1, col), writing(*y), {0, 0}, rows, 1);
}

void M_MoveRow(matrix<double>*& x, int cols, int from, int to)
{
    const auto isRow = [rows = x->nbrows](int row) { return 1 <= row && row <= rows; };
    const int held = std::min(cols, x->nbcols);
    if (!isRow(from) || !isRow(to) || held < 1) {
        return;
    }
    for (int j = 0; j < held; ++j) {
        double* const column = x->data + std::ptrdiff_t{x->nbrows} * j;
        if (from < to) {
            std::rotate(column + from - 1, column + from, column + to);
        } else {
            std::rotate(column + to - 1, column + from - 1, column + from);
        }
    }
    x->oobValue = x->getElement(to - 1, held - 1);
}

void V_Duplicate(matrix<double>* src, int col, int from, int to, matrix<double>* dst, int dstRow, int dstCol)
{
    duplicate(*src, col, from, to, *dst, dstRow, dstCol);
}

void V_Duplicate(matrix<int>* src, int col, int from, int to, matrix<int>* dst, int dstRow, int dstCol)
{
    duplicate(*src, col, from, to, *dst, dstRow, dstCol);
}

void V_Duplicate(matrix<int>* src, int col, int from, int to, matrix<double>* dst, int dstRow, int dstCol)
{
    duplicate(*src, col, from, to, *dst, dstRow, dstCol);
}

void V_Duplicate(matrix<double>* src, int col, int from, int to, matrix<int>* dst, int dstRow, int dstCol)
{
    duplicate(*src, col, from, to, *dst, dstRow, dstCol);
}

void V_Duplicate(matrix<short int>* src, int col, int from, int to, matrix<short int>* dst, int dstRow,
                 int dstCol)
{
    duplicate(*src, col, from, to, *dst, dstRow, dstCol);
}

void V_Duplicate(matrix<text>* src, int col, int from, int to, matrix<text>* dst, int dstRow, int dstCol)
{
    duplicate(*src, col, from, to, *dst, dstRow, dstCol);
}

void V_Duplicate2(matrix<short int>* src, int n, matrix<short int>* dst)
{
    duplicateFirst(*src, n, *dst);
}

void V_Duplicate2(matrix<double>* src, int n, matrix<double>* dst)
{
    duplicateFirst(*src, n, *dst);
}

void V_Duplicate2(matrix<int>* src, int n, matrix<int>* dst)
{
    duplicateFirst(*src, n, *dst);
}

void V_Duplicate2(matrix<text>* src, int n, matrix<text>* dst)
{
    duplicateFirst(*src, n, *dst);
}
