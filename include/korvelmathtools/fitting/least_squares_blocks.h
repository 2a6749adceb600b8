/**
 * @file
 * The regression of `least_squares.h` on predictors that stand in several tables.
 */
#ifndef KORVEL_FITTING_LEAST_SQUARES_BLOCKS_H
#define KORVEL_FITTING_LEAST_SQUARES_BLOCKS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The fit with standard errors on the columns of up to five tables, one behind the other, of which none is
 * copied. It differs from `OLSBasic2` in this:
 *
 * - There are neither powers nor interactions.
 * - With a constant the correlations between columns of different tables are those of `M_CorrMatMat`: over
 * the common rows in both variances too, and missing where the product of the variances is not above 1e-12.
 * Such a missing cell is swept like a number.
 * - Without a constant a pair has 0 where the product of the deviations is not above the machine epsilon, and
 * a missing deviation is a number to that test.
 * - The standard errors of terms are over `n` - P - 1 degrees of freedom, with or without a constant,
 * whatever the weights and however many terms were refused; they are 0 where that is 0, and missing where it
 * is negative. That of a term with a deviation of 0, a refused one for instance, is written as 0; its
 * coefficient is not written. Neither is written of a term with another deviation of up to 1e-12.
 * - The standard error of the intercept is over W - P - 1 degrees of freedom. Its sum of parts starts at 0
 * when `n` - P is 1; where W - P - 1, times the deviations of a pair of terms, is 0, the sum starts anew from
 * 0; and it is missing when the sum is negative. Without a constant it is not written.
 *
 * @param n              rows
 * @param p1             columns of the first table; a table with fewer than 1 does not take part and may be
 * null
 * @param X1             the first table, `n` by `p1`; and so on
 * @param p2             columns of the second table
 * @param X2             the second table
 * @param p3             columns of the third table
 * @param X3             the third table
 * @param p4             columns of the fourth table
 * @param X4             the fourth table
 * @param p5             columns of the fifth table
 * @param X5             the fifth table
 * @param Y              the response, `n` elements
 * @param weights        `n` weights
 * @param degree         1; for any other degree, and when the counts of columns add up to less than 1,
 * nothing is written
 * @param noConstant     0: the model has an intercept
 * @param tolerance      of a term
 * @param coefficients   receives P + 1 elements, the intercept last
 * @param standardErrors receives P + 1 elements
 * @param fitted         receives `n` fitted values
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void OLSBasic2Lg(int n, int p1, matrix<double>* X1, int p2, matrix<double>* X2, int p3,
                            matrix<double>* X3, int p4, matrix<double>* X4, int p5, matrix<double>* X5,
                            matrix<double>* Y, matrix<double>* weights, int degree, short int noConstant,
                            double tolerance, matrix<double>* coefficients, matrix<double>* standardErrors,
                            matrix<double>* fitted);

#endif
