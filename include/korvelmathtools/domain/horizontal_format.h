/**
 * @file
 * Repeated measures brought from a long table to a wide one.
 */
#ifndef KORVEL_DOMAIN_HORIZONTAL_FORMAT_H
#define KORVEL_DOMAIN_HORIZONTAL_FORMAT_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Turns a table with a row for each subject and time into one with a row for each subject and a column for
 * each time and variable: variable j at time t stands in column `(t - 1) * v + j`.
 *
 * @param longTable    `n` rows by `v` columns
 * @param n            rows of the long table
 * @param v            measured variables
 * @param subjects     the subject of each row, from 1
 * @param times        the time of each row, from 1
 * @param wideTable    `subjectCount` rows by `timeCount * v` columns, sized by the caller; every cell is set
 * to missing first. Rows are reached through the checked access of `matrix`
 * @param subjectCount number of subjects
 * @param timeCount    number of times
 * @param labels       labels of the subjects
 * @param outLabels    receives the labels; sized by the caller
 * @return 0; 2 when a table has too few columns, when a subject occurs twice at a time, when a time or a
 * subject is none of the wide table, or when a cell of it stays missing: the labels are not copied then
 */
KORVEL_API int CheckAndTransformToHorizontalFormat(cST_MVect<double>& longTable, int n, int v,
                                                   matrix<int>& subjects, matrix<int>& times,
                                                   cST_MVect<double>& wideTable, int subjectCount,
                                                   int timeCount, matrix<text>& labels,
                                                   matrix<text>& outLabels);

#endif
