/**
 * @file
 * The compact letter display of pairwise comparisons: levels in the order of their means, and letters of
 * which two levels share one exactly when they do not differ.
 *
 * Two levels do not differ when the one that comes first in the order is significantly different neither from
 * the other one nor from any level between them. Each letter stands for a largest set of levels of which no
 * two differ, so that no letter could be left out. Letters come in the order of their first levels: A to Z,
 * then AA, AB and so on. A level whose value is missing, or a NaN, has no letter.
 *
 * Such sets are the largest cliques of an interval graph: a level reaches as far down the order as no level
 * differs from it, and the sets are those of the levels that reach one place of the order (P. C. Gilmore and
 * A. J. Hoffman, Canadian Journal of Mathematics 16, 1964).
 *
 * There are at most 256 letters, one in each column of a table of texts.
 */
#ifndef KORVEL_DOMAIN_COMPARISON_LETTERS_H
#define KORVEL_DOMAIN_COMPARISON_LETTERS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The letters of k levels.
 *
 * @param means        a table of which a column has the `k` means; changed only when `sortResult` is 0
 * @param k            number of levels; below 1 there is nothing to do
 * @param column       the column of the means, from 1; 0: `means` is a vector
 * @param significance `k` by `k`: for each pair of levels, at the row of the larger number and the column of
 * the smaller one, 0 when the two do not differ significantly
 * @param sortResult   0: the means, `order` and the rows of `labels` come back in the order of the means. Not
 * 0: all three come back in the order of the levels 1 to k
 * @param order        receives the `k` numbers of the levels
 * @param labels       every cell is cleared; then its first `k` rows receive the letters, letter c in column
 * c. Should the smallest mean be missing, and the order be ascending, column 1 stays empty and letters begin
 * in column 2. `k` columns are enough; columns that it does not have are lost
 * @param groupCount   receives how many columns are taken, 1 where there is no level; 257 when there was no
 * room for the last letter
 * @param success      receives -1; 0 when there were too many letters: then the first ones are there
 * @param descending   not 0: from the largest mean down; 0: from the smallest one up
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void GetCompMatrices(matrix<double>& means, int k, int column, matrix<int>& significance,
                                short int sortResult, matrix<int>& order, matrix<text>* labels,
                                int* groupCount, short int* success, short int descending);

/**
 * The letters of levels whose comparisons are listed pair by pair.
 *
 * @param values           a table with a row for each level. Its rows are sorted by the column of values
 * @param valueColumn      the column of the values, from 1; below 1 is the first one
 * @param pairs            a row for each pair, with the larger and the smaller of the numbers of two levels
 * @param pairCount        number of pairs
 * @param significance     an integer for each pair, not 0 when its levels differ significantly. The first one
 * of several for the same pair counts; levels that are not paired do not differ
 * @param labels           receives a row for each level in sorted order; sized, and cleared, by the caller
 * @param groupCount       as for `GetCompMatrices`
 * @param order            a vector of the numbers of the levels, one for each row of `values`, put into the
 * sorted order with them
 * @param firstPairColumn  the column of the larger numbers in `pairs`, from 1
 * @param secondPairColumn the column of the smaller numbers
 * @param done             0: values and order are to be sorted, and it is set to -1; otherwise they are
 * sorted already
 * @param descending       not 0: from the largest value down
 * @return -1; 0 when there were more than 256 columns to write
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API short int BuildGroupingForDiffs(matrix<double>& values, int valueColumn,
                                           matrix<double> const& pairs, int pairCount,
                                           matrix<int> const& significance, matrix<text>& labels,
                                           int& groupCount, matrix<double>& order, int firstPairColumn,
                                           int secondPairColumn, short int& done, short int descending);

#endif
