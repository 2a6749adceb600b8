/**
 * @file
 * Flat functions: distances between the columns or the rows of a table, to a vector, and to the origin. Where
 * nothing else is said, missing numbers are numbers.
 */
#ifndef KORVEL_FRAMES_STATISTICS_DISTANCES_H
#define KORVEL_FRAMES_STATISTICS_DISTANCES_H

#include "frames/types.h"

/**
 * Weighted Euclidean distances between the columns, or between rows: the root of the sum of w * d * d, d
 * being the difference of two coordinates.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param w     [in] rows weights, or cols weights when bRows is -1, one for each coordinate
 * @param out   [out] cols by cols distances, or nRows by nRows distances when bRows is -1
 * @param bRows -1: between rows; otherwise between columns
 * @param nRows the number of first rows to compare; not used between columns
 * @return 0
 */
KORVEL_FLAT int VB_M_EuclidDist2(const double* x, int rows, int cols, const double* w, double* out,
                                 short int bRows, int nRows);

/**
 * The root mean square difference of each column, or row, from a vector, over the coordinates in which both
 * are greater than the missing value, so that a NaN is not kept.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param v     [in] rows numbers, or cols numbers when bRows is -1
 * @param bRows -1: of each row; otherwise of each column
 * @param out   [out] cols distances, or rows distances when bRows is -1; missing where no coordinate is kept
 * @return 0
 */
KORVEL_FLAT int Cpp_M_EuclidDistToVector(const double* x, int rows, int cols, const double* v,
                                         short int bRows, double* out);

/**
 * The row that lies farthest from the origin.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param d    [out] one number: the largest root of a row's sum of squares; missing without rows
 * @param row  [out] one integer: the number of the first such row, from 1; 0 without rows
 * @return 0
 */
KORVEL_FLAT int Cpp_M_GetMaxDistToOrigin(const double* x, int rows, int cols, double* d, int* row);

#endif
