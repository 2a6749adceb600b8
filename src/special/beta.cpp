#include "special/beta.h"

#include "containers/missing.h"
#include "special/beta_choice.h"
#include "special/beta_terms.h"
#include "special/log_gamma.h"
#include "special/scales.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <utility>

namespace
{

using namespace korvel;

/** The ratio and its complement on a scale, and the status of the expansion that had a part in them. */
template <class Scale>
struct tails {
    double ratio;
    double complement;
    int status;

    static tails ofRatio(double ratio, int status = 0) { return {ratio, Scale::complement(ratio), status}; }

    /** From numbers that are not on the scale yet. */
    static tails ofPlainRatio(double ratio, int status = 0)
    {
        return {Scale::of(ratio), Scale::of1Minus(ratio), status};
    }

    [[nodiscard]] constexpr tails turned() const { return {complement, ratio, status}; }
};

/** a / (a + b) and b / (a + b). The place does not matter where it is inside. */
template <class Scale>
tails<Scale> ofTinyBoth(double a, double b)
{
    const double lesser = std::min(a, b) / (a + b);
    const tails<Scale> found = tails<Scale>::ofPlainRatio(lesser);
    return b < a ? found : found.turned();
}

constexpr double expansionTolerance = 15.0 * betaEpsilon;

/** The complement by the expansion for a large b, which that may have to be made by steps. */
template <class Scale>
expansion_result complementByExpansion(const beta_choice& c)
{
    const int steps = c.way == beta_way::stepsAndExpansion ? stepsToLarge : 0;
    const double start =
        steps == 0 ? Scale::zero : differenceOfSteps<Scale>(c.b, c.a, c.y, c.x, steps, betaEpsilon);
    return addExpansionForLargeA<Scale>(start, c.b + steps, c.a, c.y, c.x, expansionTolerance);
}

/** The ratio by steps that take off the whole part of b, and what is left by the series or the expansion for
 * a large a. */
template <class Scale>
expansion_result ratioByWholeSteps(const beta_choice& c)
{
    const int whole = static_cast<int>(c.b);
    const int steps = whole == c.b ? whole - 1 : whole;
    const double fraction = c.b - steps;
    const double start = differenceOfSteps<Scale>(fraction, c.a, c.y, c.x, steps, betaEpsilon);
    if (c.way == beta_way::wholeAndSeries) {
        return {Scale::sum(start, powerSeries<Scale>(c.a, fraction, c.x, betaEpsilon)), 0};
    }
    if (c.way == beta_way::wholeAndExpansion) {
        return addExpansionForLargeA<Scale>(start, c.a, fraction, c.x, c.y, expansionTolerance);
    }
    const double more = differenceOfSteps<Scale>(c.a, fraction, c.x, c.y, stepsToLarge, betaEpsilon);
    return addExpansionForLargeA<Scale>(Scale::sum(start, more), c.a + stepsToLarge, fraction, c.x, c.y,
                                        expansionTolerance);
}

using way_on_scale = expansion_result (*)(const beta_choice&);

/** The tails from a ratio by one way. A ratio that underflows is computed again as a logarithm. */
template <class Scale>
tails<Scale> withoutUnderflow(way_on_scale plain, way_on_scale logarithmic, const beta_choice& c)
{
    const expansion_result found = plain(c);
    if (found.value >= DBL_MIN) {
        return tails<Scale>::ofPlainRatio(found.value, found.status);
    }
    const expansion_result again = logarithmic(c);
    return tails<Scale>::ofRatio(Scale::ofExp(again.value), again.status);
}

template <class Scale>
tails<Scale> byWay(const beta_choice& c)
{
    using on = tails<Scale>;
    switch (c.way) {
    case beta_way::tinyBoth:
        return ofTinyBoth<Scale>(c.a, c.b);
    case beta_way::tinyB:
        return on::ofRatio(ratioForTinyB<Scale>(c.a, c.b, c.x, betaEpsilon));
    case beta_way::tinyA:
        return on::ofPlainRatio(complementForTinyA(c.a, c.b, c.x, betaEpsilon)).turned();
    case beta_way::series:
        return on::ofRatio(powerSeries<Scale>(c.a, c.b, c.x, betaEpsilon));
    case beta_way::complementSeries:
        return on::ofRatio(powerSeries<Scale>(c.b, c.a, c.y, betaEpsilon)).turned();
    case beta_way::expansion:
    case beta_way::stepsAndExpansion:
        return withoutUnderflow<Scale>(complementByExpansion<plain_scale>, complementByExpansion<log_scale>,
                                       c)
            .turned();
    case beta_way::fraction:
        return on::ofRatio(continuedFraction<Scale>(c.a, c.b, c.x, c.y, c.lambda, 15.0 * betaEpsilon));
    case beta_way::largeBoth:
        return on::ofRatio(expansionForLargeBoth<Scale>(c.a, c.b, c.lambda, 100.0 * betaEpsilon));
    default:
        return withoutUnderflow<Scale>(ratioByWholeSteps<plain_scale>, ratioByWholeSteps<log_scale>, c);
    }
}

/** What is left when all weight is at one place, or the place asked for is at an end. */
template <class Scale>
tails<Scale> ofWeightAtOnePlace(double a, double b, double x, double y)
{
    constexpr tails<Scale> allAbove{Scale::zero, Scale::one, 0};
    if (x == 0.0 || y == 0.0) {
        return x == 0.0 ? allAbove : allAbove.turned();
    }
    if (std::isinf(a) && std::isinf(b)) {
        return x < 0.5 ? allAbove : allAbove.turned();
    }
    return b == 0.0 || std::isinf(a) ? allAbove : allAbove.turned();
}

/** What arguments that are in order come to. */
template <class Scale>
tails<Scale> ratioOf(double a, double b, double x, double y)
{
    if (std::min(x, y) == 0.0 || std::min(a, b) == 0.0 || std::isinf(std::max(a, b))) {
        return ofWeightAtOnePlace<Scale>(a, b, x, y);
    }
    const beta_choice chosen = chooseBetaWay(a, b, x, y);
    const tails<Scale> found = byWay<Scale>(chosen);
    return chosen.isTurned ? found.turned() : found;
}

/** The status of arguments that are refused; 0 for others. */
int refusal(double a, double b, double x, double y)
{
    constexpr double tolerance = 3.0 * DBL_EPSILON;
    if (std::isunordered(a, b) || std::isunordered(x, y)) {
        return 9;
    }
    if (a < 0.0 || b < 0.0) {
        return 1;
    }
    if (a == 0.0 && b == 0.0) {
        return 2;
    }
    if (x < 0.0 || x > 1.0) {
        return 3;
    }
    if (y < 0.0 || y > 1.0) {
        return 4;
    }
    if (std::fabs(x + y - 0.5 - 0.5) > tolerance) {
        return 5;
    }
    if (x == 0.0 && a == 0.0) {
        return 6;
    }
    return y == 0.0 && b == 0.0 ? 7 : 0;
}

template <class Scale>
void ratioOnScale(double a, double b, double x, double y, double* w, double* w1, int* ierr)
{
    *w = Scale::zero;
    *w1 = Scale::zero;
    *ierr = refusal(a, b, x, y);
    if (*ierr != 0) {
        return;
    }
    const tails<Scale> found = ratioOf<Scale>(a, b, x, y);
    // Rounding errors and overflows leave nothing below the value of 0.
    *w = std::max(found.ratio, Scale::zero);
    *w1 = std::max(found.complement, Scale::zero);
    *ierr = found.status == 0 ? 0 : 10 + found.status;
}

} // namespace

