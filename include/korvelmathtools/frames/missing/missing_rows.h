/**
 * @file
 * Flat functions: taking flagged rows out of a table, and putting rows of missing cells back in. A flag other
 * than 0 marks a row.
 */
#ifndef KORVEL_FRAMES_MISSING_MISSING_ROWS_H
#define KORVEL_FRAMES_MISSING_MISSING_ROWS_H

#include "frames/types.h"

/**
 * Takes the flagged rows out in place: those below move up, and the rows that become free stay as they were.
 *
 * @param x     [inout] n by p numbers
 * @param n     rows of the table
 * @param p     columns of the table; 0 stands for 1
 * @param flags [in] n flags, one for each row; not 0: the row is taken out
 * @return 0
 */
KORVEL_FLAT int Cpp_M_RemoveRowsWithMissing2(double* x, int n, int p, const short int* flags);

/**
 * Copies a table without the flagged rows.
 *
 * @param x       [in] n by p numbers
 * @param n       rows of the table
 * @param p       columns of the table; 0 stands for 1
 * @param removed how many rows the result is shorter
 * @param flags   [in] n flags, one for each row; not 0: the row is taken out
 * @param result  [out] n - removed by p numbers; it may be x
 * @return 0
 */
KORVEL_FLAT int VB_RemoveRowsWithMissing(const double* x, int n, int p, int removed, const short int* flags,
                                         double* result);

/**
 * Takes the flagged rows out of a table of texts in place, as Cpp_M_RemoveRowsWithMissing2 does, and copies
 * its first rows.
 *
 * @param x       [inout] n by p texts, replaced where they differ
 * @param n       rows of the table
 * @param p       columns of the table; 0 stands for 1
 * @param removed how many rows the result is shorter
 * @param flags   [in] n flags, one for each row; not 0: the row is taken out
 * @param result  [inout] n - removed by p texts, replaced where they differ; it may be x
 * @return 0
 */
KORVEL_FLAT int VB_RemoveRowsWithMissingStr(OLECHAR** x, int n, int p, int removed, const short int* flags,
                                            OLECHAR** result);

/**
 * Copies a table of flags without the flagged rows.
 *
 * @param x       [in] n by p flags
 * @param n       rows of the table
 * @param p       columns of the table; 0 stands for 1
 * @param removed how many rows the result is shorter
 * @param flags   [in] n flags, one for each row; not 0: the row is taken out
 * @param result  [out] n - removed by p flags; it may be x
 * @return 0
 */
KORVEL_FLAT int VB_RemoveRowsWithMissingBool(const short int* x, int n, int p, int removed,
                                             const short int* flags, short int* result);

/**
 * Copies a table without the flagged rows, and tells how many stay.
 *
 * @param x        [in] n by p numbers
 * @param n        rows of the table
 * @param p        columns of the table; 0 stands for 1
 * @param iMissing [in] n flags, one for each row; not 0: the row is taken out
 * @param result   [out] n by p numbers, of which as many rows as stay, by p, are written; it may be x
 * @return how many rows stay
 */
KORVEL_FLAT int Cpp_RemoveRowsWithMissingOniMissing(const double* x, int n, int p, const short int* iMissing,
                                                    double* result);

/**
 * The same for texts.
 *
 * @param x        [in] n by p texts
 * @param n        rows of the table
 * @param p        columns of the table; 0 stands for 1
 * @param iMissing [in] n flags, one for each row; not 0: the row is taken out
 * @param result   [inout] n by p texts, of which as many rows as stay, by p, are replaced where they differ;
 * it may be x
 * @return how many rows stay
 */
KORVEL_FLAT int Cpp_RemoveRowsWithMissingOniMissingStr(OLECHAR* const* x, int n, int p,
                                                       const short int* iMissing, OLECHAR** result);

/**
 * Spreads the rows of a table, with rows of missing numbers between them.
 *
 * @param x      [in] n by p numbers
 * @param n      rows of the table
 * @param p      columns of the table; 0 stands for 1
 * @param flags  [in] n + m flags: 0 for a row that takes the next one of the table, otherwise for one that is
 * all missing
 * @param m      how many rows the result is longer
 * @param result [out] n + m by p numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InsertMissingDbl(const double* x, int n, int p, const short int* flags, int m,
                                       double* result);

/**
 * The same for integers; the missing one is -2147483648.
 *
 * @param x      [in] n by p integers
 * @param n      rows of the table
 * @param p      columns of the table; 0 stands for 1
 * @param flags  [in] n + m flags: 0 for a row that takes the next one of the table, otherwise for one that is
 * all missing
 * @param m      how many rows the result is longer
 * @param result [out] n + m by p integers
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InsertMissingLng(const int* x, int n, int p, const short int* flags, int m,
                                       int* result);

#endif
