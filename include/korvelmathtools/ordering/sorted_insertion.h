/**
 * @file
 * The largest, or the smallest, of the values seen, kept in a sorted vector.
 */
#ifndef KORVEL_ORDERING_SORTED_INSERTION_H
#define KORVEL_ORDERING_SORTED_INSERTION_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Puts a value into an ascending vector and lets the smallest fall out, so that the `n` largest values stay.
 * A value that is not above the smallest changes nothing, and neither does a NaN.
 *
 * Every element below `val` takes the value behind it, or `val` where that one is not below it. In a vector
 * that is not sorted this happens wherever it applies.
 *
 * @param x     the vector, in place
 * @param n     number of elements; nothing happens below 1
 * @param val   the value
 * @param bSort -1: the vector is sorted first; otherwise it is taken to be sorted
 */
KORVEL_API void V_InsertValueLow(matrix<double>* x, int n, double val, short int bSort);

/** The mirror image: the largest falls out, and the `n` smallest values stay. */
KORVEL_API void V_InsertValueUp(matrix<double>* x, int n, double val, short int bSort);

#endif
