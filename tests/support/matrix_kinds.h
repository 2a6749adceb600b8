/**
 * @file
 * Tables of the kinds that decompositions are tested on: of random cells, with a spectrum of one's own that
 * is graded, clustered or short of rank, ill-conditioned, zero, diagonal, tiny and huge.
 */
#ifndef KORVEL_TESTS_SUPPORT_MATRIX_KINDS_H
#define KORVEL_TESTS_SUPPORT_MATRIX_KINDS_H

#include "support/sparse_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <ostream>
#include <random>
#include <vector>

namespace korvel::test
{

enum class matrix_kind { random, graded, clustered, hilbert, deficient, zero, diagonal, tiny, huge };

inline constexpr std::array allMatrixKinds{
    matrix_kind::random,   matrix_kind::graded,    matrix_kind::clustered,
    matrix_kind::hilbert,  matrix_kind::deficient, matrix_kind::zero,
    matrix_kind::diagonal, matrix_kind::tiny,      matrix_kind::huge};

/** The orders that they are tested with. */
inline constexpr std::array matrixOrders{0, 1, 2, 3, 5, 10, 50, 200};

inline std::ostream& operator<<(std::ostream& out, matrix_kind kind)
{
    constexpr std::array names{"random", "graded",   "clustered", "Hilbert", "rank deficient",
                               "zero",   "diagonal", "tiny",      "huge"};
    return out << names[static_cast<std::size_t>(kind)];
}

namespace detail
{

/** Applies I - 2vv'/v'v with a random v to the columns of a table. */
inline void reflectColumns(matrix<double>& table, const std::vector<double>& v)
{
    double length = 0.0;
    for (const double x : v) {
        length += x * x;
    }
    for (int j = 0; length > 0.0 && j < table.nbcols; ++j) {
        double* const column = table.data + std::ptrdiff_t{table.nbrows} * j;
        double sum = 0.0;
        for (std::size_t i = 0; i < v.size(); ++i) {
            sum += v[i] * column[i];
        }
        for (std::size_t i = 0; i < v.size(); ++i) {
            column[i] -= 2.0 * sum / length * v[i];
        }
    }
}

inline matrix<double> flipped(const matrix<double>& from)
{
    matrix<double> to(from.nbcols, from.nbrows, 0.0);
    for (int i = 0; i < from.nbrows; ++i) {
        for (int j = 0; j < from.nbcols; ++j) {
            to.setElement(j, i, from.getElement(i, j));
        }
    }
    return to;
}

inline std::vector<double> uniforms(std::mt19937_64& generator, int n)
{
    std::vector<double> made(static_cast<std::size_t>(n));
    std::generate(made.begin(), made.end(), [&] { return uniform(generator); });
    return made;
}

} // namespace detail

/** The spectrum of a kind: number k of `count`. */
inline double spectrumOf(matrix_kind kind, int k, int count)
{
    switch (kind) {
    case matrix_kind::graded:
        return std::pow(10.0, -12.0 * k / std::max(count - 1, 1));
    case matrix_kind::clustered:
        return k == 0 ? 1.0 : 1e-3 * (1.0 + 1e-14 * (k % 3));
    case matrix_kind::deficient:
        return k < (count + 1) / 2 ? 1.0 + k : 0.0;
    default:
        return 0.0;
    }
}

/** Random orthogonal times diagonal times random orthogonal; one is the other's transpose when `symmetric`.
 */
inline matrix<double> tableWithSpectrum(std::mt19937_64& generator, matrix_kind kind, int rows, int cols,
                                        bool symmetric)
{
    matrix<double> made(rows, cols, 0.0);
    if (rows == 0 || cols == 0) {
        return made; // A count of 0 columns would come back as one row.
    }
    for (int k = 0; k < std::min(rows, cols); ++k) {
        const double sign = symmetric && k % 2 == 1 && kind == matrix_kind::graded ? -1.0 : 1.0;
        made.setElement(k, k, sign * spectrumOf(kind, k, std::min(rows, cols)));
    }
    for (int times = 0; times < 3; ++times) {
        const std::vector<double> left = detail::uniforms(generator, rows);
        const std::vector<double> right = symmetric ? left : detail::uniforms(generator, cols);
        detail::reflectColumns(made, left);
        made = detail::flipped(made);
        detail::reflectColumns(made, right);
        made = detail::flipped(made);
    }
    return made;
}

/** A table of a kind. Tiny cells are about 1e-100 and huge ones about 1e100. */
inline matrix<double> tableOfKind(matrix_kind kind, int rows, int cols, bool symmetric)
{
    std::mt19937_64 generator(static_cast<unsigned>(1000 * static_cast<int>(kind) + 7 * rows + cols));
    const double scale = kind == matrix_kind::tiny ? 1e-100 : kind == matrix_kind::huge ? 1e100 : 1.0;
    matrix<double> made(rows, cols, 0.0);
    switch (kind) {
    case matrix_kind::graded:
    case matrix_kind::clustered:
    case matrix_kind::deficient:
        made = tableWithSpectrum(generator, kind, rows, cols, symmetric);
        break;
    case matrix_kind::zero:
        break;
    default:
        for (int j = 0; j < cols; ++j) {
            for (int i = 0; i < rows; ++i) {
                const double cell = kind == matrix_kind::hilbert    ? 1.0 / (i + j + 1)
                                    : kind == matrix_kind::diagonal ? (i == j ? 5.0 - 2.0 * (i % 7) : 0.0)
                                                                    : scale * uniform(generator);
                made.setElement(i, j, cell);
            }
        }
    }
    for (int j = 0; symmetric && j < cols; ++j) {
        for (int i = 0; i < j; ++i) {
            made.setElement(i, j, made.getElement(j, i));
        }
    }
    return made;
}

/** The largest sum of magnitudes of a column. */
inline double columnSumNorm(const matrix<double>& table)
{
    double largestSum = 0.0;
    for (int j = 0; j < table.nbcols; ++j) {
        double sum = 0.0;
        for (int i = 0; i < table.nbrows; ++i) {
            sum += std::fabs(table.getElement(i, j));
        }
        largestSum = std::max(largestSum, sum);
    }
    return largestSum;
}

/** How far the first `count` columns of a table are from orthonormal, in units of n times the precision. */
inline double orthogonalityError(const matrix<double>& table, int count)
{
    matrix<double> product(count, count, 0.0);
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < count; ++j) {
            double sum = i == j ? -1.0 : 0.0;
            for (int k = 0; k < table.nbrows; ++k) {
                sum += table.getElement(k, i) * table.getElement(k, j);
            }
            product.setElement(i, j, sum);
        }
    }
    return table.nbrows == 0 ? 0.0 : columnSumNorm(product) / (table.nbrows * 0x1p-52);
}

} // namespace korvel::test

#endif
