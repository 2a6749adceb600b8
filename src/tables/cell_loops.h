/**
 * @file
 * One expression for every cell of a table.
 */
#ifndef KORVEL_TABLES_CELL_LOOPS_H
#define KORVEL_TABLES_CELL_LOOPS_H

#include "containers/views.h"

namespace korvel
{

/** Cell (i, j) of `to` becomes `map` of cell (i, j) of `from`, column after column; both may be one table. */
template <class From, class To, class Map>
void mapCells(const From& from, int rows, int cols, const To& to, Map map)
{
    for (int j = 0; j < cols; ++j) {
        withCells(
            [&](auto in, auto& out) {
                for (int i = 0; i < rows; ++i) {
                    out.set(i, map(in[i]));
                }
            },
            from.column(j, rows), to.column(j, rows));
    }
}

/** Whether `isGood` holds for every cell of the table. */
template <class From, class Test>
[[nodiscard]] bool allCells(const From& from, int rows, int cols, Test isGood)
{
    for (int j = 0; j < cols; ++j) {
        const bool good = withCells(
            [&](auto in) {
                for (int i = 0; i < rows; ++i) {
                    if (!isGood(in[i])) {
                        return false;
                    }
                }
                return true;
            },
            from.column(j, rows));
        if (!good) {
            return false;
        }
    }
    return true;
}

} // namespace korvel

#endif
