/**
 * @file
 * The root of a table, once its eigenvalues and eigenvectors are known.
 */
#ifndef KORVEL_LINALG_ROOT_FACTOR_H
#define KORVEL_LINALG_ROOT_FACTOR_H

#include "containers/matrix.h"

namespace korvel
{

/** `M_SquareRoot` from the `n` eigenvalues and the eigenvectors in the columns of a table. */
int formRootFactor(const matrix<double>& values, matrix<double>& vectors, int n, matrix<double>& R);

} // namespace korvel

#endif