double betaln(double a, double b)
{
    constexpr double large = 10.0;
    constexpr double halfLogOf2Pi = 0.9189385332046728;
    // A NaN is one of the two, whichever argument it is.
    const double p = a < b ? a : b;
    const double q = a < b ? b : a;
    if (q < large) {
        return GammaLn(a) + GammaLn(b) - GammaLn(a + b);
    }
    const double correctionOfQ = GammaLnCorr(q);
    const double s = p + q;
    const double r = -p / s;
    if (p >= large) {
        const double correction = GammaLnCorr(p) + correctionOfQ - GammaLnCorr(s);
        return q * std::log1p(r) + (p - 0.5) * std::log(p / s) + halfLogOf2Pi - 0.5 * std::log(q) +
               correction;
    }
    return GammaLn(p) + (correctionOfQ - GammaLnCorr(s)) + p - p * std::log(s) + (q - 0.5) * std::log1p(r);
}

void bratio(double a, double b, double x, double y, double* w, double* w1, int* ierr, int log_p)
{
    if (log_p != 0) {
        ratioOnScale<log_scale>(a, b, x, y, w, w1, ierr);
    } else {
        ratioOnScale<plain_scale>(a, b, x, y, w, w1, ierr);
    }
}

double IncompleteBetaR(double x, double a, double b)
{
    double w = 0.0;
    double w1 = 0.0;
    int status = 0;
    bratio(a, b, x, 1.0 - x, &w, &w1, &status, 0);
    return w;
}

double IncompleteBeta(double x, double a, double b)
{
    return std::exp(betaln(a, b)) * IncompleteBetaR(x, a, b);
}
