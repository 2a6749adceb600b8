/**
 * @file
 * Column chunks over the caller's chunked table. A `Hostarray**` argument points at a host array whose block
 * holds a `Hostarray` record a column.
 *
 * Numbers stay in the caller's arrays: only small descriptors are made. Texts are copied, and return by
 * `SaveHostarray`. The array of chunks and its chunks are released by `DeleteHostarray`.
 */
#ifndef KORVEL_CONTAINERS_HOST_CHUNKS_H
#define KORVEL_CONTAINERS_HOST_CHUNKS_H

#include "containers/caller_records.h"
#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Makes a chunk for each numeric column.
 *
 * @param a    reference to the host array of records, which may be null or have no block; not looked at when
 * `n` is below 1
 * @param n    number of records; below 0 as 0
 * @param rows rows of each chunk
 * @param cols columns of each chunk; 0 for a triangular table, in which each chunk made has one column, and
 *             one row less than the chunk made before it
 * @return a new array of `n` pointers to chunks that borrow the columns' blocks. A record without a numeric
 * column, or whose column has no block, leaves a null pointer, and does not lower the number of rows
 * @throws std::bad_alloc when memory is short; the array and the chunks made until then are not released
 */
KORVEL_API matrix<double>** LoadHostarray(Hostarray** a, int n, int rows, int cols);

/**
 * `LoadHostarray` for the text columns: each chunk is an owned copy of the first `rows` texts of its column,
 * and has one column. A `cols` of 0 lowers the number of rows in the same way, and has no other meaning.
 */
KORVEL_API matrix<text>** LoadHostarrayStr(Hostarray** a, int n, int rows, int cols);

/**
 * Writes the texts of chunks back to the columns that they were loaded from. A BSTR that reads the same is
 * not replaced.
 *
 * @param chunks  `n` chunks; not null for a record that has a text column with a block
 * @param n       number of records
 * @param ignored not used
 * @param a       reference to the host array of records
 * @throws std::bad_alloc when memory is short; the texts not reached keep their old value
 */
KORVEL_API void SaveHostarray(matrix<text>** chunks, int n, int ignored, Hostarray** a);

/** Deletes `n` chunks, null ones aside, and the array of pointers. The caller's columns stay. */
KORVEL_API void DeleteHostarray(matrix<double>** chunks, int n);
KORVEL_API void DeleteHostarrayStr(matrix<text>** chunks, int n);

/**
 * Deletes `n` chunks, null ones aside. The array of pointers stays, with its pointers as they were. For
 * `double`, `int`, `short int` and `text`.
 */
template <class T>
KORVEL_API void deletecascade(matrix<T>** chunks, int n);

#endif
