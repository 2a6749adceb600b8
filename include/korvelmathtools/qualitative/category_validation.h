/**
 * @file
 * Counting a new table by categories that are known from another one.
 *
 * Each cell that is not empty is looked for among the known categories of its variable, from the last to the
 * first, by exact comparison. A cell that is none of them ends the routine where nothing else is said: the
 * flag is -1 then, and the counts are those of the rows and variables before it.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_VALIDATION_H
#define KORVEL_QUALITATIVE_CATEGORY_VALIDATION_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Counts the rows of each category by their weights.
 *
 * @param data             texts, `n` by `p`, not modified
 * @param n                number of rows
 * @param p                number of variables
 * @param width            columns of the tables of categories
 * @param categoryCounts   number of known categories of each variable, `p` integers
 * @param categories       their names, `p` by `width`
 * @param counts           receives the sum of the weights of each, `p` by `width`; cleared first
 * @param newCategoryFound receives -1 when a cell is no known category, otherwise 0
 * @param weights          `n` weights; null: all are 1
 */
KORVEL_API void M_InfoQualiValid(matrix<text>* data, int n, int p, int width, matrix<int>* categoryCounts,
                                 matrix<text>* categories, matrix<double>* counts,
                                 short int* newCategoryFound, matrix<double>* weights);

/**
 * The same for one variable, whose row alone is cleared in the table of counts.
 *
 * @param column           `n` texts
 * @param n                number of rows
 * @param variable         the variable's row in the tables of categories, from 1
 * @param categoryCount    number of known categories
 * @param categories       names, a row for each variable
 * @param counts           receives the sums of weights, in the variable's row
 * @param newCategoryFound receives -1 when a cell is no known category, otherwise 0
 * @param weights          `n` weights
 */
KORVEL_API void M_InfoQualiValid(matrix<text> const& column, int n, int variable, int categoryCount,
                                 matrix<text>& categories, matrix<double>& counts,
                                 short int* newCategoryFound, matrix<double>& weights);

/**
 * The same on records. A cell that is no known category is passed over when `IgnoreNewCategoryInPred` of the
 * result is not 0.
 *
 * @param data             labelled table of texts, `n` by `p`
 * @param n                number of rows
 * @param p                number of variables
 * @param reference        has the known categories: `NbCat` and `CatNames`
 * @param result           `CatFreq` receives the number of rows of each, `CatFreqW` the sum of their weights;
 * all slots of the `p` variables are cleared first
 * @param newCategoryFound receives -1 when a cell that is no known category ended the routine, otherwise 0
 * @param weights          `n` weights
 */
KORVEL_API void M_InfoQualiValid_ST(cST_MVect<text>& data, int n, int p, cST_QualiInfo& reference,
                                    cST_QualiInfo& result, short int* newCategoryFound,
                                    matrix<double>& weights);

/**
 * The same for one variable that several columns of a table hold.
 *
 * @param variable         the variable's column in the records of categories, from 1
 * @param data             labelled table of texts, `n` by `columns`, all of that variable
 * @param n                number of rows
 * @param columns          number of columns
 * @param width            slots of the variable that are cleared first in `CatFreq` and `CatFreqW`
 * @param categoryCounts   number of known categories of each variable
 * @param reference        has their names: `CatNames`
 * @param result           `CatFreq` receives the sums of `weights`, `CatFreqW` those of `secondWeights`
 * @param weights          `n` weights
 * @param secondWeights    `n` weights
 * @param newCategoryFound receives -1 when a cell that is no known category ended the routine, otherwise 0
 */
KORVEL_API void M_InfoQualiValid_Plus_ST(int variable, cST_MVect<text>& data, int n, int columns, int width,
                                         cST_Vect<int>& categoryCounts, cST_QualiInfo& reference,
                                         cST_QualiInfo& result, matrix<double>& weights,
                                         matrix<double>& secondWeights, short int* newCategoryFound);

#endif
