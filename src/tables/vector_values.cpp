#include "tables/vector_values.h"

#include "containers/cells.h"
#include "containers/missing.h"

namespace
{

using korvel::withCells;
using korvel::writeVector;

/** `to[i] = map(from[i], i)`; the two may be one. */
template <class Map>
void mapVector(const matrix<double>& from, int n, matrix<double>& to, Map map)
{
    withCells(
        [&](auto in, auto& out) {
            for (int i = 0; i < n; ++i) {
                out.set(i, map(in[i], i));
            }
        },
        korvel::readVector(from, n), writeVector(to, n));
}

/** Moves the elements whose first is above the sentinel to the front of all vectors. */
template <class... Vectors>
int moveKeptToFront(int n, matrix<double>& x, Vectors&... others)
{
    return withCells(
        [n](auto& cells, auto&... along) {
            int kept = 0;
            for (int i = 0; i < n; ++i) {
                if (cells[i] > MISSING_DBL) {
                    cells.set(kept, cells[i]);
                    (along.set(kept, along[i]), ...);
                    ++kept;
                }
            }
            return kept;
        },
        writeVector(x, n), writeVector(others, n)...);
}

} // namespace

void V_PlusVal(matrix<double>* x, int n, double val, short int* iMissing)
{
    if (iMissing == nullptr) {
        mapVector(*x, n, *x, [val](double cell, int) { return cell + val; });
        return;
    }
    mapVector(*x, n, *x, [=](double cell, int i) {
        const double sum = cell + val;
        return iMissing[i] == 0 ? sum : cell;
    });
}

void V_PlusVal2(matrix<double>* x, int n, double val)
{
    mapVector(*x, n, *x, [val](double cell, int) {
        const double sum = cell + val;
        return cell == MISSING_DBL ? cell : sum;
    });
}

void V_ReplaceVal(matrix<double>* x, int n, double oldValue, double newValue, matrix<double>* out)
{
    mapVector(*x, n, *out, [=](double cell, int) { return cell == oldValue ? newValue : cell; });
}

void V_ReplaceVal2(matrix<double>* x, int n, double oldValue, double newValue)
{
    V_ReplaceVal(x, n, oldValue, newValue, x);
}

void V_SetToValueStr(matrix<text>* x, int n, text value)
{
    korvel::setToValue(*x, n, value);
}

void V_CleanVectDbl2(matrix<double>* x, int n, int& m)
{
    m = moveKeptToFront(n, *x);
}

void V_CleanVectDblW2(matrix<double>* x, int n, matrix<double>* w, int& m)
{
    m = moveKeptToFront(n, *x, *w);
}

namespace korvel
{

template <class T>
void setToValue(matrix<T>& x, int n, const T& value)
{
    withCells(
        [&](auto& out) {
            for (int i = 0; i < n; ++i) {
                out.set(i, value);
            }
        },
        writeVector(x, n));
}

template void setToValue(matrix<double>&, int, const double&);
template void setToValue(matrix<int>&, int, const int&);
template void setToValue(matrix<text>&, int, const text&);

template <class T>
void swapVectors(matrix<T>& a, int n, matrix<T>& b)
{
    withCells(
        [n](auto& first, auto& second) {
            for (int i = 0; i < n; ++i) {
                const T kept = first[i];
                first.set(i, second[i]);
                second.set(i, kept);
            }
        },
        writeVector(a, n), writeVector(b, n));
}

template void swapVectors(matrix<double>&, int, matrix<double>&);
template void swapVectors(matrix<text>&, int, matrix<text>&);

} // namespace korvel
