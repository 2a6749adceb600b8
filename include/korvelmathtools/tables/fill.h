/**
 * @file
 * Vectors and flags filled by a rule.
 */
#ifndef KORVEL_TABLES_FILL_H
#define KORVEL_TABLES_FILL_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Numbers a vector: element k, from 1, becomes k. Texts are plain decimal digits.
 *
 * @param x the vector, sized by the caller. Its `oobValue` is then the last one stored, `n`
 * @param n number of elements; nothing happens below 1
 */
KORVEL_API void V_Set1toN(matrix<double>* x, int n);
KORVEL_API void V_Set1toN(matrix<int>* x, int n);
KORVEL_API void V_Set1toN(matrix<text>* x, int n);

/**
 * Fills a vector with one value.
 *
 * @param x     the vector, first given the shape `n` by 1; a borrowed one keeps its own. Its `oobValue` is
 *              then `value`
 * @param n     number of elements
 * @param value the value
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int SetVectorToValue(matrix<double>*& x, int n, double value);

/** Sets `n` flags to 0 (false) or -1 (true); returns 0. Nothing happens for `n` below 1. */
KORVEL_API int InitVectorToFalse(short int* flags, int n);
KORVEL_API int InitVectorToTrue(short int* flags, int n);

/**
 * Flags the cells of a table that equal a number.
 *
 * @param x     `rows` by `cols` integers
 * @param rows  rows of both tables
 * @param cols  columns of both tables
 * @param value the number; the missing integer is one like the others
 * @param flags `rows` by `cols`, sized by the caller: -1 where the cell equals `value`, otherwise 0
 */
KORVEL_API void M_SetBooleanIfLng(matrix<int>* x, int rows, int cols, int value, matrix<short int>* flags);

#endif
