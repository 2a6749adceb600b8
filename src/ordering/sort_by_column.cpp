#include "ordering/sort_by_column.h"

#include "ordering/move_rows.h"
#include "ordering/row_range.h"
#include "ordering/sorted_keys.h"

#include <algorithm>

namespace
{

template <class T>
void sortByColumn(matrix<T>& table, int rows, int cols, int keyCol, int from, int to, bool descending)
{
    const korvel::row_range range(from, to, std::min(rows, table.nbrows));
    const int columns = std::min(cols, table.nbcols);
    if (range.count == 0 || keyCol < 1 || keyCol > columns) {
        return;
    }
    const auto columnAt = [&](int j) {
        return table.data + range.first + static_cast<std::ptrdiff_t>(table.nbrows) * j;
    };
    const T* key = columnAt(keyCol - 1);
    const auto keyAt = [=](std::int32_t k) -> const T& { return key[k]; };
    if (korvel::orderOf(range.count, descending, keyAt) == korvel::key_order::sorted) {
        return;
    }
    const korvel::sorted_order<T> sorted(range.count, descending, keyAt);
    korvel::moveRows<T>(sorted, columns, columnAt, korvel::sharesColumns(rows, cols));
}

template <class T>
void sortByColumns(matrix<T>& table, int rows, int cols, int first, int last, int step)
{
    for (int keyCol = first; keyCol != last + step; keyCol += step) {
        sortByColumn(table, rows, cols, keyCol, 1, rows, false);
    }
}

template <class T>
void sortByAllColumns(matrix<T>& table, int rows, int cols)
{
    if (cols >= 1) {
        sortByColumns(table, rows, cols, cols, 1, -1);
    }
}

template <class T>
void sortByColumnRange(matrix<T>& table, int rows, int cols, int p1, int p2)
{
    const int first = std::max(p1, 1);
    const int last = std::min(p2, cols);
    if (first <= last) {
        sortByColumns(table, rows, cols, first, last, 1);
    }
}

} // namespace

void SortQMatrixCol(matrix<double>* table, int rows, int cols, int keyCol, int from, int to, bool bDesc)
{
    sortByColumn(*table, rows, cols, keyCol, from, to, bDesc);
}

void SortQMatrixCol(matrix<int>* table, int rows, int cols, int keyCol, int from, int to, bool bDesc)
{
    sortByColumn(*table, rows, cols, keyCol, from, to, bDesc);
}

void SortQMatrixCol(matrix<text>* table, int rows, int cols, int keyCol, int from, int to, bool bDesc)
{
    sortByColumn(*table, rows, cols, keyCol, from, to, bDesc);
}

void SortMatrixSeqQ(matrix<double>* table, int rows, int cols)
{
    sortByAllColumns(*table, rows, cols);
}

void SortMatrixSeqQ(matrix<int>* table, int rows, int cols)
{
    sortByAllColumns(*table, rows, cols);
}

void SortMatrixSeqQP1toP2(matrix<double>* table, int rows, int cols, int p1, int p2)
{
    sortByColumnRange(*table, rows, cols, p1, p2);
}

void SortMatrixSeqQP1toP2(matrix<int>* table, int rows, int cols, int p1, int p2)
{
    sortByColumnRange(*table, rows, cols, p1, p2);
}
