/**
 * @file
 * Flat functions: labels for observations that have none.
 */
#ifndef KORVEL_FRAMES_MISSING_OBSERVATION_LABELS_H
#define KORVEL_FRAMES_MISSING_OBSERVATION_LABELS_H

#include "frames/types.h"

/**
 * Makes a label for each flagged row: the prefix and the row number, and a further number while another row
 * has that label.
 *
 * @param labels [inout] n texts, replaced where they differ
 * @param n      number of rows
 * @param flags  [inout] n flags, one for each row, -1 for one that gets a label; it is 0 then
 * @param prefix [in] one text: what a made label starts with
 * @return 0
 */
KORVEL_FLAT int VB_ReplaceMissingObsLabels(OLECHAR** labels, int n, short int* flags, const OLECHAR* prefix);

#endif
