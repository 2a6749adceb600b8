/**
 * @file
 * The incomplete beta ratio of peers, at a point of the table of the tests.
 */
#ifndef KORVEL_BENCH_SPECIAL_PEERS_H
#define KORVEL_BENCH_SPECIAL_PEERS_H

#include "support/incomplete_beta_table.h"

namespace korvel::bench
{

using point = test::incomplete_beta_point;

/** R's, as it is or as a logarithm, from the one of x and y that the table gives; the ratio or its
 * complement. */
double ratioOfR(const point& p, bool complement, bool logarithm);

/** Boost's, in doubles throughout. */
double ratioOfBoost(const point& p);

/** Boost's as it comes: in long doubles. */
double ratioOfBoostPromoted(const point& p);

} // namespace korvel::bench

#endif
