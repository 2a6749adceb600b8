/**
 * @file
 * How much weight the elements of a vector carry that equal a value.
 *
 * A vector is the first `n` elements of a `matrix`, read through its checked access: a vector shorter than
 * `n` reads the matrix's `oobValue` for the elements that it does not have. Nothing is left out: a missing
 * element is compared like any other, and a missing weight is a number.
 */
#ifndef KORVEL_STATISTICS_VECTOR_FREQUENCIES_H
#define KORVEL_STATISTICS_VECTOR_FREQUENCIES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Total weight of the elements that are near a value.
 *
 * @param x     the vector, `n` elements
 * @param n     number of elements to read
 * @param w     `n` weights, not null
 * @param value the value
 * @param tol   an element counts when its distance from `value` is less than this, so that 0 counts none
 * @return the sum of their weights in ascending index order; 0.0 when there are none
 */
KORVEL_API double V_Freq(matrix<double>* x, int n, matrix<double>* w, double value, double tol);

/** The same for integers, which are compared as numbers. */
KORVEL_API double V_Freq(matrix<int>* x, int n, matrix<double>* w, double value, double tol);

/**
 * Total weight of the texts that equal a value: of the same length and with the same code units.
 *
 * @param labels the texts, `n` elements
 * @param n      number of elements to read
 * @param w      `n` weights, not null
 * @param value  the value
 * @return the sum of their weights in ascending index order; 0.0 when there are none
 */
KORVEL_API double V_FreqStr(matrix<text>* labels, int n, matrix<double>* w, text value);

#endif
