#include "domain/marginal_sums.h"

#include "statistics/column_sums.h"
#include "tables/runs_of_rows.h"

#include <algorithm>
#include <vector>

namespace
{

using korvel::reading;
using korvel::run_of_rows;
using korvel::writing;

/** What stays of rows or columns with the given sums; what does not is marked. */
std::vector<run_of_rows> kept(const matrix<double>& sums, int n, matrix<int>& dropped)
{
    constexpr double empty = 1e-12;
    return korvel::runsOf(n, [&](int i) {
        const bool stays = sums[i] > empty;
        if (!stays) {
            korvel::storeChecked(dropped, i, 1);
        }
        return stays;
    });
}

} // namespace

void CheckForMarginalSums(matrix<double>& table, int rows, int cols, matrix<double>& result, int& keptRows,
                          int& keptCols, matrix<int>& droppedRows, matrix<int>& droppedCols)
{
    matrix<double> columnSums(std::max(cols, 0), 1, 0.0);
    matrix<double> rowSums(std::max(rows, 0), 1, 0.0);
    korvel::sumByColumns(table, rows, cols, columnSums);
    M_SumByRows(&table, rows, cols, &rowSums);
    const std::vector<run_of_rows> colsKept = kept(columnSums, cols, droppedCols);
    int target = 0;
    for (const run_of_rows& run : colsKept) {
        for (int j = run.first; j < run.first + run.count; ++j) {
            korvel::copyBlock(reading(table), {0, j}, writing(result), {0, target++}, rows, 1);
        }
    }
    // What is dropped is taken from the count, and nothing is dropped from one below 0.
    keptCols = std::min(cols, korvel::rowsOf(colsKept));
    const std::vector<run_of_rows> rowsKept = kept(rowSums, rows, droppedRows);
    keptRows = std::min(rows, korvel::rowsOf(rowsKept));
    korvel::copyRuns(rowsKept, reading(result), writing(result), keptCols);
}
