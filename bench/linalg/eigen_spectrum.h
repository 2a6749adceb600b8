/**
 * @file
 * The symmetric eigen solver of the peer Eigen, on one thread.
 */
#ifndef KORVEL_BENCH_EIGEN_SPECTRUM_H
#define KORVEL_BENCH_EIGEN_SPECTRUM_H

namespace korvel::bench
{

/** Values and vectors of a table of order n, compiled for the machine that the benchmark runs on. */
void eigenSpectrum(const double* a, double* values, double* vectors, int n);

/** Compiled for AVX without fused multiplication and addition: the arithmetic of ours. */
void eigenSeparateSpectrum(const double* a, double* values, double* vectors, int n);

} // namespace korvel::bench

#endif
