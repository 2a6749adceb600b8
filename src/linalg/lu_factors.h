/**
 * @file
 * The factors behind `M_LUDecomp`, for routines that go on from them.
 */
#ifndef KORVEL_LINALG_LU_FACTORS_H
#define KORVEL_LINALG_LU_FACTORS_H

#include "containers/matrix.h"

namespace korvel
{

/** What became of a decomposition. */
struct lu_outcome {
    int sign = 1;
    short int error = 0;
    bool singular = false; ///< whether a pivot was exactly 0 and was replaced
};

/** `M_LUDecomp`, with more to tell. */
lu_outcome factoriseLU(matrix<double>& A, int n, matrix<int>& pivots);

} // namespace korvel

#endif
