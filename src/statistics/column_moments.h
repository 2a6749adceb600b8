/**
 * @file
 * Mean and variance of each column of a table, in any of its forms.
 */
#ifndef KORVEL_STATISTICS_COLUMN_MOMENTS_H
#define KORVEL_STATISTICS_COLUMN_MOMENTS_H

#include "containers/views.h"
#include "statistics/running_variance.h"

namespace korvel
{

/** The rows of a table that a summary reads, and their weights. */
struct weighted_rows {
    int count = 0;
    const short int* flags = nullptr;        ///< a row with a non-zero flag is left out; null: none is
    const matrix<double>* weights = nullptr; ///< null: all are 1.0

    [[nodiscard]] bool keeps(int i) const { return flags == nullptr || flags[i] == 0; }
    [[nodiscard]] double weight(int i) const { return weights == nullptr ? 1.0 : (*weights)[i]; }
};

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
    for (int j = 0; j < cols; ++j) {
        running_variance state;
        addColumn(state, table.column(j, rows.count), rows);
        take(j, column_moments{state.mean, state.variance(how.bUnbiased, how.bFreq)});
    }
}

} // namespace korvel

#endif
