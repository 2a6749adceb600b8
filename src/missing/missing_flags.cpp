#include "missing/missing_flags.h"

#include "containers/cell_tests.h"
#include "containers/conversion.h"
#include "containers/stretches.h"
#include "containers/views.h"

namespace
{

using korvel::flagOf;
using korvel::isMissingCell;
using korvel::reading;
using korvel::withCells;

void startFrom(const short int* iMissing, int rows, short int* out)
{
    for (int i = 0; i < rows; ++i) {
        out[i] = flagOf(iMissing != nullptr && iMissing[i] == -1);
    }
}

template <class View, class Test>
void flagRows(const View& x, int rows, int cols, const short int* iMissing, short int* out, Test isFound)
{
    startFrom(iMissing, rows, out);
    for (int j = 0; j < cols; ++j) {
        withCells(
            [=](auto cells) { korvel::forEachFound(rows, isFound, cells, [=](int i) { out[i] = -1; }); },
            x.column(j, rows));
    }
}

/** Sets the flags for which `isSet(i)` holds; returns how many. */
template <class Test>
int setFlags(int n, short int* result, Test isSet)
{
    int count = 0;
    for (int i = 0; i < n; ++i) {
        if (isSet(i)) {
            result[i] = -1;
            ++count;
        }
    }
    return count;
}

template <class Source>
short int isMissingBesideDiagonal(const Source& table, int n)
{
    const auto find = [n](auto x) {
        const auto isOnDiagonal = [&](int k) { return x.get(k, k) > MISSING_DBL; };
        for (int j = 1; j < n; ++j) {
            for (int i = 0; i < j; ++i) {
                if (x.get(i, j) == MISSING_DBL && isOnDiagonal(i) && isOnDiagonal(j)) {
                    return true;
                }
            }
        }
        return false;
    };
    return flagOf(withCells(find, table));
}

} // namespace

int V_GetMissingStr(matrix<text>* x, int n, short int* iMissing, short int* iMissingOut)
{
    korvel::getMissing(*x, n, 1, iMissing, iMissingOut);
    return 0;
}

short int M_IsMissingOutOfDiagonalAndNotOnDiags(matrix<double>* x, int n)
{
    return isMissingBesideDiagonal(reading(*x).table(n, n), n);
}

short int M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(matrix<double>** x, int n)
{
    return isMissingBesideDiagonal(reading(x).triangle(n), n);
}

short int M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(matrix3D<matrix<double>>* x, int n)
{
    return isMissingBesideDiagonal(reading(*x).triangle(n), n);
}

namespace korvel
{

void getMissing(const matrix<double>& x, int rows, int cols, const short int* iMissing,
                short int* iMissingOut)
{
    flagRows(reading(x), rows, cols, iMissing, iMissingOut, isAtOrBelowSentinel);
}

void getMissing(const matrix<text>& x, int rows, int cols, const short int* iMissing, short int* iMissingOut)
{
    flagRows(reading(x), rows, cols, iMissing, iMissingOut, isMissingCell);
}

void getMissing(matrix<double>* const* x, int rows, int cols, const short int* iMissing,
                short int* iMissingOut)
{
    flagRows(reading(x), rows, cols, iMissing, iMissingOut, isAtOrBelowSentinel);
}

int summarizeMissing(int n, const short int* a, const short int* b, const short int* c, short int* result)
{
    return setFlags(n, result,
                    [=](int i) { return a[i] == -1 || b[i] == -1 || (c != nullptr && c[i] == -1); });
}

int summarizeAllMissing(int n, const short int* a, const short int* b, short int* result)
{
    return setFlags(n, result, [=](int i) { return a[i] == -1 && b[i] == -1; });
}

template <class T>
void flagAllMissingRows(const matrix<T>& x, int rows, int cols, const short int* flagsIn, short int* flagsOut)
{
    withCells(
        [=](auto cells) {
            const auto isAllMissing = [&](int i) {
                int j = 0;
                while (j < cols && isMissingCell(cells.get(i, j))) {
                    ++j;
                }
                return j >= cols;
            };
            setFlags(rows, flagsOut, [&](int i) { return flagsIn[i] == -1 && isAllMissing(i); });
        },
        reading(x).table(rows, cols));
}

template void flagAllMissingRows(const matrix<double>&, int, int, const short int*, short int*);
template void flagAllMissingRows(const matrix<text>&, int, int, const short int*, short int*);

} // namespace korvel
