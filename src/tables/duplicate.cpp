#include "tables/duplicate.h"

#include "tables/block_copy.h"

#include <algorithm>

using korvel::cell_place;
using korvel::placeOf;
using korvel::reading;
using korvel::writing;

namespace
{

template <class From, class To>
void duplicate(const From& from, int rows, int cols, const To& to, int toRows, int toCols, int row, int col)
{
    korvel::copyClipped(from, rows, cols, to, toRows, toCols, placeOf(row, col));
}

template <class T>
void duplicateRecord(const cST_MVect<T>& x, int rows, int cols, cST_MVect<T>& y, int yRows, int yCols,
                     int row, int col)
{
    const auto held = [](const cST_MVect<T>& record, int count) {
        return static_cast<int>(
            std::min<std::size_t>(record.Vectors.size(), static_cast<std::size_t>(std::max(count, 0))));
    };
    duplicate(reading(x), rows, held(x, cols), writing(y), yRows, held(y, yCols), row, col);
}

/**
 * Copies what falls on or below the diagonal. `copyColumn(source, to, target, rows)` copies the rows of one
 * column from a place on; chunk c holds row r of the target in its element r - c.
 */
template <class To, class CopyColumn>
void toTriangle(int rows, int cols, const To& to, int toRows, int toCols, cell_place target,
                CopyColumn copyColumn)
{
    const std::int64_t last = std::min<std::int64_t>(rows, toRows - target.row);
    for (std::int64_t j = std::max<std::int64_t>(-target.col, 0); j < cols && target.col + j < toCols; ++j) {
        const std::int64_t diagonal = target.col + j;
        const std::int64_t first = std::max<std::int64_t>(diagonal - target.row, 0);
        copyColumn(cell_place{first, j}, to, cell_place{target.row + first - diagonal, diagonal},
                   last - first);
    }
}

template <class To>
void denseToTriangle(const matrix<double>& x, int rows, int cols, const To& to, int toRows, int toCols,
                     cell_place target)
{
    toTriangle(rows, cols, to, toRows, toCols, target,
               [&](cell_place from, const To& chunks, cell_place place, std::int64_t count) {
                   korvel::copyBlock(reading(x), from, chunks, place, count, 1);
               });
}

} // namespace

void M_Duplicate(matrix<double>* x, int rows, int cols, matrix<double>* y, int yRows, int yCols, int row,
                 int col)
{
    duplicate(reading(*x), rows, cols, writing(*y), yRows, yCols, row, col);
}

void M_Duplicate(matrix<int>* x, int rows, int cols, matrix<int>* y, int yRows, int yCols, int row, int col)
{
    duplicate(reading(*x), rows, cols, writing(*y), yRows, yCols, row, col);
}

void M_Duplicate(matrix<text>* x, int rows, int cols, matrix<text>* y, int yRows, int yCols, int row, int col)
{
    duplicate(reading(*x), rows, cols, writing(*y), yRows, yCols, row, col);
}

void M_Duplicate(cST_MVect<double>& x, int rows, int cols, cST_MVect<double>& y, int yRows, int yCols,
                 int row, int col)
{
    duplicateRecord(x, rows, cols, y, yRows, yCols, row, col);
}

void M_Duplicate(cST_MVect<text>& x, int rows, int cols, cST_MVect<text>& y, int yRows, int yCols, int row,
                 int col)
{
    duplicateRecord(x, rows, cols, y, yRows, yCols, row, col);
}

void M_DuplicateSPV(matrix<double>** x, int rows, int cols, matrix<double>* y, int yRows, int yCols, int row,
                    int col)
{
    duplicate(reading(x), rows, cols, writing(*y), yRows, yCols, row, col);
}

void M_DuplicateStrSPV(matrix<text>** x, int rows, int cols, matrix<text>* y, int yRows, int yCols, int row,
                       int col)
{
    duplicate(reading(x), rows, cols, writing(*y), yRows, yCols, row, col);
}

void M_DuplicateSPV2(matrix<double>* x, int rows, int cols, matrix<double>** y, int yRows, int yCols, int row,
                     int col)
{
    duplicate(reading(*x), rows, cols, writing(y), yRows, yCols, row, col);
}

void M_DuplicateSPV3(matrix<double>** x, int rows, int cols, matrix<double>** y, int yRows, int yCols,
                     int row, int col)
{
    duplicate(reading(x), rows, cols, writing(y), yRows, yCols, row, col);
}

void M_DuplicateSPV2_T(matrix<double>* x, int rows, int cols, matrix<double>** y, int yRows, int yCols,
                       int row, int col)
{
    denseToTriangle(*x, rows, cols, writing(y), yRows, yCols, placeOf(row, col));
}

void M_DuplicateSPV2_T(matrix<double>* x, int rows, int cols, matrix3D<matrix<double>>* y, int yRows,
                       int yCols, int row, int col)
{
    denseToTriangle(*x, rows, cols, writing(*y), yRows, yCols, placeOf(row, col));
}

void M_DuplicateSPV3_T(matrix<double>** x, int rows, int cols, matrix<double>** y, int yRows, int yCols,
                       int row, int col)
{
    const auto copyColumn = [&](cell_place from, const auto& chunks, cell_place place, std::int64_t count) {
        korvel::copySymmetricColumn(reading(x), from, chunks, place, count);
    };
    toTriangle(rows, cols, writing(y), yRows, yCols, placeOf(row, col), copyColumn);
}
