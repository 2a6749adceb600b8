/**
 * @file
 * The covariance of every pair of columns of a table, each over the rows in which both are present.
 */
#ifndef KORVEL_STATISTICS_PAIR_WALK_H
#define KORVEL_STATISTICS_PAIR_WALK_H

#include "containers/views.h"
#include "statistics/column_moments.h"
#include "statistics/panels.h"
#include "statistics/running_covariance.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace korvel
{

/** The state of `State` after the rows in which both columns are present. */
template <class State, class X, class Y>
[[nodiscard]] State walkPair(const X& x, const Y& y, const weighted_rows& rows)
{
    return withCells(
        [&](auto left, auto right) {
            State state;
            for (int r = 0; r < rows.count; ++r) {
                if (rows.keeps(r) && left[r] != MISSING_DBL && right[r] != MISSING_DBL) {
                    state.add(left[r], right[r], rows.weight(r));
                }
            }
            return state;
        },
        x, y);
}

/** `walkPair` for each pair of columns with `j` not below `i`, several of them side by side. */
using pair_taker = std::function<void(int i, int j, const running_covariance&)>;
void walkPairsInMemory(const column_pointers& columns, const weighted_rows& rows, const pair_taker& take);

/**
 * Calls `take(i, j, covariance)` for each pair of columns with `j` not below `i`, and
 * `takeColumn(i, column_moments)` for each column in turn, after all pairs that need it. Without a common row
 * the covariance is missing, and for i = j the mean and the variance are.
 *
 * @param x          view of the table
 * @param takeColumn may write column `i`
 */
template <class View, class Take, class TakeColumn>
void forEachColumnPair(const View& x, const weighted_rows& rows, int cols, denominator_choice how, Take take,
                       TakeColumn takeColumn)
{
    std::vector<column_moments> found(static_cast<std::size_t>(std::max(cols, 0)),
                                      {MISSING_DBL, MISSING_DBL});
    const auto finish = [&](int i, int j, const running_covariance& pair) {
        double covariance = MISSING_DBL;
        if (pair.kept > 0) {
            covariance = pair.products / pair.denominator(how.bUnbiased, how.bFreq);
            if (i == j) {
                found[static_cast<std::size_t>(i)] = {pair.meanX, covariance};
            }
        }
        take(i, j, covariance);
    };
    const auto columns = columnsInMemory(x, rows, cols);
    if (!columns.empty()) {
        walkPairsInMemory(columns, rows, finish);
    }
    for (int i = 0; i < cols; ++i) {
        for (int j = i; j < cols && columns.empty(); ++j) {
            finish(i, j,
                   walkPair<running_covariance>(x.column(i, rows.count), x.column(j, rows.count), rows));
        }
        takeColumn(i, found[static_cast<std::size_t>(i)]);
    }
}

} // namespace korvel

#endif
