/**
 * @file
 * The product of the peer Eigen, compiled for the machine that the benchmark runs on, so that it is the best
 * that Eigen can do there.
 */
#ifndef KORVEL_BENCH_EIGEN_PRODUCT_H
#define KORVEL_BENCH_EIGEN_PRODUCT_H

namespace korvel::bench
{

/** c = a * b, all of them n by n, column after column, on one thread. */
void eigenProduct(const double* a, const double* b, double* c, int n);

} // namespace korvel::bench

#endif
