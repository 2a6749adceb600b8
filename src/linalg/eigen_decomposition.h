/**
 * @file
 * The symmetric eigen decomposition for routines that tell a lack of memory from its other failures.
 */
#ifndef KORVEL_LINALG_EIGEN_DECOMPOSITION_H
#define KORVEL_LINALG_EIGEN_DECOMPOSITION_H

#include "containers/matrix.h"

namespace korvel
{

/** `M_Eigen` of a dense table, which keeps no exception in. */
int eigenDecomposition(const matrix<double>& A, matrix<double>& values, matrix<double>& vectors, int n,
                       short int sortFlag);

} // namespace korvel

#endif
