/**
 * @file
 * Flat functions: means of the columns of a table. They differ in what they leave out and in what a column
 * with nothing kept gives. A missing weight is a number like any other.
 */
#ifndef KORVEL_FRAMES_STATISTICS_COLUMN_MEANS_H
#define KORVEL_FRAMES_STATISTICS_COLUMN_MEANS_H

#include "frames/types.h"

/**
 * Weighted means over the cells that are not missing. A row of weight 0 does nothing; a NaN is kept.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param means [out] cols means; 0.0 for a column with nothing kept
 * @param w     [in] rows weights
 * @return 0
 */
KORVEL_FLAT int VB_M_Mean(const double* x, int rows, int cols, double* means, const double* w);

/**
 * VB_M_Mean on a table of separate columns.
 *
 * @param x     [in] host array of cols columns of rows numbers
 * @param rows  rows
 * @param cols  columns
 * @param means [out] cols means; 0.0 for a column with nothing kept
 * @param w     [in] rows weights
 * @return 0
 */
KORVEL_FLAT int Cpp_M_MeanSPV(Hostarray** x, int rows, int cols, double* means, const double* w);

/**
 * Weighted means over the cells greater than the missing value, so that a NaN is not kept. A weight of 0 is a
 * number like any other: while the weights sum to 0 the mean is a NaN, and stays one.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param w     [in] rows weights
 * @param means [out] cols means; missing for a column with nothing kept
 * @return 0
 */
KORVEL_FLAT int Cpp_M_Mean2(const double* x, int rows, int cols, const double* w, double* means);

/**
 * Cpp_M_Mean2 with all weights 1.0.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param means [out] cols means; missing for a column with nothing kept
 * @return 0
 */
KORVEL_FLAT int Cpp_M_Mean3(const double* x, int rows, int cols, double* means);

#endif
