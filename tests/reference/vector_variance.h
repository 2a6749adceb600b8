/**
 * @file
 * Plain twins of the variances and moments, with nothing done for speed. Null flags and weights mean none.
 */
#ifndef KORVEL_TESTS_REFERENCE_VECTOR_VARIANCE_H
#define KORVEL_TESTS_REFERENCE_VECTOR_VARIANCE_H

#include "reference/vector_sums.h"

#include <array>
#include <cmath>

namespace korvel::reference
{

/** How to divide a sum of squares. */
struct denominator_flags {
    short int unbiased;
    short int freq;
};

inline double denominatorOf(double sumW, int m, denominator_flags how)
{
    if (how.unbiased == -1) {
        sumW -= how.freq == -1 ? 1.0 : sumW / static_cast<double>(m);
    }
    return sumW;
}

template <class Cells>
double variance(const Cells& x, int n, const short int* flags, weights_of<Cells> w, denominator_flags how)
{
    double s = 0.0;
    double mean = 0.0;
    double m2 = 0.0;
    int m = 0;
    for (int i = 0; i < n; ++i) {
        if (isFlagged(flags, i) || x[i] == MISSING_DBL) {
            continue;
        }
        const double wi = weightAt(w, i);
        m += 1;
        s += wi;
        if (wi != 0.0) {
            const double d = x[i] - mean;
            m2 += (wi - (wi * wi) / s) * (d * d);
            mean += (wi * d) / s;
        }
    }
    const double divisor = denominatorOf(s, m, how);
    return divisor == 0.0 ? MISSING_DBL : m2 / divisor;
}

template <class Cells>
double standardDeviation(const Cells& x, int n, const short int* flags, weights_of<Cells> w,
                         denominator_flags how)
{
    const double var = variance(x, n, flags, w, how);
    if (var == 0.0) {
        return 0.0;
    }
    return var < 0.0 ? MISSING_DBL : std::sqrt(var);
}

template <class Cells>
double unweightedVariance(const Cells& x, int n, denominator_flags how)
{
    double c = 0.0;
    double mean = 0.0;
    double m2 = 0.0;
    for (int i = 0; i < n; ++i) {
        if (x[i] != MISSING_DBL) {
            c += 1.0;
            const double d = x[i] - mean;
            mean += d / c;
            m2 += (d * d) * (1.0 - 1.0 / c);
        }
    }
    if (how.unbiased != -1) {
        return m2 / c;
    }
    return how.freq == -1 ? m2 / (c - 1.0) : m2 / (c - c / c);
}

/** A mean with the variance, or the standard deviation, that goes with it. */
struct spread {
    double mean;
    double size;
};

template <class Cells>
spread meanAndVariance(const Cells& x, int n, const short int* flags, const Cells& w, denominator_flags how)
{
    double s = 0.0;
    double mean = 0.0;
    double m2 = 0.0;
    int m = 0;
    for (int i = 0; i < n; ++i) {
        if (isFlagged(flags, i) || x[i] == MISSING_DBL) {
            continue;
        }
        m += 1;
        s += w[i];
        if (w[i] != 0.0) {
            const double d = x[i] - mean;
            const double t = (w[i] * d) / s;
            mean += t;
            m2 += ((s - w[i]) * t) * d;
        }
    }
    if (m == 0) {
        return {0.0, 0.0};
    }
    const double divisor = denominatorOf(s, m, how);
    return {mean, divisor > 0.0 ? m2 / divisor : MISSING_DBL};
}

template <class Cells>
spread meanAndVarianceByShares(const Cells& x, int n, const Cells& w, denominator_flags how)
{
    double s = 0.0;
    double mean = 0.0;
    double m2 = 0.0;
    int m = 0;
    for (int i = 0; i < n; ++i) {
        if (x[i] != MISSING_DBL) {
            s += w[i];
            m += 1;
            double r = 0.0;
            if (s != 0.0) {
                r = w[i] / s;
            }
            const double d = x[i] - mean;
            mean += r * d;
            m2 += ((d * d) * w[i]) * (1.0 - r);
        }
    }
    const double divisor = denominatorOf(s, m, how);
    return {mean, divisor > 0.0 ? m2 / divisor : MISSING_DBL};
}

template <class Cells>
spread unweightedMeanAndDeviation(const Cells& x, int n, short int unbiased)
{
    double c = 0.0;
    double mean = 0.0;
    double m2 = 0.0;
    for (int i = 0; i < n; ++i) {
        if (x[i] > MISSING_DBL) {
            c += 1.0;
            const double d = x[i] - mean;
            mean += d / c;
            m2 += (d * d) * (1.0 - 1.0 / c);
        }
    }
    return {mean, std::sqrt(unbiased == -1 ? m2 / (c - 1.0) : m2 / c)};
}

template <class Cells>
spread geometricMeanAndDeviation(const Cells& x, int n, const short int* flags, const Cells& w)
{
    double s = 0.0;
    double g = 0.0;
    double m2 = 0.0;
    int m = 0;
    for (int i = 0; i < n; ++i) {
        if (isFlagged(flags, i) || x[i] == MISSING_DBL) {
            continue;
        }
        if (!(x[i] > 0.0)) {
            return {MISSING_DBL, MISSING_DBL};
        }
        m += 1;
        s += w[i];
        if (w[i] != 0.0) {
            const double r = w[i] / s;
            const double d = std::log(x[i]) - g;
            g += d * r;
            m2 += ((d * d) * w[i]) * (1.0 - r);
        }
    }
    if (m == 0) {
        return {MISSING_DBL, MISSING_DBL};
    }
    const double divisor = s - s / m;
    if (divisor == 0.0) {
        return {std::exp(g), MISSING_DBL};
    }
    const double v = m2 / divisor;
    return {std::exp(g), v < 0.0 ? std::exp(MISSING_DBL) : std::exp(std::sqrt(v))};
}

/** The eight moments, in the order in which the routine takes them. */
using eight_moments = std::array<double, 8>;

inline double rootOrMissing(double x)
{
    return x < 0.0 ? MISSING_DBL : std::sqrt(x);
}

template <class Cells>
eight_moments moments(const Cells& x, int n, const short int* flags, const Cells& w, denominator_flags how)
{
    double s = 0.0;
    double mean = 0.0;
    double m2 = 0.0;
    double m3 = 0.0;
    double m4 = 0.0;
    int m = 0;
    for (int i = 0; i < n; ++i) {
        if (isFlagged(flags, i) || x[i] == MISSING_DBL) {
            continue;
        }
        m += 1;
        s += w[i];
        if (w[i] != 0.0) {
            const double d = x[i] - mean;
            const double r = w[i] / s;
            const double four = ((1.0 - 4.0 * r) + 6.0 * (r * r)) - 3.0 * ((r * r) * r);
            const double three = (1.0 - 3.0 * r) + 2.0 * (r * r);
            m4 += ((four * (((d * d) * d) * d)) * w[i] + ((6.0 * (r * r)) * (d * d)) * m2) -
                  ((4.0 * r) * d) * m3;
            m3 += (three * ((d * d) * d)) * w[i] - ((3.0 * r) * d) * m2;
            m2 += ((d * d) * w[i]) * (1.0 - r);
            mean += d * r;
        }
    }
    constexpr double none = MISSING_DBL;
    const double a = m > 0 ? s / m : 0.0;
    const double u = how.freq == -1 ? 1.0 : a;
    if ((how.unbiased == -1 && s - u == 0.0) || (how.unbiased == 0 && s == 0.0)) {
        return {mean, none, none, none, none, none, 0.0, 0.0};
    }
    const double var = how.unbiased == -1 ? m2 / (s - u) : m2 / s;
    if (var == 0.0) {
        return {mean, var, none, none, none, none, 0.0, 0.0};
    }
    const double sd = rootOrMissing(var);
    const double skewP = (m3 / s) / (var * sd);
    double skew = none;
    double seSkew = none;
    if (s > 2.0 * a) {
        skew = (skewP * rootOrMissing(s * (s - u))) / (s - 2.0 * u);
        seSkew = rootOrMissing(((6.0 * s) * (s - u)) / (((s - 2.0 * u) * (s + u)) * (s + 3.0 * u)));
    }
    const double kurtP = (m4 / s) / (var * var) - 3.0;
    double kurt = none;
    double seKurt = none;
    if (s > 2.0 * u && s > 3.0 * u) {
        kurt = ((s - u) / ((s - 2.0 * u) * (s - 3.0 * u))) * ((kurtP + 3.0) * (s + u) - 3.0 * (s - u));
        seKurt = (2.0 * seSkew) * rootOrMissing((s * s - u) / ((s + 5.0 * u) * (s - 3.0 * u)));
    }
    return {mean, var, skewP, kurtP, skew, kurt, seSkew, seKurt};
}

} // namespace korvel::reference

#endif
