/**
 * @file
 * Flat functions: labels made distinct, and joined.
 */
#ifndef KORVEL_FRAMES_TABLES_LABELS_H
#define KORVEL_FRAMES_TABLES_LABELS_H

#include "frames/types.h"

/**
 * Makes repeated labels distinct: a repeat gets a number behind it, from 2 on.
 *
 * @param labels [inout] n texts, replaced where they differ
 * @param n      number of labels
 * @return 0
 */
KORVEL_FLAT int VB_V_ReplaceDoubles(OLECHAR** labels, int n);

/**
 * Joins two vectors of labels.
 *
 * @param a   [in] n texts
 * @param n   number of labels
 * @param b   [in] n texts
 * @param sep [in] one text: what stands between them
 * @param out [inout] n texts, replaced where they differ; it may be a or b
 * @return 0
 */
KORVEL_FLAT int Cpp_V_MergeVectorsStr(OLECHAR* const* a, int n, OLECHAR* const* b, const OLECHAR* sep,
                                      OLECHAR** out);

#endif
