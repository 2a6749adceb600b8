/**
 * @file
 * Flat functions: columns centred (x - mean), reduced (x / sd) or standardised ((x - mean) / sd) by their own
 * means and standard deviations, those of VB_M_MeanStDev with no row flagged.
 *
 * Tables are column after column. A missing cell has no part in the statistics and stays missing; a NaN is a
 * number, and so is a missing weight. A row of weight 0 has no part in the statistics either, and is changed
 * like any other. Reducing divides whatever the deviation: a column without spread gives what the division by
 * 0 gives, and a missing deviation is a number. Standardising leaves a column whose deviation is not greater
 * than 0 as it is.
 *
 * The flags bUnbiased and bFreq are true only when they are -1. Together they choose what a sum of squares is
 * divided by, S being the sum of the weights kept and m their number: S unless bUnbiased; otherwise S - 1 if
 * bFreq, and S - S/m if not. Where there is no bFreq it is true.
 */
#ifndef KORVEL_FRAMES_STATISTICS_CENTERING_H
#define KORVEL_FRAMES_STATISTICS_CENTERING_H

#include "frames/types.h"

/**
 * Standardises in place.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_Standardize2(double* x, int rows, int cols, short int bUnbiased);

/**
 * The same on a table of separate columns.
 *
 * @param x         [inout] cols columns of rows numbers
 * @param rows      rows
 * @param cols      columns
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_Standardize2SPV(Hostarray** x, int rows, int cols, short int bUnbiased);

/**
 * Standardises in place and returns the statistics.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param means     [out] cols means
 * @param sds       [out] cols deviations
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_Standardize3(double* x, int rows, int cols, double* means, double* sds,
                                  short int bUnbiased, short int bFreq);

/**
 * Standardises, with weights, into a result.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param w         [in] rows weights
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param out       [out] rows by cols numbers; may be the array of an argument
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeW(const double* x, int rows, int cols, const double* w, short int bUnbiased,
                                  short int bFreq, double* out);

/**
 * Standardises, with weights, in place.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param w         [in] rows weights; may be a column of x
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeW2(double* x, int rows, int cols, const double* w, short int bUnbiased,
                                   short int bFreq);

/**
 * Standardises, with weights, in place and returns the statistics.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param w         [in] rows weights; may be a column of x
 * @param means     [out] cols means
 * @param sds       [out] cols deviations
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeW3(double* x, int rows, int cols, const double* w, double* means, double* sds,
                                   short int bUnbiased, short int bFreq);

/**
 * Centres into a result.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] rows by cols numbers; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_M_Center(const double* x, int rows, int cols, double* out);

/**
 * Centres, with weights, into a result.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param w    [in] rows weights
 * @param out  [out] rows by cols numbers; may be the array of an argument
 * @return 0
 */
KORVEL_FLAT int VB_M_CenterW(const double* x, int rows, int cols, const double* w, double* out);

/**
 * Centres in place.
 *
 * @param x    [inout] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @return 0
 */
KORVEL_FLAT int VB_M_Center2(double* x, int rows, int cols);

/**
 * The same on a table of separate columns.
 *
 * @param x    [inout] cols columns of rows numbers
 * @param rows rows
 * @param cols columns
 * @return 0
 */
KORVEL_FLAT int VB_M_Center2SPV(Hostarray** x, int rows, int cols);

/**
 * Centres, with weights, in place.
 *
 * @param x    [inout] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param w    [in] rows weights; may be a column of x
 * @return 0
 */
KORVEL_FLAT int VB_M_CenterW2(double* x, int rows, int cols, const double* w);

/**
 * Reduces into a result.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param out       [out] rows by cols numbers; may be the array of x
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_Reduce(const double* x, int rows, int cols, double* out, short int bUnbiased,
                            short int bFreq);

/**
 * Reduces, with weights, into a result.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param w         [in] rows weights
 * @param out       [out] rows by cols numbers; may be the array of an argument
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_ReduceW(const double* x, int rows, int cols, const double* w, double* out,
                             short int bUnbiased, short int bFreq);

/**
 * Reduces in place.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_Reduce2(double* x, int rows, int cols, short int bUnbiased);

/**
 * Reduces, with weights, in place.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param w         [in] rows weights; may be a column of x
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_ReduceW2(double* x, int rows, int cols, const double* w, short int bUnbiased,
                              short int bFreq);

#endif
