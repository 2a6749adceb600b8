#include "statistics/column_moments.h"

#include <algorithm>

namespace korvel
{

namespace
{

using index = std::ptrdiff_t;

/** Columns that are summed side by side, and the rows of their panel, which the nearest cache holds. */
constexpr index stripColumns = 4 * kernels::laneColumns;
constexpr index stripRows = 256;

/** The sums of all columns, with room for whole groups. */
class moment_table
{
public:
    explicit moment_table(index columns)
        : columns_(kernels::inGroups(columns)), sums_(static_cast<std::size_t>(4 * columns_))
    {
    }

    [[nodiscard]] kernels::moment_lanes lanes()
    {
        double* const first = sums_.data();
        return {first, first + columns_, first + 2 * columns_, first + 3 * columns_};
    }

private:
    index columns_;
    std::vector<double> sums_;
};

} // namespace

std::vector<running_variance> momentsInMemory(const column_pointers& columns, const weighted_rows& rows)
{
    const auto cols = static_cast<index>(columns.size());
    const kernels::column_kernel& kernel = kernels::columnKernel();
    moment_table table(cols);
    const kernels::moment_lanes sums = table.lanes();
    std::vector<char> complete(static_cast<std::size_t>((cols + stripColumns - 1) / stripColumns), 1);
    panel_memory memory(stripRows * stripColumns);
    double* const panel = memory.get();

    row_blocks blocks(rows, stripRows);
    while (blocks.next()) {
        kernels::panel_rows now = blocks.rows();
        now.weightless = 0;
        for (index first = 0; first < cols; first += stripColumns) {
            char& isComplete = complete[static_cast<std::size_t>(first / stripColumns)];
            const index count = std::min(stripColumns, cols - first);
            const bool mayMiss =
                kernel.pack(&columns[static_cast<std::size_t>(first)], count, now, panel, stripColumns);
            const index packed = kernels::inGroups(count);
            const kernels::moment_lanes here = sums.after(first);
            if (isComplete != 0 && mayMiss) {
                isComplete = 0;
                std::fill_n(here.sumW, packed, blocks.before().sumW);
                std::fill_n(here.kept, packed, blocks.before().weighted);
            }
            (isComplete != 0 ? kernel.addCompleteMoments : kernel.addMoments)(panel, packed, stripColumns,
                                                                              now, here);
        }
    }

    std::vector<running_variance> found(columns.size());
    for (index j = 0; j < cols; ++j) {
        const bool isComplete = complete[static_cast<std::size_t>(j / stripColumns)] != 0;
        running_variance& state = found[static_cast<std::size_t>(j)];
        state.sumW = isComplete ? blocks.now().sumW : sums.sumW[j];
        state.kept = isComplete ? blocks.now().weighted : static_cast<int>(sums.kept[j]);
        state.mean = sums.mean[j];
        state.m2 = sums.m2[j];
    }
    return found;
}

} // namespace korvel
