#include "tables/symmetric.h"

#include "containers/packed_symmetric.h"
#include "containers/views.h"

#include <algorithm>

namespace
{

/** The value that both cells of a pair take. */
double meanOfPair(double a, double b)
{
    if (a == MISSING_DBL) {
        return b;
    }
    return b == MISSING_DBL ? a : (a + b) / 2.0;
}

template <class View>
void symmetrize(const View& table, int n)
{
    korvel::withCells(
        [n](auto& x) {
            for (int j = 0; j < n; ++j) {
                for (int i = j + 1; i < n; ++i) {
                    const double mean = meanOfPair(x.get(i, j), x.get(j, i));
                    x.set(i, j, mean);
                    x.set(j, i, mean);
                }
            }
        },
        table.table(n, n));
}

template <class View>
short int isSymmetric(const View& table, int n)
{
    return korvel::withCells(
        [n](auto x) -> short int {
            for (int j = 0; j < n; ++j) {
                for (int i = j + 1; i < n; ++i) {
                    if (!(x.get(i, j) == x.get(j, i))) {
                        return 0;
                    }
                }
            }
            return -1;
        },
        table.table(n, n));
}

} // namespace

void M_Symmetrize(matrix<double>*& x, int rows, int cols)
{
    symmetrize(korvel::writing(*x), std::min(rows, cols));
}

void M_SymmetrizeSPV(matrix<double>** x, int rows, int cols)
{
    symmetrize(korvel::writing(x), std::min(rows, cols));
}

short int M_IsSymmetric(matrix<double>* x, int n)
{
    return isSymmetric(korvel::reading(*x), n);
}

short int M_IsSymmetricSPV(matrix<double>** x, int n)
{
    return isSymmetric(korvel::reading(x), n);
}

short int M_IsDiagConstant(matrix<double>* x, int n)
{
    return korvel::withCells(
        [n](auto cells) -> short int {
            for (int i = 1; i < n; ++i) {
                if (!(cells.get(i, i) == cells.get(0, 0))) {
                    return 0;
                }
            }
            return -1;
        },
        korvel::reading(*x).table(n, n));
}

void M_CopySymMatToVector(matrix<double>* x, int n, matrix<double>* v)
{
    korvel::withCells(
        [n](auto in, auto& out) {
            for (int j = 0; j < n; ++j) {
                for (int i = j; i < n; ++i) {
                    out.set(korvel::packedPlace(i + 1, j + 1), in.get(i, j));
                }
            }
        },
        korvel::reading(*x).table(n, n), korvel::writeVector(*v, korvel::packedLength(n)));
}

void M_CopyVectorToSymMat(matrix<double>* v, int n, matrix<double>* x)
{
    korvel::withCells(
        [n](auto in, auto& out) {
            for (int j = 0; j < n; ++j) {
                for (int i = j; i < n; ++i) {
                    out.set(i, j, in[korvel::packedPlace(i + 1, j + 1)]);
                    out.set(j, i, in[korvel::packedPlace(i + 1, j + 1)]);
                }
            }
        },
        korvel::readVector(*v, korvel::packedLength(n)), korvel::writing(*x).table(n, n));
}
