/**
 * @file
 * Distances between the columns or the rows of a table, to a vector, and to the origin.
 *
 * A table is its first rows and columns, and a vector its first elements, through the checked access of
 * `matrix`. Sums run from 0.0 in ascending order. Where nothing else is said, missing cells are numbers.
 */
#ifndef KORVEL_STATISTICS_DISTANCES_H
#define KORVEL_STATISTICS_DISTANCES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted Euclidean distances between the columns, or between rows: the root of the sum of `w * d²`, d being
 * the difference of two coordinates.
 *
 * @param x     the table
 * @param rows  rows
 * @param cols  columns
 * @param w     a weight for each coordinate: `rows` of them between columns, `cols` between rows
 * @param out   receives the symmetric table, `cols` by `cols` or `nRows` by `nRows`; may not be `x`
 * @param bRows -1: between rows; otherwise between columns
 * @param nRows the number of first rows to compare; not used between columns
 */
KORVEL_API void M_EuclidDist2(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>* out,
                              short int bRows, int nRows);

/**
 * The root mean square difference of each column, or row, from a vector, over the coordinates in which both
 * are greater than `MISSING_DBL`; so neither a NaN nor minus infinity is kept.
 *
 * @param x     the table
 * @param rows  rows
 * @param cols  columns
 * @param v     the vector: `rows` elements for columns, `cols` for rows
 * @param bRows -1: of each row; otherwise of each column
 * @param out   receives `cols` or `rows` distances; missing where no coordinate is kept
 */
KORVEL_API void M_EuclidDistToVector(matrix<double>* x, int rows, int cols, matrix<double>* v,
                                     short int bRows, matrix<double>* out);

/**
 * The row that lies farthest from the origin.
 *
 * @param x    the table
 * @param rows rows
 * @param cols columns
 * @param d    receives the largest root of a row's sum of squares; missing without rows
 * @param row  receives the number of the first such row, from 1; 0 without rows
 */
KORVEL_API void M_GetMaxDistToOrigin(matrix<double>* x, int rows, int cols, double& d, int& row);

#endif
