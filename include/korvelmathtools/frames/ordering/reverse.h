/**
 * @file
 * Flat functions: vectors back to front.
 */
#ifndef KORVEL_FRAMES_ORDERING_REVERSE_H
#define KORVEL_FRAMES_ORDERING_REVERSE_H

#include "frames/types.h"

/**
 * A vector of numbers back to front.
 *
 * @param x   [in] n numbers
 * @param n   number of elements
 * @param out [out] n numbers; may be x
 * @return 0
 */
KORVEL_FLAT int VB_V_ReverseDbl(const double* x, int n, double* out);

/**
 * A vector of flags back to front.
 *
 * @like VB_V_ReverseDbl, flags for numbers
 */
KORVEL_FLAT int VB_V_ReverseBool(const short int* x, int n, short int* out);

/**
 * A vector of numbers back to front, in place.
 *
 * @param x [inout] n numbers
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Reverse2Dbl(double* x, int n);

/**
 * A vector of integers back to front, in place.
 *
 * @param x [inout] n integers
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Reverse2Lng(int* x, int n);

/**
 * A vector of flags back to front, in place.
 *
 * @param x [inout] n flags
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Reverse2Bool(short int* x, int n);

#endif
