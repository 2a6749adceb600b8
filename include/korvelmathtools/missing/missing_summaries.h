/**
 * @file
 * Summaries and vectors of what is not missing. Numbers are missing when they equal `MISSING_DBL`, exactly.
 *
 * Cells are read and written through the checked access of `matrix`.
 */
#ifndef KORVEL_MISSING_MISSING_SUMMARIES_H
#define KORVEL_MISSING_MISSING_SUMMARIES_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Sum of the elements of one vector where neither it nor another vector is missing.
 *
 * @param x the vector to add up, `n` elements
 * @param n number of elements
 * @param y the other vector, `n` elements
 * @return the sum of `x[i]` in ascending order, 0.0 when there are none; `MISSING_DBL` for `n` below 1
 */
KORVEL_API double V_SumIfNotMissing(matrix<double>* x, int n, matrix<double>* y);

/**
 * Strings the cells that are not missing together, column after column.
 *
 * @param x            `n` by `p`
 * @param n            rows of the table
 * @param p            columns of the table
 * @param counts       `p` numbers, sized by the caller: each grows by the number of such cells in its column
 * @param emptyColumns grows by 1 for each column whose count is 0 then
 * @param vector       receives the cells from its start on; it has room for them, and what is behind them
 * stays
 */
KORVEL_API void MatToVect_NoMissing(matrix<double>* x, int n, int p, matrix<double>* counts,
                                    double& emptyColumns, matrix<double>* vector);

namespace korvel
{

/** The smallest of the first `n` elements that are not missing, by `V_Min2`. */
[[nodiscard]] double smallestPresent(const matrix<double>& x, int n);

/** The smallest number in the first `rows` rows and `cols` columns that is not missing, by `smallestOf`. */
[[nodiscard]] double smallestPresent(const cST_MVect<double>& x, int rows, int cols);

} // namespace korvel

#endif
