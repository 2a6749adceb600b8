/**
 * @file
 * Flat functions: the forward Doolittle reduction of a symmetric table and its Hermite canonical form. What
 * is no larger than 1e-12 counts as zero there. Missing cells are numbers.
 */
#ifndef KORVEL_FRAMES_LINALG_HERMITE_FORM_H
#define KORVEL_FRAMES_LINALG_HERMITE_FORM_H

#include "frames/types.h"

/**
 * Forward Doolittle reduction of a symmetric table.
 *
 * @param a [in] n by n numbers, column after column, of which the upper triangle is read
 * @param n rows and columns; below 1 nothing is done
 * @param h [out] n by n numbers; may be the array that is read
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ForwardDoolittle(const double* a, int n, double* h);

/**
 * Hermite canonical form of a symmetric table.
 *
 * @like Cpp_M_ForwardDoolittle
 */
KORVEL_FLAT int Cpp_M_HermiteCanonical(const double* a, int n, double* h);

#endif
