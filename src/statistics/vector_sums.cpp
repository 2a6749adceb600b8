#include "statistics/vector_sums.h"

#include "containers/cells.h"
#include "statistics/stand_ins.h"

namespace
{

/**
 * A sum that starts at +0.0 never becomes -0.0, so adding +0.0 for an element that is left out changes no
 * bit, and the loop needs no branch.
 */
template <class Values, class Weights, class Flags>
double weightedSum(Values x, int n, Flags flags, Weights w)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        const bool kept = flags[i] == 0 && w[i] != MISSING_DBL && x[i] != MISSING_DBL;
        sum += kept ? w[i] * x[i] : 0.0;
    }
    return sum;
}

} // namespace

double V_Sum(matrix<double>* x, int n, short int* iMissing, matrix<double>* w)
{
    return korvel::withFlags(iMissing, [&](auto flags) {
        if (w == nullptr) {
            return korvel::withCells(
                n, [&](auto values) { return weightedSum(values, n, flags, korvel::unit_weights{}); }, *x);
        }
        return korvel::withCells(
            n, [&](auto values, auto weights) { return weightedSum(values, n, flags, weights); }, *x, *w);
    });
}
