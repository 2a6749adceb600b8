/**
 * @file
 * Order statistics of a vector without sorting it whole.
 */
#ifndef KORVEL_ORDERING_SELECTION_H
#define KORVEL_ORDERING_SELECTION_H

#include "containers/matrix.h"

#include <cstdint>
#include <vector>

namespace korvel
{

/**
 * The elements of a vector by rank, in stable ascending order. Each is found when it is asked for. The two
 * zeros are equal, and each rank has the sign of the zero that a sort would put there. A vector that contains
 * a NaN is sorted whole.
 */
class ranked_values
{
public:
    /** The first `n` elements of `x`, read through its checked access. */
    ranked_values(const matrix<double>& x, int n);
    explicit ranked_values(std::vector<double> values);

    [[nodiscard]] int size() const { return static_cast<int>(original_.size()); }

    /** The element of rank `k`, from 0. Any other `k` gives -1.0, the spare slot of a fresh vector. */
    [[nodiscard]] double operator[](std::int64_t k);

private:
    void prepare();

    std::vector<double> original_;
    std::vector<double> working_;
    std::int64_t placed_ =
        -1; ///< Rank at which `working_` is split; below it nothing is greater, above nothing smaller.
    bool sorted_ = false;
};

/** The quantile of ranked values: see `V_Quantile`. Missing when there are none. */
[[nodiscard]] double quantileOf(ranked_values& ranked, double q);

/** Whether a position is an integer up to rounding: its fraction is within 1e-12 of 0 or of 1. */
[[nodiscard]] bool isWholePosition(double position);

} // namespace korvel

#endif
