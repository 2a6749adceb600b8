/**
 * @file
 * The least time that the order of a Cholesky factor's sums allows.
 */
#ifndef KORVEL_BENCH_DESCENDING_WALK_H
#define KORVEL_BENCH_DESCENDING_WALK_H

namespace korvel::bench
{

/**
 * Reads the same elements as the sums of a Cholesky factor of order n, in blocks of 24 rows, and adds them
 * instead of multiplying. Each column of a block needs all columns before it, from the last to the first. The
 * last one is complete only then, so no element read can serve two columns.
 */
double walkDescending(const double* cells, int n);

} // namespace korvel::bench

#endif
