#include "special/beta_choice.h"

#include "special/beta_terms.h"

#include <algorithm>
#include <cmath>

namespace korvel
{

namespace
{

/** For a parameter of at most 1, with x at most 1/2. */
beta_way wayForSmall(double a, double b, double x)
{
    if (b < std::min(betaEpsilon, betaEpsilon * a)) {
        return beta_way::tinyB;
    }
    if (a < std::min(betaEpsilon, betaEpsilon * b) && b * x <= 1.0) {
        return beta_way::tinyA;
    }
    if (std::max(a, b) > 1.0) {
        if (b <= 1.0) {
            return beta_way::series;
        }
        if (x >= 0.29) {
            return beta_way::complementSeries;
        }
        if (x < 0.1 && std::pow(x * b, a) <= 0.7) {
            return beta_way::series;
        }
        return b > 15.0 ? beta_way::expansion : beta_way::stepsAndExpansion;
    }
    if (a >= std::min(0.2, b) || std::pow(x, a) <= 0.9) {
        return beta_way::series;
    }
    return x >= 0.3 ? beta_way::complementSeries : beta_way::stepsAndExpansion;
}

/** For parameters above 1, with x at most the mean. */
beta_way wayForLarge(double a, double b, double x, double lambda)
{
    if (b < 40.0) {
        if (b * x <= 0.7) {
            return beta_way::series;
        }
        if (x <= 0.7) {
            return beta_way::wholeAndSeries;
        }
        return a > 15.0 ? beta_way::wholeAndExpansion : beta_way::wholeStepsExpansion;
    }
    const double lesser = std::min(a, b);
    return lesser <= 100.0 || lambda > 0.03 * lesser ? beta_way::fraction : beta_way::largeBoth;
}

} // namespace

beta_choice chooseBetaWay(double a, double b, double x, double y)
{
    if (std::max(a, b) < 0.001 * betaEpsilon) {
        return {beta_way::tinyBoth, false, a, b, x, y, 0.0};
    }
    const bool bothLarge = std::min(a, b) > 1.0;
    const double lambda = bothLarge ? distanceFromMean(a, b, x, y) : 0.0;
    const bool isTurned = bothLarge ? lambda < 0.0 : x > 0.5;
    beta_choice chosen{beta_way::tinyBoth, isTurned, a, b, x, y, std::fabs(lambda)};
    if (isTurned) {
        std::swap(chosen.a, chosen.b);
        std::swap(chosen.x, chosen.y);
    }
    chosen.way = bothLarge ? wayForLarge(chosen.a, chosen.b, chosen.x, chosen.lambda)
                           : wayForSmall(chosen.a, chosen.b, chosen.x);
    return chosen;
}

} // namespace korvel
