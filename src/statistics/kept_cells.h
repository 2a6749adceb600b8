/**
 * @file
 * One expression for the cells of a column that are kept: those that are not missing, in rows without a flag.
 * In place the other cells stay as they are; in a result of its own they are missing.
 */
#ifndef KORVEL_STATISTICS_KEPT_CELLS_H
#define KORVEL_STATISTICS_KEPT_CELLS_H

#include "containers/missing.h"
#include "containers/views.h"
#include "statistics/stand_ins.h"

#include <initializer_list>

namespace korvel
{

/**
 * `x[i] = cell(x[i])` for the cells that are kept, in place.
 *
 * @param column source of the cells
 * @param flags  of the rows; non-zero for one that is left out
 */
template <class Column, class Flags, class Cell>
void changeKept(const Column& column, int rows, Flags flags, Cell cell)
{
    const auto loop = [=]<class Cells>(Cells& x) {
        const auto isKept = [&](int i) { return flags[i] == 0 && x[i] != MISSING_DBL; };
        if constexpr (requires { x.settle(); }) {
            // Cells that are not kept are stored as they were: without a branch, several are changed at a
            // time. Behind the last one that is kept nothing is stored, so that the spare slot ends with its
            // value.
            int end = rows;
            while (end > 0 && !isKept(end - 1)) {
                --end;
            }
            for (int i = 0; i < end; ++i) {
                const double before = x[i];
                const double after = cell(before);
                x.set(i, isKept(i) ? after : before);
            }
        } else {
            for (int i = 0; i < rows; ++i) {
                if (isKept(i)) {
                    x.set(i, cell(x[i]));
                }
            }
        }
    };
    withCells(loop, column);
}

/** `to[i] = cell(from[i])` for the cells that are kept, and missing for the others. */
template <class From, class Flags, class Cell, class To>
void changeKept(const From& from, int rows, Flags flags, Cell cell, const To& to)
{
    withCells(
        [=](auto x, auto& out) {
            for (int i = 0; i < rows; ++i) {
                const double before = x[i];
                const double after = cell(before);
                out.set(i, flags[i] == 0 && before != MISSING_DBL ? after : MISSING_DBL);
            }
        },
        from, to);
}

/** A table to be changed, in place or into a result, which may be the table itself. */
template <class From, class To>
struct changed_table {
    From source;
    To target;
    bool inPlace;

    /** The change of the first `rows` cells of column `j`. */
    template <class Flags, class Cell>
    void change(int j, int rows, Flags flags, Cell cell) const
    {
        if (inPlace) {
            changeKept(target.column(j, rows), rows, flags, cell);
        } else {
            changeKept(source.column(j, rows), rows, flags, cell, target.column(j, rows));
        }
    }

    /** Zeros in the first `rows` cells of column `j`. */
    void clear(int j, int rows) const
    {
        withCells(
            [rows](auto& cells) {
                for (int i = 0; i < rows; ++i) {
                    cells.set(i, 0.0);
                }
            },
            target.column(j, rows));
    }
};

// Clang 14 does not deduce the arguments of an aggregate by itself.
template <class From, class To>
changed_table(From, To, bool) -> changed_table<From, To>;

/** A table of any form, in place. */
template <class Table>
[[nodiscard]] auto changing(Table&& x)
{
    return changed_table{reading(x), writing(x), true};
}

/** A dense table: into `result`, or in place when that is null. */
[[nodiscard]] inline auto changing(matrix<double>& x, matrix<double>* result)
{
    return changed_table{reading(x), writing(result != nullptr ? *result : x), result == nullptr};
}

/** The same for vectors, by linear index: tables of one chunk. */
[[nodiscard]] inline auto changingVector(matrix<double>& x, matrix<double>* result = nullptr)
{
    const auto chunkOf = [](matrix<double>& vector) { return chunk_objects<matrix<double>>{&vector}; };
    using source = chunk_view<const double, chunk_objects<matrix<double>>>;
    using target = chunk_view<double, chunk_objects<matrix<double>>>;
    return changed_table{source(chunkOf(x)), target(chunkOf(result != nullptr ? *result : x)),
                         result == nullptr};
}

/** Gives a result its size. When it is the table itself, its cells are still to be read. */
inline void resizeResult(matrix<double>* result, const matrix<double>* x, int rows, int cols)
{
    if (result != nullptr && result != x && rows > 0 && cols > 0) {
        result->Redim(rows, cols);
    }
}

/** A table and how many of its rows are meant; without rows the pointer may be null. */
struct row_set {
    matrix<double>* table;
    int rows;
};

/** The same change for column `j` of several tables, in place. */
template <class Cell>
void changeAlike(int j, Cell cell, std::initializer_list<row_set> sets)
{
    for (const row_set& set : sets) {
        if (set.rows > 0) {
            changing(*set.table).change(j, set.rows, no_flags{}, cell);
        }
    }
}

} // namespace korvel

#endif
