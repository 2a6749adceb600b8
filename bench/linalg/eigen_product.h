/**
 * @file
 * The product of the peer Eigen: c = a * b, all of them n by n, column after column, on one thread.
 */
#ifndef KORVEL_BENCH_EIGEN_PRODUCT_H
#define KORVEL_BENCH_EIGEN_PRODUCT_H

namespace korvel::bench
{

/** Compiled for the machine that the benchmark runs on: the best that Eigen can do there. */
void eigenProduct(const double* a, const double* b, double* c, int n);

/** Compiled for AVX without fused multiplication and addition: the arithmetic of ours. */
void eigenSeparateProduct(const double* a, const double* b, double* c, int n);

} // namespace korvel::bench

#endif
