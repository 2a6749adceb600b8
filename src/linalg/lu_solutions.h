/**
 * @file
 * The inverse of a table from its LU factors.
 */
#ifndef KORVEL_LINALG_LU_SOLUTIONS_H
#define KORVEL_LINALG_LU_SOLUTIONS_H

#include "containers/matrix.h"

#include <cstddef>
#include <vector>

namespace korvel
{

/**
 * Solves for every unit vector: forward substitution from its 1 on, then back substitution, each sum in
 * ascending order.
 *
 * @param factors square, L without its diagonal of ones, and U; transposed in place
 * @param pivots  the row, from 0, that was swapped with each row, none of them before it
 * @return the inverse, transposed: column i holds row i of it
 * @throws std::bad_alloc when memory is short
 */
[[nodiscard]] matrix<double> solveForUnits(matrix<double>& factors, const std::vector<std::size_t>& pivots);

} // namespace korvel

#endif
