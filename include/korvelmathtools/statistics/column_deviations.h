/**
 * @file
 * Mean, standard deviation and variance of each column of a table, in one pass with a running mean (D. H. D.
 * West, Communications of the ACM 22, 1979): the update of `V_Var`.
 *
 * A cell that equals `MISSING_DBL` is left out, and so is a row of weight exactly 0; neither is counted,
 * where `V_Var` does count an element of weight 0. A NaN is a number, and so is a missing weight. The flags
 * `bUnbiased` and `bFreq` are true only when they are -1 and choose the denominator as for `V_Var`, see
 * `vector_variance.h`; so does what the variance is when the denominator is 0, negative or not a number. The
 * deviation is the root of the variance: 0.0 for either zero, missing for a negative or missing variance.
 * Where nothing is kept the mean is 0.0.
 *
 * A table is its first rows and columns, and a vector its first elements, through the checked access of
 * `matrix`. Results have room for an element a column where nothing else is said, and are written one column
 * after the other. No pointer may be null but that to flags.
 */
#ifndef KORVEL_STATISTICS_COLUMN_DEVIATIONS_H
#define KORVEL_STATISTICS_COLUMN_DEVIATIONS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Means and standard deviations of the columns.
 *
 * @param x         the table
 * @param rows      rows; below 1 nothing is kept
 * @param cols      columns; below 1 nothing is written
 * @param means     receives the means
 * @param sds       receives the deviations
 * @param iMissing  `rows` flags, read only when `flag` is 0; null: none is set
 * @param w         `rows` weights
 * @param bUnbiased see above
 * @param bFreq     see above
 * @param flag      0: rows with a flag other than 0 are left out; -1: all rows are kept, and the flags are
 * not read; any other value: no row is kept
 */
KORVEL_API void M_MeanStDev(matrix<double>* x, int rows, int cols, matrix<double>* means, matrix<double>* sds,
                            short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                            short int flag);

/**
 * Means, standard deviations and variances of the columns; rows with a flag other than 0 are left out.
 *
 * @param vars receives the variances; the other arguments are those of `M_MeanStDev`
 */
KORVEL_API void M_MeanStDevVar(matrix<double>* x, int rows, int cols, matrix<double>* means,
                               matrix<double>* sds, matrix<double>* vars, short int* iMissing,
                               matrix<double>* w, short int bUnbiased, short int bFreq);
/** The same on `cols` chunks. */
KORVEL_API void M_MeanStDevVarSPV(matrix<double>** x, int rows, int cols, matrix<double>* means,
                                  matrix<double>* sds, matrix<double>* vars, short int* iMissing,
                                  matrix<double>* w, short int bUnbiased, short int bFreq);

/**
 * Means and standard deviations of the rows.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param means     resized to `rows` by 1 and filled
 * @param sds       resized to `rows` by 1 and filled
 * @param w         `cols` weights, one for each column
 * @param bUnbiased see above
 * @param bFreq     see above
 */
KORVEL_API void M_MeanStDevByRow(matrix<double>* x, int rows, int cols, matrix<double>*& means,
                                 matrix<double>*& sds, matrix<double>* w, short int bUnbiased,
                                 short int bFreq);

/**
 * Mean, standard deviation and variance of all cells of a table as one sample, column after column, each cell
 * with the weight of its row.
 *
 * @param x         the table
 * @param rows      rows
 * @param cols      columns
 * @param mean      receives the mean
 * @param sd        receives the deviation
 * @param var       receives the variance
 * @param w         `rows` weights
 * @param bUnbiased see above
 * @param bFreq     see above
 */
KORVEL_API void M_MeanStDevVarOneInMat(matrix<double>* x, int rows, int cols, double* mean, double* sd,
                                       double* var, matrix<double>* w, short int bUnbiased, short int bFreq);

#endif
