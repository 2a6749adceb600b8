/**
 * @file
 * Flat functions: vectors and columns brought to a range, and scores.
 *
 * Tables are column after column. A missing number is left out; a NaN is a number.
 */
#ifndef KORVEL_FRAMES_STATISTICS_RESCALE_H
#define KORVEL_FRAMES_STATISTICS_RESCALE_H

#include "frames/types.h"

/**
 * Brings a vector to the range from lo to hi: (x - a) * (hi - lo) / r + lo, where a is the smallest number
 * kept and r the largest less the smallest. Where all are equal the result is a NaN.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param lo       what the smallest becomes
 * @param hi       what the largest becomes
 * @param iMissing [in] n flags; an element with a non-zero flag is left out; may be null, then none is
 * @param out      [out] n numbers, missing where an element is left out; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_V_Rescale(const double* x, int n, double lo, double hi, const short int* iMissing,
                             double* out);

/**
 * The same in place; an element left out stays.
 *
 * @param x        [inout] n numbers
 * @param n        number of elements
 * @param lo       what the smallest becomes
 * @param hi       what the largest becomes
 * @param iMissing [in] n flags; what has a flag other than 0 is left out; may be null
 * @return 0
 */
KORVEL_FLAT int VB_V_Rescale2(double* x, int n, double lo, double hi, const short int* iMissing);

/**
 * VB_V_Rescale on each column, each to a range of its own.
 *
 * @param x        [in] rows by cols numbers
 * @param rows     rows
 * @param cols     columns
 * @param lo       [in] cols lower ends
 * @param hi       [in] cols upper ends
 * @param iMissing [in] rows flags; what has a flag other than 0 is left out; may be null
 * @param out      [out] rows by cols numbers, missing where a cell is left out; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_M_RescaleByVect(const double* x, int rows, int cols, const double* lo, const double* hi,
                                   const short int* iMissing, double* out);

/**
 * The same in place; a cell left out stays.
 *
 * @param x        [inout] rows by cols numbers
 * @param rows     rows
 * @param cols     columns
 * @param lo       [in] cols lower ends
 * @param hi       [in] cols upper ends
 * @param iMissing [in] rows flags; what has a flag other than 0 is left out; may be null
 * @return 0
 */
KORVEL_FLAT int VB_M_RescaleByVect2(double* x, int rows, int cols, const double* lo, const double* hi,
                                    const short int* iMissing);

/**
 * How far each number lies from the centre, in deviations. A missing number has a missing score, and so has
 * every number when the deviation is not greater than 2.220446049250313e-16.
 *
 * @param x       [in] n numbers
 * @param n       number of elements
 * @param bRobust 0: (x - centre) / scale; any other value: 0.6745 * (x - median) / MAD, by the median and the
 * median absolute deviation, in which a missing number counts as the smallest
 * @param centre  [inout] one number: the centre; when it is missing, it and scale become the mean and the
 * standard deviation, divided by the number of elements less 1, of the numbers above the missing one. Not
 * used, and may be null, for the robust scores
 * @param scale   [inout] one number: the deviation; the same
 * @param out     [out] n scores; may be the array of x
 * @return 0
 */
KORVEL_FLAT int Cpp_V_ZScores(const double* x, int n, short int bRobust, double* centre, double* scale,
                              double* out);

#endif
