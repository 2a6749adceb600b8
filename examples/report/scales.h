/**
 * @file
 * Round numbers along an axis.
 */
#ifndef KORVEL_EXAMPLES_SCALES_H
#define KORVEL_EXAMPLES_SCALES_H

#include <string>
#include <vector>

namespace report
{

/** 1, 2 or 5 times a power of ten: the least such number that is not below `least`, which is above 0. */
double roundStep(double least);

/** Lays the numbers from `low` to `high` onto the stretch from `begin` to `end` of a picture. */
class scale
{
public:
    /** A stretch of no length is widened round its one number. */
    scale(double low, double high, double begin, double end);

    [[nodiscard]] double at(double number) const
    {
        return begin_ + (number - low_) / (high_ - low_) * (end_ - begin_);
    }

    /** Round numbers inside, about as many as `count`, and no closer to each other than `leastStep`. */
    [[nodiscard]] std::vector<double> ticks(int count, double leastStep = 0.0) const;

private:
    double low_;
    double high_;
    double begin_;
    double end_;
};

/** The numbers with the decimals that tell neighbours apart. */
std::vector<std::string> shownTicks(const std::vector<double>& ticks);

} // namespace report

#endif
