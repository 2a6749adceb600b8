/**
 * @file
 * The summaries of a group as one plain loop each.
 */
#ifndef KORVEL_TESTS_REFERENCE_CONDITIONAL_SUMMARIES_H
#define KORVEL_TESTS_REFERENCE_CONDITIONAL_SUMMARIES_H

#include "containers/matrix.h"

namespace korvel::reference
{

/** Calls `take(i)` for each row of the group of which neither value nor code is missing. */
template <class Take>
void forGroup(const matrix<double>& y, int n, const matrix<double>& g, double val, Take take)
{
    for (int i = 0; i < n; ++i) {
        if (y[i] != MISSING_DBL && g[i] != MISSING_DBL && g[i] == val) {
            take(i);
        }
    }
}

inline double nbIf(const matrix<double>& x, int n, double val)
{
    double count = 0.0;
    for (int i = 0; i < n; ++i) {
        if (x[i] == val) {
            count += 1.0;
        }
    }
    return count;
}

inline double nbIfW(const matrix<double>& x, int n, const matrix<double>& w, double val)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        if (x[i] == val && w[i] > 0.0) {
            sum += w[i];
        }
    }
    return sum;
}

inline double sumIf(const matrix<double>& y, int n, const matrix<double>& g, double val)
{
    double sum = 0.0;
    int rows = 0;
    forGroup(y, n, g, val, [&](int i) {
        sum += y[i];
        ++rows;
    });
    return rows == 0 ? MISSING_DBL : sum;
}

inline double meanIf(const matrix<double>& y, int n, const matrix<double>& g, double val)
{
    int rows = 0;
    forGroup(y, n, g, val, [&](int) { ++rows; });
    return rows == 0 ? MISSING_DBL : sumIf(y, n, g, val) / rows;
}

inline double sumIfW(const matrix<double>& y, int n, const matrix<double>& g, const matrix<double>& w,
                     double val)
{
    double sum = 0.0;
    int rows = 0;
    forGroup(y, n, g, val, [&](int i) {
        if (w[i] > 0.0) {
            sum += w[i] * y[i];
            ++rows;
        }
    });
    return rows == 0 ? MISSING_DBL : sum;
}

inline double meanIfW(const matrix<double>& y, int n, const matrix<double>& g, const matrix<double>& w,
                      double val)
{
    double sum = 0.0;
    double sumW = 0.0;
    forGroup(y, n, g, val, [&](int i) {
        sum += w[i] * y[i];
        sumW += w[i];
    });
    return sumW > 0.0 ? sum / sumW : MISSING_DBL;
}

inline double maxIf(const matrix<double>& y, int n, const matrix<double>& g, double val)
{
    double largest = MISSING_DBL;
    forGroup(y, n, g, val, [&](int i) {
        if (y[i] > largest) {
            largest = y[i];
        }
    });
    return largest;
}

inline double minIf(const matrix<double>& y, int n, const matrix<double>& g, double val)
{
    double smallest = 1.79769313486231e308;
    forGroup(y, n, g, val, [&](int i) {
        if (y[i] < smallest) {
            smallest = y[i];
        }
    });
    return smallest == 1.79769313486231e308 ? MISSING_DBL : smallest;
}

inline double varIf(const matrix<double>& y, int n, const matrix<double>& g, double val, short int bUnbiased)
{
    double c = 0.0;
    double m = 0.0;
    double m2 = 0.0;
    for (int i = 0; i < n; ++i) {
        if (y[i] != MISSING_DBL && g[i] == val) {
            c += 1.0;
            const double d = y[i] - m;
            m += d / c;
            m2 += (1.0 - 1.0 / c) * (d * d);
        }
    }
    const double denominator = bUnbiased == -1 ? c - 1.0 : c;
    return denominator > 0.0 ? m2 / denominator : MISSING_DBL;
}

inline double varIfW(const matrix<double>& y, int n, const matrix<double>& g, const matrix<double>& w,
                     double val, short int bUnbiased)
{
    double s = 0.0;
    double m = 0.0;
    double m2 = 0.0;
    forGroup(y, n, g, val, [&](int i) {
        s += w[i];
        const double d = y[i] - m;
        m += w[i] * d / s;
        m2 += (1.0 - w[i] / s) * (d * d) * w[i];
    });
    const double denominator = bUnbiased == -1 ? s - 1.0 : s;
    return denominator > 0.0 ? m2 / denominator : MISSING_DBL;
}

inline double varIfSup0W(const matrix<double>& y, int n, const matrix<double>& g, const matrix<double>& w,
                         short int bUnbiased)
{
    double s = 0.0;
    double m = 0.0;
    double m2 = 0.0;
    for (int i = 0; i < n; ++i) {
        if (y[i] > MISSING_DBL && g[i] > 1e-12) {
            s += w[i];
            const double d = y[i] - m;
            m += w[i] * d / s;
            m2 += (w[i] - w[i] / s) * (d * d);
        }
    }
    const double denominator = bUnbiased == -1 ? s - 1.0 : s;
    return denominator > 0.0 ? m2 / denominator : MISSING_DBL;
}

} // namespace korvel::reference

#endif
