/**
 * @file
 * Flat functions: weighted linear regression by sweeping.
 *
 * The terms are the p predictors, then their squares and so on up to the power `degree`, and, when
 * `interactions` is -1, the products of each pair of predictors, those of the first one first. They are taken
 * in one by one, in this order; one of which the terms before it leave no more than `tolerance` of its
 * variation unexplained is refused. All results are set to 0 first, so that a refused term has 0. Missing
 * cells take part pair by pair in a model with a constant, and add nothing to a fitted value; powers,
 * interactions and a model without a constant need complete tables.
 */
#ifndef KORVEL_FRAMES_FITTING_LEAST_SQUARES_H
#define KORVEL_FRAMES_FITTING_LEAST_SQUARES_H

#include "frames/types.h"

/**
 * Regression: coefficients and fitted values.
 *
 * @param n            rows
 * @param p            predictors
 * @param x            [in] n by p numbers, column after column
 * @param y            [in] n numbers, the response
 * @param weights      [in] n weights
 * @param degree       the highest power of a predictor
 * @param interactions -1: with the products of pairs of predictors
 * @param noConstant   not 0: the model has no intercept
 * @param tolerance    limit of a term's tolerance; a term is taken in when its own is greater
 * @param coefficients [out] p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
 * interactions is -1: that of each term, the intercept last
 * @param fitted       [out] n numbers
 * @return 0
 */
KORVEL_FLAT int RunOLSBasic(int n, int p, const double* x, const double* y, const double* weights, int degree,
                            short int interactions, short int noConstant, double tolerance,
                            double* coefficients, double* fitted);

/**
 * Regression: coefficients, their standard errors and fitted values.
 *
 * @like RunOLSBasic
 * @param standardErrors [out] p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
 * interactions is -1. That of the intercept is a NaN when rounding made its square negative
 */
KORVEL_FLAT int RunOLSBasic2(int n, int p, const double* x, const double* y, const double* weights,
                             int degree, short int interactions, short int noConstant, double tolerance,
                             double* coefficients, double* standardErrors, double* fitted);

/**
 * Regression: the same with the swept table and the statistics of the columns.
 *
 * @like RunOLSBasic2
 * @param sweptMatrix [out] p * degree + 1 by p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 by
 *                    p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: the correlation table
 * after all sweeps, the response last. Its last cell is the share of the variation that stays unexplained
 * @param means       [out] p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
 * interactions is -1
 * @param standardDeviations [out] p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
 * interactions is -1; 0 for each refused term
 */
KORVEL_FLAT int RunOLSBasic3(int n, int p, const double* x, const double* y, const double* weights,
                             int degree, short int interactions, short int noConstant, double tolerance,
                             double* coefficients, double* standardErrors, double* fitted,
                             double* sweptMatrix, double* means, double* standardDeviations);

#endif
