/**
 * @file
 * Tables that are no correlation matrices, and the steps of their repair, one by one.
 */
#ifndef KORVEL_TESTS_STATISTICS_REPAIR_TABLES_H
#define KORVEL_TESTS_STATISTICS_REPAIR_TABLES_H

#include "linalg/reductions.h"
#include "reference/projections.h"
#include "statistics/weighted_sums.h"
#include "support/bits.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace korvel::test
{

inline matrix<double> diagonalOfOnes(int n)
{
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        made.setElement(i, i, 1.0);
    }
    return made;
}

/** A table with one number on the diagonal and another beside it. */
inline matrix<double> bandOf(int n, double diagonal, double beside)
{
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        made.setElement(i, i, diagonal);
        if (i > 0) {
            made.setElement(i, i - 1, beside);
            made.setElement(i - 1, i, beside);
        }
    }
    return made;
}

/** The random tables of tests/data/correlation/nearest_correlation.cpp. */
inline matrix<double> randomIndefinite(int n)
{
    std::uint64_t state = static_cast<std::uint64_t>(n);
    matrix<double> made = diagonalOfOnes(n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < i; ++j) {
            state = 6364136223846793005ULL * state + 1442695040888963407ULL;
            const double cell = (static_cast<double>(state >> 53) - 1024.0) / 1024.0;
            made.setElement(i, j, cell);
            made.setElement(j, i, cell);
        }
    }
    return made;
}

/** The steps as they are told, with weights of 1; returns their number. */
inline int plainRepair(matrix<double>& x, int n)
{
    matrix<double> W = diagonalOfOnes(n);
    matrix<double> dS(n, n, 0.0);
    for (int steps = 1;; ++steps) {
        matrix<double> R(n, n, 0.0);
        M_Sums1As2B(&x, n, n, &dS, 1.0, -1.0, &R);
        const matrix<double> X = plainProjection(R, n, W);
        matrix<double> D(n, n, 0.0);
        matrix<double> Y(n, n, 0.0);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                Y.setElement(i, j, i == j ? 1.0 : X.getElement(i, j));
            }
        }
        for (std::uint64_t k = 0; k < X.nbElem; ++k) {
            dS.data[k] = X.data[k] - R.data[k];
            D.data[k] = Y.data[k] - X.data[k];
            x.data[k] = Y.data[k];
        }
        if (!(M_RowSumNorm(&D, n, n) / M_RowSumNorm(&Y, n, n) > 1e-6)) {
            return steps;
        }
    }
}

inline void expectSymmetricCells(const matrix<double>& actual, const matrix<double>& expected)
{
    ASSERT_EQ(actual.nbElem, expected.nbElem);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        ASSERT_SAME_BITS(actual.data[k], expected.data[k]) << "cell " << k;
    }
}

} // namespace korvel::test

#endif
