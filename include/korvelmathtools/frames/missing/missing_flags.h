/**
 * @file
 * Flat functions: flags for missing cells. A flag is -1 for true and 0 for false.
 */
#ifndef KORVEL_FRAMES_MISSING_MISSING_FLAGS_H
#define KORVEL_FRAMES_MISSING_MISSING_FLAGS_H

#include "frames/types.h"

/**
 * Combines the two sources of missingness of a vector: a flag, and a number at or below the missing one.
 *
 * @param x           [in] n numbers
 * @param n           number of elements
 * @param iMissing    [in] n flags, -1 for one that is left out; null: none is
 * @param iMissingOut [out] n flags: -1 when the flag is -1 or the element is missing, otherwise 0; it may be
 * iMissing
 * @return 0
 */
KORVEL_FLAT int VB_V_GetMissingDbl(const double* x, int n, const short int* iMissing, short int* iMissingOut);

/**
 * The same for texts, which are missing when empty.
 *
 * @param x           [in] n texts
 * @param n           number of elements
 * @param iMissing    [in] n flags, -1 for one that is left out; null: none is
 * @param iMissingOut [out] n flags: -1 when the flag is -1 or the element is missing, otherwise 0; it may be
 * iMissing
 * @return 0
 */
KORVEL_FLAT int VB_V_GetMissingStr(OLECHAR* const* x, int n, const short int* iMissing,
                                   short int* iMissingOut);

/**
 * Flags the rows of a table that have a missing number, one at or below the missing one.
 *
 * @param x           [in] rows by cols numbers
 * @param rows        rows of the table
 * @param cols        columns of the table; 0 stands for 1
 * @param iMissing    [in] rows flags, one for each row, -1 for one that is left out; null: none is
 * @param iMissingOut [out] rows flags, one for each row: -1 when its flag is -1 or a cell of it is missing,
 * otherwise 0; it may be iMissing
 * @return 0
 */
KORVEL_FLAT int Cpp_M_GetMissingDbl(const double* x, int rows, int cols, const short int* iMissing,
                                    short int* iMissingOut);

/**
 * The same for texts, which are missing when empty.
 *
 * @param x           [in] rows by cols texts
 * @param rows        rows of the table
 * @param cols        columns of the table; 0 stands for 1
 * @param iMissing    [in] rows flags, one for each row, -1 for one that is left out; null: none is
 * @param iMissingOut [out] rows flags, one for each row: -1 when its flag is -1 or a cell of it is missing,
 * otherwise 0; it may be iMissing
 * @return 0
 */
KORVEL_FLAT int Cpp_M_GetMissingStr(OLECHAR* const* x, int rows, int cols, const short int* iMissing,
                                    short int* iMissingOut);

/**
 * The same for a chunked table of numbers.
 *
 * @param x           [in] cols columns of rows numbers
 * @param rows        rows of the table
 * @param cols        columns of the table
 * @param iMissing    [in] rows flags, one for each row, -1 for one that is left out; null: none is
 * @param iMissingOut [out] rows flags, one for each row: -1 when its flag is -1 or a cell of it is missing,
 * otherwise 0; it may be iMissing
 * @return 0
 */
KORVEL_FLAT int Cpp_M_GetMissingDblSPV(Hostarray** x, int rows, int cols, const short int* iMissing,
                                       short int* iMissingOut);

/**
 * Sets the result to -1 where one of the flags is -1, and leaves the other entries as they were.
 *
 * @param n      number of entries
 * @param count  [out] one integer: how many entries were set
 * @param result [inout] n flags; it may be one of the others
 * @param a      [in] n flags, set where -1
 * @param b      [in] n flags, set where -1
 * @param c      [in] n flags, set where -1; null: only the first two count
 * @return 0
 */
KORVEL_FLAT int VB_SummarizeMissing(int n, int* count, short int* result, const short int* a,
                                    const short int* b, const short int* c);

/**
 * Sets the result to -1 where both flags are -1, and leaves the other entries as they were.
 *
 * @param n      number of entries
 * @param a      [in] n flags, set where -1
 * @param b      [in] n flags, set where -1
 * @param count  [out] one integer: how many entries were set
 * @param result [inout] n flags; it may be one of the others
 * @return 0
 */
KORVEL_FLAT int VB_SummarizeAllMissing(int n, const short int* a, const short int* b, int* count,
                                       short int* result);

/**
 * Flags the flagged rows that have nothing but missing numbers.
 *
 * @param x        [in] n by p numbers
 * @param n        rows of the table
 * @param p        columns of the table; 0 stands for 1
 * @param flagsIn  [in] n flags, one for each row; only rows with -1 are looked at
 * @param flagsOut [inout] n flags, one for each row: -1 for one that has nothing but missing cells; the
 * others stay
 * @return 0
 */
KORVEL_FLAT int VB_M_AllMissingRows(const double* x, int n, int p, const short int* flagsIn,
                                    short int* flagsOut);

/**
 * Flags the flagged rows that have nothing but empty texts.
 *
 * @param x        [in] n by p texts
 * @param n        rows of the table
 * @param p        columns of the table; 0 stands for 1
 * @param flagsIn  [in] n flags, one for each row; only rows with -1 are looked at
 * @param flagsOut [inout] n flags, one for each row: -1 for one that has nothing but missing cells; the
 * others stay
 * @return 0
 */
KORVEL_FLAT int VB_M_AllMissingRowsStr(OLECHAR* const* x, int n, int p, const short int* flagsIn,
                                       short int* flagsOut);

/**
 * Whether some cell (i, j), i below j, of a square table is missing while the cells (i, i) and (j, j) are
 * both above the missing number.
 *
 * @param x [in] n by n numbers
 * @param n rows of the table; below 2 the result is 0
 * @return -1 or 0
 */
KORVEL_FLAT short int Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(const double* x, int n);

/**
 * The same for a symmetric table of which column j holds the cells from the diagonal down.
 *
 * @param x [in] n columns, the first of n numbers and each next one of a number less
 * @param n rows of the table; below 2 the result is 0
 * @return -1 or 0
 */
KORVEL_FLAT short int Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(Hostarray** x, int n);

#endif
