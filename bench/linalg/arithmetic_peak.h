#ifndef KORVEL_BENCH_ARITHMETIC_PEAK_H
#define KORVEL_BENCH_ARITHMETIC_PEAK_H

namespace korvel::bench
{

/**
 * Adds products to sums in registers alone, as wide as this machine has them: what no product of tables can
 * beat. A multiplication and then an addition, as the sums of the library are made.
 * @return how many multiplications and additions it was
 */
double separateArithmetic();

/** The same in the registers of AVX2, which the machine must have. */
double separateArithmeticOfAvx2();

/** The same in the registers that every machine has. */
double separateArithmeticOfBaseline();

/** As wide as this machine has them again, each pair fused, as the peers may do it. */
double fusedArithmetic();

} // namespace korvel::bench

#endif
