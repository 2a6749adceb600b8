/**
 * @file
 * Flat functions: how much weight the elements of a vector carry that equal a value. Nothing is left out: a
 * missing element is compared like any other, and a missing weight is a number.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_FREQUENCIES_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_FREQUENCIES_H

#include "frames/types.h"

/**
 * Total weight of the numbers that are near a value.
 *
 * @param x     [in] n numbers
 * @param n     number of elements
 * @param w     [in] n weights
 * @param value the value
 * @param tol   an element counts when its distance from the value is less than this, so that 0 counts none
 * @return the sum of their weights; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_Freq(const double* x, int n, const double* w, double value, double tol);

/**
 * Total weight of the integers that are near a value.
 *
 * @like VB_V_Freq, integers for numbers
 */
KORVEL_FLAT double VB_V_FreqLng(const int* x, int n, const double* w, double value, double tol);

/**
 * Total weight of the texts that equal a value: of the same length and with the same code units.
 *
 * @param labels [in] n texts, each up to its first NUL
 * @param n      number of elements
 * @param w      [in] n weights
 * @param value  [in] one text (BSTR), up to its first NUL. Null: the empty text
 * @return the sum of their weights; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_FreqStr(OLECHAR* const* labels, int n, const double* w, const OLECHAR* value);

#endif
