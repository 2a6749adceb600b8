/**
 * @file
 * The factorisations of the peer Eigen, in place, of an n by n table, column after column, on one thread.
 */
#ifndef KORVEL_BENCH_EIGEN_FACTORS_H
#define KORVEL_BENCH_EIGEN_FACTORS_H

namespace korvel::bench
{

/** Compiled for the machine that the benchmark runs on: the best that Eigen can do there. */
void eigenLU(double* a, int n);
void eigenCholesky(double* a, int n);

/** Compiled for AVX without fused multiplication and addition: the arithmetic of ours. */
void eigenSeparateLU(double* a, int n);
void eigenSeparateCholesky(double* a, int n);

} // namespace korvel::bench

#endif
