/**
 * @file
 * Flat functions: the largest or smallest of the values seen.
 */
#ifndef KORVEL_FRAMES_ORDERING_SORTED_INSERTION_H
#define KORVEL_FRAMES_ORDERING_SORTED_INSERTION_H

#include "frames/types.h"

/**
 * Puts a value into an ascending vector and lets the smallest fall out, unless the value is not above it.
 *
 * @param x     [inout] n numbers
 * @param n     number of elements
 * @param val   the value
 * @param bSort -1: the vector is sorted first; otherwise it is taken to be sorted
 * @return 0
 */
KORVEL_FLAT int Cpp_V_InsertValueLow(double* x, int n, double val, short int bSort);

/**
 * Puts a value into an ascending vector and lets the largest fall out, unless the value is not below it.
 *
 * @param x     [inout] n numbers
 * @param n     number of elements
 * @param val   the value
 * @param bSort -1: the vector is sorted first; otherwise it is taken to be sorted
 * @return 0
 */
KORVEL_FLAT int Cpp_V_InsertValueUp(double* x, int n, double val, short int bSort);

#endif
