/**
 * @file
 * Flat functions: correlation and covariance tables from symmetric tables that are none.
 */
#ifndef KORVEL_FRAMES_STATISTICS_CORRELATION_REPAIR_H
#define KORVEL_FRAMES_STATISTICS_CORRELATION_REPAIR_H

#include "frames/types.h"

/**
 * Replaces a symmetric table by the nearest correlation matrix, by alternating projections (Higham, IMA
 * Journal of Numerical Analysis 22, 2002): cells are right to about 1e-6. A table that is a correlation
 * matrix already is left as it is. There is no limit to the number of steps.
 *
 * @param x [inout] n by n numbers; of each step's table only the lower triangle is used
 * @param n rows and columns
 * @return 0; -1 when a cell is missing, and then nothing is changed
 */
KORVEL_FLAT int Cpp_M_CorrMatFromSymMat(double* x, int n);

/**
 * The same for a table of separate columns.
 *
 * @param x [inout] host array of n columns of n numbers
 * @param n rows and columns
 * @return 0; -1 when a cell is missing, and then nothing is changed
 */
KORVEL_FLAT int Cpp_M_CorrMatFromSymMatSPV(Hostarray** x, int n);

/**
 * The same for a table of which each separate column starts at the diagonal.
 *
 * @param x [inout] host array of n columns of numbers, column j holding n - j + 1 of them
 * @param n rows and columns
 * @return 0; -1 when a cell is missing, and then nothing is changed
 */
KORVEL_FLAT int Cpp_M_CorrMatFromSymMatSPV_T(Hostarray** x, int n);

/**
 * Replaces a symmetric table by a covariance table with the same variances: its correlations, those of a
 * variance that is not above 0 being 0.0, become the nearest correlation matrix, and are multiplied with the
 * roots of the variances again. A negative variance becomes positive, and its covariances with positive ones
 * are NaN.
 *
 * @param x [inout] n by n numbers
 * @param n rows and columns
 * @return 0; -1 when a cell is missing, and then nothing is changed
 */
KORVEL_FLAT int Cpp_M_CovMatFromSymMat(double* x, int n);

#endif
