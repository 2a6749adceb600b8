#include "tables/resize.h"

#include "tables/block_copy.h"

#include <algorithm>

using korvel::reading;
using korvel::writing;

namespace
{

template <class T>
void copyResized(const matrix<T>& x, int rows, int cols, matrix<T>& y, int newRows, int newCols)
{
    const int sharedRows = std::clamp(rows, 0, std::max(newRows, 0));
    const int sharedCols = std::clamp(cols, 0, std::max(newCols, 0));
    const T nothing = x.oobValue;
    korvel::copyBlock(reading(x), {0, 0}, writing(y), {0, 0}, sharedRows, sharedCols);
    korvel::fillBlock(y, {sharedRows, 0}, newRows - sharedRows, sharedCols, nothing);
    korvel::fillBlock(y, {0, sharedCols}, newRows, newCols - sharedCols, nothing);
}

} // namespace

void M_CopyResize(matrix<double>* x, int rows, int cols, matrix<double>* y, int newRows, int newCols)
{
    copyResized(*x, rows, cols, *y, newRows, newCols);
}

void M_CopyResize(matrix<short int>* x, int rows, int cols, matrix<short int>* y, int newRows, int newCols)
{
    copyResized(*x, rows, cols, *y, newRows, newCols);
}

void M_CopyResizeStr(matrix<text>* x, int rows, int cols, matrix<text>* y, int newRows, int newCols)
{
    copyResized(*x, rows, cols, *y, newRows, newCols);
}

void M_CopyToBigger(matrix<double>* x, int rows, int cols, matrix<double>* y)
{
    korvel::copyBlock(reading(*x), {0, 0}, writing(*y), {0, 0}, rows, cols);
}
