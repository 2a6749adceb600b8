/**
 * @file
 * Flat functions: the compact letter display of pairwise comparisons.
 */
#ifndef KORVEL_FRAMES_DOMAIN_COMPARISON_LETTERS_H
#define KORVEL_FRAMES_DOMAIN_COMPARISON_LETTERS_H

#include "frames/types.h"

/**
 * Gives letters to levels, of which two share one exactly when they do not differ: when the one that comes
 * first in the order of the means is significantly different neither from the other one nor from any level
 * between them. Letters come in the order of their first levels: A to Z, then AA, AB and so on. A level whose
 * mean is missing has no letter.
 *
 * @param means        [inout] k by column numbers: the last column has the means; changed only when
 * sortResult is 0
 * @param k            number of levels
 * @param column       the column of the means, from 1; 0 stands for 1
 * @param significance [in] k by k integers: for each pair of levels, at the row of the larger number and the
 * column of the smaller one, 0 when the two do not differ significantly
 * @param sortResult   not 0: order, means and labels come back in the order of the levels; 0: in the order of
 * the means
 * @param order        [out] k integers: the numbers of the levels
 * @param labels       [out] k by k texts: the letters of each level, letter c in column c. With more than 256
 * levels there are 256 columns. When the first mean in the order is missing, column 1 stays empty
 * @param groupCount   [out] one integer: how many columns are taken, 1 where there is no level; 257 when
 * there was no room for the last letter
 * @param success      [out] one flag: -1, or 0 when there were too many letters
 * @param descending   not 0: from the largest mean down; 0: from the smallest one up
 * @return 0
 */
KORVEL_FLAT int Cpp_GetCompMatrices(double* means, int k, int column, const int* significance,
                                    short int sortResult, int* order, OLECHAR** labels, int* groupCount,
                                    short int* success, short int descending);

#endif
