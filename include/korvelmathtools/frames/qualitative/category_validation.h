/**
 * @file
 * Flat functions: counting a new table by categories that are known from another one.
 *
 * Each text that is not empty is looked for among the known categories of its variable, by exact comparison;
 * of equal ones the last counts. Where nothing else is said, a text that is none of them ends the function:
 * the flag is -1 then, and the counts are those of the rows and variables before it.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_CATEGORY_VALIDATION_H
#define KORVEL_FRAMES_QUALITATIVE_CATEGORY_VALIDATION_H

#include "frames/types.h"

/**
 * Counts the rows of each category by their weights.
 *
 * @param data             [in] n by p texts
 * @param n                number of rows
 * @param p                number of variables
 * @param width            columns of the tables of categories
 * @param categoryCounts   [in] p integers: the number of known categories of each variable
 * @param categories       [in] p by width texts: their names
 * @param counts           [out] p by width numbers: the sum of the weights of each
 * @param newCategoryFound [out] one flag: -1 when a text is no known category, otherwise 0
 * @param weights          [in] n weights
 * @return 0
 */
KORVEL_FLAT int VB_M_InfoQualiValid(OLECHAR* const* data, int n, int p, int width, const int* categoryCounts,
                                    OLECHAR* const* categories, double* counts, short int* newCategoryFound,
                                    const double* weights);

/**
 * Counts the rows of each category on records. A text that is no known category is passed over when
 * `IgnoreNewCategoryInPred` of the result is not 0.
 *
 * @param data             [in] labelled table of texts, n by p
 * @param n                number of rows
 * @param p                number of variables
 * @param reference        [in] category statistics that have the known categories: `NbCat` and `CatNames`
 * @param result           [inout] category statistics: `CatFreq` receives the number of rows of each,
 * `CatFreqW` the sum of their weights; all slots of the p variables are cleared first
 * @param newCategoryFound [out] one flag: -1 when a text that is no known category ended the function,
 * otherwise 0
 * @param weights          [in] n weights
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InfoQualiValid_ST(ST_MVect* data, int n, int p, ST_QualiInfo* reference,
                                        ST_QualiInfo* result, short int* newCategoryFound,
                                        const double* weights);

#endif
