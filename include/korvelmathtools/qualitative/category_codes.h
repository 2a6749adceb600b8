/**
 * @file
 * Texts replaced by numbers or by other texts. Texts are compared exactly.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_CODES_H
#define KORVEL_QUALITATIVE_CATEGORY_CODES_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * The code of each cell: `firstCode` for the first category of its variable, and one more for each next one.
 * Of equal names the first counts. A cell that is no category, and a row whose flag is not 0, gets the
 * missing number.
 *
 * @param data           texts, `n` by `p`
 * @param n              number of rows
 * @param p              number of variables
 * @param categoryCounts number of categories of each variable
 * @param categories     their names, a row for each variable
 * @param rowFlags       a flag for each row; not 0 leaves it out
 * @param firstCode      the code of a first category
 * @param result         receives the codes, `n` by `p`
 */
KORVEL_API void M_ReplaceStrByCodes(matrix<text>& data, int n, int p, matrix<int>& categoryCounts,
                                    matrix<text>& categories, matrix<short int>& rowFlags, int firstCode,
                                    matrix<double>& result);

/** The same from a labelled table into another one. */
KORVEL_API void M_ReplaceStrByCodes(cST_MVect<text>& data, int n, int p, matrix<int>& categoryCounts,
                                    matrix<text>& categories, matrix<short int>& rowFlags, int firstCode,
                                    cST_MVect<double>& result);

/** The same into a table of chunks, one for each column. */
KORVEL_API void M_ReplaceStrByCodesSPV(matrix<text>& data, int n, int p, matrix<int>& categoryCounts,
                                       matrix<text>& categories, matrix<short int>& rowFlags, int firstCode,
                                       matrix<double>** result);

/**
 * The code of each cell, from 1 on. A cell that is no category leaves its place in the result as it was.
 *
 * @param data           texts, `n` by `p`
 * @param n              number of rows
 * @param p              number of variables
 * @param categoryCounts number of categories of each variable
 * @param categories     their names, a row for each variable
 * @param result         receives the codes, `n` by `p`
 */
KORVEL_API void M_ReplaceCatByCodes(matrix<text>& data, int n, int p, matrix<int>& categoryCounts,
                                    matrix<text>& categories, matrix<double>& result);

/** The same from a labelled table into another one. */
KORVEL_API void M_ReplaceCatByCodes(cST_MVect<text>& data, int n, int p, matrix<int>& categoryCounts,
                                    matrix<text>& categories, cST_MVect<double>& result);

/**
 * Codes from 0 on in the order in which texts first appear in the whole table, column after column. The empty
 * text has a code like any other.
 *
 * @param data     texts, `n` by `p`
 * @param n        number of rows
 * @param p        number of columns
 * @param rowFlags a flag for each row, or null; a row whose flag is not 0 has missing numbers, and its texts
 * no code
 * @param result   a table that is resized to `n` by `p`, or null for a new one
 */
KORVEL_API void M_ReplaceStrByCodesBinary(matrix<text>* data, int n, int p, short int* rowFlags,
                                          matrix<double>*& result);

/**
 * Replaces texts by others.
 *
 * @param data      labelled table of texts, `n` by `p`
 * @param n         number of rows
 * @param p         number of columns
 * @param codes     labelled table of two columns: the texts to look for, and what replaces them; of equal
 * ones the first counts
 * @param codeCount number of texts to look for; below 1 the result is left alone
 * @param result    receives the texts, `n` by `p`; one that is not looked for stays. It may be `data`, not
 * `codes`
 */
KORVEL_API void M_RecodeDataWithCodes_ST(cST_MVect<text>& data, int n, int p, cST_MVect<text>& codes,
                                         int codeCount, cST_MVect<text>& result);

/**
 * 1 for each cell that is the given text, 0 for all others.
 *
 * @param column `n` texts
 * @param n      number of rows
 * @param value  the text; it may be empty
 * @param result receives `n` numbers
 */
KORVEL_API void V_RecodeToBinary(matrix<text>* column, int n, text value, matrix<double>* result);

#endif
