#include "containers/records.h"
#include "containers/sparse_matrix.h"
#include "containers/views.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace
{

bool isKept(double x)
{
    return std::fabs(x) > SPARSE_ZERO;
}

/** Turns the number of entries of each row, at `starts[i + 1]`, into the position of each row's first. */
void accumulate(std::vector<int>& starts)
{
    std::int64_t total = 0;
    for (int& start : starts) {
        total += start;
        if (total > std::numeric_limits<int>::max()) {
            throw std::length_error("matrixSparse: more entries than a 32-bit position can tell");
        }
        start = static_cast<int>(total);
    }
}

/**
 * Fills `target` from a table of any form, whose columns from `storedCols` on have only zeros.
 *
 * Cells are counted first, so that each array is allocated once. Both passes go down the columns, in the
 * memory order of the source. Each row has its own place to append to, so its entries are in column order.
 */
template <class View>
void load(matrixSparse& target, int rows, int cols, int storedCols, const View& source)
{
    std::vector<int> starts(static_cast<std::size_t>(std::max(std::int64_t{rows} + 1, std::int64_t{0})));
    const auto countColumn = [&](auto cells) {
        for (int i = 0; i < rows; ++i) {
            starts[static_cast<std::size_t>(i) + 1] += isKept(cells[i]) ? 1 : 0;
        }
    };
    for (int j = 0; j < storedCols; ++j) {
        korvel::withCells(countColumn, source.column(j, rows));
    }
    accumulate(starts);

    const int stored = starts.empty() ? 0 : starts.back();
    std::vector<int> colIndex(static_cast<std::size_t>(stored));
    std::vector<double> values(static_cast<std::size_t>(stored));
    for (int j = 0; j < storedCols; ++j) {
        const auto appendColumn = [&](auto cells) {
            for (int i = 0; i < rows; ++i) {
                if (const double x = cells[i]; isKept(x)) {
                    const auto place = static_cast<std::size_t>(starts[static_cast<std::size_t>(i)]++);
                    colIndex[place] = j;
                    values[place] = x;
                }
            }
        };
        korvel::withCells(appendColumn, source.column(j, rows));
    }
    // Appending has moved the start of each row to that of the next.
    if (rows > 0) {
        std::shift_right(starts.begin(), starts.end(), 1);
        starts[0] = 0;
    }
    // Only an entry of row 1 or of a later row sets the start of row 1. This is wrong for a table with
    // entries in row 0 alone, but callers rely on it.
    if (rows > 1 && starts[1] == stored) {
        starts[1] = 0;
    }

    target.nbrows = rows;
    target.nbcols = cols;
    target.nnz = stored;
    target.colIndex.swap(colIndex);
    target.rowStart.swap(starts);
    target.values.swap(values);
}

} // namespace

void matrixSparse::outputSparse(matrix<double>* m)
{
    load(*this, m->nbrows, m->nbcols, m->nbcols, korvel::reading(std::as_const(*m)));
}

void matrixSparse::outputSparse(cST_MVect<double>* t)
{
    const auto columns = static_cast<std::int64_t>(t->Vectors.size());
    const auto storedCols = static_cast<int>(std::min<std::int64_t>(t->nbcols, columns));
    load(*this, t->nbrowsmax, t->nbcols, storedCols, korvel::reading(std::as_const(*t)));
}
