/**
 * @file
 * The vector kernels that the singular value decomposition is written on, under their names from BLAS
 * (Lawson, Hanson, Kincaid and Krogh, Basic linear algebra subprograms for Fortran usage, 1979). Instead of a
 * raw pointer each takes a table and a place in it.
 *
 * Rows and columns are counted from 1. A vector runs down one column: its element k, from 0 on, is in row
 * `row + k * incx` of column `col`. A vector with a negative stride starts from the far end, as in BLAS, in
 * the kernels of two vectors. For `n` below 1 nothing is done, and a value is 0.0. Sums start at 0.0 and add
 * in ascending order of k. Two vectors may be the same, or lie in one table.
 *
 * The plain forms and those with `SPV` reach elements through the checked access of the table. Those with
 * `_Fast_ST` are for records whose columns hold what is asked for.
 */
#ifndef KORVEL_LINALG_VECTOR_KERNELS_H
#define KORVEL_LINALG_VECTOR_KERNELS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * The Euclidean norm of a vector by a scaled sum, which neither overflows nor underflows on the way: with
 * every element that is not 0, either the scale or the sum of squares of elements divided by it grows.
 *
 * @param n    number of elements
 * @param x    the table; not null
 * @param incx stride
 * @param row  row of the first element
 * @param col  column
 * @return the norm; the magnitude of the one element when `n` is 1
 */
KORVEL_API double DNRM2(int n, matrix<double>* x, int incx, int row, int col);
KORVEL_API double DNRM2SPV(int n, matrix3D<matrix<double>>* x, int incx, int row, int col);
KORVEL_API double DNRM2_Fast_ST(int n, cST_MVect<double>& x, int incx, int row, int col);

/**
 * x = ax.
 *
 * @param n    number of elements
 * @param a    factor
 * @param x    the table; not null
 * @param incx stride
 * @param row  row of the first element
 * @param col  column
 */
KORVEL_API void dscal(int n, double a, matrix<double>* x, int incx, int row, int col);
KORVEL_API void dscalSPV(int n, double a, matrix3D<matrix<double>>* x, int incx, int row, int col);
KORVEL_API void dscal_Fast_ST(int n, double a, cST_MVect<double>& x, int incx, int row, int col);

/**
 * y = ax + y. With `a` equal to 0 nothing is done.
 *
 * @param n    number of elements
 * @param a    factor
 * @param x    the table with the vector that is added; not null
 * @param incx its stride
 * @param y    the table with the vector that is changed; not null
 * @param incy its stride
 * @param rowx row of the first element of x
 * @param colx column of x
 * @param rowy row of the first element of y
 * @param coly column of y
 */
KORVEL_API void daxpy(int n, double a, matrix<double>* x, int incx, matrix<double>* y, int incy, int rowx,
                      int colx, int rowy, int coly);
KORVEL_API void daxpySPV(int n, double a, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y,
                         int incy, int rowx, int colx, int rowy, int coly);
KORVEL_API void daxpy_Fast_ST(int n, double a, cST_MVect<double>& x, int incx, cST_MVect<double>& y, int incy,
                              int rowx, int colx, int rowy, int coly);

/**
 * The inner product of two vectors; arguments as for `daxpy`.
 *
 * @return the sum of the products
 */
KORVEL_API double ddot(int n, matrix<double>* x, int incx, matrix<double>* y, int incy, int rowx, int colx,
                       int rowy, int coly);
KORVEL_API double ddotSPV(int n, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y, int incy,
                          int rowx, int colx, int rowy, int coly);
KORVEL_API double ddot_Fast_ST(int n, cST_MVect<double>& x, int incx, cST_MVect<double>& y, int incy,
                               int rowx, int colx, int rowy, int coly);

/**
 * Swaps two columns, from row 1 on.
 *
 * @param n    number of elements
 * @param x    the table with the one; not null
 * @param incx its stride
 * @param y    the table with the other; not null
 * @param incy its stride
 * @param colx column of x
 * @param coly column of y
 */
KORVEL_API void M_SwapVectors(int n, matrix<double>* x, int incx, matrix<double>* y, int incy, int colx,
                              int coly);
KORVEL_API void M_SwapVectorsSPV(int n, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y,
                                 int incy, int colx, int coly);

/**
 * Rotates two columns, from row 1 on: (x, y) = (cx + sy, cy - sx).
 *
 * @param n    number of elements
 * @param x    the table with the one; not null
 * @param incx its stride
 * @param y    the table with the other; not null
 * @param incy its stride
 * @param c    cosine
 * @param s    sine
 * @param colx column of x
 * @param coly column of y
 */
KORVEL_API void drot(int n, matrix<double>* x, int incx, matrix<double>* y, int incy, double c, double s,
                     int colx, int coly);
KORVEL_API void drotSPV(int n, matrix3D<matrix<double>>* x, int incx, matrix3D<matrix<double>>* y, int incy,
                        double c, double s, int colx, int coly);
KORVEL_API void drot_Fast_ST(int n, cST_MVect<double>& x, int incx, cST_MVect<double>& y, int incy, double c,
                             double s, int colx, int coly);

/**
 * The Givens rotation that turns (a, b) to (r, 0). r has the sign of the one that is larger in magnitude, of
 * b on a tie.
 *
 * @param a the first coordinate; becomes r
 * @param b the second; becomes the number that stands for the rotation: the sine when the first was larger in
 *          magnitude, otherwise one by the cosine, or 1 when that is 0. When both are 0 it becomes 0
 * @param c receives the cosine, 1 when both are 0
 * @param s receives the sine, 0 when both are 0
 */
KORVEL_API void drotg(double* a, double* b, double* c, double* s);

#endif
