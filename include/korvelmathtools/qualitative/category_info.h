/**
 * @file
 * The categories of qualitative variables, with their frequencies and modes, as plain tables.
 *
 * A qualitative variable is a column of texts; the empty text is missing and no category. Texts are the same
 * category when they are equal, unit by unit. Categories stand in order of first appearance: in tables of one
 * row for each variable and one column for each category, which are filled from the first column on; what is
 * left over is empty, or 0.
 *
 * The frequency of a category is the sum of the weights of its rows, in the order of the rows; a missing
 * weight is a number like any other. The mode is the first category, in order of appearance, of the largest
 * frequency, before any sorting. A column without any text counts as one category: its slots stay as they
 * were resized, and its mode is the empty text.
 *
 * Sorted categories are in ascending order: of numbers when every name begins with a number (12 in `12
 * months`), otherwise of texts by code unit. A number is read by the rules of the C standard's `wcstod` in
 * the "C" locale, whatever locale the process has; the first comma of a name counts as a full stop. A name
 * that reads as 0 is a number only if it no longer is 0 with the digit 1 behind it. Equal ones keep their
 * order, and the names stay as they are.
 *
 * More categories than a table has columns go through the checked access of `matrix`: they are not kept.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_INFO_H
#define KORVEL_QUALITATIVE_CATEGORY_INFO_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The categories of each variable, in tables as wide as there are rows.
 *
 * @param data            texts, `n` by `p`, not modified
 * @param n               number of rows
 * @param p               number of variables
 * @param modes           resized to `p` texts: the mode of each variable
 * @param modeFrequencies resized to `p` numbers: its frequency
 * @param categoryCounts  resized to `p` integers: the number of categories
 * @param categories      resized to `p` by `n` texts: the names
 * @param frequencies     resized to `p` by `n` numbers: the frequencies
 * @param weights         `n` weights, not modified; null: all are 1
 * @param total           receives the sum of the numbers of categories
 * @param sort            -1: the categories are sorted; the variables are, side by side, on several threads
 */
KORVEL_API void M_InfoQuali(matrix<text>* data, int n, int p, matrix<text>* modes,
                            matrix<double>* modeFrequencies, matrix<int>* categoryCounts,
                            matrix<text>* categories, matrix<double>* frequencies, matrix<double>* weights,
                            int* total, short int sort);

/**
 * The same, in tables of `width` columns.
 */
KORVEL_API void M_InfoQuali2(matrix<text> const& data, int n, int p, int width, matrix<int>& categoryCounts,
                             matrix<text>& modes, matrix<double>& modeFrequencies, matrix<text>& categories,
                             matrix<double>& frequencies, matrix<double>& weights, int* total,
                             short int sort);

/**
 * The categories of one variable, in tables that are not resized and of which slots that are left over stay
 * as they were. A column without any text counts as one category here too. Its slot is left over, so the mode
 * and its frequency are what stands in the first slot.
 *
 * @param data          texts, `n` by `variable` at least, not modified
 * @param n             number of rows
 * @param variable      the column of the variable, from 1
 * @param categoryCount receives the number of categories
 * @param mode          receives the mode
 * @param modeFrequency receives its frequency
 * @param categories    receives the names, in linear order, whatever its shape
 * @param frequencies   receives the frequencies, likewise
 * @param weights       `n` weights
 * @param total         receives the number of categories
 * @param sort          -1: the categories are sorted
 */
KORVEL_API void M_InfoQuali2(matrix<text> const& data, int n, int variable, int& categoryCount, text& mode,
                             double& modeFrequency, matrix<text>& categories, matrix<double>& frequencies,
                             matrix<double>& weights, int* total, short int sort);

/**
 * The categories of variables that all have the same number of them.
 *
 * The mode is that of the numbers of rows. It is looked for among the first `count` slots of each variable,
 * and so many are sorted, whatever the variable has: empty slots come before all names.
 *
 * @param data                texts, `n` by `p`, not modified
 * @param n                   number of rows
 * @param p                   number of variables
 * @param width               columns of the tables
 * @param count               number of categories of every variable
 * @param modes               resized to `p` texts: the mode of each variable
 * @param modeFrequencies     resized to `p` numbers: its number of rows
 * @param categories          resized to `p` by `width` texts: the names
 * @param frequencies         resized to `p` by `width` numbers: the number of rows of each
 * @param weightedFrequencies resized to `p` by `width` numbers: the frequencies
 * @param weights             `n` weights
 * @param total               receives `p * count`
 * @param sort                -1: the categories are sorted; the variables are, side by side, on several
 * threads
 */
KORVEL_API void M_InfoQuali3(matrix<text>& data, int n, int p, int width, int count, matrix<text>& modes,
                             matrix<double>& modeFrequencies, matrix<text>& categories,
                             matrix<double>& frequencies, matrix<double>& weightedFrequencies,
                             matrix<double> weights, int* total, short int sort);

#endif
