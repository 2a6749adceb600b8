/**
 * @file
 * One expression for every cell of a table, stored transposed.
 */
#ifndef KORVEL_LINALG_TRANSPOSED_CELLS_H
#define KORVEL_LINALG_TRANSPOSED_CELLS_H

#include "containers/views.h"

#include <algorithm>

namespace korvel
{

/**
 * `to(j, i) = map(i)(from(i, j))` for the first `rows` rows and `cols` columns of `from`, in square tiles, so
 * that the cache lines of both tables are used whole. The last cell is stored last.
 *
 * @param map  `map(i)` is what happens to the cells of row i
 */
template <class Map>
void mapTransposed(int rows, int cols, Map map, const matrix<double>& from, matrix<double>& to)
{
    constexpr int tile = 16;
    withCells(
        [&](auto& out, const auto& in) {
            for (int firstCol = 0; firstCol < cols; firstCol += std::min(tile, cols - firstCol)) {
                const int endCol = firstCol + std::min(tile, cols - firstCol);
                for (int firstRow = 0; firstRow < rows; firstRow += std::min(tile, rows - firstRow)) {
                    const int endRow = firstRow + std::min(tile, rows - firstRow);
                    for (int i = firstRow; i < endRow; ++i) {
                        const auto cell = map(i);
                        for (int j = firstCol; j < endCol; ++j) {
                            out.set(j, i, cell(in.get(i, j)));
                        }
                    }
                }
            }
        },
        writing(to).table(cols, rows), reading(from).table(rows, cols));
}

} // namespace korvel

#endif
