/**
 * @file
 * The peer OpenBLAS a second time in the same program, held to instructions that do not fuse a multiplication
 * and an addition: the arithmetic of ours.
 */
#ifndef KORVEL_BENCH_BLAS_WITHOUT_FUSING_H
#define KORVEL_BENCH_BLAS_WITHOUT_FUSING_H

namespace korvel::bench
{

/** c = a * b, all of them n by n, column after column, on one thread. */
void dgemmWithoutFusing(const double* a, const double* b, double* c, int n);

} // namespace korvel::bench

#endif
