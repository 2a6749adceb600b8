/**
 * @file
 * Incomplete beta ratios in a hundred digits, of which tests/data/special has the origin.
 */
#ifndef KORVEL_TESTS_SUPPORT_INCOMPLETE_BETA_TABLE_H
#define KORVEL_TESTS_SUPPORT_INCOMPLETE_BETA_TABLE_H

#include <string>
#include <vector>

namespace korvel::test
{

/** A ratio, its complement, and their logarithms. */
struct incomplete_beta_point {
    std::string way; ///< the way that the algorithm takes
    double a;
    double b;
    double x;
    double y;
    double ratio;
    double complement;
    double logRatio;
    double logComplement;
};

/** All points of the file. */
std::vector<incomplete_beta_point> readIncompleteBetaPoints();

} // namespace korvel::test

#endif
