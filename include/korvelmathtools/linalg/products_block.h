/**
 * @file
 * Products with a block-diagonal table, which is held as a list of square blocks and of their sizes. The rows
 * and columns of the blocks lie one after the other from 0 on.
 *
 * Sizes are passed beside the tables and may differ from their own: a cell outside reads the table's
 * `oobValue`, and what is stored there is lost. So do the sizes of blocks that do not add up to the rows, or
 * columns, of the other table. A size below 0 counts as 0. Results are none of the operands. All run on the
 * calling thread, but for products with a single block that are said to be those of `M_ProductAB`.
 *
 * The products without transposing first look at the structure of the operands: a cell counts as non-zero
 * when it is NaN or differs from 0.0. A row is *zero* when all its cells are zeros, and *diagonal* when all
 * but the diagonal cells of it and of the column with its number are zeros; columns alike. Where such a line
 * meets the other operand no sum is formed, so that an infinite or NaN cell opposite a zero does not show.
 */
#ifndef KORVEL_LINALG_PRODUCTS_BLOCK_H
#define KORVEL_LINALG_PRODUCTS_BLOCK_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * C = diag(blocks)·A. With one block of size s it is `M_ProductAB(block, s, s, A, p, C)`, which clears C and
 * shares out the work. Otherwise, for each block and the rows of A opposite, the first rule that applies
 * gives element (r, j) of that part of C:
 *
 * - row r of the block is zero, or column j of A's rows: 0.0;
 * - row r of the block is diagonal: `block(r,r) * A(r,j)`;
 * - A's rows are as many as its columns, and its column j is diagonal: `block(r,j) * A(j,j)`;
 * - otherwise the sum over c of `block(r,c) * A(c,j)`, from 0.0 in ascending order.
 *
 * @param blocks  at least `nBlocks` square tables
 * @param nBlocks number of blocks; below 1 nothing is stored
 * @param sizes   `nBlocks` sizes, by linear index
 * @param A       as many rows as the sizes add up to, by `p`
 * @param p       columns of A
 * @param C       receives the shape of A, sized by the caller when there are several blocks
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_BlockProductBckA(matrix3D<matrix<double>>* blocks, int nBlocks, matrix<int>* sizes,
                                   matrix<double>* A, int p, matrix<double>* C);

/**
 * The same on sparse tables. A is expanded first, and the result is C's new contents, with as many rows as
 * the sizes add up to. Which rows of a block are zero or diagonal is what `matrixSparse::calcStrucInfo` says:
 * stored zeros are cells, and for a diagonal row its column does not matter. With one block it is the sparse
 * `M_ProductAB`.
 */
KORVEL_API void M_BlockProductBckA(matrix3D<matrixSparse>* blocks, int nBlocks, matrix<int>* sizes,
                                   matrixSparse* A, int p, matrixSparse* C);

/**
 * C = A·diag(blocks). With one block of size s it is `M_ProductAB(A, n, s, block, s, C)`. Otherwise, for each
 * block and the columns of A opposite, the first rule that applies gives element (i, j) of that part of C:
 *
 * - column j of the block is zero, or row i of A's columns: 0.0;
 * - column j of the block is diagonal: `A(i,j) * block(j,j)`;
 * - A's columns are as many as its rows, and its row i is diagonal: `A(i,i) * block(i,j)`;
 * - otherwise the sum over c of `A(i,c) * block(c,j)`, from 0.0 in ascending order.
 *
 * @param A       `n` by as many columns as the sizes add up to
 * @param n       rows of A
 * @param blocks  at least `nBlocks` square tables
 * @param nBlocks number of blocks; below 1 nothing is stored
 * @param sizes   `nBlocks` sizes, by linear index
 * @param C       receives the shape of A, sized by the caller when there are several blocks
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_BlockProductABck(matrix<double>* A, int n, matrix3D<matrix<double>>* blocks, int nBlocks,
                                   matrix<int>* sizes, matrix<double>* C);

/**
 * The same on sparse tables, as for `M_BlockProductBckA`: which columns of a block are zero or diagonal is
 * what `matrixSparse::calcStrucInfo` says of the rows of its transpose.
 */
KORVEL_API void M_BlockProductABck(matrixSparse* A, int n, matrix3D<matrixSparse>* blocks, int nBlocks,
                                   matrix<int>* sizes, matrixSparse* C);

/**
 * C = A·diag(blocks)': each element is the sum over c of `A(i,c) * block(j,c)`, from 0.0 in ascending order,
 * whatever the structure.
 *
 * The arguments are those of `M_BlockProductABck`; C is sized by the caller.
 */
KORVEL_API void M_BlockProductATrBck(matrix<double>* A, int n, matrix3D<matrix<double>>* blocks, int nBlocks,
                                     matrix<int>* sizes, matrix<double>* C);

/**
 * The same on sparse tables, which are expanded first; the result is C's new contents. With one block of size
 * s it is the sparse `M_ProductATrB(A, n, s, block, s, C)`.
 */
KORVEL_API void M_BlockProductATrBck(matrixSparse* A, int n, matrix3D<matrixSparse>* blocks, int nBlocks,
                                     matrix<int>* sizes, matrixSparse* C);

/**
 * y = diag(blocks)·v: each element is the sum over c of `block(r,c) * v(c)`, from 0.0 in ascending order.
 *
 * @param blocks  at least `nBlocks` square tables
 * @param nBlocks number of blocks; below 1 nothing is stored
 * @param sizes   `nBlocks` sizes, by linear index
 * @param v       as many elements as the sizes add up to, by linear index
 * @param y       receives as many, by linear index; sized by the caller
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_BlockProductBckVect(matrix3D<matrix<double>>* blocks, int nBlocks, matrix<int>* sizes,
                                      matrix<double>* v, matrix<double>* y);

#endif
