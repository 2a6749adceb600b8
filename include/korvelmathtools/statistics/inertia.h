/**
 * @file
 * The scatter of a table round a centre.
 */
#ifndef KORVEL_STATISTICS_INERTIA_H
#define KORVEL_STATISTICS_INERTIA_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The weighted scatter table of the rows of a group: for columns i and j the sum of
 * `w * (x_i - c_i) * (x_j - c_j)` from 0.0, in ascending order of the rows. Missing cells are numbers.
 *
 * @param x        the table, `rows` by `cols`
 * @param rows     rows
 * @param cols     columns
 * @param w        `rows` weights
 * @param group    the group whose rows are taken; -1 takes every row
 * @param groupIds `rows` group numbers; not read when `group` is -1, and may then be null
 * @param centres  the centre, `cols` elements
 * @param out      receives `cols` by `cols`: the upper half is summed and mirrored. May not be `x`
 */
KORVEL_API void M_Inertie_W(matrix<double>* x, int rows, int cols, matrix<double>* w, int group,
                            matrix<double>* groupIds, matrix<double>* centres, matrix<double>* out);
KORVEL_API void M_Inertie_W(matrix<double>* x, int rows, int cols, matrix<double>* w, int group,
                            matrix<int>* groupIds, matrix<double>* centres, matrix<double>* out);
/** The same on chunks: `cols` of `rows` elements, and `cols` of `cols` for the result. */
KORVEL_API void M_Inertie_WSPV(matrix<double>** x, int rows, int cols, matrix<double>* w, int group,
                               matrix<double>* groupIds, matrix<double>* centres, matrix<double>** out);

#endif
