#include "linalg/diagonal_scaling.h"

#include "containers/map_cells.h"
#include "linalg/clear_result.h"
#include "linalg/transposed_cells.h"

#include <utility>

using korvel::reading;
using korvel::writing;

namespace
{

/** a * b, missing when one of them is. */
double productOrMissing(double a, double b)
{
    return a == MISSING_DBL || b == MISSING_DBL ? MISSING_DBL : a * b;
}

template <class From, class To>
void scaleColumns(const From& from, int n, int p, const matrix<double>& d, const To& to)
{
    const auto timesFactor = [&](int k) {
        return [factor = d[k]](double cell) { return productOrMissing(cell, factor); };
    };
    korvel::mapColumns(n, p, timesFactor, to, from);
}

template <class From, class To>
void scaleRows(const matrix<double>& d, int n, const From& from, int p, const To& to)
{
    for (int k = 0; k < p; ++k) {
        korvel::withCells(
            [n](auto& out, auto& in, auto& factors) {
                for (int i = 0; i < n; ++i) {
                    out.set(i, productOrMissing(factors[i], in[i]));
                }
            },
            to.column(k, n), from.column(k, n), korvel::readVector(d, n));
    }
}

template <class From, class To>
void scaleBoth(const matrix<double>& d1, int n, const From& from, int p, const matrix<double>& d2,
               const To& to)
{
    scaleRows(d1, n, from, p, to);
    scaleColumns(to, n, p, d2, to);
}

} // namespace

void M_ProductADiag(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C)
{
    korvel::clearResult(*C, n, p);
    const auto timesDiagonal = [D](int k) {
        return [factor = D->getElement(k, k)](double cell) { return cell * factor; };
    };
    korvel::mapColumns(n, p, timesDiagonal, writing(*C), reading(*A));
}

void M_ProductTrADiag(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C)
{
    korvel::clearResult(*C, p, n);
    const auto timesDiagonal = [D](int i) {
        return [factor = D->getElement(i, i)](double cell) { return cell * factor; };
    };
    korvel::mapTransposed(n, p, timesDiagonal, *A, *C);
}

void M_ProductADiagV(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C)
{
    scaleColumns(reading(*A), n, p, *d, writing(*C));
}

void M_ProductADiagVSPV(matrix3D<matrix<double>>* A, int n, int p, matrix<double>* d,
                        matrix3D<matrix<double>>* C)
{
    scaleColumns(reading(*A), n, p, *d, writing(*C));
}

void M_ProductADiagVSPV(matrix3D<statistics_matrix<double>>* A, int n, int p, matrix<double>* d,
                        matrix3D<statistics_matrix<double>>* C)
{
    scaleColumns(reading(*A), n, p, *d, writing(*C));
}

void M_ProductDiagVA(matrix<double>* d, int n, matrix<double>* A, int p, matrix<double>* C)
{
    scaleRows(*d, n, reading(*A), p, writing(*C));
}

void M_ProductDiagVASPV(matrix<double>* d, int n, matrix3D<matrix<double>>* A, int p,
                        matrix3D<matrix<double>>* C)
{
    scaleRows(*d, n, reading(*A), p, writing(*C));
}

void M_ProductDiagVASPV(matrix<double>* d, int n, matrix3D<statistics_matrix<double>>* A, int p,
                        matrix3D<statistics_matrix<double>>* C)
{
    scaleRows(*d, n, reading(*A), p, writing(*C));
}

void M_ProductDiagV1ADiagV2(matrix<double>* d1, int n, matrix<double>* A, int p, matrix<double>* d2,
                            matrix<double>* C)
{
    scaleBoth(*d1, n, reading(*A), p, *d2, writing(*C));
}

void M_ProductDiagV1ADiagV2SPV(matrix<double>* d1, int n, matrix3D<matrix<double>>* A, int p,
                               matrix<double>* d2, matrix3D<matrix<double>>* C)
{
    scaleBoth(*d1, n, reading(*A), p, *d2, writing(*C));
}

void M_ProductDiagV1ADiagV2SPV(matrix<double>* d1, int n, matrix3D<statistics_matrix<double>>* A, int p,
                               matrix<double>* d2, matrix3D<statistics_matrix<double>>* C)
{
    scaleBoth(*d1, n, reading(*A), p, *d2, writing(*C));
}

void M_ProductTrADiagV(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C)
{
    const auto timesFactor = [&factors = std::as_const(*d)](int r) {
        return [factor = factors[r]](double cell) { return cell * factor; };
    };
    korvel::mapTransposed(n, p, timesFactor, *A, *C);
}
