/**
 * @file
 * Numbers of categories, and names that several variables share.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_COUNTS_H
#define KORVEL_QUALITATIVE_CATEGORY_COUNTS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The number of different texts in each column, the empty one left out. The columns are counted side by side,
 * on several threads.
 *
 * @param data           texts, `n` by `p`
 * @param n              number of rows
 * @param p              number of columns
 * @param categoryCounts receives the numbers; room for `p`
 * @return the largest number; 0 when there is no column
 */
KORVEL_API int GetMaxCat(matrix<text> const& data, int n, int p, matrix<int>& categoryCounts);

/**
 * The number of different texts in one column, the empty one left out.
 *
 * @param column        `n` texts
 * @param n             number of rows
 * @param categoryCount receives the number
 * @return the number
 */
KORVEL_API int GetMaxCat(matrix<text> const& column, int n, int& categoryCount);

/**
 * Whether a name is used twice: in a slot of one variable, and in a later slot of the same or of any other
 * variable. Equal names in the same slot of two variables are not noticed. Empty names are equal to each
 * other.
 *
 * @param categories     names, `p` by `width`: a row for each variable
 * @param p              number of variables
 * @param width          columns of the table; what lies outside is read through the checked access
 * @param categoryCounts number of slots of each variable, `p` integers
 * @return 1 when a name is used twice, otherwise 0
 */
KORVEL_API int CheckUniqueCatByVar(matrix<text> const& categories, int p, int width,
                                   matrix<int> const& categoryCounts);

#endif
