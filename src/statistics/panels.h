/**
 * @file
 * Tables as the kernels of the column statistics take them: some rows at a time, copied into a panel.
 */
#ifndef KORVEL_STATISTICS_PANELS_H
#define KORVEL_STATISTICS_PANELS_H

#include "containers/cells.h"
#include "statistics/kernels/columns.h"

#include <array>
#include <cstddef>
#include <vector>

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

/** Where the columns of a table are that lies inside its blocks. */
using column_pointers = std::vector<const double*>;

/** The columns of a view; none when some cell of them, or some weight, is not to be had as memory. */
template <class View>
[[nodiscard]] column_pointers columnsInMemory(const View& table, const weighted_rows& rows, int cols)
{
    column_pointers found;
    if constexpr (requires { table.run(0, 0, 0, 1); }) {
        if (rows.count > 0 && cols > 0 && (rows.weights == nullptr || holds(*rows.weights, rows.count))) {
            found.reserve(static_cast<std::size_t>(cols));
            for (int j = 0; j < cols; ++j) {
                const double* const column = table.run(0, j, rows.count, 1);
                if (column == nullptr) {
                    return {};
                }
                found.push_back(column);
            }
        }
    }
    return found;
}

/** The kept rows of a table, a block of them after the other. */
class row_blocks
{
public:
    /** @param atOnce rows of a block, at most `mostPanelRows` */
    row_blocks(const weighted_rows& rows, int atOnce) : rows_(rows), atOnce_(atOnce) {}

    /** Goes to the next block; false when there is none. */
    bool next();

    [[nodiscard]] kernels::panel_rows rows() const
    {
        return {count_, weightless_, numbers_.data(), weights_.data(), sums_.data(), factors_.data()};
    }

    /** The sum of the weights, and how many rows have one other than 0, and one of 0. */
    struct totals {
        double sumW = 0.0;
        int weighted = 0;
        int weightless = 0;
    };
    /** Of all rows up to the previous block, and up to this one. */
    [[nodiscard]] const totals& before() const { return before_; }
    [[nodiscard]] const totals& now() const { return now_; }

private:
    const weighted_rows rows_;
    const int atOnce_;
    int done_ = 0;
    std::ptrdiff_t count_ = 0;
    std::ptrdiff_t weightless_ = 0;
    totals before_;
    totals now_;
    std::array<int, kernels::mostPanelRows> numbers_;
    std::array<int, kernels::mostPanelRows> ofWeightZero_;
    std::array<double, kernels::mostPanelRows> weights_;
    std::array<double, kernels::mostPanelRows> sums_;
    std::array<double, kernels::mostPanelRows> factors_;
};

/** A panel, or several: cells that start a line of the cache. */
class panel_memory
{
public:
    explicit panel_memory(std::ptrdiff_t cells)
        : lines_(static_cast<std::size_t>(cells) / kernels::laneColumns)
    {
    }

    [[nodiscard]] double* get() { return lines_.data()->cells; }

private:
    struct alignas(64) line {
        double cells[kernels::laneColumns];
    };
    std::vector<line> lines_;
};

} // namespace korvel

#endif
