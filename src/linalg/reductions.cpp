#include "linalg/reductions.h"

#include "containers/views.h"

#include <algorithm>
#include <array>
#include <cmath>

using korvel::reading;
using korvel::withCells;

namespace
{

/** The running sum of `term(i)`. */
template <class Term>
double sumUpTo(int n, Term term)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        sum += term(i);
    }
    return sum;
}

double sumOfCellProducts(const matrix<double>& a, int n, const matrix<double>& b)
{
    return withCells(
        [n](const auto& left, const auto& right) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) {
                    sum += left.get(i, j) * right.get(i, j);
                }
            }
            return sum;
        },
        reading(a).table(n, n), reading(b).table(n, n));
}

/**
 * Each row has its own sum, and the rows of a strip are summed side by side. What is left out adds +0.0,
 * which changes no sum of magnitudes.
 */
constexpr auto largestRowSum = [](const auto& cells, int n, int m) {
    constexpr int strip = 256;
    double largest = 0.0;
    for (int first = 0; first < n; first += std::min(strip, n - first)) {
        const int count = std::min(strip, n - first);
        std::array<double, strip> sums{};
        for (int j = 0; j < m; ++j) {
            for (int i = 0; i < count; ++i) {
                const double cell = cells.get(first + i, j);
                sums[static_cast<std::size_t>(i)] += cell > MISSING_DBL ? std::fabs(cell) : 0.0;
            }
        }
        largest = std::max(largest, *std::max_element(sums.begin(), sums.begin() + count));
    }
    return largest;
};

template <class Source>
double rowSumNorm(const Source& table, int n, int m)
{
    return withCells([n, m](const auto& cells) { return largestRowSum(cells, n, m); }, table);
}

} // namespace

double M_Trace(matrix<double>* A, int n)
{
    return sumUpTo(n, [A](int i) { return A->getElement(i, i); });
}

double M_Trace(matrixSparse* A, int n)
{
    return sumUpTo(n, [A](int i) { return A->getElement(i, i); });
}

double M_TraceSq(matrix<double>* A, int n)
{
    return sumUpTo(n, [A](int i) { return A->getElement(i, i) * A->getElement(i, i); });
}

double M_TraceProductAA(matrix<double>* A, int n)
{
    return sumOfCellProducts(*A, n, *A);
}

double M_TraceProductAB(matrix<double>* A, int n, matrix<double>* B)
{
    return sumOfCellProducts(*A, n, *B);
}

double M_FrobeniusNorm(matrix<double>* A, int n, int p, matrix<double>* B)
{
    // Of the product only the diagonal is wanted.
    return sumUpTo(p, [=](int j) {
        return withCells(
            [n](auto left, auto right) { return sumUpTo(n, [&](int r) { return left[r] * right[r]; }); },
            reading(*A).column(j, n), reading(*B).column(j, n));
    });
}

double M_RowSumNorm(matrix<double>* A, int n, int m)
{
    return rowSumNorm(reading(*A).table(n, m), n, m);
}

double M_RowSumNormSPV(matrix<double>** A, int n, int m)
{
    return rowSumNorm(reading(A).table(n, m), n, m);
}

double M_RowSumNormSPV_T(matrix3D<matrix<double>>* A, int n, int m)
{
    return rowSumNorm(reading(*A).triangle(n, m), n, m);
}
