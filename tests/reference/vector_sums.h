/**
 * @file
 * Plain twins of the sums and means, with nothing done for speed. Cells are anything with `x[i]`: a table
 * with its checked access, or a pointer. Null flags and weights mean none.
 */
#ifndef KORVEL_TESTS_REFERENCE_VECTOR_SUMS_H
#define KORVEL_TESTS_REFERENCE_VECTOR_SUMS_H

#include "containers/matrix.h"

#include <cmath>
#include <cstdint>
#include <type_traits>

namespace korvel::reference
{

/** Weights of the same kind as the values, or a null pointer. */
template <class Cells>
using weights_of = const std::type_identity_t<Cells>*;

inline bool isFlagged(const short int* flags, int i)
{
    return flags != nullptr && flags[i] != 0;
}

template <class Cells>
double weightAt(const Cells* w, int i)
{
    return w != nullptr ? (*w)[i] : 1.0;
}

template <class Cells>
double sum(const Cells& x, int n, const short int* flags, weights_of<Cells> w)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (!isFlagged(flags, i) && x[i] != MISSING_DBL && weightAt(w, i) != MISSING_DBL) {
            total += weightAt(w, i) * x[i];
        }
    }
    return total;
}

template <class Cells>
double sumW(const Cells& x, int n, const Cells& w)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        total += x[i] * w[i];
    }
    return total;
}

template <class Cells>
double sumSq(const Cells& x, int n, bool skipMissing)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (!skipMissing || x[i] != MISSING_DBL) {
            total += x[i] * x[i];
        }
    }
    return total;
}

template <class Cells>
double sumSqW(const Cells& x, int n, const Cells& w)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (x[i] != MISSING_DBL) {
            total += x[i] * w[i] * x[i];
        }
    }
    return total;
}

template <class Cells>
double diffSq(const Cells& x, int n, const Cells& y, weights_of<Cells> w, int start)
{
    double total = 0.0;
    for (int i = start - 1; i < n; ++i) {
        const double d = x[i] - y[i];
        total += w != nullptr ? (*w)[i] * (d * d) : d * d;
    }
    return total;
}

/** Over the positions `from` to `to`, from 1. */
template <class Cells>
double sumFromTo(const Cells& x, int from, int to)
{
    double total = 0.0;
    for (int i = from - 1; i < to; ++i) {
        total += x[i];
    }
    return total;
}

/** For at least one element; `out` may be `x`. */
template <class Cells, class Sums>
void runningSums(const Cells& x, int n, Sums& out)
{
    out[0] = x[0];
    for (int i = 1; i < n; ++i) {
        out[i] = out[i - 1] + x[i];
    }
}

template <class Cells>
double wrappedSum(const Cells& x, int n)
{
    std::int64_t total = 0;
    for (int i = 0; i < n; ++i) {
        total += x[i];
    }
    const std::int64_t low = total & 0xFFFFFFFF;
    return static_cast<double>(low >= 0x80000000 ? low - 0x100000000 : low);
}

template <class Cells, class Weights>
double frequency(const Cells& x, int n, const Weights& w, double value, double tol)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (std::abs(x[i] - value) < tol) {
            total += w[i];
        }
    }
    return total;
}

/** The result of a mean whose divisor is 0. */
enum class no_mean_when { weight_is_zero, weight_is_not_positive };

template <class Cells, class Term>
double meanOf(const Cells& x, int n, const short int* flags, weights_of<Cells> w, Term term,
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

template <class Cells>
double harmonicMean(const Cells& x, int n, const short int* flags, const Cells& w)
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
