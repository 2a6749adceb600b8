/**
 * @file
 * Systems of linear equations solved by elimination.
 */
#ifndef KORVEL_LINALG_GAUSS_H
#define KORVEL_LINALG_GAUSS_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Gauss-Jordan elimination with full pivoting (Golub and Van Loan, Matrix Computations, section 3.4): A
 * becomes its inverse and B the solution X of A·X = B.
 *
 * At each step the pivot is the element of largest magnitude among the rows and columns that had none yet,
 * looked at row after row: another one takes the place of the best so far, which starts at 0, only when its
 * magnitude is larger by more than 1e-12. When no element is, the first row and column that had no pivot are
 * taken. So the pivots of a table in units of 1e-13 are not searched for.
 *
 * What counts as singular is a pivot that is exactly 0. A table that is singular but for rounding passes, and
 * its inverse is rounding error.
 *
 * @param A       `n` by `n`, through the checked access; missing cells are numbers
 * @param n       order
 * @param m       columns of B, which may be none
 * @param B       `n` by `m`, not null
 * @param noSwap  leaves rows and columns where they are, and does not exchange them back: the element on the
 *                diagonal of the column that was found is the pivot, whatever it is
 * @param noPivot searches for no pivot and exchanges nothing: the diagonal is taken in order
 * @return 0, or -2 at a pivot of 0; A and B are then as the steps before have left them
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API int M_Gauss(matrix<double>* A, int n, int m, matrix<double>* B, bool noSwap, bool noPivot);

/**
 * `M_Gauss(A, n, 1, b, false, false)` on a labelled table and a labelled column. Columns that the table does
 * not have read as -1, and what is stored there is lost.
 */
KORVEL_API int V_Gauss_ST(cST_MVect<double>& A, int n, cST_Vect<double>& b);

#endif
