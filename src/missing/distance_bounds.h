/**
 * @file
 * Lower bounds of the distances between a row and its candidates, several candidates side by side. A scan for
 * the nearest candidate computes the distance itself, with its divisions and its tests, only where the bound
 * leaves it open whether the candidate is nearer; which one is found does not depend on the bounds.
 */
#ifndef KORVEL_MISSING_DISTANCE_BOUNDS_H
#define KORVEL_MISSING_DISTANCE_BOUNDS_H

#include <cstddef>
#include <vector>

namespace korvel
{

/** The numbers of the candidates, laid out for the bounds. */
class distance_bounds
{
public:
    static constexpr int candidatesAtOnce = 8;

    /** The candidates of a block that may be nearer: bit l for candidate l of the block. */
    using choice = unsigned;

    /** The columns are those that `addColumn` adds, in the order of the additions. */
    distance_bounds(std::size_t candidates, std::size_t columns);

    /** @param cell `cell(k)` is the number of candidate k in the column */
    template <class Cell>
    void addColumn(double variance, Cell cell)
    {
        inverses_.push_back(inverseOf(variance));
        for (std::size_t k = 0; k < candidates_; ++k) {
            cells_[placeOf(k / candidatesAtOnce, added_) + k % candidatesAtOnce] = cell(k);
        }
        ++added_;
    }

    /** Starts the distances from another row. */
    void startRow() { compared_.clear(); }

    /** Compares a column, in which the row has the number `x`, if it can be part of a bound. */
    void compare(std::size_t column, double x)
    {
        if (inverses_[column] != 0.0) {
            compared_.push_back({column, x, inverses_[column]});
        }
    }

    /** Which candidates of a block may have a distance below `best`; the last block may be a part. */
    [[nodiscard]] choice maybeNearer(std::size_t block, double best) const;

private:
    struct compared_column {
        std::size_t column;
        double x;
        double inverse;
    };

    /** One over the variance; 0.0 where bounds leave the column out: it is not compared, or one over its
     * variance is no number that a double can hold. */
    [[nodiscard]] static double inverseOf(double variance);

    [[nodiscard]] std::size_t placeOf(std::size_t block, std::size_t column) const
    {
        return (block * columns_ + column) * candidatesAtOnce;
    }

    std::size_t candidates_;
    std::size_t columns_;
    std::size_t added_ = 0;
    std::vector<double> cells_; ///< the cells of a column for the candidates of a block lie side by side
    std::vector<double> inverses_;
    std::vector<compared_column> compared_;
};

} // namespace korvel

#endif
