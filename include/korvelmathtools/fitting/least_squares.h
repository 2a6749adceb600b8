/**
 * @file
 * Weighted linear regression by sweeping: the terms are taken into the fit one by one, in the order of their
 * columns, by sweeps of a packed correlation table (J. H. Goodnight, A tutorial on the SWEEP operator, The
 * American Statistician 33, 1979). What a pivot is worth just before its sweep is the tolerance of the term,
 * the share of its variation that the terms before it leave unexplained; so a term whose pivot is not above
 * the caller's tolerance is refused on the spot, and the order of the columns decides which of two collinear
 * terms stays.
 *
 * The terms are the `p` predictors, then their squares, their cubes and so on up to the power `degree`, each
 * power got by repeated multiplication; and, when `interactions` is exactly -1, the products of each pair of
 * predictors, those of the first one first: P = p * degree + p(p - 1)/2 of them, or P = p * degree. Counts
 * below 0 stand for 0. Missing cells are numbers to powers and products, so these take complete tables.
 *
 * With a constant the table is that of the correlations with pairwise deletion, an undefined one being 0, as
 * `M_CovCorrVAndMeanStDevVar` forms them. Without one it is made of the uncentred sums of products of the
 * rows whose weight is not 0, over the sum of the weights less 1 and over the two standard deviations, which
 * stay those from the means; a pair whose deviations are missing or whose product is not above the machine
 * epsilon has 0. There a missing cell is a number.
 *
 * Common arguments, beside `n` rows and `p` predictors. None may be null, no result may be what is read, and
 * all are read and written through the checked access of `matrix`. All throw `std::bad_alloc` when memory is
 * short.
 *
 * - `X`: the predictors, `n` by `p`; `Y`: the response, `n` elements. A missing response leaves its row out
 * of the correlations, pair by pair. Nothing is reported when there is nothing to fit: a design of which
 * every term is refused has the mean of the response as its intercept.
 * - `weights`: `n` weights; W is the sum of those that are not missing
 * - `noConstant`: 0: the model has an intercept
 * - `tolerance`: of a term, see above
 * - `coefficients`: receives the coefficient of term k in element k and the intercept in element P + 1, 0
 * without one. The coefficient of a term that is refused, or whose deviation is at most 1e-12, is not written
 * - `fitted`: receives `n` fitted values, those of rows without a response too; a missing predictor adds
 * nothing
 */
#ifndef KORVEL_FITTING_LEAST_SQUARES_H
#define KORVEL_FITTING_LEAST_SQUARES_H

#include "containers/matrix.h"
#include "platform/export.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace korvel
{

/** How many terms the design has. */
[[nodiscard]] constexpr int designTerms(int p, int degree, short int interactions) noexcept
{
    // More than there can be are as good as too many.
    constexpr std::int64_t most = std::numeric_limits<int>::max() - 1;
    const std::int64_t predictors = std::max(p, 0);
    const std::int64_t powers = predictors * std::max(degree, 0);
    const std::int64_t pairs = interactions == -1 ? predictors * (predictors - 1) / 2 : 0;
    return static_cast<int>(std::min(std::min(powers, most) + std::min(pairs, most), most));
}

} // namespace korvel

/** The fit, with coefficients and fitted values alone; both are to be cleared by the caller. */
KORVEL_API void OLSBasic(int n, int p, matrix<double>* X, matrix<double>* Y, matrix<double>* weights,
                         int degree, short int interactions, short int noConstant, double tolerance,
                         matrix<double>* coefficients, matrix<double>* fitted);

/**
 * The same with standard errors.
 *
 * @param standardErrors receives that of each coefficient at the place of the coefficient, over W less the
 * number of terms that were taken in, and less 1 with a constant, degrees of freedom. That of a term is not
 * written where its coefficient is not, nor when W or the degrees of freedom are not above the machine
 * epsilon; that of the intercept is not without a constant. With one it is the root of the sum of its parts,
 * a NaN when rounding made that negative; where W or the degrees of freedom fail their test the parts are
 * added to what stands in the element
 */
KORVEL_API void OLSBasic2(int n, int p, matrix<double>* X, matrix<double>* Y, matrix<double>* weights,
                          int degree, short int interactions, short int noConstant, double tolerance,
                          matrix<double>* coefficients, matrix<double>* standardErrors,
                          matrix<double>* fitted);

/**
 * The same with what the fit is made from.
 *
 * @param sweptMatrix        receives the table after all sweeps, P + 1 by P + 1, the response last: of terms
 * that were taken in the negative of the inverse, in the last row their standardised coefficients, and in the
 * last cell the share of the variation that stays unexplained
 * @param means              receives the P + 1 means, that of the response last
 * @param standardDeviations receives the P + 1 deviations, with 0 for each term that was refused
 */
KORVEL_API void OLSBasic3(int n, int p, matrix<double>* X, matrix<double>* Y, matrix<double>* weights,
                          int degree, short int interactions, short int noConstant, double tolerance,
                          matrix<double>* coefficients, matrix<double>* standardErrors,
                          matrix<double>* fitted, matrix<double>* sweptMatrix, matrix<double>* means,
                          matrix<double>* standardDeviations);

/**
 * Whether a variable may be swept into a packed table: the result is above the tolerance exactly when its
 * pivot is.
 *
 * @param packed    the lower triangle of order `P` + 1, row after row, read by linear index
 * @param P         order less 1
 * @param k         number of the variable, counted from 1
 * @param tolerance the limit
 * @return the pivot when it is not above the tolerance. Otherwise, of the diagonal elements that the
 * variables would have after the sweep, as reciprocals with their sign turned, the first that is above the
 * tolerance; the pivot when there is none
 */
KORVEL_API double OLSCheckIfIn(matrix<double>* packed, int P, int k, double tolerance);

#endif
