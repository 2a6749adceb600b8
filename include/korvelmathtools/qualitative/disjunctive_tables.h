/**
 * @file
 * Disjunctive tables: a column of numbers for each category of each qualitative variable.
 *
 * The columns of a variable follow each other in the order of its categories, and the variables follow each
 * other. A row has 1 in the column of its own category, and missing numbers in all columns of a variable
 * whose cell is empty. All else is 0, but for what the coding says of a row in the last category of a
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
 * -1 in its first column tells the last category. A cell that is no known category has 0 in all columns.
 */
#ifndef KORVEL_QUALITATIVE_DISJUNCTIVE_TABLES_H
#define KORVEL_QUALITATIVE_DISJUNCTIVE_TABLES_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * The disjunctive table of a table of texts.
 *
 * @param data                texts, `n` by `p`
 * @param n                   number of rows
 * @param p                   number of variables
 * @param totalColumns        columns of the result
 * @param categoryCounts      number of categories of each variable
 * @param categories          their names, a row for each variable
 * @param frequencies         their frequencies, likewise; read with coding 3
 * @param result              resized to `n` by `totalColumns`
 * @param coding              0, 1, 2 or 3
 * @param firstCategoryOption 1, 2 or another value
 */
KORVEL_API void BuildDisjunctiveTable(matrix<text>& data, int n, int p, int totalColumns,
                                      matrix<int>& categoryCounts, matrix<text>& categories,
                                      matrix<double>& frequencies, matrix<double>& result, int coding,
                                      int firstCategoryOption);

/**
 * The same on records.
 *
 * @param data                labelled table of texts; all columns are read down to the longest one
 * @param info                `NbCat`, `CatNames` and `CatFreq` of its columns
 * @param result              each column that is needed and there is resized to as many rows; its counts and
 * labels stay
 * @param coding              0, 1, 2 or 3
 * @param firstCategoryOption 1, 2 or another value
 */
KORVEL_API void BuildDisjunctiveTable_ST(cST_MVect<text>& data, cST_QualiInfo& info,
                                         cST_MVect<double>& result, int coding, int firstCategoryOption);

/**
 * The same, and a label for each column in `CLabels` of the result, as far as it goes.
 *
 * @param longLabels -1: the variable's label in `VarLabels` of `info`, "-" and the name of the category;
 * otherwise the name
 */
KORVEL_API void BuildDisjunctiveTableWithCLabels_ST(cST_MVect<text>& data, cST_QualiInfo& info,
                                                    cST_MVect<double>& result, int coding,
                                                    int firstCategoryOption, short int longLabels);

#endif
