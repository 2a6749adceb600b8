/**
 * @file
 * The plain inverse by LU decomposition: each step as it is described, counted from 1.
 */
#ifndef KORVEL_TESTS_REFERENCE_LU_INVERSE_H
#define KORVEL_TESTS_REFERENCE_LU_INVERSE_H

#include "containers/matrix.h"

#include <cmath>
#include <vector>

namespace korvel::test
{

inline int plainInverse1(const matrix<double>& A, matrix<double>& inverse, short int& error, double tolerance)
{
    const int n = A.nbrows;
    matrix<double> W(n, n, 0.0);
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            W.vbset(i, j, A.vbget(i, j));
        }
    }
    const auto fails = [&] {
        error = -1;
        return -1;
    };
    const double tiny = tolerance > 0.0 ? 1e-8 : 2.220446049250313e-16;
    matrix<double> scale(n, 1, 0.0);
    for (int i = 1; i <= n; ++i) {
        double big = 0.0;
        for (int j = 1; j <= n; ++j) {
            if (std::fabs(W.vbget(i, j)) > big) {
                big = std::fabs(W.vbget(i, j));
            }
        }
        if (big == 0.0) {
            return fails();
        }
        scale.vbset(i, 1, 1.0 / big);
    }
    matrix<int> pivots(n, 1, 0);
    int pivot = 0;
    for (int j = 1; j <= n; ++j) {
        for (int i = 1; i <= n; ++i) {
            double value = W.vbget(i, j);
            for (int k = 1; k < i && k < j; ++k) {
                value = value - W.vbget(i, k) * W.vbget(k, j);
            }
            W.vbset(i, j, value);
        }
        double best = 0.0;
        for (int i = j; i <= n; ++i) {
            const double t = scale.vbget(i, 1) * std::fabs(W.vbget(i, j));
            if (t >= best) {
                best = t;
                pivot = i;
            }
        }
        if (pivot == 0) {
            return fails();
        }
        if (pivot != j) {
            for (int k = 1; k <= n; ++k) {
                const double kept = W.vbget(pivot, k);
                W.vbset(pivot, k, W.vbget(j, k));
                W.vbset(j, k, kept);
            }
            scale.vbset(pivot, 1, scale.vbget(j, 1));
        }
        pivots.vbset(j, 1, pivot);
        if (std::fabs(W.vbget(j, j)) <= tiny) {
            return fails();
        }
        for (int i = j + 1; i <= n; ++i) {
            W.vbset(i, j, W.vbget(i, j) * (1.0 / W.vbget(j, j)));
        }
    }
    for (int c = 1; c <= n; ++c) {
        matrix<double> b(n, 1, 0.0);
        b.vbset(c, 1, 1.0);
        int first = 0;
        for (int i = 1; i <= n; ++i) {
            const int p = pivots.vbget(i, 1);
            double sum = b.vbget(p, 1);
            b.vbset(p, 1, b.vbget(i, 1));
            if (first != 0) {
                for (int k = first; k <= i - 1; ++k) {
                    sum = sum - W.vbget(i, k) * b.vbget(k, 1);
                }
            } else if (sum != 0.0) {
                first = i;
            }
            b.vbset(i, 1, sum);
        }
        for (int i = n; i >= 1; --i) {
            double sum = b.vbget(i, 1);
            for (int k = i + 1; k <= n; ++k) {
                sum = sum - W.vbget(i, k) * b.vbget(k, 1);
            }
            b.vbset(i, 1, sum / W.vbget(i, i));
        }
        for (int i = 1; i <= n; ++i) {
            inverse.vbset(i, c, b.vbget(i, 1));
        }
    }
    return 0;
}

} // namespace korvel::test

#endif
