/**
 * @file
 * Flat functions: the categories of qualitative variables, with their frequencies and modes.
 *
 * A qualitative variable is a column of texts; the empty text is missing and no category. Texts are compared
 * unit by unit. Categories stand in order of first appearance, in tables of a row for each variable and a
 * column for each category; what is left over is empty, or 0. The frequency of a category is the sum of the
 * weights of its rows. The mode is the first category, in order of appearance, of the largest frequency. A
 * column without any text counts as one category, the empty text with frequency 0.
 *
 * Sorted categories are in ascending order: of numbers when every name begins with a number (12 in `12
 * months`; the first comma counts as a full stop), otherwise of texts by code unit. The mode is found before
 * they are sorted.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_CATEGORY_INFO_H
#define KORVEL_FRAMES_QUALITATIVE_CATEGORY_INFO_H

#include "frames/types.h"

/**
 * The categories of each variable, in tables as wide as there are rows.
 *
 * @param data            [in] n by p texts
 * @param n               number of rows
 * @param p               number of variables
 * @param modes           [out] p texts: the mode of each variable
 * @param modeFrequencies [out] p numbers: its frequency
 * @param categoryCounts  [out] p integers: the number of categories
 * @param categories      [out] p by n texts: the names
 * @param frequencies     [out] p by n numbers: the frequencies
 * @param weights         [in] n weights
 * @param total           [out] one integer: the sum of the numbers of categories
 * @param sort            -1: the categories are sorted
 * @return 0
 */
KORVEL_FLAT int VB_M_InfoQuali(OLECHAR* const* data, int n, int p, OLECHAR** modes, double* modeFrequencies,
                               int* categoryCounts, OLECHAR** categories, double* frequencies,
                               const double* weights, int* total, short int sort);

/**
 * The same function under the name that sibling modules know.
 *
 * @like VB_M_InfoQuali
 */
KORVEL_FLAT int Cpp_M_InfoQualiNoMiss(OLECHAR* const* data, int n, int p, OLECHAR** modes,
                                      double* modeFrequencies, int* categoryCounts, OLECHAR** categories,
                                      double* frequencies, const double* weights, int* total, short int sort);

/**
 * The categories of each variable, in tables of a width of the caller's; more categories are not kept.
 *
 * @param data            [in] n by p texts
 * @param n               number of rows
 * @param p               number of variables
 * @param width           columns of the tables
 * @param categoryCounts  [out] p integers: the number of categories
 * @param modes           [out] p texts: the mode of each variable
 * @param modeFrequencies [out] p numbers: its frequency
 * @param categories      [out] p by width texts: the names
 * @param frequencies     [out] p by width numbers: the frequencies
 * @param weights         [in] n weights
 * @param total           [out] one integer: the sum of the numbers of categories
 * @param sort            -1: the categories are sorted
 * @return 0
 */
KORVEL_FLAT int VB_M_InfoQuali2(OLECHAR* const* data, int n, int p, int width, int* categoryCounts,
                                OLECHAR** modes, double* modeFrequencies, OLECHAR** categories,
                                double* frequencies, const double* weights, int* total, short int sort);

/**
 * The categories of variables that all have the same number of them. The mode is that of the numbers of rows.
 * It is looked for among the first `count` slots of each variable, and so many are sorted, whatever the
 * variable has: empty slots come before all names.
 *
 * @param data                [in] n by p texts
 * @param n                   number of rows
 * @param p                   number of variables
 * @param width               columns of the tables
 * @param count               number of categories of every variable
 * @param modes               [out] p texts: the mode of each variable
 * @param modeFrequencies     [out] p numbers: its number of rows
 * @param categories          [out] p by width texts: the names
 * @param frequencies         [out] p by width numbers: the numbers of rows
 * @param weightedFrequencies [out] p by width numbers: the sums of the weights
 * @param weights             [in] n weights
 * @param total               [out] one integer: p times count
 * @param sort                -1: the categories are sorted
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InfoQuali3(OLECHAR* const* data, int n, int p, int width, int count, OLECHAR** modes,
                                 double* modeFrequencies, OLECHAR** categories, double* frequencies,
                                 double* weightedFrequencies, const double* weights, int* total,
                                 short int sort);

#endif
