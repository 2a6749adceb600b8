/**
 * @file
 * The most frequent value of a vector of codes or of texts.
 */
#ifndef KORVEL_ORDERING_MODES_H
#define KORVEL_ORDERING_MODES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) - 1.
 *
 * @param x `n` numbers; missing ones and negative codes are not counted
 * @return the code with the greatest count, the smallest of equals; missing when there is none
 */
KORVEL_API double V_ModeCat(matrix<double>* x, int n);

namespace korvel
{

/**
 * The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels
 * are missing and not counted, nor is one whose flag is not 0.
 *
 * @param iMissing `n` flags, or null when none is set
 * @return the label; empty when there is none
 */
[[nodiscard]] text modeOfTexts(const matrix<text>& labels, int n, const short int* iMissing,
                               const matrix<double>& w);

} // namespace korvel

#endif
