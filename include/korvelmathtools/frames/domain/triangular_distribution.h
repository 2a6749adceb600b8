/**
 * @file
 * Flat functions: the triangular distribution with a given mode through two points.
 */
#ifndef KORVEL_FRAMES_DOMAIN_TRIANGULAR_DISTRIBUTION_H
#define KORVEL_FRAMES_DOMAIN_TRIANGULAR_DISTRIBUTION_H

#include "frames/types.h"

/**
 * The bounds of a triangular distribution with a given mode, whose distribution function is p1 at q1 and p2
 * at q2. With the mode between the quantiles they come from at most 501 steps of Newton's method; nothing
 * tells when those were not enough.
 *
 * @param q1   the lower quantile
 * @param mode the mode
 * @param q2   the upper quantile
 * @param p1   probability up to q1
 * @param p2   probability up to q2
 * @param a    [out] one number: the lower bound
 * @param b    [out] one number: the upper bound
 * @return 0
 */
KORVEL_FLAT int Cpp_TriangularQFindAB(double q1, double mode, double q2, double p1, double p2, double* a,
                                      double* b);

#endif
