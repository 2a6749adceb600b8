/**
 * @file
 * Labels for observations that have none.
 */
#ifndef KORVEL_MISSING_OBSERVATION_LABELS_H
#define KORVEL_MISSING_OBSERVATION_LABELS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Makes a label for each flagged row: the prefix and the row number, from 1. While another row has that
 * label, "_2",
 * "_3" and so on stand behind it.
 *
 * @param labels `n` texts, in place; those of rows that are not flagged stay
 * @param n      number of rows
 * @param flags  a flag for each row, -1 for one that gets a label; it is 0 afterwards
 * @param prefix what a made label starts with
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void ReplaceMissingObsLabels(matrix<text>* labels, int n, short int* flags, text prefix);

#endif
