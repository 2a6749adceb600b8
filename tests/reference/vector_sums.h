/**
 * @file
 * Plain loops over the checked access: what the sums and means compute, with nothing done for speed. Null
 * flags and weights stand for none.
 */
#ifndef KORVEL_TESTS_REFERENCE_VECTOR_SUMS_H
#define KORVEL_TESTS_REFERENCE_VECTOR_SUMS_H

#include "containers/matrix.h"

#include <cmath>
#include <cstdint>

namespace korvel::reference
{

using column = matrix<double>;

inline bool isFlagged(const short int* flags, int i)
{
    return flags != nullptr && flags[i] != 0;
}

inline double weightAt(const column* w, int i)
{
    return w != nullptr ? (*w)[i] : 1.0;
}

inline double sum(const column& x, int n, const short int* flags, const column* w)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (!isFlagged(flags, i) && x[i] != MISSING_DBL && weightAt(w, i) != MISSING_DBL) {
            total += weightAt(w, i) * x[i];
        }
    }
    return total;
}

inline double sumW(const column& x, int n, const column& w)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        total += x[i] * w[i];
    }
    return total;
}

inline double sumSq(const column& x, int n, bool skipMissing)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (!skipMissing || x[i] != MISSING_DBL) {
            total += x[i] * x[i];
        }
    }
    return total;
}

inline double sumSqW(const column& x, int n, const column& w)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (x[i] != MISSING_DBL) {
            total += x[i] * w[i] * x[i];
        }
    }
    return total;
}

inline double diffSq(const column& x, int n, const column& y, const column* w, int start)
{
    double total = 0.0;
    for (int i = start - 1; i < n; ++i) {
        const double d = x[i] - y[i];
        total += w != nullptr ? (*w)[i] * (d * d) : d * d;
    }
    return total;
}

inline double wrappedSum(const matrix<int>& x, int n)
{
    std::int64_t total = 0;
    for (int i = 0; i < n; ++i) {
        total += x[i];
    }
    const std::int64_t low = total & 0xFFFFFFFF;
    return static_cast<double>(low >= 0x80000000 ? low - 0x100000000 : low);
}

template <class T>
double frequency(const matrix<T>& x, int n, const column& w, double value, double tol)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (std::abs(x[i] - value) < tol) {
            total += w[i];
        }
    }
    return total;
}

/** How a mean ends when nothing can be divided by. */
enum class no_mean_when { weight_is_zero, weight_is_not_positive };

template <class Term>
double meanOf(const column& x, int n, const short int* flags, const column* w, Term term,
              no_mean_when rule = no_mean_when::weight_is_zero)
{
    double total = 0.0;
    double weight = 0.0;
    for (int i = 0; i < n; ++i) {
        if (!isFlagged(flags, i) && x[i] != MISSING_DBL) {
            total += weightAt(w, i) * term(x[i]);
            weight += weightAt(w, i);
        }
    }
    const bool none = rule == no_mean_when::weight_is_zero ? weight == 0.0 : !(weight > 0.0);
    return none ? MISSING_DBL : total / weight;
}

inline double harmonicMean(const column& x, int n, const short int* flags, const column& w)
{
    double weight = 0.0;
    double quotients = 0.0;
    for (int i = 0; i < n; ++i) {
        if (!isFlagged(flags, i) && x[i] != MISSING_DBL) {
            if (x[i] == 0.0) {
                return MISSING_DBL;
            }
            weight += w[i];
            quotients += w[i] / x[i];
        }
    }
    return quotients == 0.0 ? MISSING_DBL : weight / quotients;
}

} // namespace korvel::reference

#endif
