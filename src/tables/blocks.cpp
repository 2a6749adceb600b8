#include "tables/blocks.h"

#include "tables/block_copy.h"

using korvel::copyBlock;
using korvel::placeOf;
using korvel::reading;
using korvel::writing;

namespace
{

/** A block of a table, as its callers tell it. */
struct block {
    korvel::cell_place start;
    int rows;
    int cols;

    block(int firstRow, int lastRow, int firstCol, int lastCol)
        : start(placeOf(firstRow, firstCol)), rows(korvel::countOf(firstRow, lastRow)),
          cols(korvel::countOf(firstCol, lastCol))
    {
    }
};

template <class From, class To>
void copyToCorner(const From& from, const block& source, const To& to)
{
    copyBlock(from, source.start, to, {0, 0}, source.rows, source.cols);
}

template <class From, class To>
void copySymmetricToCorner(const From& stored, const block& source, const To& to)
{
    for (int j = 0; j < source.cols; ++j) {
        korvel::copySymmetricColumn(stored, {source.start.row, source.start.col + j}, to, {0, j},
                                    source.rows);
    }
}

template <class T>
void copyAndPaste(const matrix<T>& x, const block& source, matrix<T>& y, korvel::cell_place target)
{
    if (x.data != y.data) {
        copyBlock(reading(x), source.start, writing(y), target, source.rows, source.cols);
        return;
    }
    matrix<T> before(x);
    before.oobValue = x.oobValue;
    copyBlock(reading(before), source.start, writing(y), target, source.rows, source.cols);
}

} // namespace

void M_CopyBlock(matrix<double>* x, int firstRow, int lastRow, int firstCol, int lastCol, matrix<double>* out)
{
    copyToCorner(reading(*x), block(firstRow, lastRow, firstCol, lastCol), writing(*out));
}

void M_CopyBlock(matrix<text>* x, int firstRow, int lastRow, int firstCol, int lastCol, matrix<text>* out)
{
    copyToCorner(reading(*x), block(firstRow, lastRow, firstCol, lastCol), writing(*out));
}

void M_CopyBlockSPV(matrix3D<matrix<double>>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                    matrix3D<matrix<double>>* out)
{
    copyToCorner(reading(*x), block(firstRow, lastRow, firstCol, lastCol), writing(*out));
}

void M_CopyBlockSPV(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                    matrix<double>** out)
{
    copyToCorner(reading(x), block(firstRow, lastRow, firstCol, lastCol), writing(out));
}

void M_CopyBlockSPV2(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                     matrix<double>** out)
{
    M_CopyBlockSPV(x, firstRow, lastRow, firstCol, lastCol, out);
}

void M_CopyBlockSPV_T(matrix3D<matrix<double>>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                      matrix3D<matrix<double>>* out)
{
    copySymmetricToCorner(reading(*x), block(firstRow, lastRow, firstCol, lastCol), writing(*out));
}

void M_CopyBlockSPV2_T(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                       matrix<double>** out)
{
    copySymmetricToCorner(reading(x), block(firstRow, lastRow, firstCol, lastCol), writing(out));
}

void M_PasteBlock(matrix<double>* x, int rows, int cols, matrix<double>* y, int row, int col)
{
    copyBlock(reading(*x), {0, 0}, writing(*y), placeOf(row, col), rows, cols);
}

void M_PasteBlock(matrix<int>* x, int rows, int cols, matrix<int>* y, int row, int col)
{
    copyBlock(reading(*x), {0, 0}, writing(*y), placeOf(row, col), rows, cols);
}

void M_PasteBlock(matrix<double>* x, int rows, int cols, matrixSparse* y, int row, int col)
{
    copyBlock(reading(*x), {0, 0}, writing(*y), placeOf(row, col), rows, cols);
}

void M_CopyPasteBlock(matrix<double>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                      matrix<double>* y, int row, int col)
{
    copyAndPaste(*x, block(firstRow, lastRow, firstCol, lastCol), *y, placeOf(row, col));
}

void M_CopyPasteBlockStr(matrix<text>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                         matrix<text>* y, int row, int col)
{
    copyAndPaste(*x, block(firstRow, lastRow, firstCol, lastCol), *y, placeOf(row, col));
}

void M_CopyPasteBlockSPV(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                         matrix<double>** y, int row, int col)
{
    const block source(firstRow, lastRow, firstCol, lastCol);
    copyBlock(reading(x), source.start, writing(y), placeOf(row, col), source.rows, source.cols);
}
