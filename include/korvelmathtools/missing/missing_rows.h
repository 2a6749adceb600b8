/**
 * @file
 * Taking flagged rows out of a table, and putting rows of missing cells back in. A flag other than 0 marks a
 * row.
 *
 * Tables are read and written through the checked access of `matrix`. Rows that stay keep their order, and
 * neighbours among them move together.
 */
#ifndef KORVEL_MISSING_MISSING_ROWS_H
#define KORVEL_MISSING_MISSING_ROWS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Takes the flagged rows out in place: those below move up. The table keeps its shape, and the rows that
 * become free at the bottom stay as they were.
 *
 * @param x     `n` by `p`
 * @param n     rows of the table
 * @param p     columns of the table
 * @param flags a flag for each row; not 0: the row is taken out
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_RemoveRowsWithMissing2(matrix<double>*& x, int n, int p, short int* flags);
KORVEL_API void M_RemoveRowsWithMissing2(matrix<text>*& x, int n, int p, short int* flags);

/**
 * Copies a table of flags without the flagged rows.
 *
 * @param x       `n` by `p`
 * @param n       rows of the table
 * @param p       columns of the table
 * @param removed how many rows the result is shorter. Where this is less than there are flagged rows, the
 * result goes on with the rows that stand there in `x`; where it is more, the last rows that stay are left
 * out
 * @param flags   a flag for each row; not 0: the row is taken out
 * @param result  receives `n - removed` by `p`, sized by the caller
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void RemoveRowsWithMissingBool(matrix<short int>* x, int n, int p, int removed, short int* flags,
                                          matrix<short int>* result);

/**
 * Spreads the rows of a table, with rows of missing cells between them.
 *
 * @param x      `n` by `p`
 * @param n      rows of the table
 * @param p      columns of the table
 * @param flags  `n + m` flags: 0 for a row that takes the next row of `x`, otherwise for one that is all
 * missing
 * @param m      how many rows the result is longer
 * @param result receives `n + m` by `p`, sized by the caller; not `x`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_InsertMissing(matrix<double>* x, int n, int p, short int* flags, int m,
                                matrix<double>* result);
KORVEL_API void M_InsertMissingLng(matrix<int>* x, int n, int p, short int* flags, int m,
                                   matrix<int>* result);

namespace korvel
{

/** `RemoveRowsWithMissingBool` for any element type. */
template <class T>
void copyRowsKept(const matrix<T>& x, int n, int p, int removed, const short int* flags, matrix<T>& result);

/** Copies the first `rows` rows of a table of texts; a row that it does not have is empty. */
void copyFirstRows(const matrix<text>& x, int rows, int cols, matrix<text>& result);

/** How many of `n` rows are not flagged. */
[[nodiscard]] int countKept(const short int* flags, int n);

} // namespace korvel

#endif
