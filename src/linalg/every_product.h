/**
 * @file
 * Every element of one vector times every element of another.
 */
#ifndef KORVEL_LINALG_EVERY_PRODUCT_H
#define KORVEL_LINALG_EVERY_PRODUCT_H

#include <cstddef>

namespace korvel
{

/**
 * Stores the `n * m` products `x(i) * y(j)`, i outside, one behind the other. A count below 1 stores nothing.
 * `out` shares no memory with the vectors.
 */
void storeEveryProduct(const double* x, std::ptrdiff_t n, const double* y, std::ptrdiff_t m, double* out);

} // namespace korvel

#endif
