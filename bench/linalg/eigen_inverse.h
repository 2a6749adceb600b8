/**
 * @file
 * The inverse of the peer Eigen by LU decomposition: out = a to the minus one, n by n, column after column,
 * on one thread.
 */
#ifndef KORVEL_BENCH_EIGEN_INVERSE_H
#define KORVEL_BENCH_EIGEN_INVERSE_H

namespace korvel::bench
{

/** Compiled for the machine that the benchmark runs on: the best that Eigen can do there. */
void eigenInverse(const double* a, double* out, int n);

/** Compiled for AVX without fused multiplication and addition: the arithmetic of ours. */
void eigenSeparateInverse(const double* a, double* out, int n);

} // namespace korvel::bench

#endif
