/**
 * @file
 * Errors of functions beside a truth in the longest type.
 */
#ifndef KORVEL_TESTS_SUPPORT_RELATIVE_ERROR_H
#define KORVEL_TESTS_SUPPORT_RELATIVE_ERROR_H

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace korvel::test
{

/** In units of epsilon, relative to the truth, which is not 0. */
inline double relativeError(double found, long double truth)
{
    return static_cast<double>(std::fabs((static_cast<long double>(found) - truth) / truth)) / DBL_EPSILON;
}

/** The largest error of a function over evenly spaced places, in which the truth is not 0. */
template <class Found, class Truth>
double largestRelativeError(double from, double to, Found found, Truth truth)
{
    constexpr int places = 1999;
    double error = 0.0;
    for (int k = 0; k <= places; ++k) {
        const double x = from + (to - from) * k / places;
        error = std::max(error, relativeError(found(x), truth(static_cast<long double>(x))));
    }
    return error;
}

} // namespace korvel::test

#endif
