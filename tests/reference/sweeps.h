/**
 * @file
 * Plain sweeps: each step as it is described, element by element through the checked access, counted from 1.
 */
#ifndef KORVEL_TESTS_REFERENCE_SWEEPS_H
#define KORVEL_TESTS_REFERENCE_SWEEPS_H

#include "containers/matrix.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace korvel::test
{

/** Row and column k become zeros. */
template <class Table>
void plainClearCross(Table& A, int n, int k)
{
    for (int j = 1; j <= n; ++j) {
        A.vbset(k, j, 0.0);
        A.vbset(j, k, 0.0);
    }
}

/** On a dense or a sparse table. */
template <class Table>
void plainSweepStep(Table& A, int n, int k, double tolerance)
{
    const double d = A.vbget(k, k);
    if (std::fabs(d) < tolerance) {
        plainClearCross(A, n, k);
        return;
    }
    for (int j = 1; j <= n; ++j) {
        A.vbset(k, j, A.vbget(k, j) / d);
    }
    for (int i = 1; i <= n; ++i) {
        if (i != k) {
            const double b = A.vbget(i, k);
            for (int j = 1; j <= n; ++j) {
                A.vbset(i, j, A.vbget(i, j) - b * A.vbget(k, j));
            }
            A.vbset(i, k, -b / d);
        }
    }
    A.vbset(k, k, 1.0 / d);
}

/** On raw numbers, by columns. */
inline void plainRawSweepStep(std::vector<double>& cells, int n, int k, double tolerance)
{
    const auto at = [&](int i, int j) -> double& {
        return cells[static_cast<std::size_t>(i - 1) +
                     static_cast<std::size_t>(n) * static_cast<std::size_t>(j - 1)];
    };
    const double d = at(k, k);
    if (std::fabs(d) < tolerance) {
        for (int j = 1; j <= n; ++j) {
            at(k, j) = 0.0;
            at(j, k) = 0.0;
        }
        return;
    }
    const double factor = -1.0 / d;
    for (int i = 1; i <= n; ++i) {
        at(i, k) = at(i, k) * factor;
    }
    for (int j = 1; j <= n; ++j) {
        if (j == k) {
            continue;
        }
        const double t = at(k, j);
        at(k, j) = t / d;
        if (std::fabs(t) > tolerance) {
            for (int i = 1; i <= n; ++i) {
                if (i != k) {
                    at(i, j) = at(i, j) + t * at(i, k);
                }
            }
        }
    }
    at(k, k) = 1.0 / d;
}

inline void plainInverseG2(const matrix<double>& A, int n, double tolerance, matrix<double>& G)
{
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            G.vbset(i, j, A.vbget(i, j));
        }
    }
    for (int k = 1; k <= n; ++k) {
        plainSweepStep(G, n, k, tolerance);
    }
}

inline void plainInverseG2Selective(const matrix<double>& A, int n, const matrix<int>& selected,
                                    double tolerance, matrix<double>& G, short int zeroOthers)
{
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            G.vbset(i, j, A.vbget(i, j));
        }
    }
    for (int k = 1; k <= n; ++k) {
        if (selected[k - 1] == 1) {
            plainSweepStep(G, n, k, tolerance);
        } else if (zeroOthers == -1) {
            plainClearCross(G, n, k);
        }
    }
}

/** On packed elements. */
inline void plainPackedSweep(matrix<double>& packed, int n, int k)
{
    const auto place = [](long long i, long long j) {
        return i >= j ? i * (i - 1) / 2 + j - 1 : j * (j - 1) / 2 + i - 1;
    };
    const auto store = [&](long long at, double value) {
        if (at >= 0 && static_cast<unsigned long long>(at) < packed.nbElem) {
            packed.data[at] = value;
        }
        packed.oobValue = value;
    };
    const double d = -1.0 / packed[place(k, k)];
    store(place(k, k), d);
    for (int i = 1; i <= n; ++i) {
        if (i == k) {
            continue;
        }
        double t = packed[place(i, k)];
        if (d < 0.0) {
            t = -t;
        }
        store(place(i, k), std::fabs(d) * packed[place(i, k)]);
        for (int j = 1; j <= i; ++j) {
            if (j == k) {
                continue;
            }
            double value = packed[place(i, j)] + t * packed[place(j, k)];
            if (std::fabs(value) < 1e-12) {
                value = 0.0;
            }
            store(place(i, j), value);
        }
    }
}

} // namespace korvel::test

#endif
