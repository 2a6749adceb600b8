/**
 * @file
 * Kinds of square tables for testing decompositions, and the residual of the product of the factors: its
 * largest column sum in units of rounding error. LAPACK's own tests (xCHKGE, xCHKPO) use such tables and
 * accept residuals below 30.
 */
#ifndef KORVEL_TESTS_LINALG_SQUARE_KINDS_H
#define KORVEL_TESTS_LINALG_SQUARE_KINDS_H

#include "support/random_tables.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace korvel::test
{

inline constexpr std::array orders{0, 1, 2, 3, 5, 10, 50, 200};
inline constexpr double lapackThreshold = 30.0;

/** A table of cell(i, j). */
template <class Cell>
matrix<double> squareOf(int n, Cell cell)
{
    matrix<double> made(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            made.data[i + std::ptrdiff_t{n} * j] = cell(i, j);
        }
    }
    return made;
}

inline matrix<double> randomSquare(int n, std::uint64_t seed = 7)
{
    random_cells cells(seed, odd_cells::none);
    return squareOf(n, [&](int, int) { return cells.value() / 1024.0; });
}

inline matrix<double> identity(int n)
{
    return squareOf(n, [](int i, int j) { return i == j ? 1.0 : 0.0; });
}

inline matrix<double> hilbert(int n)
{
    return squareOf(n, [](int i, int j) { return 1.0 / (i + j + 1); });
}

/** x times its transpose plus `ridge` on the diagonal, so that it is positive definite; exactly symmetric. */
inline matrix<double> gramian(const matrix<double>& x, double ridge)
{
    const int n = x.nbrows;
    return squareOf(n, [&](int i, int j) {
        double sum = i == j ? ridge : 0.0;
        for (int k = 0; k < x.nbcols; ++k) {
            sum += x.getElement(i, k) * x.getElement(j, k);
        }
        return sum;
    });
}

inline matrix<double> scaled(const matrix<double>& x, double factor)
{
    return squareOf(x.nbrows, [&](int i, int j) { return x.getElement(i, j) * factor; });
}

/** Row i and column i times `base` to the power -i. */
inline matrix<double> graded(const matrix<double>& x, double base)
{
    return squareOf(x.nbrows,
                    [&](int i, int j) { return x.getElement(i, j) * std::pow(base, -(i + j) / 2.0); });
}

/** The largest column sum of magnitudes. */
inline double norm(const matrix<double>& x)
{
    double most = 0.0;
    for (int j = 0; j < x.nbcols; ++j) {
        double sum = 0.0;
        for (int i = 0; i < x.nbrows; ++i) {
            sum += std::fabs(x.getElement(i, j));
        }
        most = std::max(most, sum);
    }
    return most;
}

/** The norm of `left * right - expected` beside n, the norm of what is expected, and the rounding unit. */
inline double scaledResidual(const matrix<double>& left, const matrix<double>& right,
                             const matrix<double>& expected)
{
    const int n = expected.nbrows;
    const matrix<double> rest = squareOf(n, [&](int i, int j) {
        long double sum = -static_cast<long double>(expected.getElement(i, j));
        for (int k = 0; k < n; ++k) {
            sum += static_cast<long double>(left.getElement(i, k)) * right.getElement(k, j);
        }
        return static_cast<double>(sum);
    });
    const double size = norm(expected) * n * std::numeric_limits<double>::epsilon();
    return size > 0.0 ? norm(rest) / size : norm(rest);
}

/** A named table, so that a failure says which kind it was. */
struct square_kind {
    std::string name;
    matrix<double> table;
};

} // namespace korvel::test

#endif
