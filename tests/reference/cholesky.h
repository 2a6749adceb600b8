/**
 * @file
 * Plain Cholesky decompositions: the loops as the method names them, element by element through the access of
 * the tables.
 */
#ifndef KORVEL_TESTS_REFERENCE_CHOLESKY_H
#define KORVEL_TESTS_REFERENCE_CHOLESKY_H

#include "containers/matrix.h"

#include <cmath>
#include <utility>
#include <vector>

namespace korvel::test
{

/** Row i of the table from the diagonal on, less its products, into column i of L. */
template <class Table, class Factor, class Fails>
int plainColumn(const Table& A, int n, int i, Factor& L, Fails fails)
{
    for (int j = i; j < n; ++j) {
        double s = A.getElement(i, j);
        for (int k = i - 1; k >= 0; --k) {
            s -= L.getElement(i, k) * L.getElement(j, k);
        }
        if (j == i) {
            if (fails(s)) {
                return -1;
            }
            L.setElement(i, i, std::sqrt(s));
        } else {
            if (L.getElement(i, i) == 0.0) {
                return -1;
            }
            L.setElement(j, i, s / L.getElement(i, i));
        }
    }
    return 0;
}

inline bool plainNotPositive(double s)
{
    return s < 1e-12;
}

/** L is cleared by the caller. */
template <class Table, class Factor>
int plainCholesky(const Table& A, int n, Factor& L)
{
    for (int i = 0; i < n; ++i) {
        if (plainColumn(A, n, i, L, plainNotPositive) != 0) {
            return -1;
        }
    }
    return 0;
}

/** L is cleared by the caller; W is A's block and is permuted. */
template <class Factor>
int plainCholeskyPrinc(matrix<double>& W, int n, Factor& L, std::vector<int>& perm)
{
    perm.clear();
    for (int i = 0; i < n; ++i) {
        perm.push_back(i + 1);
    }
    for (int k = 0; k < n; ++k) {
        if (k + 1 < n) {
            const auto score = [&](int i) {
                if (k == 0) {
                    return W.getElement(i, i);
                }
                return W.getElement(i, i) -
                       (W.getElement(k - 1, i) * W.getElement(k - 1, i)) / L.getElement(k - 1, k - 1);
            };
            int p = k;
            for (int i = k + 1; i < n; ++i) {
                if (score(i) > score(p)) {
                    p = i;
                }
            }
            const auto swapElements = [](auto& table, int i, int j, int otherI, int otherJ) {
                const double kept = table.getElement(i, j);
                table.setElement(i, j, table.getElement(otherI, otherJ));
                table.setElement(otherI, otherJ, kept);
            };
            for (int i = 0; p != k && i < n; ++i) {
                swapElements(W, i, k, i, p);
            }
            for (int j = 0; p != k && j < n; ++j) {
                swapElements(W, k, j, p, j);
            }
            for (int j = 0; p != k && k > 0 && j < n; ++j) {
                swapElements(L, k, j, p, j);
            }
            std::swap(perm[static_cast<std::size_t>(k)], perm[static_cast<std::size_t>(p)]);
        }
        if (plainColumn(W, n, k, L, plainNotPositive) != 0) {
            return -1;
        }
    }
    return 0;
}

} // namespace korvel::test

#endif
