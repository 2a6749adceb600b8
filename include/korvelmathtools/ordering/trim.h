/**
 * @file
 * Spaces at the ends of texts.
 */
#ifndef KORVEL_ORDERING_TRIM_H
#define KORVEL_ORDERING_TRIM_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Strips spaces (U+0020, and no other character) from the ends of texts.
 *
 * @param labels `n` texts
 * @param n      number of texts
 * @param bLeft  -1: at the left end
 * @param bRight -1: at the right end
 * @param out    receives `n` texts; may be `labels`
 * @return 0
 */
KORVEL_API int V_Trim(matrix<text>* labels, int n, short int bLeft, short int bRight, matrix<text>* out);

/** `V_Trim` in place. */
KORVEL_API int V_Trim2(matrix<text>* labels, int n, short int bLeft, short int bRight);

/** The text without the spaces at both of its ends. */
KORVEL_API text StrLRTrim(const text& value);

#endif
