/**
 * @file
 * The one-pass updates behind the variances: a running mean and a running sum of squares. They are equal in
 * exact arithmetic but round differently, so each routine keeps its own.
 */
#ifndef KORVEL_STATISTICS_RUNNING_VARIANCE_H
#define KORVEL_STATISTICS_RUNNING_VARIANCE_H

#include "containers/missing.h"

#include <cstdint>

namespace korvel
{

/** The total weight and the number of the elements kept. An element of weight 0 is counted too. */
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

/** The update of `V_Var`: the weighted deviation is divided by the total weight. */
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

    /** The sum of squares over the denominator, of which only an exact 0 is tested: it gives missing. */
    [[nodiscard]] double variance(short int bUnbiased, short int bFreq) const
    {
        const double under = denominator(bUnbiased, bFreq);
        return under == 0.0 ? MISSING_DBL : m2 / under;
    }
};

/** The update of `V_MeanVar`: the step of the mean also enters the sum of squares. */
struct running_step_variance : running_weight {
    double mean = 0.0;
    double m2 = 0.0;

    void add(double x, double w)
    {
        running_weight::add(w);
        if (w != 0.0) {
            const double d = x - mean;
            const double step = w * d / sumW;
            mean += step;
            m2 += (sumW - w) * step * d;
        }
    }
};

/** The update with the weight's share of the total, a quotient that does not wait for the mean. */
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

/** The update of `V_MeanVarW2`, in which a total weight of 0 gives a share of 0. */
struct running_guarded_share_variance : running_weight {
    running_share_variance shares;

    void add(double x, double w)
    {
        running_weight::add(w);
        shares.add(x, w, sumW == 0.0 ? 0.0 : w / sumW);
    }
};

/** The update without weights. */
struct running_count_variance {
    double count = 0.0;
    double mean = 0.0;
    double m2 = 0.0;

    void add(double x)
    {
        count += 1.0;
        const double d = x - mean;
        mean += d / count;
        m2 += d * d * (1.0 - 1.0 / count);
    }
};

/**
 * The update of the variance of a group: `spread(w, d, sumW)` is what a weight and its deviation add to the
 * sum of squares. A total weight of 0 is not looked for, and gives 0/0.
 */
template <class Spread>
struct running_group_variance : running_weight {
    Spread spread;
    double mean = 0.0;
    double m2 = 0.0;

    explicit running_group_variance(Spread ofGroup) : spread(ofGroup) {}

    void add(double x, double w)
    {
        running_weight::add(w);
        const double d = x - mean;
        mean += w * d / sumW;
        m2 += spread(w, d, sumW);
    }
};

/**
 * Adds the elements that are kept: flag 0 and value not missing.
 * @param state has `add(x, w)`; it is a copy, so that it lives in registers
 */
template <class State, class Values, class Flags, class Weights>
[[nodiscard]] State accumulate(Values x, int n, Flags flags, Weights w, State state = {})
{
    // A branch, not a mask: each update takes more than ten cycles, which hides a wrong prediction.
    for (int i = 0; i < n; ++i) {
        if (flags[i] == 0 && x[i] != MISSING_DBL) {
            state.add(x[i], w[i]);
        }
    }
    return state;
}

/** A variance whose denominator has to be greater than 0. */
[[nodiscard]] inline double overPositive(double m2, double denominator)
{
    return denominator > 0.0 ? m2 / denominator : MISSING_DBL;
}

/** `rootOrMissing`, but 0.0 for a variance of either zero. */
[[nodiscard]] inline double deviationFrom(double variance)
{
    return variance == 0.0 ? 0.0 : rootOrMissing(variance);
}

} // namespace korvel

#endif
