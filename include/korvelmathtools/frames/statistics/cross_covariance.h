/**
 * @file
 * Flat functions: covariances and correlations between the columns of two tables, and of two vectors. Of a
 * pair of columns the rows are kept in which both are present. The flags bUnbiased and bFreq are true only
 * when they are -1 and choose the denominator: S, the sum of the weights of the rows kept, unless bUnbiased;
 * otherwise S - 1 if bFreq, and S less the mean weight if not. A denominator of 0 gives what the division
 * gives.
 */
#ifndef KORVEL_FRAMES_STATISTICS_CROSS_COVARIANCE_H
#define KORVEL_FRAMES_STATISTICS_CROSS_COVARIANCE_H

#include "frames/types.h"

/**
 * Covariances, or correlations, of each column of one table with each column of another. The variances behind
 * a correlation are those over the rows common to the pair.
 *
 * @param x         [in] rows by colsX numbers
 * @param rows      rows
 * @param colsX     columns of x
 * @param y         [in] rows by colsY numbers
 * @param colsY     columns of y
 * @param out       [out] colsX by colsY numbers
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights
 * @param bCorr     not 0: correlations, where the magnitude of the product of the
 * variances is greater than 1e-12; elsewhere the cell is undefined
 * @param bSquare   not 0: correlations are squared
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param bUndefinedIsZero not 0: an undefined cell is 0.0; otherwise it is missing
 * @return 0
 */
KORVEL_FLAT int VB_M_CorrMatMat(const double* x, int rows, int colsX, const double* y, int colsY, double* out,
                                const short int* iMissing, const double* w, short int bCorr,
                                short int bSquare, short int bUnbiased, short int bFreq,
                                short int bUndefinedIsZero);

/**
 * VB_M_CorrMatMat on tables of separate columns.
 *
 * @param x         [in] host array of colsX columns of rows numbers
 * @param rows      rows
 * @param colsX     columns of x
 * @param y         [in] host array of colsY columns of rows numbers
 * @param colsY     columns of y
 * @param out       [inout] host array of colsY columns that receive colsX numbers each
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights
 * @param bCorr     not 0: correlations, where the magnitude of the product of the
 * variances is greater than 1e-12; elsewhere the cell is undefined
 * @param bSquare   not 0: correlations are squared
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param bUndefinedIsZero not 0: an undefined cell is 0.0; otherwise it is missing
 * @return 0
 */
KORVEL_FLAT int VB_M_CorrMatMatSPV(Hostarray** x, int rows, int colsX, Hostarray** y, int colsY,
                                   Hostarray** out, const short int* iMissing, const double* w,
                                   short int bCorr, short int bSquare, short int bUnbiased, short int bFreq,
                                   short int bUndefinedIsZero);

/**
 * Weighted correlation of two vectors, over the elements of which the weight is greater than 0 and both
 * values are greater than the missing value, so that a NaN is not kept.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param y [in] n numbers
 * @param w [in] n weights
 * @return the correlation; missing unless the product of the two sums of squares is greater than 0
 */
KORVEL_FLAT double Cpp_V_Correl2W(const double* x, int n, const double* y, const double* w);

#endif
