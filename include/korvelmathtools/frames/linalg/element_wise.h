/**
 * @file
 * Flat functions: tables changed cell by cell.
 *
 * Tables are column after column. A count of 0 does nothing.
 */
#ifndef KORVEL_FRAMES_LINALG_ELEMENT_WISE_H
#define KORVEL_FRAMES_LINALG_ELEMENT_WISE_H

#include "frames/types.h"

/**
 * c(i, j) = s * a(i, j); a missing cell stays missing.
 *
 * @param a [in] n by p cells
 * @param n rows
 * @param p columns
 * @param s the factor
 * @param c [out] n by p cells; may be the array of an argument
 * @return 0
 */
KORVEL_FLAT int VB_M_ScalarsA(const double* a, int n, int p, double s, double* c);

/**
 * a(i, j) = s * a(i, j); a missing cell stays missing.
 *
 * @like VB_M_ScalarsA
 * @param a [inout] n by p cells
 */
KORVEL_FLAT int VB_M_ScalarsA2(double* a, int n, int p, double s);

/**
 * c(j, i) = s * a(i, j); a missing cell stays missing.
 *
 * @like VB_M_ScalarsA
 * @param c [out] p by n cells; may be a
 */
KORVEL_FLAT int VB_M_ScalarsTrA(const double* a, int n, int p, double s, double* c);

/**
 * c(i, j) = a(i, j) + s. Missing cells are numbers here: the sum is no longer missing.
 *
 * @like VB_M_ScalarsA
 * @param s what is added
 */
KORVEL_FLAT int VB_M_APlusVal(const double* a, int n, int p, double s, double* c);

/**
 * a(i, j) = a(i, j) + s. Missing cells are numbers here: the sum is no longer missing.
 *
 * @param a [inout] n by p cells
 * @param n rows
 * @param p columns
 * @param s what is added
 * @return 0
 */
KORVEL_FLAT int VB_M_APlusVal2(double* a, int n, int p, double s);

/**
 * a(i, j) = a(i, j) * a(i, j); a missing cell stays missing.
 *
 * @like VB_M_APlusVal2
 */
KORVEL_FLAT int VB_M_Square(double* a, int n, int p);

/**
 * c(i, j) = a(i, j) * b(i, j). Missing cells are numbers here.
 *
 * @like VB_M_ScalarsA
 * @param b [in] n by p cells
 */
KORVEL_FLAT int VB_M_ProductByElement(const double* a, int n, int p, const double* b, double* c);

/**
 * c(i, j) = a(i, j) + b(i, j). Missing cells are numbers here.
 *
 * @like VB_M_ScalarsA
 * @param b [in] n by p cells
 */
KORVEL_FLAT int Cpp_SumMat(const double* a, const double* b, int n, int p, double* c);

/**
 * x(i, j) = x(i, j) * s. Missing cells are numbers here.
 *
 * @param x    [inout] rows by cols cells
 * @param rows rows
 * @param cols columns
 * @param s    the factor
 * @return 0
 */
KORVEL_FLAT int Cpp_MultiplyByVal(double* x, int rows, int cols, double s);

#endif
