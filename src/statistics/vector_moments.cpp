#include "statistics/vector_moments.h"

#include "containers/cells.h"
#include "statistics/running_variance.h"

namespace
{

/** Running sums of the second, third and fourth powers of the deviations from a running mean. */
struct running_moments : korvel::running_weight {
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
            const double d2 = d * d;
            const double r2 = r * r;
            const double d3 = d2 * d;
            m4 += (1.0 - 4.0 * r + 6.0 * r2 - 3.0 * (r2 * r)) * (d3 * d) * w + 6.0 * r2 * d2 * m2 -
                  4.0 * r * d * m3;
            m3 += (1.0 - 3.0 * r + 2.0 * r2) * d3 * w - 3.0 * r * d * m2;
            m2 += d2 * w * (1.0 - r);
            mean += d * r;
        }
    }
};

/** What a caller gets. */
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
    const auto accumulated = [=](auto values, auto weights) {
        return korvel::accumulate<running_moments>(values, n, iMissing, weights);
    };
    const auto found = resultsFrom(korvel::withCells(n, accumulated, *x, *w), bUnbiased, bFreq);
    // A caller may give one place for several results that it does not want: none is read again.
    mean = found.mean;
    var = found.var;
    skewP = found.skewP;
    kurtP = found.kurtP;
    skew = found.skew;
    kurt = found.kurt;
    seSkew = found.seSkew;
    seKurt = found.seKurt;
}
