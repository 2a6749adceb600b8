/**
 * @file
 * The NIPALS iteration step by step on tables of the checked access, where components beyond the last column
 * find no room.
 */
#ifndef KORVEL_TESTS_REFERENCE_NIPALS_H
#define KORVEL_TESTS_REFERENCE_NIPALS_H

#include "containers/matrix.h"
#include "containers/missing.h"

#include <cmath>
#include <vector>

namespace korvel::reference
{

/** The status of a run that has not ended after some thousand passes. */
inline constexpr int unfinished = 99;

inline int plainNipals(int n, int p, matrix<double>& X, const matrix<double>& w, double tolerance,
                       int components, double columnShare, double tableShare)
{
    constexpr double gone = MISSING_DBL;
    std::vector<int> missing;
    std::vector<double> means;
    matrix<double> Z(n, p, 0.0);
    matrix<double> T(n, p, 0.0);
    matrix<double> P(p, p, 0.0);
    int start = 1;
    int all = 0;
    for (int j = 1; j <= p; ++j) {
        double s = 0.0;
        double sum = 0.0;
        double squares = 0.0;
        int count = 0;
        for (int i = 1; i <= n; ++i) {
            const double x = X.vbget(i, j);
            if (x == gone) {
                ++count;
                Z.vbset(i, j, gone);
            } else {
                s += w[i - 1];
                sum += w[i - 1] * x;
                squares += (w[i - 1] * x) * x;
            }
        }
        const double mean = sum / s;
        const double v = (squares - (mean * mean) * s) / (s - 1);
        const double deviation = v < 0 ? gone : std::sqrt(v);
        for (int i = 1; i <= n && deviation > 1e-6; ++i) {
            if (X.vbget(i, j) != gone) {
                Z.vbset(i, j, X.vbget(i, j) * w[i - 1] - mean);
            }
        }
        if (j > 1 && missing.back() > count) {
            start = j;
        }
        missing.push_back(count);
        means.push_back(mean);
        all += count;
    }
    if (all == 0) {
        return 0;
    }
    for (const int count : missing) {
        if (count > n * columnShare) {
            return -6;
        }
    }
    if (all > n * tableShare * p) {
        return -6;
    }
    for (int h = 1; h <= components; ++h) {
        std::vector<double> previous(static_cast<std::size_t>(p));
        for (int i = 1; i <= n; ++i) {
            T.vbset(i, h, Z.vbget(i, start));
        }
        for (int pass = 1;; ++pass) {
            for (int k = 1; k <= p; ++k) {
                double sum = 0.0;
                double d = 0.0;
                for (int i = 1; i <= n; ++i) {
                    if (T.vbget(i, h) != gone && Z.vbget(i, k) != gone) {
                        sum += T.vbget(i, h) * Z.vbget(i, k);
                        d += T.vbget(i, h) * T.vbget(i, h);
                    }
                }
                if (d < 1e-6) {
                    return 1;
                }
                P.vbset(h, k, sum / d);
            }
            double squares = 0.0;
            for (int k = 1; k <= p; ++k) {
                squares += P.vbget(h, k) * P.vbget(h, k);
            }
            for (int k = 1; k <= p; ++k) {
                P.vbset(h, k, P.vbget(h, k) / std::sqrt(squares));
            }
            for (int i = 1; i <= n; ++i) {
                double e = 0.0;
                T.vbset(i, h, gone);
                for (int k = 1; k <= p; ++k) {
                    if (Z.vbget(i, k) != gone) {
                        const double term = Z.vbget(i, k) * P.vbget(h, k);
                        T.vbset(i, h, T.vbget(i, h) == gone ? term : T.vbget(i, h) + term);
                        e += P.vbget(h, k) * P.vbget(h, k);
                    }
                }
                if (T.vbget(i, h) != gone) {
                    T.vbset(i, h, T.vbget(i, h) / e);
                }
            }
            double sum = 0.0;
            double sumOfSquares = 0.0;
            for (int k = 1; k <= p; ++k) {
                double& before = previous[static_cast<std::size_t>(k - 1)];
                const double change = before - P.vbget(h, k);
                sum += change;
                sumOfSquares += change * change;
                before = P.vbget(h, k);
            }
            if (pass > 1 && tolerance >= (sumOfSquares - sum * sum / p) / (p - 1.0)) {
                break;
            }
            if (pass == 3000) {
                return unfinished;
            }
        }
        for (int i = 1; i <= n; ++i) {
            for (int k = 1; k <= p; ++k) {
                if (T.vbget(i, h) != gone && Z.vbget(i, k) != gone) {
                    Z.vbset(i, k, Z.vbget(i, k) - P.vbget(h, k) * T.vbget(i, h));
                }
            }
        }
    }
    for (int j = 1; j <= p; ++j) {
        for (int i = 1; i <= n; ++i) {
            if (X.vbget(i, j) == gone) {
                double value = 0.0;
                if (w[i - 1] != 0.0) {
                    for (int h = 1; h <= components; ++h) {
                        if (T.vbget(i, h) != gone) {
                            value += P.vbget(h, j) * T.vbget(i, h);
                        }
                    }
                    value = (value + means[static_cast<std::size_t>(j - 1)]) / w[i - 1];
                }
                X.vbset(i, j, value);
            }
        }
    }
    return 0;
}

} // namespace korvel::reference

#endif
