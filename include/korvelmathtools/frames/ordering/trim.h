/**
 * @file
 * Flat functions: spaces at the ends of texts.
 */
#ifndef KORVEL_FRAMES_ORDERING_TRIM_H
#define KORVEL_FRAMES_ORDERING_TRIM_H

#include "frames/types.h"

/**
 * Strips spaces (U+0020) from the ends of texts.
 *
 * @param labels [in] n texts
 * @param n      number of texts
 * @param bLeft  -1: at the left end
 * @param bRight -1: at the right end
 * @param out    [inout] n texts, replaced where they differ; may be labels
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Trim(OLECHAR* const* labels, int n, short int bLeft, short int bRight, OLECHAR** out);

/**
 * Strips spaces (U+0020) from the ends of texts, in place.
 *
 * @like Cpp_V_Trim
 * @param labels [inout] n texts
 */
KORVEL_FLAT int Cpp_V_Trim2(OLECHAR** labels, int n, short int bLeft, short int bRight);

#endif
