/**
 * @file
 * Flags for missing cells, and what follows from flags. A flag is -1 for true and 0 for false. For a vector
 * of numbers see `V_GetMissingDbl` in `containers/missing.h`.
 *
 * Cells are read through the checked access of `matrix`.
 */
#ifndef KORVEL_MISSING_MISSING_FLAGS_H
#define KORVEL_MISSING_MISSING_FLAGS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * Combines the two sources of missingness of a vector of texts.
 *
 * @param x           `n` texts
 * @param n           number of texts
 * @param iMissing    `n` flags, -1 for one that is left out; null: none is
 * @param iMissingOut receives `n` flags: -1 when the flag is -1 or the text is empty, otherwise 0. It may be
 * `iMissing`
 * @return 0
 */
KORVEL_API int V_GetMissingStr(matrix<text>* x, int n, short int* iMissing, short int* iMissingOut);

/**
 * Whether some cell (i, j) off the diagonal, i < j, equals `MISSING_DBL` while the cells (i, i) and (j, j)
 * are both above it.
 *
 * @param x a square table of `n` rows, of which the diagonal and what is above it are read
 * @param n number of rows; below 2 the result is 0
 * @return -1 or 0
 */
KORVEL_API short int M_IsMissingOutOfDiagonalAndNotOnDiags(matrix<double>* x, int n);

/** The same for a symmetric table of which chunk j holds column j from the diagonal down. */
KORVEL_API short int M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(matrix<double>** x, int n);
KORVEL_API short int M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(matrix3D<matrix<double>>* x, int n);

namespace korvel
{

/**
 * Flags the rows of a table that have a missing cell: for numbers by the test of order, as `V_GetMissingDbl`
 * does.
 *
 * @param x           the table
 * @param rows        rows of the table
 * @param cols        columns of the table
 * @param iMissing    a flag for each row, -1 for one that is left out; null: none is
 * @param iMissingOut receives a flag for each row: -1 when its flag is -1 or a cell of it is missing,
 * otherwise 0. It may be `iMissing`
 */
void getMissing(const matrix<double>& x, int rows, int cols, const short int* iMissing,
                short int* iMissingOut);
void getMissing(const matrix<text>& x, int rows, int cols, const short int* iMissing, short int* iMissingOut);
void getMissing(matrix<double>* const* x, int rows, int cols, const short int* iMissing,
                short int* iMissingOut);

/**
 * Sets the result to -1 where `a` or `b` or `c` is -1, and leaves the other entries as they were.
 *
 * @param n      number of entries of each
 * @param c      null: only the first two count
 * @param result receives the flags; it may be one of the others
 * @return how many entries were set
 */
int summarizeMissing(int n, const short int* a, const short int* b, const short int* c, short int* result);

/** The same where both `a` and `b` are -1. */
int summarizeAllMissing(int n, const short int* a, const short int* b, short int* result);

/**
 * Sets the flag of each row that is flagged -1 and has nothing but missing cells to -1, and leaves the others
 * as they were.
 *
 * @param x        the table, of `double` or `text`
 * @param flagsIn  a flag for each row
 * @param flagsOut receives the flags; it may be `flagsIn`
 */
template <class T>
void flagAllMissingRows(const matrix<T>& x, int rows, int cols, const short int* flagsIn,
                        short int* flagsOut);

} // namespace korvel

#endif
