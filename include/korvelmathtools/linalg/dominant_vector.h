/**
 * @file
 * The eigenvector of the eigenvalue that is largest in magnitude, by power iteration.
 */
#ifndef KORVEL_LINALG_DOMINANT_VECTOR_H
#define KORVEL_LINALG_DOMINANT_VECTOR_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The dominant eigenvector of a table by the power method of von Mises.
 *
 * The iteration starts from a vector of ones. Each step forms y = Ax and λ = y'x, and replaces x by y / λ.
 * It ends when the length of y - λx, with the x from before, is at most 1e-6 times the length of λx, or after
 * 1000 steps. Where x is missing, so is λx, and where y is missing, so is the new x; a difference is then one
 * of the missing value as a number.
 *
 * The vector is not brought to unit length, and λ is not returned. When λ is 0 all becomes infinite or NaN,
 * and the iteration goes on through its 1000 steps.
 *
 * @param A the table, `n` by `n`; not null, not changed. It need not be symmetric
 * @param x receives the vector, `n` by 1: first given that shape; not null, not `A`
 * @param n order
 * @return 0
 * @throws std::bad_alloc when memory is short or `n` is below 0
 */
KORVEL_API int M_VonMises(matrix<double>* A, matrix<double>* x, int n);

#endif
