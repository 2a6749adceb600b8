/**
 * @file
 * Rows that stay, as runs of neighbours, which move as memory.
 */
#ifndef KORVEL_TABLES_RUNS_OF_ROWS_H
#define KORVEL_TABLES_RUNS_OF_ROWS_H

#include "tables/block_copy.h"

#include <vector>

namespace korvel
{

/** Rows, or columns, one behind the other, from 0. */
struct run_of_rows {
    int first;
    int count;
};

/** The runs of those among the numbers 0 to `n - 1` for which `isIn(k)` holds. */
template <class Test>
[[nodiscard]] std::vector<run_of_rows> runsOf(int n, Test isIn)
{
    std::vector<run_of_rows> runs;
    for (int k = 0; k < n; ++k) {
        if (!isIn(k)) {
            continue;
        }
        if (runs.empty() || runs.back().first + runs.back().count != k) {
            runs.push_back({k, 0});
        }
        ++runs.back().count;
    }
    return runs;
}

/** How many rows the runs have together. */
[[nodiscard]] inline int rowsOf(const std::vector<run_of_rows>& runs)
{
    int rows = 0;
    for (const run_of_rows& run : runs) {
        rows += run.count;
    }
    return rows;
}

/** Copies runs of rows one below the other, column by column. The two tables may be one. */
template <class From, class To>
void copyRuns(const std::vector<run_of_rows>& runs, const From& from, const To& to, int cols)
{
    for (int j = 0; j < cols; ++j) {
        int stored = 0;
        for (const run_of_rows& run : runs) {
            copyBlock(from, {run.first, j}, to, {stored, j}, run.count, 1);
            stored += run.count;
        }
    }
}

} // namespace korvel

#endif
