/**
 * @file
 * The logarithm of a binomial coefficient.
 */
#ifndef KORVEL_SPECIAL_LOG_BINOMIAL_H
#define KORVEL_SPECIAL_LOG_BINOMIAL_H

#include "platform/export.h"

/**
 * The logarithm of the number of ways to choose `k` of `n`, as a sum of logarithms over the smaller of `k`
 * and `n - k`.
 *
 * @param n how many there are; a fraction is left out of the count of terms, not out of the terms
 * @param k how many are chosen, likewise. With `k` above `n` the result is log(k + 1)
 * @return the logarithm; 0.0 when `k` is 0 or `n`; `MISSING_DBL` where negative arguments ask for the
 * logarithm of a number that is not positive
 */
KORVEL_API double cLogCnk(double n, double k);

/** The logarithm of a binomial coefficient: `cLogCnk` under another name. */
KORVEL_API double LogCnk(double n, double k);

#endif
