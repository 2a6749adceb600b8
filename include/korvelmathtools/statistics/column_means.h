/**
 * @file
 * Means of the columns of a table, each updated in one pass (D. H. D. West, Communications of the ACM 22,
 * 1979). They differ in what they leave out and in what a column without anything kept gives.
 *
 * A table is its first rows and columns, and a vector its first elements, through the checked access of
 * `matrix`. A missing weight is a number like any other.
 */
#ifndef KORVEL_STATISTICS_COLUMN_MEANS_H
#define KORVEL_STATISTICS_COLUMN_MEANS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted means of the columns, over the cells that do not equal `MISSING_DBL`; a NaN is kept. A row of
 * weight 0 does nothing.
 *
 * @param x     the table
 * @param rows  rows
 * @param cols  columns
 * @param means resized to `cols` by 1 and filled; 0.0 for a column with nothing kept
 * @param w     `rows` weights; null: all are 1.0
 */
KORVEL_API void M_Mean(matrix<double>* x, int rows, int cols, matrix<double>*& means, matrix<double>* w);
/** The same on `cols` chunks. */
KORVEL_API void M_MeanSPV(matrix<double>** x, int rows, int cols, matrix<double>*& means, matrix<double>* w);

/**
 * Weighted means of the columns, over the cells greater than `MISSING_DBL`, so that neither a NaN nor minus
 * infinity is kept. A weight of 0 is a number like any other: while the weights sum to 0 the mean is a NaN,
 * and stays one.
 *
 * @param x     the table
 * @param rows  rows
 * @param cols  columns
 * @param w     `rows` weights, not null
 * @param means receives `cols` means; missing for a column with nothing kept
 */
KORVEL_API void M_Mean2(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>* means);

/** `M_Mean2` with all weights 1.0. */
KORVEL_API void M_Mean3(matrix<double>* x, int rows, int cols, matrix<double>* means);

#endif
