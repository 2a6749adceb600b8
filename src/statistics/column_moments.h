/**
 * @file
 * Mean and variance of each column of a table, in any of its forms.
 */
#ifndef KORVEL_STATISTICS_COLUMN_MOMENTS_H
#define KORVEL_STATISTICS_COLUMN_MOMENTS_H

#include "containers/views.h"
#include "statistics/panels.h"
#include "statistics/running_variance.h"

#include <cstddef>
#include <vector>

namespace korvel
{

/** The two flags that choose a denominator, see `running_weight::denominator`. */
struct denominator_choice {
    short int bUnbiased = 0;
    short int bFreq = 0;
};

/** What a column comes to. */
struct column_moments {
    double mean = 0.0;
    double variance = 0.0;

    [[nodiscard]] double deviation() const { return deviationFrom(variance); }
};

/**
 * The update of `V_Var` over the cells of a column that are not missing, in rows that are neither flagged nor
 * of weight 0. Unlike there a row of weight 0 is not counted.
 */
template <class Column>
void addColumn(running_variance& state, const Column& column, const weighted_rows& rows)
{
    withCells(
        [&](auto x) {
            for (int i = 0; i < rows.count; ++i) {
                const double weight = rows.weight(i);
                if (rows.keeps(i) && weight != 0.0 && x[i] != MISSING_DBL) {
                    state.add(x[i], weight);
                }
            }
        },
        column);
}

/** `addColumn` from the start for each of some columns, several of them side by side. */
[[nodiscard]] std::vector<running_variance> momentsInMemory(const column_pointers& columns,
                                                            const weighted_rows& rows);

/**
 * Calls `take(j, running_variance)` for each column in turn.
 *
 * @param table view of a table
 * @param take  may write column `j`, but no later one
 */
template <class View, class Take>
void forEachColumnState(const View& table, const weighted_rows& rows, int cols, Take take)
{
    // One column has nothing to run beside.
    if (const auto columns = columnsInMemory(table, rows, cols > 1 ? cols : 0); !columns.empty()) {
        const auto states = momentsInMemory(columns, rows);
        for (int j = 0; j < cols; ++j) {
            take(j, states[static_cast<std::size_t>(j)]);
        }
        return;
    }
    for (int j = 0; j < cols; ++j) {
        running_variance state;
        addColumn(state, table.column(j, rows.count), rows);
        take(j, state);
    }
}

/**
 * Calls `take(j, column_moments)` for each column in turn. With nothing kept the mean is 0.0 and the variance
 * what `V_Var` gives.
 *
 * @param table view of a table
 * @param take  may write column `j`, but no later one
 */
template <class View, class Take>
void forEachColumnMoments(const View& table, const weighted_rows& rows, int cols, denominator_choice how,
                          Take take)
{
    forEachColumnState(table, rows, cols, [&](int j, const running_variance& state) {
        take(j, column_moments{state.mean, state.variance(how.bUnbiased, how.bFreq)});
    });
}

} // namespace korvel

#endif
