/**
 * @file
 * The one-pass updates behind every weighted variance (D. H. D. West, Communications of the ACM 22, 1979).
 * They are equal on paper and round differently, so each routine keeps its own.
 */
#ifndef KORVEL_STATISTICS_RUNNING_VARIANCE_H
#define KORVEL_STATISTICS_RUNNING_VARIANCE_H

#include "containers/missing.h"

#include <cmath>

namespace korvel
{

/** Total weight and number of the elements kept; an element of weight 0 is counted. */
struct running_weight {
    double sumW = 0.0;
    int kept = 0;

    void add(double w)
    {
        ++kept;
        sumW += w;
    }

    /** The mean weight: 0/0, a NaN, when nothing was kept. */
    [[nodiscard]] double meanWeight() const { return sumW / kept; }

    /**
     * What a sum of squares is divided by: the total weight unless `bUnbiased` is -1; then that less 1 when
     * `bFreq` is -1, each weight counting as so many observations, and otherwise less the mean weight.
     */
    [[nodiscard]] double denominator(short int bUnbiased, short int bFreq) const
    {
        if (bUnbiased != -1) {
            return sumW;
        }
        return sumW - (bFreq == -1 ? 1.0 : meanWeight());
    }
};

/** Mean and sum of squares, updated with a quotient made after the deviation. */
struct running_variance : running_weight {
    double mean = 0.0;
    double m2 = 0.0;

    void add(double x, double w)
    {
        running_weight::add(w);
        if (w != 0.0) {
            const double d = x - mean;
            m2 += (w - w * w / sumW) * (d * d);
            mean += w * d / sumW;
        }
    }
};

/** Mean and sum of squares, updated with the weight's share of the total, which is at hand before the mean.
 */
struct running_share_variance {
    double mean = 0.0;
    double m2 = 0.0;

    void add(double x, double w, double share)
    {
        const double d = x - mean;
        mean += d * share;
        m2 += d * d * w * (1.0 - share);
    }
};

/** The square root; what a rounding error has made negative becomes missing. */
[[nodiscard]] inline double rootOrMissing(double x)
{
    return x < 0.0 ? MISSING_DBL : std::sqrt(x);
}

} // namespace korvel

#endif
