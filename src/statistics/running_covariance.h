/**
 * @file
 * The one-pass updates behind the covariances: the running means of two columns, and running sums of the
 * products of their deviations.
 */
#ifndef KORVEL_STATISTICS_RUNNING_COVARIANCE_H
#define KORVEL_STATISTICS_RUNNING_COVARIANCE_H

#include "statistics/running_variance.h"

namespace korvel
{

/** The means of two columns over the rows in which both are kept. */
struct running_means : running_weight {
    double meanX = 0.0;
    double meanY = 0.0;

    /**
     * Adds a row, which is counted whatever its weight.
     * @param use for a weight other than 0 it gets the factor of this row's products, and the deviations of
     * `x` and `y` from the means so far
     */
    template <class Use>
    void add(double x, double y, double w, Use use)
    {
        running_weight::add(w);
        if (w != 0.0) {
            const double dx = x - meanX;
            const double dy = y - meanY;
            use(w - w * w / sumW, dx, dy);
            meanX += w * dx / sumW;
            meanY += w * dy / sumW;
        }
    }
};

/** The update of `M_CovCorr`. */
struct running_covariance : running_means {
    double products = 0.0;

    void add(double x, double y, double w)
    {
        running_means::add(x, y, w,
                           [this](double factor, double dx, double dy) { products += factor * dx * dy; });
    }
};

/** The same, with the sums of squares of both columns over the common rows. */
struct running_correlation : running_means {
    double products = 0.0;
    double squaresX = 0.0;
    double squaresY = 0.0;

    void add(double x, double y, double w)
    {
        running_means::add(x, y, w, [this](double factor, double dx, double dy) {
            products += factor * dx * dy;
            squaresX += factor * dx * dx;
            squaresY += factor * dy * dy;
        });
    }
};

} // namespace korvel

#endif
