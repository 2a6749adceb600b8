#include "missing/missing_cells.h"

#include "containers/cell_tests.h"
#include "containers/stretches.h"
#include "containers/views.h"

#include <algorithm>

namespace
{

using korvel::isMissingCell;
using korvel::reading;
using korvel::withCells;
using korvel::writing;

/** `to(i, j) = value` for each cell of a column of `from` that passes the test. */
template <class From, class To, class Test, class T>
void setWhere(const From& from, const To& to, int rows, Test isFound, const T& value)
{
    withCells([&](auto in,
                  auto& out) { korvel::forEachFound(rows, isFound, in, [&](int i) { out.set(i, value); }); },
              from, to);
}

/** Replaces the missing cells of each column, of which `length(j)` cells are looked at. */
template <class From, class To, class Length, class T>
void replaceIn(const From& from, const To& to, int cols, Length length, const T& val)
{
    for (int j = 0; j < cols; ++j) {
        setWhere(from.column(j, length(j)), to.column(j, length(j)), length(j), isMissingCell, val);
    }
}

template <class Table, class T>
void replaceInTable(Table&& table, int rows, int cols, const T& val)
{
    replaceIn(
        reading(table), writing(table), cols, [rows](int) { return rows; }, val);
}

template <class Table>
void replaceInTriangle(Table&& table, int rows, int cols, double val)
{
    replaceIn(
        reading(table), writing(table), cols, [rows](int j) { return rows - j; }, val);
}

template <class View>
void identify(const View& x, int rows, int cols, matrix<int>& marks)
{
    for (int j = 0; j < cols; ++j) {
        setWhere(x.column(j, rows), writing(marks).column(j, rows), rows, isMissingCell, 1);
    }
}

} // namespace

void M_ReplaceMissingByVal(matrix<double>* x, int rows, int cols, double val)
{
    replaceInTable(*x, rows, cols, val);
}

void M_ReplaceMissingByStr(matrix<text>* x, int rows, int cols, text val)
{
    replaceInTable(*x, rows, cols, val);
}

void M_ReplaceMissingByValSPV(matrix<double>** x, int rows, int cols, double val)
{
    replaceInTable(x, rows, cols, val);
}

void M_ReplaceMissingByValSPV(matrix3D<matrix<double>>* x, int rows, int cols, double val)
{
    replaceInTable(*x, rows, cols, val);
}

void M_ReplaceMissingByValSPV_T(matrix<double>** x, int rows, int cols, double val)
{
    replaceInTriangle(x, rows, cols, val);
}

void M_ReplaceMissingByValSPV_T(matrix3D<matrix<double>>* x, int rows, int cols, double val)
{
    replaceInTriangle(*x, rows, cols, val);
}

void M_ReplaceByMissingIfVal(matrix<double>* x, int n, int p, matrix<int>* marks, int markColumns, int value,
                             short int wholeRow)
{
    // A double, as lanes of integers are.
    const auto isMark = [value = static_cast<double>(value)](auto mark) { return mark == value; };
    for (int k = 0; k < markColumns; ++k) {
        const int first = wholeRow == -1 ? 0 : k;
        const int last = wholeRow == -1 ? p : k + 1;
        for (int j = first; j < last; ++j) {
            setWhere(reading(*marks).column(k, n), writing(*x).column(j, n), n, isMark, MISSING_DBL);
        }
    }
}

void M_ReplaceByMissing(matrix<double>* x, int n, int p, matrix<int>* marks, int markColumns,
                        short int wholeRow)
{
    M_ReplaceByMissingIfVal(x, n, p, marks, markColumns, 1, wholeRow);
}

void M_IdentifyMissingInMat(matrix<double>* x, int rows, int cols, matrix<int>* marks)
{
    identify(reading(*x), rows, cols, *marks);
}

void M_IdentifyMissingInMatSPV(matrix<double>** x, int rows, int cols, matrix<int>* marks)
{
    identify(reading(x), rows, cols, *marks);
}

void M_SetWeightsToZeroForMissing(matrix<double>* x, int n, int p, matrix<double>* weights, int mode)
{
    for (int j = 0; j < p; ++j) {
        const int column = mode == 1 ? 0 : j;
        setWhere(reading(*x).column(j, n), writing(*weights).column(column, n), n, isMissingCell, 0.0);
    }
}

namespace korvel
{

template <class T>
void replaceMissing(cST_MVect<T>& x, int rows, int cols, const T& val)
{
    replaceInTable(x, rows, std::min(cols, static_cast<int>(x.Vectors.size())), val);
}

template void replaceMissing(cST_MVect<double>&, int, int, const double&);
template void replaceMissing(cST_MVect<text>&, int, int, const text&);

} // namespace korvel
