/**
 * @file
 * Loops that walk a dense table row after row, on rows that are runs of memory.
 */
#ifndef KORVEL_LINALG_ROWS_AS_RUNS_H
#define KORVEL_LINALG_ROWS_AS_RUNS_H

#include "containers/views.h"
#include "tables/transposed_block.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace korvel
{

/** A block laid out row after row; remembers the cell stored last. */
class row_cells
{
public:
    row_cells(double* cells, int cols) : cells_(cells), stride_(cols) {}
    row_cells(const row_cells&) = delete;
    row_cells& operator=(const row_cells&) = delete;

    [[nodiscard]] const double& get(int i, int j) const { return cells_[stride_ * i + j]; }

    void set(int i, int j, double value)
    {
        double* const cell = cells_ + (stride_ * i + j);
        *cell = value;
        last_ = cell;
    }

    /** The cell stored last, or null. */
    [[nodiscard]] const double* last() const { return last_; }

private:
    double* cells_;
    std::ptrdiff_t stride_;
    const double* last_ = nullptr;
};

/**
 * Calls `loop(cells)`, once, on the top left block of a table that it reads and changes by `get` and `set`.
 * Where the block is the whole table, it is laid out row after row meanwhile; otherwise the cells are reached
 * as `withCells` does.
 * @throws std::bad_alloc when memory is short; `loop` is then not called
 */
template <class Loop>
auto changeByRows(matrix<double>& table, int rows, int cols, Loop loop)
{
    if (rows < 2 || cols < 2 || rows != table.nbrows || cols > table.nbcols) {
        return withCells(loop, writing(table).table(rows, cols));
    }
    matrix<double> turned(cols, rows, 1);
    transposeBlock(table.data, rows, cols, turned.data);
    row_cells cells(turned.data, cols);
    const auto putBack = [&] {
        transposeBlock(turned.data, cols, rows, table.data);
        if (cells.last() != nullptr) {
            table.oobValue = *cells.last();
        }
    };
    if constexpr (std::is_void_v<std::invoke_result_t<Loop, row_cells&>>) {
        loop(cells);
        putBack();
    } else {
        const auto result = loop(cells);
        putBack();
        return result;
    }
}

} // namespace korvel

#endif
