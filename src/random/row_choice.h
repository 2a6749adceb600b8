/**
 * @file
 * The rows that a sampling scheme chooses. Row numbers count from 1. A scheme's arithmetic may lead to a row
 * outside the table.
 */
#ifndef KORVEL_RANDOM_ROW_CHOICE_H
#define KORVEL_RANDOM_ROW_CHOICE_H

#include "containers/matrix.h"

#include <cstdint>
#include <vector>

namespace korvel
{

using chosen_rows = std::vector<std::int64_t>;

/** Step and span of the systematic schemes. */
struct sampling_grid {
    std::int64_t step;
    std::int64_t span;

    sampling_grid(int rows, int k);
};

/** The numbers of each row's copies, in row order. */
[[nodiscard]] chosen_rows userDefinedRows(const matrix<double>& counts, int rows);

/** `k` rows drawn with replacement, ascending. */
[[nodiscard]] chosen_rows rowsWithReplacement(int rows, int k, int* seed, short int flag, int* nextSeed);

/** The start of a systematic sample, from a number that is drawn or 0.5. */
[[nodiscard]] std::int64_t systematicStart(const sampling_grid& grid, double u);

/**
 * The rows of a systematic sample, at most `k`. The elements of `selected` whose rows are not taken receive
 * `rows + 1`.
 */
[[nodiscard]] chosen_rows systematicRows(int rows, int k, const sampling_grid& grid, std::int64_t start,
                                         matrix<double>& selected);

/** A row of each stratum. */
[[nodiscard]] chosen_rows stratifiedRows(int rows, int k, int* seed, short int flag, int* nextSeed);

/** Rows drawn with replacement from each group of equal labels, 0 for one outside its group. */
[[nodiscard]] chosen_rows labelledRows(const matrix<text>& labels, int rows, const matrix<double>& counts,
                                       int* seed, short int flag, int* nextSeed);

/** Puts the row numbers into a vector. */
void storeRowNumbers(const chosen_rows& chosen, matrix<double>& selected);

} // namespace korvel

#endif
