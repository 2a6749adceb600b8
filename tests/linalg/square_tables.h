/**
 * @file
 * Square tables to be inverted: random ones for comparison with a plain twin, and the kinds that LAPACK's own
 * tests use, with its scaled residual (dget03).
 */
#ifndef KORVEL_TESTS_LINALG_SQUARE_TABLES_H
#define KORVEL_TESTS_LINALG_SQUARE_TABLES_H

#include "support/near_tables.h"
#include "support/sparse_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace korvel::test
{

/** Calls `compare(cells, n)` for orders round every block and strip, with each kind of odd cells. */
template <class Compare>
void forSquareTables(std::initializer_list<int> orders, Compare compare)
{
    std::uint64_t seed = 7;
    for (const odd_cells odd : {odd_cells::none, odd_cells::missing_and_zeros, odd_cells::all}) {
        for (const int n : orders) {
            for (int repeat = 0; repeat < 4; ++repeat) {
                SCOPED_TRACE(::testing::Message() << "seed " << ++seed << ", order " << n);
                random_cells cells(seed, odd);
                compare(cells, n);
                if (::testing::Test::HasFailure()) {
                    return;
                }
            }
        }
    }
}

/** A table of exactly n by n, or now and then one that is larger or smaller. */
inline matrix<double> squareTable(random_cells& cells, int n)
{
    if (cells.integer(0, 3) == 0) {
        return nearTable<double>(cells, n, n);
    }
    matrix<double> table(n, n, 0.0);
    fillRandomly(cells, table);
    return table;
}

/** How a table is made. */
enum class table_kind { random, diagonallyDominant, graded, hilbert, diagonal, tiny, huge };

inline constexpr std::array tableKinds{table_kind::random,   table_kind::diagonallyDominant,
                                       table_kind::graded,   table_kind::hilbert,
                                       table_kind::diagonal, table_kind::tiny,
                                       table_kind::huge};

inline constexpr std::array tableOrders{0, 1, 2, 3, 5, 10, 50, 200};

inline matrix<double> madeTable(table_kind kind, int n, std::mt19937_64& generator)
{
    matrix<double> made(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            double x = uniform(generator);
            switch (kind) {
            case table_kind::diagonallyDominant:
                x += i == j ? 2.0 * n : 0.0;
                break;
            case table_kind::graded:
                x = (x + (i == j ? 2.0 * n : 0.0)) * std::ldexp(1.0, -(20 * (i + j)) / n);
                break;
            case table_kind::hilbert:
                x = 1.0 / (i + j + 1.0);
                break;
            case table_kind::diagonal:
                x = i == j ? 1.0 + i : 0.0;
                break;
            case table_kind::tiny:
                x *= 1e-150;
                break;
            case table_kind::huge:
                x *= 1e+150;
                break;
            case table_kind::random:
                break;
            }
            made.setElement(i, j, x);
        }
    }
    return made;
}

/** X'X of a square table, symmetric and mostly positive definite. */
inline matrix<double> crossProduct(const matrix<double>& x)
{
    matrix<double> made(x.nbrows, x.nbrows, 0.0);
    for (int i = 0; i < x.nbrows; ++i) {
        for (int j = 0; j < x.nbrows; ++j) {
            double sum = 0.0;
            for (int r = 0; r < x.nbrows; ++r) {
                sum += x.getElement(r, i) * x.getElement(r, j);
            }
            made.setElement(i, j, sum);
        }
    }
    return made;
}

inline matrix<double> timesTable(const matrix<double>& a, const matrix<double>& b)
{
    matrix<double> made(a.nbrows, b.nbcols, 0.0);
    for (int i = 0; i < a.nbrows; ++i) {
        for (int j = 0; j < b.nbcols; ++j) {
            double sum = 0.0;
            for (int k = 0; k < a.nbcols; ++k) {
                sum += a.getElement(i, k) * b.getElement(k, j);
            }
            made.setElement(i, j, sum);
        }
    }
    return made;
}

/** The largest column sum of magnitudes. */
inline double largestColumnSum(const matrix<double>& a)
{
    double most = 0.0;
    for (int j = 0; j < a.nbcols; ++j) {
        double sum = 0.0;
        for (int i = 0; i < a.nbrows; ++i) {
            sum += std::fabs(a.getElement(i, j));
        }
        most = std::isnan(sum) ? sum : std::max(most, sum);
    }
    return most;
}

/** The distance of two tables over n times the other norm and the machine's precision. */
inline double scaledDistance(const matrix<double>& a, const matrix<double>& b, double norm)
{
    matrix<double> difference(a.nbrows, a.nbcols, 0.0);
    for (std::uint64_t k = 0; k < a.nbElem; ++k) {
        difference.data[k] = a.data[k] - b.data[k];
    }
    const double n = std::max(a.nbrows, 1);
    return largestColumnSum(difference) / norm / n / std::numeric_limits<double>::epsilon();
}

/** What LAPACK's dget03 computes, and holds below 30: |I - A·G| / (n |A| |G| eps). */
inline double inverseResidual(const matrix<double>& a, const matrix<double>& inverse)
{
    matrix<double> unit(a.nbrows, a.nbrows, 0.0);
    for (int i = 0; i < a.nbrows; ++i) {
        unit.setElement(i, i, 1.0);
    }
    const double norm = largestColumnSum(a) * largestColumnSum(inverse);
    return a.nbrows == 0 ? 0.0 : scaledDistance(timesTable(a, inverse), unit, norm);
}

inline constexpr double lapackThreshold = 30.0;

} // namespace korvel::test

#endif
