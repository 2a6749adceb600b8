/**
 * @file
 * Flat functions: numbers of categories, and names that several variables share.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_CATEGORY_COUNTS_H
#define KORVEL_FRAMES_QUALITATIVE_CATEGORY_COUNTS_H

#include "frames/types.h"

/**
 * The number of different texts in each column, the empty one left out.
 *
 * @param data           [in] n by p texts
 * @param n              number of rows
 * @param p              number of columns
 * @param categoryCounts [out] p integers: the numbers
 * @return the largest number; 0 when there is no column
 */
KORVEL_FLAT int Cpp_GetMaxCat(OLECHAR* const* data, int n, int p, int* categoryCounts);

/**
 * Whether a name is used twice: in a slot of one variable, and in a later slot of the same or of any other
 * variable. Equal names in the same slot of two variables are not noticed. Empty names are equal to each
 * other.
 *
 * @param categories     [in] p by width texts: a row of names for each variable
 * @param p              number of variables
 * @param width          columns of the table; slots beyond it are empty
 * @param categoryCounts [in] p integers: the number of slots of each variable
 * @return 1 when a name is used twice, otherwise 0
 */
KORVEL_FLAT int Cpp_CheckUniqueCatByVar(OLECHAR* const* categories, int p, int width,
                                        const int* categoryCounts);

#endif
