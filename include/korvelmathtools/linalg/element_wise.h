/**
 * @file
 * Tables changed cell by cell: times a number, plus a number, squared; products and sums of two tables.
 *
 * Sizes are passed beside each table, rows before columns, and may be smaller than the table's own. Access is
 * checked: a cell outside a table reads its `oobValue`, and every store also leaves its value in the result's
 * `oobValue`. Cells are visited column after column. Counts below 1 do nothing.
 *
 * A result that is cleared first is given the counts asked for and filled with 0.0 when it has too few rows
 * or columns; a larger one keeps its shape, and as many of its first elements as are asked for become 0.0.
 */
#ifndef KORVEL_LINALG_ELEMENT_WISE_H
#define KORVEL_LINALG_ELEMENT_WISE_H

#include "containers/matrix.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * C(i, j) = s * A(i, j); a missing cell stays missing.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param s the factor; it may be any number, also the missing value
 * @param C receives `n` by `p` cells, sized by the caller; may be `A`
 */
KORVEL_API void M_ScalarsA(matrix<double>* A, int n, int p, double s, matrix<double>* C);

/**
 * The same from sparse table to sparse table, cell by cell through `getElement` and `setElement`: what `C`
 * has outside the block stays, and a product below 1e-18 in magnitude takes a stored entry out.
 */
KORVEL_API void M_ScalarsA(matrixSparse* A, int n, int p, double s, matrixSparse* C);

/**
 * `M_ScalarsA` in place.
 *
 * @param A `n` by `p`; what it reads outside its block is read before anything is stored
 * @throws std::bad_alloc when `A` is smaller than `n` by `p` and memory is short
 */
KORVEL_API void M_ScalarsA2(matrix<double>* A, int n, int p, double s);

/**
 * The same on a sparse table, which becomes `n` by `p`, or stays as it is when a count is below 0.
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ScalarsA2(matrixSparse* A, int n, int p, double s);

/**
 * C(j, i) = s * A(i, j); a missing cell stays missing.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param s the factor
 * @param C receives `p` by `n` cells; cleared first. Not `A`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ScalarsTrA(matrix<double>* A, int n, int p, double s, matrix<double>* C);

/**
 * C(i, j) = A(i, j) + s, computed in `double`. Missing cells are numbers here: the sum is no longer missing.
 * A result that goes to `int` loses its fraction; what no `int` can hold becomes -2147483648.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param s what is added
 * @param C receives `n` by `p` cells, sized by the caller; may be `A`
 */
KORVEL_API void M_APlusVal(matrix<double>* A, int n, int p, double s, matrix<double>* C);
KORVEL_API void M_APlusVal(matrix<double>* A, int n, int p, double s, matrix<int>* C);
KORVEL_API void M_APlusVal(matrix<int>* A, int n, int p, double s, matrix<double>* C);
KORVEL_API void M_APlusVal(matrix<int>* A, int n, int p, double s, matrix<int>* C);

/** `M_APlusVal` in place. */
KORVEL_API void M_APlusVal2(matrix<double>* A, int n, int p, double s);
KORVEL_API void M_APlusVal2(matrix<int>* A, int n, int p, double s);

/** A(i, j) = A(i, j) * A(i, j) in place, `n` by `p`; a missing cell stays missing. */
KORVEL_API void M_Square(matrix<double>* A, int n, int p);

/**
 * The Hadamard product: C(i, j) = A(i, j) * B(i, j). Missing cells are numbers here.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param B `n` by `p`
 * @param C receives `n` by `p` cells, sized by the caller; may be `A` or `B`
 */
KORVEL_API void M_ProductByElement(matrix<double>* A, int n, int p, matrix<double>* B, matrix<double>* C);

/** C(i, j) = A(i, j) + B(i, j); all three `n` by `p`. Missing cells are numbers here. */
KORVEL_API void SumMat(matrix<double>* A, matrix<double>* B, int n, int p, matrix<double>* C);

namespace korvel
{

/** x(i, j) = x(i, j) * s in place, `rows` by `cols`. Missing cells are numbers here. */
void multiplyByValue(matrix<double>& x, int rows, int cols, double s);

} // namespace korvel

#endif
