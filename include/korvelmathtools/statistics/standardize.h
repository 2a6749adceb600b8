/**
 * @file
 * Tables with their columns standardised: each number less its column's mean, divided by its column's
 * standard deviation. The statistics are the columns' own, or given.
 *
 * A table is its first rows and columns, and a vector its first elements, through the checked access of
 * `matrix`. A cell is kept when it does not equal `MISSING_DBL` and its row has no flag; a NaN is a number.
 * Counts below 1 leave everything as it is but for what is said to be cleared. The flags `bUnbiased` and
 * `bFreq` are true only when they are -1, and choose the denominator of the variance as in
 * `vector_variance.h`.
 */
#ifndef KORVEL_STATISTICS_STANDARDIZE_H
#define KORVEL_STATISTICS_STANDARDIZE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Standardises each column in turn, by the mean and the variance that `V_Var` forms in its one pass.
 *
 * A column whose denominator is exactly 0 ends the work: its statistics become missing, and it and the
 * columns after it stay as they are in `x`, or 0.0 in the results. A deviation of 0 is reported and not
 * divided by, so that a constant column becomes zeros. A negative variance has a NaN for its root.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param out       receives the table, resized to `rows` by `cols`; a cell that is not kept becomes missing.
 *                  Null: the cells of `x` that are kept are replaced, and the others stay. May be `x`, which
 *                  then keeps its shape
 * @param means     receives the means, resized to `cols`; may be null
 * @param sds       receives the standard deviations, resized to `cols`; may be null
 * @param vars      receives the variances, resized to `cols`; may be null
 * @param iMissing  `rows` flags; a row with a non-zero flag is left out. Null: none is
 * @param w         `rows` weights; null: all 1.0. A row of weight 0 is counted, and a missing weight is a
 * number
 * @param bUnbiased see above
 * @param bFreq     see above
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_Standardize(matrix<double>* x, int rows, int cols, matrix<double>* out,
                              matrix<double>* means, matrix<double>* sds, matrix<double>* vars,
                              short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq);

/**
 * `M_Standardize` in place on one vector, with `bFreq` false.
 *
 * @param x         the vector
 * @param n         number of elements
 * @param iMissing  `n` flags; null: none is set
 * @param w         `n` weights; null: all 1.0
 * @param bUnbiased see above
 */
KORVEL_API void V_Standardize2(matrix<double>* x, int n, short int* iMissing, matrix<double>* w,
                               short int bUnbiased);

/**
 * Standardises the columns by given statistics, as `M_Standardize` does by their own: a deviation of 0 is
 * not divided by. Where the mean or the deviation of a column is missing, its cells that are kept become
 * missing; a negative variance has no root, and counts as a missing deviation.
 *
 * @param x        the table
 * @param rows     rows
 * @param cols     columns
 * @param means    `cols` means
 * @param sds      `cols` standard deviations; null: the roots of `vars`
 * @param out      receives the table, as from `M_Standardize`; null: `x` is changed in place. May be `x`
 * @param vars     `cols` variances, read only when `sds` is null
 * @param iMissing `rows` flags; a row with a non-zero flag is left out. Null: none is
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_StandardizeKnownMeansStDev(matrix<double>* x, int rows, int cols, matrix<double>* means,
                                            matrix<double>* sds, matrix<double>* out, matrix<double>* vars,
                                            short int* iMissing);

/**
 * Standardises the columns in place by given statistics. All cells of a column become missing when its
 * deviation is not greater than 0; a missing cell stays so in any case.
 *
 * @param x     the table
 * @param rows  rows
 * @param cols  columns
 * @param means `cols` means
 * @param sds   `cols` standard deviations
 */
KORVEL_API void M_StandardizeApply2(matrix<double>* x, int rows, int cols, matrix<double>* means,
                                    matrix<double>* sds);

namespace korvel
{

/** `V_Standardize2` into a result: a cell that is not kept becomes missing; nothing but zeros when the
 * denominator is 0. */
void standardizeInto(matrix<double>& x, int n, const short int* iMissing, const matrix<double>* w,
                     short int bUnbiased, matrix<double>& out);

} // namespace korvel

#endif
