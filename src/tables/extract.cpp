#include "tables/extract.h"

#include "tables/block_copy.h"

using korvel::reading;
using korvel::writing;

namespace
{

template <class From, class T>
void takeRows(const From& from, int cols, int firstRow, int lastRow, matrix<T>& out)
{
    korvel::copyBlock(from, korvel::placeOf(firstRow, 1), writing(out), {0, 0},
                      korvel::countOf(firstRow, lastRow), cols);
}

} // namespace

void M_ExtractMatToMat(matrix<double>* x, int cols, int firstRow, int lastRow, matrix<double>* out)
{
    takeRows(reading(*x), cols, firstRow, lastRow, *out);
}

void M_ExtractMatToMat(matrix<text>* x, int cols, int firstRow, int lastRow, matrix<text>* out)
{
    takeRows(reading(*x), cols, firstRow, lastRow, *out);
}

void M_ExtractMatToMatSPV(matrix<double>** x, int cols, int firstRow, int lastRow, matrix<double>* out)
{
    takeRows(reading(x), cols, firstRow, lastRow, *out);
}

void M_ExtractMatToMatSPV(matrix<text>** x, int cols, int firstRow, int lastRow, matrix<text>* out)
{
    takeRows(reading(x), cols, firstRow, lastRow, *out);
}

void Extractij(matrix<double>* x, int cols, int i, int j, matrix<double>* out)
{
    M_ExtractMatToMat(x, cols, i, j, out);
}

void M_ExtractMatToMatByColDbl(matrix<double>* x, int rows, int firstCol, int lastCol, matrix<double>* out)
{
    korvel::copyBlock(reading(*x), korvel::placeOf(1, firstCol), writing(*out), {0, 0}, rows,
                      korvel::countOf(firstCol, lastCol));
}
