#include "statistics/correlation_conversion.h"

#include "containers/views.h"

#include <cmath>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

double correlation(double covariance, double product, double undefined)
{
    return product > 0.0 ? covariance / std::sqrt(product) : undefined;
}

double ofDiagonal(double variance, double undefined)
{
    return variance > 1e-12 ? 1.0 : undefined;
}

} // namespace

void M_CorrMatFromCovMat(matrix<double>* cov, int n, matrix<double>* out, short int bUndefinedIsZero)
{
    const double undefined = bUndefinedIsZero != 0 ? 0.0 : MISSING_DBL;
    withCells(
        [=](const auto& from, auto& to) {
            for (int j = 0; j < n; ++j) {
                for (int i = 0; i < n; ++i) {
                    to.set(i, j,
                           i == j ? ofDiagonal(from.get(i, i), undefined)
                                  : correlation(from.get(i, j), from.get(i, i) * from.get(j, j), undefined));
                }
            }
        },
        reading(*cov).table(n, n), writing(*out).table(n, n));
}

void M_CorrMatFromCovMatSPV2_T(matrix3D<matrix<double>>* table, int n)
{
    withCells(
        [=](auto& cells) {
            for (int j = 0; j < n; ++j) {
                for (int i = j + 1; i < n; ++i) {
                    const double product = cells.get(i, i) * cells.get(j, j);
                    cells.set(i, j, correlation(cells.get(i, j), product, MISSING_DBL));
                }
            }
            // The variances are needed until here.
            for (int i = 0; i < n; ++i) {
                cells.set(i, i, ofDiagonal(cells.get(i, i), MISSING_DBL));
            }
        },
        writing(*table).triangle(n));
}

void M_CovMatFromCorrMat(matrix<double>* corr, int n, matrix<double>* vars, matrix<double>* out)
{
    withCells(
        [=](const auto& from, auto variances, auto& to) {
            for (int j = 0; j < n; ++j) {
                for (int i = 0; i < n; ++i) {
                    to.set(i, j, std::sqrt(variances[i] * variances[j]) * from.get(i, j));
                }
            }
        },
        reading(*corr).table(n, n), korvel::readVector(*vars, n), writing(*out).table(n, n));
}
