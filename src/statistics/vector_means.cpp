#include "statistics/vector_means.h"

#include "containers/cells.h"
#include "statistics/running_variance.h"
#include "statistics/stand_ins.h"
#include "statistics/weighted_total.h"

#include <cmath>

namespace
{

using korvel::absolute;
using korvel::only;
using korvel::pair;
using korvel::present;
using korvel::weighted_total;
using korvel::withCells;

/** The sums of `term(x, w)` and of `w` over the elements kept. */
template <class Values, class Flags, class Weights, class Term>
weighted_total keptTotal(Values x, int n, Flags flags, Weights w, Term term)
{
    const auto termsOf = [term](pair value, pair unflagged, pair weight) {
        const pair kept = only(unflagged, present(value));
        const pair weights = only(kept, weight);
        return korvel::weighted_terms{only(kept, term(value, weights)), weights};
    };
    return korvel::totalOf(0, n, termsOf, x, flags, w);
}

constexpr auto product = [](pair x, pair w) { return w * x; };

} // namespace

double V_Mean(matrix<double>* x, int n, short int* iMissing, matrix<double>* w)
{
    const auto total = [=](auto values, auto weights) {
        return keptTotal(values, n, iMissing, weights, product);
    };
    return withCells(total, n, *x, *w).mean();
}

double V_MeanAbs(matrix<double>* x, int n, short int* iMissing, matrix<double>* w)
{
    const auto total = [=](auto values, auto weights) {
        return keptTotal(values, n, iMissing, weights,
                         [](pair value, pair weight) { return weight * absolute(value); });
    };
    return withCells(total, n, *x, *w).mean();
}

double V_Mean2(const matrix<double>& x, int n)
{
    const auto total = [n](auto values) {
        return keptTotal(values, n, korvel::no_flags{}, korvel::unit_weights{}, product);
    };
    return withCells(total, n, x).mean();
}

double V_Mean2(matrix<double>* x, int n)
{
    return V_Mean2(*x, n);
}

double V_MeanW2(matrix<double>* x, int n, matrix<double>* w)
{
    const auto total = [n](auto values, auto weights) {
        return keptTotal(values, n, korvel::no_flags{}, weights, product);
    };
    const weighted_total result = withCells(total, n, *x, *w);
    return result.sumW > 0.0 ? result.sum / result.sumW : MISSING_DBL;
}

double V_HarmonicMean(matrix<double>* x, int n, short int* iMissing, matrix<double>* w)
{
    const auto mean = [=](auto values, auto weights) {
        const auto total =
            keptTotal(values, n, iMissing, weights, [](pair value, pair weight) { return weight / value; });
        // A division by zero makes the sum infinite or a NaN, but so may other elements: look for the zero.
        for (int i = 0; i < n && !std::isfinite(total.sum); ++i) {
            if (iMissing[i] == 0 && values[i] == 0.0) {
                return MISSING_DBL;
            }
        }
        return total.sum == 0.0 ? MISSING_DBL : total.sumW / total.sum;
    };
    return withCells(mean, n, *x, *w);
}

int V_GMeanGSD(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, double& gmean, double& gsd)
{
    gmean = MISSING_DBL;
    gsd = MISSING_DBL;
    const auto compute = [&](auto values, auto weights) {
        korvel::running_weight total;
        korvel::running_share_variance logarithms;
        for (int i = 0; i < n; ++i) {
            if (iMissing[i] != 0 || values[i] == MISSING_DBL) {
                continue;
            }
            if (!(values[i] > 0.0)) {
                return;
            }
            total.add(weights[i]);
            if (weights[i] != 0.0) {
                logarithms.add(std::log(values[i]), weights[i], weights[i] / total.sumW);
            }
        }
        if (total.kept == 0) {
            return;
        }
        gmean = std::exp(logarithms.mean);
        const double denominator = total.sumW - total.meanWeight();
        if (denominator != 0.0) {
            gsd = std::exp(korvel::rootOrMissing(logarithms.m2 / denominator));
        }
    };
    korvel::withCells(compute, n, *x, *w);
    return 0;
}
