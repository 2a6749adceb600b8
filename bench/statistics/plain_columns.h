/**
 * @file
 * The loops that a programmer would write for covariances, and for means and deviations, of columns, compiled
 * as a user's own code is (-O2). They are the loops that the tests hold the library against.
 */
#ifndef KORVEL_BENCH_PLAIN_COLUMNS_H
#define KORVEL_BENCH_PLAIN_COLUMNS_H

namespace korvel::bench::plain
{

/** The upper half of the table of pairwise covariances, by the sum of the weights less 1. */
void covariances(const double* x, int rows, int cols, const double* w, double* out);

void deviations(const double* x, int rows, int cols, const double* w, double* means, double* sds);

} // namespace korvel::bench::plain

#endif
