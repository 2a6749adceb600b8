/**
 * @file
 * The inner loops of the column statistics, compiled for each instruction set. Columns and pairs of columns
 * do not depend on each other and run side by side in lanes, each with the roundings of the plain loop.
 *
 * They work on panels: some rows of a table, laid out row after row in groups of `laneColumns` columns. What
 * the last group has too many does not matter.
 */
#ifndef KORVEL_STATISTICS_KERNELS_COLUMNS_H
#define KORVEL_STATISTICS_KERNELS_COLUMNS_H

#include <cstddef>

namespace korvel::kernels
{

/** Columns of a group. */
constexpr std::ptrdiff_t laneColumns = 8;

/** As many columns as the groups have that hold `columns`. */
[[gnu::always_inline]] constexpr std::ptrdiff_t inGroups(std::ptrdiff_t columns)
{
    return (columns + laneColumns - 1) / laneColumns * laneColumns;
}

/** The rows of a panel, at most. */
constexpr int mostPanelRows = 256;

/** The rows of a panel. */
struct panel_rows {
    std::ptrdiff_t count = 0;       ///< rows of a weight other than 0, which come first
    std::ptrdiff_t weightless = 0;  ///< rows of weight 0 behind them
    const int* number = nullptr;    ///< of each in its table; both kinds are in the order of the table
    const double* weight = nullptr; ///< of the `count` first rows
    /** What the rows of a column without missing cells have in common: the sum of the weights up to each, and
     * `w - w * w / sum`. */
    const double* sum = nullptr;
    const double* factor = nullptr;
};

/** The running sums of columns, as in `running_variance`: an array for each. */
struct moment_lanes {
    double* sumW = nullptr;
    double* kept = nullptr;
    double* mean = nullptr;
    double* m2 = nullptr;

    /** Those of the columns from `count` on. */
    [[gnu::always_inline]] moment_lanes after(std::ptrdiff_t count) const
    {
        return {sumW + count, kept + count, mean + count, m2 + count};
    }
};

/** The running sums of a column with each of a group of columns, as in `running_covariance`. */
struct pair_lanes {
    double sumW[laneColumns];
    double kept[laneColumns];
    double meanX[laneColumns];
    double meanY[laneColumns];
    double products[laneColumns];
};

/** What is compiled once for each instruction set. */
struct column_kernel {
    /**
     * Copies the rows of some columns of a table to a panel. The last group is filled up with the last
     * column.
     * @return whether a cell is missing; also true where one is below the sentinel
     */
    bool (*pack)(const double* const* columns, std::ptrdiff_t count, const panel_rows& rows, double* panel,
                 std::ptrdiff_t stride);

    /** Adds the rows of weights other than 0 to the sums of some groups of columns, rows `stride` apart. */
    void (*addMoments)(const double* panel, std::ptrdiff_t columns, std::ptrdiff_t stride,
                       const panel_rows& rows, const moment_lanes& sums);

    /** The same when no cell is missing here or was before: `sumW` and `kept` are not looked at. */
    void (*addCompleteMoments)(const double* panel, std::ptrdiff_t columns, std::ptrdiff_t stride,
                               const panel_rows& rows, const moment_lanes& sums);

    /**
     * Adds the rows to the sums of the columns `x` to `x + count - 1` with a group of columns. Rows of weight
     * 0 are counted.
     *
     * @param x     first column of the panel, its rows `stride` apart
     * @param group first cell of the group, its rows as far apart
     */
    void (*addPairs)(const double* x, std::ptrdiff_t count, const double* group, std::ptrdiff_t stride,
                     const panel_rows& rows, pair_lanes* sums);

    /**
     * Replaces each cell of some groups of columns, none of them missing, by its deviation from the running
     * mean, and fills another panel with those times the factor of the row.
     */
    void (*takeDeviations)(double* panel, double* factored, std::ptrdiff_t columns, std::ptrdiff_t stride,
                           const panel_rows& rows, double* means);
};

/** The kernel of the best instruction set that the processor has, or that a test has forced. */
[[nodiscard]] const column_kernel& columnKernel() noexcept;

namespace baseline
{
extern const column_kernel columnKernel;
}

namespace avx2
{
extern const column_kernel columnKernel;
}

namespace avx512
{
extern const column_kernel columnKernel;
}

} // namespace korvel::kernels

#endif
