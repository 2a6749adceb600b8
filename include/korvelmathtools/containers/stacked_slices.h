/**
 * @file
 * Stacked slices: a three-dimensional host array a(k, i, j), held as one matrix for each k. Flat, it is a
 * block in which k runs fastest, then i, then j.
 */
#ifndef KORVEL_CONTAINERS_STACKED_SLICES_H
#define KORVEL_CONTAINERS_STACKED_SLICES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Makes `n` matrices of zeros.
 *
 * @param m    receives the `n` new matrices, which are then the caller's to delete (`deletecascade`)
 * @param n    number of slices
 * @param rows rows of each
 * @param cols columns of each; below 1 it counts as 1
 * @throws std::bad_alloc when memory is short; the matrices made until then stay in `m`
 */
KORVEL_API void iniSuperMat(matrix<double>** m, int n, int rows, int cols);

/**
 * Makes `n` matrices, as `iniSuperMat` does, and copies a flat block into them. The last element of each also
 * stands in its `oobValue`. With `cols` below 1 nothing is copied.
 *
 * @param m    receives the `n` new matrices
 * @param flat `n * rows * cols` elements: numbers, texts of the caller, or integers, which become `double`
 * as they are (a missing integer becomes -2147483648.0)
 * @param n    number of slices
 * @param rows rows of each
 * @param cols columns of each
 * @throws std::bad_alloc when memory is short; the matrices made until then stay in `m`
 */
KORVEL_API void loadSuperMat(matrix<double>** m, double* flat, int n, int rows, int cols);
KORVEL_API void loadSuperMat(matrix<text>** m, OLECHAR** flat, int n, int rows, int cols);
KORVEL_API void loadSuperMatLng(matrix<double>** m, int* flat, int n, int rows, int cols);

/**
 * Copies slices back into a flat block, the reverse of `loadSuperMat`. An element that a slice does not have
 * is its `oobValue`.
 *
 * @param m    `n` matrices
 * @param flat receives `n * rows * cols` elements. A text is replaced unless it reads the same
 * @param n    number of slices
 * @param rows rows to copy of each
 * @param cols columns to copy of each
 * @throws std::bad_alloc when a text cannot be made; the texts not reached keep their old value
 */
KORVEL_API void unloadSuperMat(matrix<double>** m, double* flat, int n, int rows, int cols);
KORVEL_API void unloadSuperMat(matrix<text>** m, OLECHAR** flat, int n, int rows, int cols);

/**
 * `unloadSuperMat` to integers, without the fraction. A missing number becomes 0, not the missing integer; a
 * NaN and any other number that no `int` holds become -2147483648.
 */
KORVEL_API void unloadSuperMatLng(matrix<double>** m, int* flat, int n, int rows, int cols);

/**
 * Sets slices to a value. A slice with fewer than `rows` rows or `cols` columns is resized and filled; of any
 * other the first `rows * cols` elements in linear order are set, and the rest stays.
 *
 * @param m     `n` matrices
 * @param n     number of slices
 * @param rows  rows
 * @param cols  columns
 * @param value the value
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void SuperMatSetToValue(matrix<double>** m, int n, int rows, int cols, double value);

/**
 * Copies all elements of chunk `k` into column `j` of a table, both 0-based. What the column has no room for
 * ends in the table's `oobValue`, as does the last element in any case. Nothing happens when `k` or `j` is
 * negative, `k` is not below `n`, or `j` is not below `out->nbcols`.
 *
 * @param m   `n` chunks
 * @param n   number of chunks
 * @param k   the chunk
 * @param j   the column
 * @param out the table
 */
KORVEL_API void CopyCol(matrix<double>** m, int n, int k, int j, matrix<double>* out);

#endif
