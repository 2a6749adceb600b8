/**
 * @file
 * Plain eliminations and substitutions: each step as it is described, element by element through the checked
 * access, counted from 1.
 */
#ifndef KORVEL_TESTS_REFERENCE_ELIMINATIONS_H
#define KORVEL_TESTS_REFERENCE_ELIMINATIONS_H

#include "containers/matrix.h"

#include <cmath>
#include <utility>
#include <vector>

namespace korvel::test
{

inline int plainInverseTriang(const matrix<double>& T, int n, short int lowerFlag, matrix<double>& inverse,
                              double tolerance)
{
    for (int i = 1; i <= n; ++i) {
        if (std::fabs(T.vbget(i, i)) < tolerance) {
            return -1;
        }
        inverse.vbset(i, i, 1.0 / T.vbget(i, i));
    }
    const auto store = [&](int i, int j, int from, int to) {
        double sum = 0.0;
        for (int k = from; k <= to; ++k) {
            sum = sum + T.vbget(i, k) * inverse.vbget(k, j);
        }
        inverse.vbset(i, j, -inverse.vbget(i, i) * sum);
    };
    if (lowerFlag == 0) {
        for (int i = n - 1; i >= 1; --i) {
            for (int j = i + 1; j <= n; ++j) {
                store(i, j, i + 1, j);
            }
        }
    } else {
        for (int i = 2; i <= n; ++i) {
            for (int j = 1; j <= i - 1; ++j) {
                store(i, j, j, i - 1);
            }
        }
    }
    return 0;
}

inline void plainSwapCells(matrix<double>& t, int i, int j, int k, int l)
{
    const double first = t.vbget(i, j);
    t.vbset(i, j, t.vbget(k, l));
    t.vbset(k, l, first);
}

inline int plainGauss(matrix<double>& A, int n, int m, matrix<double>& B, bool noSwap, bool noPivot)
{
    std::vector<bool> used(static_cast<std::size_t>(n) + 1);
    std::vector<std::pair<int, int>> record;
    const auto isFree = [&](int number) { return !used[static_cast<std::size_t>(number)]; };
    for (int i = 1; i <= n; ++i) {
        int row = i;
        int col = i;
        if (!noPivot) {
            row = 1;
            while (!isFree(row)) {
                ++row;
            }
            col = row;
            double best = 0.0;
            for (int j = 1; j <= n; ++j) {
                for (int k = 1; k <= n; ++k) {
                    if (isFree(j) && isFree(k) && std::fabs(A.vbget(j, k)) - best > 1e-12) {
                        best = std::fabs(A.vbget(j, k));
                        row = j;
                        col = k;
                    }
                }
            }
        }
        used[static_cast<std::size_t>(col)] = true;
        if (!noSwap && !noPivot) {
            for (int l = 1; row != col && l <= n; ++l) {
                plainSwapCells(A, row, l, col, l);
            }
            for (int l = 1; row != col && l <= m; ++l) {
                plainSwapCells(B, row, l, col, l);
            }
            record.emplace_back(row, col);
        }
        if (A.vbget(col, col) == 0.0) {
            return -2;
        }
        const double p = 1.0 / A.vbget(col, col);
        A.vbset(col, col, 1.0);
        for (int l = 1; l <= n; ++l) {
            A.vbset(col, l, A.vbget(col, l) * p);
        }
        for (int l = 1; l <= m; ++l) {
            B.vbset(col, l, B.vbget(col, l) * p);
        }
        for (int r = 1; r <= n; ++r) {
            if (r == col) {
                continue;
            }
            const double q = A.vbget(r, col);
            A.vbset(r, col, 0.0);
            for (int l = 1; l <= n; ++l) {
                A.vbset(r, l, A.vbget(r, l) - q * A.vbget(col, l));
            }
            for (int l = 1; l <= m; ++l) {
                B.vbset(r, l, B.vbget(r, l) - q * B.vbget(col, l));
            }
        }
    }
    for (auto step = record.rbegin(); step != record.rend(); ++step) {
        for (int l = 1; step->first != step->second && l <= n; ++l) {
            plainSwapCells(A, l, step->first, l, step->second);
        }
    }
    return 0;
}

inline void plainForwardDoolittle(const matrix<double>& A, int n, matrix<double>& H)
{
    for (int i = 1; i <= n; ++i) {
        for (int j = i; j <= n; ++j) {
            H.vbset(i, j, A.vbget(i, j));
            H.vbset(j, i, A.vbget(i, j));
        }
    }
    for (int k = 1; k <= n; ++k) {
        if (std::fabs(H.vbget(k, k)) <= 1e-12) {
            for (int j = k; j <= n; ++j) {
                H.vbset(k, j, 0.0);
            }
            continue;
        }
        if (std::fabs(H.vbget(k, k) - 1.0) > 1e-12) {
            for (int j = k + 1; j <= n; ++j) {
                H.vbset(k, j, H.vbget(k, j) / H.vbget(k, k));
            }
            H.vbset(k, k, 1.0);
        }
        for (int i = k + 1; i <= n; ++i) {
            double d = 1.0;
            if (i == k + 1) {
                d = H.vbget(k + 1, k + 1) - H.vbget(k + 1, k) * H.vbget(k, k + 1);
            }
            if (std::fabs(d) <= 1e-12) {
                for (int j = k; j <= n; ++j) {
                    H.vbset(i, j, 0.0);
                }
            } else {
                for (int j = k + 1; j <= n; ++j) {
                    H.vbset(i, j, (H.vbget(i, j) - H.vbget(k, j) * H.vbget(i, k)) / d);
                }
                H.vbset(i, k, 0.0);
            }
        }
    }
}

inline void plainHermiteCanonical(const matrix<double>& A, int n, matrix<double>& H)
{
    plainForwardDoolittle(A, n, H);
    for (int k = 1; k <= n; ++k) {
        if (std::fabs(H.vbget(k, k) - 1.0) < 1e-12) {
            for (int i = 1; i <= k - 1; ++i) {
                if (std::fabs(H.vbget(i, k)) > 1e-12) {
                    for (int j = k + 1; j <= n; ++j) {
                        H.vbset(i, j, H.vbget(i, j) - H.vbget(i, k) * H.vbget(k, j));
                    }
                    H.vbset(i, k, 0.0);
                }
            }
        }
    }
}

} // namespace korvel::test

#endif
