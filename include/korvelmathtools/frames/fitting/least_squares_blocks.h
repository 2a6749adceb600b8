/**
 * @file
 * Flat functions: weighted linear regression on predictors that stand in several tables.
 */
#ifndef KORVEL_FRAMES_FITTING_LEAST_SQUARES_BLOCKS_H
#define KORVEL_FRAMES_FITTING_LEAST_SQUARES_BLOCKS_H

#include "frames/types.h"

/**
 * Regression as by RunOLSBasic2 on the columns of five tables, one behind the other, without powers or
 * interactions. The standard errors of terms are over n less the terms, less 1, degrees of freedom. All
 * results are set to 0 first; for any other degree than 1, and when the counts of columns add up to less than
 * 1, they stay 0.
 *
 * @param n  rows
 * @param p1 columns of the first table; below 1 it does not take part
 * @param x1 [in] n by p1 numbers, column after column; not read when p1 is below 1, and then may be null
 * @param p2 columns of the second table
 * @param x2 [in] n by p2 numbers, likewise; may be null when p2 is below 1
 * @param p3 columns of the third table
 * @param x3 [in] n by p3 numbers, likewise; may be null when p3 is below 1
 * @param p4 columns of the fourth table
 * @param x4 [in] n by p4 numbers, likewise; may be null when p4 is below 1
 * @param p5 columns of the fifth table
 * @param x5 [in] n by p5 numbers, likewise; may be null when p5 is below 1
 * @param y       [in] n numbers, the response
 * @param weights [in] n weights
 * @param degree  1
 * @param interactions -1: the results have room for interactions, which are not formed: their tail stays 0
 * @param noConstant   not 0: the model has no intercept
 * @param tolerance    limit of a term's tolerance; a term is taken in when its own is greater
 * @param coefficients [out] (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 + p5) *
 * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when interactions is -1:
 *                     that of each column, and then the intercept
 * @param standardErrors [out] (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 + p5) *
 * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when interactions is -1,
 *                     likewise; missing with fewer rows than coefficients
 * @param fitted       [out] n numbers
 * @return 0
 */
KORVEL_FLAT int RunOLSBasic2Lg(int n, int p1, const double* x1, int p2, const double* x2, int p3,
                               const double* x3, int p4, const double* x4, int p5, const double* x5,
                               const double* y, const double* weights, int degree, short int interactions,
                               short int noConstant, double tolerance, double* coefficients,
                               double* standardErrors, double* fitted);

#endif
