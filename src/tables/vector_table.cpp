#include "tables/vector_table.h"

#include "containers/views.h"

#include <algorithm>
#include <cstdint>

namespace
{

/** Where row (or column) `i` of a table starts in its vector; for the number of rows, where the last one
 * ends. */
constexpr std::int64_t placeOf(int i, int width)
{
    return std::int64_t{i} * width;
}

template <class T>
void tableToVectorByRow(const matrix<T>& x, int rows, int cols, matrix<T>& v)
{
    korvel::withCells(
        [=](auto in, auto& out) {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < cols; ++j) {
                    out.set(placeOf(i, cols) + j, in.get(i, j));
                }
            }
        },
        korvel::reading(x).table(rows, cols), korvel::writeVector(v, placeOf(rows, cols)));
}

template <class T>
void vectorToTableByRow(const matrix<T>& v, int rows, int cols, matrix<T>& table)
{
    korvel::withCells(
        [=](auto in, auto& out) {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < cols; ++j) {
                    out.set(i, j, in[placeOf(i, cols) + j]);
                }
            }
        },
        korvel::readVector(v, placeOf(rows, cols)), korvel::writing(table).table(rows, cols));
}

} // namespace

void MatToVect(matrix<double>* x, int rows, int cols, matrix<double>* v)
{
    for (int j = 0; j < cols; ++j) {
        korvel::withCells(
            [=](auto in, auto& out) {
                for (int i = 0; i < rows; ++i) {
                    out.set(placeOf(j, rows) + i, in[i]);
                }
            },
            korvel::reading(*x).column(j, rows), korvel::writeVector(*v, placeOf(j + 1, rows)));
    }
}

void VectToMat(matrix<double>* v, matrix<double>* pattern, int rows, int cols, matrix<double>* out)
{
    for (int j = 0; j < cols; ++j) {
        korvel::withCells(
            [=](auto in, auto given, auto& table) {
                for (int i = 0; i < rows; ++i) {
                    table.set(i, given[i] == MISSING_DBL ? MISSING_DBL : in[placeOf(j, rows) + i]);
                }
            },
            korvel::readVector(*v, placeOf(j + 1, rows)), korvel::reading(*pattern).column(j, rows),
            korvel::writing(*out).column(j, rows));
    }
}

void M_CopyTabletoVectorByRow(matrix<double>* x, int rows, int cols, matrix<double>* v)
{
    tableToVectorByRow(*x, rows, cols, *v);
}

void M_CopyTabletoVectorByRow(matrix<text>* x, int rows, int cols, matrix<text>* v)
{
    tableToVectorByRow(*x, rows, cols, *v);
}

void M_CopyVectortoTableByRow(matrix<double>* v, int rows, int cols, matrix<double>* out)
{
    vectorToTableByRow(*v, rows, cols, *out);
}

void M_CopyVectortoTableByRow(matrix<text>* v, int rows, int cols, matrix<text>* out)
{
    vectorToTableByRow(*v, rows, cols, *out);
}

void M_DiagToVect(const matrix<double>& x, int rows, int cols, matrix<double>& v)
{
    const int n = std::max(0, std::min(rows, cols));
    v.Redim(n, 1);
    korvel::withCells(
        [n](auto in, auto& out) {
            for (int i = 0; i < n; ++i) {
                out.set(i, in.get(i, i));
            }
        },
        korvel::reading(x).table(n, n), korvel::writeVector(v, n));
}
