#ifndef KORVEL_BENCH_ARITHMETIC_PEAK_H
#define KORVEL_BENCH_ARITHMETIC_PEAK_H

namespace korvel::bench
{

/**
 * Adds products to sums in the widest registers of this machine, without touching memory: no product of
 * tables can be faster. Multiplication and addition are separate, as in the library.
 * @return the number of multiplications and additions
 */
double separateArithmetic();

/** The same in the registers of AVX2, which the machine must have. */
double separateArithmeticOfAvx2();

/** The same in the registers that every machine has. */
double separateArithmeticOfBaseline();

/** In the widest registers again, with multiplication and addition fused, as peers may do it. */
double fusedArithmetic();

} // namespace korvel::bench

#endif
