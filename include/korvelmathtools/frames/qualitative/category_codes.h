/**
 * @file
 * Flat functions: texts replaced by numbers or by other texts. Texts are compared exactly.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_CATEGORY_CODES_H
#define KORVEL_FRAMES_QUALITATIVE_CATEGORY_CODES_H

#include "frames/types.h"

/**
 * The code of each text: `firstCode` for the first category of its variable, and one more for each next one.
 * Of equal names the first counts. A text that is no category, and a flagged row, gets the missing number.
 *
 * @param data           [in] n by p texts
 * @param n              number of rows
 * @param p              number of variables
 * @param categoryCounts [in] p integers: the number of categories of each variable
 * @param categories     [in] p by max(categoryCounts) texts: their names, a row for each variable
 * @param rowFlags       [in] n flags: not 0 leaves a row out
 * @param firstCode      the code of a first category
 * @param result         [out] n by p numbers: the codes
 * @return 0
 */
KORVEL_FLAT int VB_M_ReplaceStrByCodes(OLECHAR* const* data, int n, int p, const int* categoryCounts,
                                       OLECHAR* const* categories, const short int* rowFlags, int firstCode,
                                       double* result);

/**
 * The same from a labelled table into another one.
 *
 * @like VB_M_ReplaceStrByCodes
 * @param data   [in] labelled table of texts, n by p
 * @param result [inout] labelled table of numbers whose columns receive n by p codes
 */
KORVEL_FLAT int Cpp_M_ReplaceStrByCodes_ST(ST_MVect* data, int n, int p, const int* categoryCounts,
                                           OLECHAR* const* categories, const short int* rowFlags,
                                           int firstCode, ST_MVect* result);

/**
 * The same into a chunked table.
 *
 * @like VB_M_ReplaceStrByCodes
 * @param result [inout] p columns that each receive n codes
 */
KORVEL_FLAT int Cpp_M_ReplaceStrByCodesSPV(OLECHAR* const* data, int n, int p, const int* categoryCounts,
                                           OLECHAR* const* categories, const short int* rowFlags,
                                           int firstCode, Hostarray** result);

/**
 * The code of each text, from 1 on. Of equal names the first counts. A text that is no category leaves its
 * place in the result as it was.
 *
 * @param data           [in] n by p texts
 * @param n              number of rows
 * @param p              number of variables
 * @param categoryCounts [in] p integers: the number of categories of each variable
 * @param categories     [in] p by max(categoryCounts) texts: their names, a row for each variable
 * @param result         [inout] n by p numbers: the codes
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ReplaceCatByCodes(OLECHAR* const* data, int n, int p, const int* categoryCounts,
                                        OLECHAR* const* categories, double* result);

/**
 * The same from a labelled table into another one.
 *
 * @like Cpp_M_ReplaceCatByCodes
 * @param data   [in] labelled table of texts, n by p
 * @param result [inout] labelled table of numbers whose columns receive n by p codes
 */
KORVEL_FLAT int Cpp_M_ReplaceCatByCodes_ST(ST_MVect* data, int n, int p, const int* categoryCounts,
                                           OLECHAR* const* categories, ST_MVect* result);

/**
 * Codes from 0 on in the order in which texts first appear in the whole table, column after column. The empty
 * text has a code like any other.
 *
 * @param data     [in] n by p texts
 * @param n        number of rows
 * @param p        number of columns
 * @param rowFlags [in] n flags: not 0 gives a row missing numbers, and its texts no code. Null: no row is
 * flagged
 * @param result   [out] n by p numbers: the codes
 * @return 0
 */
KORVEL_FLAT int VB_M_ReplaceStrByCodesBinary(OLECHAR* const* data, int n, int p, const short int* rowFlags,
                                             double* result);

/**
 * Replaces texts by others.
 *
 * @param data      [in] labelled table of texts, n by p
 * @param n         number of rows
 * @param p         number of columns
 * @param codes     [in] labelled table of two columns: the texts to look for, and what replaces them; of
 * equal ones the first counts
 * @param codeCount number of texts to look for; below 1 the result is left alone
 * @param result    [inout] labelled table of texts whose columns receive n by p texts; one that is not looked
 * for stays
 * @return 0
 */
KORVEL_FLAT int Cpp_M_RecodeDataWithCodes_ST(ST_MVect* data, int n, int p, ST_MVect* codes, int codeCount,
                                             ST_MVect* result);

/**
 * 1 for each element that is the given text, 0 for all others.
 *
 * @param column [in] n texts
 * @param n      number of elements
 * @param value  [in] one text; it may be empty
 * @param result [out] n numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_V_RecodeToBinary(OLECHAR* const* column, int n, const OLECHAR* value, double* result);

#endif
