/**
 * @file
 * What the order of a Cholesky factor's sums costs at least.
 */
#ifndef KORVEL_BENCH_DESCENDING_WALK_H
#define KORVEL_BENCH_DESCENDING_WALK_H

namespace korvel::bench
{

/**
 * Reads what the sums of a Cholesky factor of order n read, in blocks of 24 rows, and adds it up in place of
 * multiplying it: each column of a block needs all columns before it, from the last to the first, after the
 * last one is done, so nothing that is read can serve two columns.
 */
double walkDescending(const double* cells, int n);

} // namespace korvel::bench

#endif
