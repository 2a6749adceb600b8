/**
 * @file
 * Flat functions: whether large tables will fit into memory.
 */
#ifndef KORVEL_FRAMES_DOMAIN_MEMORY_PROBE_H
#define KORVEL_FRAMES_DOMAIN_MEMORY_PROBE_H

#include "frames/types.h"

/**
 * Tries to allocate a tenth more than twenty tables of numbers take, and gives everything back. The bytes of
 * each are truncated to 32 bits. A table with a count of 0 is passed over.
 *
 * @param rows1 [in] one integer: rows of table 1
 * @param cols1 [in] one integer: its columns
 * @param rows2 [in] one integer: rows of table 2
 * @param cols2 [in] one integer: its columns
 * @param rows3 [in] one integer: rows of table 3
 * @param cols3 [in] one integer: its columns
 * @param rows4 [in] one integer: rows of table 4
 * @param cols4 [in] one integer: its columns
 * @param rows5 [in] one integer: rows of table 5
 * @param cols5 [in] one integer: its columns
 * @param rows6 [in] one integer: rows of table 6
 * @param cols6 [in] one integer: its columns
 * @param rows7 [in] one integer: rows of table 7
 * @param cols7 [in] one integer: its columns
 * @param rows8 [in] one integer: rows of table 8
 * @param cols8 [in] one integer: its columns
 * @param rows9 [in] one integer: rows of table 9
 * @param cols9 [in] one integer: its columns
 * @param rows10 [in] one integer: rows of table 10
 * @param cols10 [in] one integer: its columns
 * @param rows11 [in] one integer: rows of table 11
 * @param cols11 [in] one integer: its columns
 * @param rows12 [in] one integer: rows of table 12
 * @param cols12 [in] one integer: its columns
 * @param rows13 [in] one integer: rows of table 13
 * @param cols13 [in] one integer: its columns
 * @param rows14 [in] one integer: rows of table 14
 * @param cols14 [in] one integer: its columns
 * @param rows15 [in] one integer: rows of table 15
 * @param cols15 [in] one integer: its columns
 * @param rows16 [in] one integer: rows of table 16
 * @param cols16 [in] one integer: its columns
 * @param rows17 [in] one integer: rows of table 17
 * @param cols17 [in] one integer: its columns
 * @param rows18 [in] one integer: rows of table 18
 * @param cols18 [in] one integer: its columns
 * @param rows19 [in] one integer: rows of table 19
 * @param cols19 [in] one integer: its columns
 * @param rows20 [in] one integer: rows of table 20
 * @param cols20 [in] one integer: its columns
 * @return -1 when all fit at the same time; otherwise the number of the first table that does not, from 1
 */
KORVEL_FLAT int Cpp_TestMemory(const int* rows1, const int* cols1, const int* rows2, const int* cols2,
                               const int* rows3, const int* cols3, const int* rows4, const int* cols4,
                               const int* rows5, const int* cols5, const int* rows6, const int* cols6,
                               const int* rows7, const int* cols7, const int* rows8, const int* cols8,
                               const int* rows9, const int* cols9, const int* rows10, const int* cols10,
                               const int* rows11, const int* cols11, const int* rows12, const int* cols12,
                               const int* rows13, const int* cols13, const int* rows14, const int* cols14,
                               const int* rows15, const int* cols15, const int* rows16, const int* cols16,
                               const int* rows17, const int* cols17, const int* rows18, const int* cols18,
                               const int* rows19, const int* cols19, const int* rows20, const int* cols20);

/**
 * Whether the address space that this process has left is large enough.
 *
 * @param amount number of bytes; a fifth is added
 * @return -1 when it is, otherwise 0
 */
KORVEL_FLAT int Cpp_GetStatusMemory(int amount);

#endif
