/**
 * @file
 * Plain twins of the means and variances of columns, with nothing done for speed. Null flags and weights mean
 * none.
 */
#ifndef KORVEL_TESTS_REFERENCE_COLUMN_MOMENTS_H
#define KORVEL_TESTS_REFERENCE_COLUMN_MOMENTS_H

#include "reference/vector_variance.h"

namespace korvel::reference
{

/** The moments of a column, or of several columns taken as one sample. */
class moments_of_column
{
public:
    /** The cells of `at(i)` for the rows that are kept: unflagged, of a weight other than 0, not missing. */
    template <class At>
    void add(At at, int n, const short int* flags, const matrix<double>* w)
    {
        for (int i = 0; i < n; ++i) {
            const double wi = w == nullptr ? 1.0 : static_cast<const matrix<double>&>(*w)[i];
            const double x = at(i);
            if ((flags != nullptr && flags[i] != 0) || wi == 0.0 || x == MISSING_DBL) {
                continue;
            }
            m_ += 1;
            s_ += wi;
            const double d = x - mean_;
            m2_ += (wi - (wi * wi) / s_) * (d * d);
            mean_ += (wi * d) / s_;
        }
    }

    double mean() const { return mean_; }

    double variance(denominator_flags how) const
    {
        const double divisor = denominatorOf(s_, m_, how);
        return divisor == 0.0 ? MISSING_DBL : m2_ / divisor;
    }

    double deviation(denominator_flags how) const
    {
        const double var = variance(how);
        return var == 0.0 ? 0.0 : var < 0.0 ? MISSING_DBL : std::sqrt(var);
    }

private:
    double s_ = 0.0;
    double mean_ = 0.0;
    double m2_ = 0.0;
    int m_ = 0;
};

} // namespace korvel::reference

#endif
