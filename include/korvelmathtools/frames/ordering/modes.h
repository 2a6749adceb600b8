/**
 * @file
 * Flat functions: modes.
 */
#ifndef KORVEL_FRAMES_ORDERING_MODES_H
#define KORVEL_FRAMES_ORDERING_MODES_H

#include "frames/types.h"

/**
 * The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) - 1.
 *
 * @param x [in] n numbers; missing ones and negative codes are not counted
 * @param n number of elements
 * @return the code, the smallest of equals; missing when there is none
 */
KORVEL_FLAT double VB_V_ModeCatDbl(const double* x, int n);

/**
 * The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels
 * are not counted.
 *
 * @param labels   [in] n texts
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out. Null: none is
 * @param w        [in] n weights
 * @param mode     [inout] one text, replaced by the label, empty when there is none
 * @return 0
 */
KORVEL_FLAT int VB_V_Mode(OLECHAR* const* labels, int n, const short int* iMissing, const double* w,
                          OLECHAR** mode);

/**
 * The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels
 * are not counted.
 *
 * @like VB_V_Mode
 */
KORVEL_FLAT int Cpp_V_ModeW2(OLECHAR* const* labels, int n, const double* w, OLECHAR** mode);

#endif
