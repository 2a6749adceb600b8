/**
 * @file
 * Flat functions: summaries of the rows of one group.
 */
#ifndef KORVEL_FRAMES_STATISTICS_CONDITIONAL_SUMMARIES_H
#define KORVEL_FRAMES_STATISTICS_CONDITIONAL_SUMMARIES_H

#include "frames/types.h"

/**
 * Counts the elements that equal a value, exactly; the missing number is one like the others.
 *
 * @param x   [in] n numbers
 * @param n   number of rows
 * @param val the value
 * @return the count; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_NbIf(const double* x, int n, double val);

/**
 * The same for integers.
 *
 * @param x   [in] n integers
 * @param n   number of rows
 * @param val the value
 * @return the count; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_NbIfLng(const int* x, int n, int val);

/**
 * Total weight of the elements that equal a value, exactly. Only weights above 0 count.
 *
 * @param x   [in] n numbers
 * @param n   number of rows
 * @param w   [in] n weights
 * @param val the value
 * @return the total; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_NbIfW(const double* x, int n, const double* w, double val);

/**
 * Sum of the values of a group. A row counts when its code equals the group's, and neither is missing.
 *
 * @param y   [in] n values
 * @param n   number of rows
 * @param g   [in] n codes
 * @param val code of the group
 * @return the sum; the missing number when no row counts
 */
KORVEL_FLAT double VB_V_SumIf(const double* y, int n, const double* g, double val);

/**
 * Mean of the values of a group. A row counts when its code equals the group's, and neither is missing.
 *
 * @param y   [in] n values
 * @param n   number of rows
 * @param g   [in] n codes
 * @param val code of the group
 * @return the mean; the missing number when no row counts
 */
KORVEL_FLAT double VB_V_MeanIf(const double* y, int n, const double* g, double val);

/**
 * Sum of weight times value of a group, over the rows of a weight above 0 of which neither is missing.
 *
 * @param y   [in] n values
 * @param n   number of rows
 * @param g   [in] n codes
 * @param w   [in] n weights
 * @param val code of the group
 * @return the sum; the missing number when no row counts
 */
KORVEL_FLAT double VB_V_SumIfW(const double* y, int n, const double* g, const double* w, double val);

/**
 * Weighted mean of a group. No weight is tested by itself.
 *
 * @param y   [in] n values
 * @param n   number of rows
 * @param g   [in] n codes
 * @param w   [in] n weights
 * @param val code of the group
 * @return the mean; the missing number unless the total weight is greater than 0
 */
KORVEL_FLAT double VB_V_MeanIfW(const double* y, int n, const double* g, const double* w, double val);

/**
 * Largest value of a group.
 *
 * @param y   [in] n values
 * @param n   number of rows
 * @param g   [in] n codes
 * @param val code of the group
 * @return the largest value; the missing number when no row counts
 */
KORVEL_FLAT double VB_V_MaxIf(const double* y, int n, const double* g, double val);

/**
 * Smallest value of a group, below 1.79769313486231e308.
 *
 * @param y   [in] n values
 * @param n   number of rows
 * @param g   [in] n codes
 * @param val code of the group
 * @return the smallest value; the missing number when there is none
 */
KORVEL_FLAT double VB_V_MinIf(const double* y, int n, const double* g, double val);

/**
 * Variance of a group. Only the value is tested for missing: the missing code is one like the others.
 *
 * @param y         [in] n values
 * @param n         number of rows
 * @param g         [in] n codes
 * @param val       code of the group
 * @param bUnbiased -1: divided by the number of rows less 1; otherwise by their number
 * @return the variance; the missing number unless the divisor is greater than 0
 */
KORVEL_FLAT double Cpp_V_VarIf(const double* y, int n, const double* g, double val, short int bUnbiased);

/**
 * Weighted variance of a group. A weight of 0 in the first row gives a NaN.
 *
 * @param y         [in] n values
 * @param n         number of rows
 * @param g         [in] n codes
 * @param w         [in] n weights
 * @param val       code of the group
 * @param bUnbiased -1: divided by the total weight less 1; otherwise by the total weight
 * @return the variance; the missing number unless the divisor is greater than 0
 */
KORVEL_FLAT double Cpp_V_VarIfW(const double* y, int n, const double* g, const double* w, double val,
                                short int bUnbiased);

/**
 * Weighted variance of the rows whose code is above 1e-12, with a step of its own. A NaN among the values is
 * left out.
 *
 * @param y         [in] n values
 * @param n         number of rows
 * @param g         [in] n codes
 * @param w         [in] n weights
 * @param bUnbiased -1: divided by the total weight less 1; otherwise by the total weight
 * @return the variance; the missing number unless the divisor is greater than 0
 */
KORVEL_FLAT double Cpp_V_VarIfSup0W(const double* y, int n, const double* g, const double* w,
                                    short int bUnbiased);

#endif
