/**
 * @file
 * Flat functions: disjunctive tables, with a column of numbers for each category of each qualitative
 * variable.
 *
 * The columns of a variable follow each other in the order of its categories, and the variables follow each
 * other. A row has 1 in the column of its own category, and missing numbers in all columns of a variable
 * whose text is empty. All else is 0, but for what the coding says of a row in the last category of a
 * variable:
 *
 * - 0: 0 in the other columns;
 * - 1: 0 in the other columns;
 * - 2: -1 in the other columns;
 * - 3: the negative frequency of the column's category, divided by that of the last one.
 *
 * With a coding other than 0 the column of the first category of a variable has its 1 only where the
 * first-category option says so: 1 for the variable that starts in the first column, 2 for all variables, any
 * other value for none. With coding 2 and any other value, a variable of two categories has no 1 at all: the
 * -1 in its first column tells the last category. A text that is no known category has 0 in all columns.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_DISJUNCTIVE_TABLES_H
#define KORVEL_FRAMES_QUALITATIVE_DISJUNCTIVE_TABLES_H

#include "frames/types.h"

/**
 * The disjunctive table of a table of texts.
 *
 * @param data                [in] n by p texts
 * @param n                   number of rows
 * @param p                   number of variables
 * @param totalColumns        columns of the result
 * @param categoryCounts      [in] p integers: the number of categories of each variable
 * @param categories          [in] p by max(categoryCounts) texts: their names, a row for each variable
 * @param frequencies         [in] p by max(categoryCounts) numbers: their frequencies
 * @param result              [out] n by totalColumns numbers
 * @param coding              0, 1, 2 or 3
 * @param firstCategoryOption 1, 2 or another value
 * @return 0
 */
KORVEL_FLAT int VB_BuildDisjunctiveTable(OLECHAR* const* data, int n, int p, int totalColumns,
                                         const int* categoryCounts, OLECHAR* const* categories,
                                         const double* frequencies, double* result, int coding,
                                         int firstCategoryOption);

/**
 * The disjunctive table of a record.
 *
 * @param data                [in] labelled table of texts; all columns are read down to the longest one
 * @param info                [in] category statistics: `NbCat`, `CatNames` and `CatFreq` of its columns
 * @param result              [inout] labelled table of numbers: each column that is needed and there receives
 * as many rows, and is resized where it can be; its counts and labels stay
 * @param coding              0, 1, 2 or 3
 * @param firstCategoryOption 1, 2 or another value
 * @return 0
 */
KORVEL_FLAT int Cpp_BuildDisjunctiveTable_ST(ST_MVect* data, ST_QualiInfo* info, ST_MVect* result, int coding,
                                             int firstCategoryOption);

#endif
