/**
 * @file
 * Products of labelled tables, on the calling thread: the sums of the dense members of the same names, over
 * the columns of the records.
 *
 * A column that a table does not have reads as an empty one, and what is stored there is lost; an element
 * past the end of its column reaches that column's spare slot. Columns are not resized. The result's `nbcols`
 * and `nbrowsmax` become the counts of the product, and so reach the caller's record.
 */
#ifndef KORVEL_LINALG_PRODUCTS_RECORDS_H
#define KORVEL_LINALG_PRODUCTS_RECORDS_H

#include "containers/records.h"
#include "platform/export.h"

/**
 * C = A·B.
 *
 * @param A `n` by `p`
 * @param B `p` by `q`
 * @param C receives `n` by `q`
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_ProductAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q,
                              cST_MVect<double>& C);

/**
 * C = A'·B.
 *
 * @param A `n` by `p`
 * @param B `n` by `q`
 * @param C receives `p` by `q`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q,
                                 cST_MVect<double>& C);

/**
 * C = A·B'.
 *
 * @param A `n` by `p`
 * @param B `m` by `p`
 * @param C receives `n` by `m`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductATrB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int m,
                                 cST_MVect<double>& C);

/**
 * C = A·B·A', by rows of A·B.
 *
 * @param A         `n` by `p`
 * @param B         `p` by `p`
 * @param symmetric -1 promises that B is symmetric: only the lower half of C is summed, and mirrored. With
 *                  any other value all of it is summed
 * @param C         receives `n` by `n`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductABTrA_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B,
                                  short int symmetric, cST_MVect<double>& C);

#endif
