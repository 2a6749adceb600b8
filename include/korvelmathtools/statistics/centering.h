/**
 * @file
 * Columns centred, reduced or standardised by the mean and the standard deviation that `M_MeanStDev` finds
 * with no row flagged.
 *
 * | name | a cell x that is not missing becomes |
 * | --- | --- |
 * | `Center` | x - mean |
 * | `Reduce` | x / sd, whatever the deviation: a column without spread gives what the division by 0 gives,
 * and a missing deviation is a number | | `Standardize` | (x - mean) / sd where the deviation is greater than
 * 0, else x |
 *
 * A missing cell, one that equals `MISSING_DBL`, stays missing. `W` takes `rows` weights, null for all 1.0: a
 * row of weight 0 has no part in the statistics and is changed like any other. A trailing `2` works in place,
 * a `3` also returns the statistics, `SPV` takes `cols` chunks. The flags `bUnbiased` and `bFreq` are true
 * only when they are -1 and choose the denominator of the variance as in `vector_variance.h`; where there is
 * no `bFreq` it is true.
 *
 * A table is its first rows and columns, through the checked access of `matrix`. A result may be `x`. Counts
 * below 1 change no cell.
 */
#ifndef KORVEL_STATISTICS_CENTERING_H
#define KORVEL_STATISTICS_CENTERING_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Standardises in place.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param bUnbiased see above
 */
KORVEL_API void M_Standardize2(matrix<double>* x, int rows, int cols, short int bUnbiased);
/** The same on chunks. */
KORVEL_API void M_Standardize2SPV(matrix<double>** x, int rows, int cols, short int bUnbiased);

/**
 * Standardises in place and returns the statistics.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param means     receives the means, resized to `cols`
 * @param sds       receives the deviations, resized to `cols`
 * @param bUnbiased see above
 * @param bFreq     see above
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_Standardize3(matrix<double>*& x, int rows, int cols, matrix<double>*& means,
                               matrix<double>*& sds, short int bUnbiased, short int bFreq);

/**
 * Standardises into a result.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param w         `rows` weights, or null
 * @param bUnbiased see above
 * @param bFreq     see above
 * @param out       receives `rows` by `cols` cells, sized by the caller
 */
KORVEL_API void M_StandardizeW(matrix<double>* x, int rows, int cols, matrix<double>* w, short int bUnbiased,
                               short int bFreq, matrix<double>* out);
/** The same in place. */
KORVEL_API void M_StandardizeW2(matrix<double>*& x, int rows, int cols, matrix<double>* w,
                                short int bUnbiased, short int bFreq);
/** The same in place; `means` and `sds` are resized to `cols` and receive the statistics. */
KORVEL_API void M_StandardizeW3(matrix<double>*& x, int rows, int cols, matrix<double>* w,
                                matrix<double>*& means, matrix<double>*& sds, short int bUnbiased,
                                short int bFreq);
/** The same on chunks. */
KORVEL_API void M_StandardizeW3SPV(matrix<double>** x, int rows, int cols, matrix<double>* w,
                                   matrix<double>*& means, matrix<double>*& sds, short int bUnbiased,
                                   short int bFreq);

/**
 * Centres into a result.
 *
 * @param x    the table
 * @param rows rows
 * @param cols columns
 * @param out  receives `rows` by `cols` cells, sized by the caller
 */
KORVEL_API void M_Center(matrix<double>* x, int rows, int cols, matrix<double>* out);
/** The same with weights, or null for none. */
KORVEL_API void M_CenterW(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>* out);
/** Centres in place. */
KORVEL_API void M_Center2(matrix<double>*& x, int rows, int cols);
/** The same with weights, or null for none. */
KORVEL_API void M_CenterW2(matrix<double>*& x, int rows, int cols, matrix<double>* w);
/** The same on chunks. */
KORVEL_API void M_CenterW2SPV(matrix<double>** x, int rows, int cols, matrix<double>* w);

/**
 * Reduces into a result.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param out       receives the table, resized to `rows` by `cols`
 * @param bUnbiased see above
 * @param bFreq     see above
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_Reduce(matrix<double>* x, int rows, int cols, matrix<double>*& out, short int bUnbiased,
                         short int bFreq);
/** The same with weights, or null for none. */
KORVEL_API void M_ReduceW(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>*& out,
                          short int bUnbiased, short int bFreq);
/** Reduces in place. */
KORVEL_API void M_Reduce2(matrix<double>*& x, int rows, int cols, short int bUnbiased);
/** The same with weights, or null for none. */
KORVEL_API void M_ReduceW2(matrix<double>*& x, int rows, int cols, matrix<double>* w, short int bUnbiased,
                           short int bFreq);

#endif
