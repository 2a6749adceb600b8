#include "statistics/vector_moments.h"

#include "containers/cells.h"
#include "statistics/pairs.h"
#include "statistics/running_variance.h"

namespace
{

using korvel::pair;

/** What each of two elements adds to the sums of powers: `four + fourPerM2 * m2 - fourPerM3 * m3` and so on.
 */
struct moment_terms {
    pair four;
    pair fourPerM2;
    pair fourPerM3;
    pair three;
    pair threePerM2;
    pair two;

    moment_terms(pair d, pair r, pair w)
    {
        const pair d2 = d * d;
        const pair d3 = d2 * d;
        const pair r2 = r * r;
        four = (1.0 - 4.0 * r + 6.0 * r2 - 3.0 * (r2 * r)) * (d3 * d) * w;
        fourPerM2 = 6.0 * r2 * d2;
        fourPerM3 = 4.0 * r * d;
        three = (1.0 - 3.0 * r + 2.0 * r2) * d3 * w;
        threePerM2 = 3.0 * r * d;
        two = d2 * w * (1.0 - r);
    }
};

/**
 * Running mean and running sums of the second, third and fourth powers of the deviations from it. Each
 * element must wait for the mean; most of the rest is computed for two elements side by side.
 */
class running_moments : public korvel::running_weight
{
public:
    double mean = 0.0;
    double m2 = 0.0;
    double m3 = 0.0;
    double m4 = 0.0;

    void add(double x, double w)
    {
        running_weight::add(w);
        if (w != 0.0) {
            const double d = x - mean;
            const double r = w / sumW;
            mean += d * r;
            if (hasWaiting_) {
                const moment_terms terms(pair{waitingD_, d}, pair{waitingR_, r}, pair{waitingW_, w});
                addTerms(terms, 0);
                addTerms(terms, 1);
            } else {
                waitingD_ = d;
                waitingR_ = r;
                waitingW_ = w;
            }
            hasWaiting_ = !hasWaiting_;
        }
    }

    /** Adds the last of an odd number of elements. */
    void finish()
    {
        if (hasWaiting_) {
            addTerms(moment_terms(pair{waitingD_, waitingD_}, pair{waitingR_, waitingR_},
                                  pair{waitingW_, waitingW_}),
                     0);
        }
    }

private:
    void addTerms(const moment_terms& terms, int lane)
    {
        m4 += terms.four[lane] + terms.fourPerM2[lane] * m2 - terms.fourPerM3[lane] * m3;
        m3 += terms.three[lane] - terms.threePerM2[lane] * m2;
        m2 += terms.two[lane];
    }

    bool hasWaiting_ = false;
    double waitingD_ = 0.0;
    double waitingR_ = 0.0;
    double waitingW_ = 0.0;
};

/** The results of a call. */
struct moment_results {
    double mean = 0.0;
    double var = 0.0;
    double skewP = 0.0;
    double kurtP = 0.0;
    double skew = 0.0;
    double kurt = 0.0;
    double seSkew = 0.0;
    double seKurt = 0.0;
};

moment_results resultsFrom(const running_moments& moments, short int bUnbiased, short int bFreq)
{
    using korvel::rootOrMissing;

    const double sumW = moments.sumW;
    const double meanWeight = moments.kept > 0 ? moments.meanWeight() : 0.0;
    const double unit = bFreq == -1 ? 1.0 : meanWeight;
    const double less1 = sumW - unit;
    const double less2 = sumW - 2.0 * unit;
    const double less3 = sumW - 3.0 * unit;

    moment_results found;
    found.mean = moments.mean;
    found.skewP = found.kurtP = found.skew = found.kurt = MISSING_DBL;
    const double denominator = bUnbiased == -1 ? less1 : sumW;
    if ((bUnbiased == -1 || bUnbiased == 0) && denominator == 0.0) {
        found.var = MISSING_DBL;
        return found;
    }
    found.var = moments.m2 / denominator;
    if (found.var == 0.0) {
        return found;
    }

    found.skewP = moments.m3 / sumW / (found.var * rootOrMissing(found.var));
    found.kurtP = moments.m4 / sumW / (found.var * found.var) - 3.0;
    found.seSkew = found.seKurt = MISSING_DBL;
    // Twice the mean weight, also where the unit is 1.
    if (sumW > 2.0 * meanWeight) {
        found.skew = found.skewP * rootOrMissing(sumW * less1) / less2;
        found.seSkew = rootOrMissing(6.0 * sumW * less1 / (less2 * (sumW + unit) * (sumW + 3.0 * unit)));
    }
    if (sumW > 2.0 * unit && sumW > 3.0 * unit) {
        found.kurt = less1 / (less2 * less3) * ((found.kurtP + 3.0) * (sumW + unit) - 3.0 * less1);
        found.seKurt =
            2.0 * found.seSkew * rootOrMissing((sumW * sumW - unit) / ((sumW + 5.0 * unit) * less3));
    }
    return found;
}

} // namespace

void V_MeanVarSkewPKurtP(matrix<double>* x, int n, double& mean, double& var, double& skewP, double& kurtP,
                         double& skew, double& kurt, double& seSkew, double& seKurt, short int* iMissing,
                         matrix<double>* w, short int bUnbiased, short int bFreq)
{
    auto moments = korvel::withCells(
        [=](auto values, auto weights) {
            return korvel::accumulate<running_moments>(values, n, iMissing, weights);
        },
        n, *x, *w);
    moments.finish();
    const auto found = resultsFrom(moments, bUnbiased, bFreq);
    // A caller may pass one variable for several results that it does not want, so none is read again.
    mean = found.mean;
    var = found.var;
    skewP = found.skewP;
    kurtP = found.kurtP;
    skew = found.skew;
    kurt = found.kurt;
    seSkew = found.seSkew;
    seKurt = found.seKurt;
}
