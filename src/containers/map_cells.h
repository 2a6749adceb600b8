/**
 * @file
 * One expression, or one test, for every cell of a table.
 */
#ifndef KORVEL_CONTAINERS_MAP_CELLS_H
#define KORVEL_CONTAINERS_MAP_CELLS_H

#include "containers/stretches.h"
#include "containers/views.h"

namespace korvel
{

/**
 * `to(i, j) = map(j)(from(i, j)...)` for the first `rows` rows and `cols` columns, column after column.
 *
 * @param map  `map(j)` gives the expression for the cells of column j, so a factor of that column is read
 *             only once
 * @param to   view of the result, which may be one of the tables that are read
 * @param from views of the tables that are read
 */
template <class Map, class To, class... From>
void mapColumns(int rows, int cols, Map map, const To& to, const From&... from)
{
    for (int j = 0; j < cols; ++j) {
        const auto cell = map(j);
        withCells(
            [&](auto& out, auto&... in) {
                for (int i = 0; i < rows; ++i) {
                    out.set(i, cell(in[i]...));
                }
            },
            to.column(j, rows), from.column(j, rows)...);
    }
}

/** `to(i, j) = cell(from(i, j)...)`. */
template <class Cell, class To, class... From>
void mapCells(int rows, int cols, Cell cell, const To& to, const From&... from)
{
    mapColumns(
        rows, cols, [&](int) { return cell; }, to, from...);
}

/** Whether `isGood`, a test as `allOf` takes it, holds for every cell of the table. */
template <class From, class Test>
[[nodiscard]] bool allCells(int rows, int cols, Test isGood, const From& from)
{
    for (int j = 0; j < cols; ++j) {
        const bool good = withCells([&](auto in) { return allOf(rows, isGood, in); }, from.column(j, rows));
        if (!good) {
            return false;
        }
    }
    return true;
}

} // namespace korvel

#endif
