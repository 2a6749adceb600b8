/**
 * @file
 * The spectral norm of a table.
 */
#ifndef KORVEL_LINALG_SPECTRAL_NORM_H
#define KORVEL_LINALG_SPECTRAL_NORM_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The largest singular value of a table: the root of the largest eigenvalue of AA', by `M_Eigen`. For a table
 * of one column it is the root of the sum of squares.
 *
 * @param A the table, in its own shape; not null, not changed
 * @return the norm; `MISSING_DBL` when the largest eigenvalue is negative, AA' has a missing element, or the
 *         table has no rows. An eigenvalue that does not converge leaves the norm without meaning
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API double getNorm2(matrix<double>* A);

#endif
