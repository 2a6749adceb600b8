/**
 * @file
 * Tables of whole numbers, whose products are exact in any order, in a caller's memory.
 */
#ifndef KORVEL_TESTS_ABI_LINALG_WHOLE_TABLES_H
#define KORVEL_TESTS_ABI_LINALG_WHOLE_TABLES_H

#include "support/caller_memory.h"
#include "support/guarded.h"

#include <string>
#include <vector>

namespace korvel::test
{

using numbers = std::vector<double>;
using integers = std::vector<int>;

/** A table of whole numbers, whose products are exact in any order. */
struct whole_table {
    int rows;
    int cols;
    numbers cells;

    double at(int i, int j) const { return cells[static_cast<std::size_t>(i + rows * j)]; }
    double* data() { return cells.data(); }
};

inline whole_table counting(int rows, int cols, int start)
{
    whole_table made{rows, cols, {}};
    for (int k = 0; k < rows * cols; ++k) {
        made.cells.push_back((start + 3 * k) % 11 - 5);
    }
    return made;
}

inline whole_table transposed(const whole_table& x)
{
    whole_table made{x.cols, x.rows, {}};
    for (int i = 0; i < x.rows; ++i) {
        for (int j = 0; j < x.cols; ++j) {
            made.cells.push_back(x.at(i, j));
        }
    }
    return made;
}

inline whole_table times(const whole_table& a, const whole_table& b)
{
    whole_table made{a.rows, b.cols, {}};
    for (int j = 0; j < b.cols; ++j) {
        for (int i = 0; i < a.rows; ++i) {
            double sum = 0.0;
            for (int k = 0; k < a.cols; ++k) {
                sum += a.at(i, k) * b.at(k, j);
            }
            made.cells.push_back(sum);
        }
    }
    return made;
}

inline whole_table diagonalOf(const numbers& d)
{
    const int n = static_cast<int>(d.size());
    whole_table made{n, n, numbers(d.size() * d.size(), 0.0)};
    for (std::size_t k = 0; k < d.size(); ++k) {
        made.cells[k * (d.size() + 1)] = d[k];
    }
    return made;
}

inline guarded<double> roomFor(const whole_table& expected)
{
    return guarded<double>(numbers(expected.cells.size(), 9.0));
}

/** A caller's labelled table of the cells. */
inline ST_MVect labelled(caller_memory& caller, const whole_table& x)
{
    std::vector<ST_Vect> columns;
    std::vector<std::u16string> names;
    for (int j = 0; j < x.cols; ++j) {
        const auto first = x.cells.begin() + x.rows * j;
        columns.push_back(caller.column(u"x", numbers(first, first + x.rows)));
        names.push_back(u"x");
    }
    return caller.table(columns, names);
}

inline numbers cellsOf(const ST_MVect& table)
{
    numbers found;
    for (int j = 0; j < table.nbcols; ++j) {
        const numbers column = numbersIn<double>(columnOf(table, j).Vect);
        found.insert(found.end(), column.begin(), column.end());
    }
    return found;
}

inline whole_table blankLike(whole_table x)
{
    x.cells.assign(x.cells.size(), 9.0);
    return x;
}

inline whole_table symmetricTable(int n)
{
    const whole_table x = counting(n, n, 2);
    return times(x, transposed(x));
}

} // namespace korvel::test

#endif
