#include "ordering/sort_table.h"

#include "ordering/move_rows.h"
#include "ordering/row_range.h"
#include "ordering/sorted_keys.h"

#include <algorithm>
#include <vector>

namespace
{

template <class Key>
korvel::sorted_numbers<Key> sortKeys(const matrix<Key>& key, const korvel::row_range& range, bool descending)
{
    return {range.count, descending, [&](std::int32_t k) { return key[range.first + k]; }};
}

template <class Key>
void writeKeys(const korvel::sorted_numbers<Key>& sorted, const korvel::row_range& range, matrix<Key>& key)
{
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        key[range.first + static_cast<std::ptrdiff_t>(k)] = sorted.key(k);
    }
}

template <class T>
bool holdsRows(const matrix<T>& table, const korvel::row_range& range)
{
    return range.first + range.count <= table.nbrows;
}

/** Moves the rows of the range in columns `firstColumn` to `cols - 1`, as far as the table has them. */
template <class T, class Sorted>
void moveRowsOf(matrix<T>& table, int firstColumn, int cols, const korvel::row_range& range,
                const Sorted& sorted)
{
    if (holdsRows(table, range)) {
        korvel::moveRows<T>(sorted, std::min(cols, table.nbcols) - firstColumn, [&](int j) {
            return table.data + range.first + static_cast<std::ptrdiff_t>(table.nbrows) * (firstColumn + j);
        });
    }
}

template <class T, class Key>
void sortTable(matrix<T>& table, int rows, int cols, int from, int to, matrix<Key>& key, matrix<T>* aux,
               int auxCols, bool descending, bool sortKey)
{
    const korvel::row_range range(from, to, rows);
    const auto isStorageOf = [](const auto& a, const auto& b) {
        return static_cast<const void*>(a.data) == static_cast<const void*>(b.data);
    };
    const bool keyIsFirstColumn = sortKey && isStorageOf(key, table);
    const auto sorted = sortKeys(key, range, descending);
    moveRowsOf(table, keyIsFirstColumn ? 1 : 0, cols, range, sorted);
    if (auxCols > 0 && !isStorageOf(*aux, key) && !isStorageOf(*aux, table)) {
        moveRowsOf(*aux, 0, auxCols, range, sorted);
    }
    if (sortKey) {
        writeKeys(sorted, range, key);
    }
}

/** Moves whole columns, `rows` cells of each: rank k goes to column `range.first + k`. */
void moveColumnsOf(matrix<double>& table, int rows, const korvel::row_range& range,
                   const korvel::sorted_numbers<double>& sorted)
{
    if (range.count == 0 || range.first + range.count > table.nbcols || rows > table.nbrows) {
        return;
    }
    const auto columnAt = [&](int j) {
        return table.data + static_cast<std::ptrdiff_t>(table.nbrows) * (range.first + j);
    };
    const auto height = static_cast<std::size_t>(std::max(rows, 0));
    std::vector<double> copy(height * sorted.size());
    for (int j = 0; j < range.count; ++j) {
        std::copy_n(columnAt(j), height, copy.data() + height * static_cast<std::size_t>(j));
    }
    for (int j = 0; j < range.count; ++j) {
        const auto source = static_cast<std::size_t>(sorted.position(static_cast<std::size_t>(j)));
        std::copy_n(copy.data() + height * source, height, columnAt(j));
    }
}

} // namespace

void SortQ(matrix<double>* table, int rows, int cols, int from, int to, matrix<double>* key,
           matrix<double>* aux, int auxCols, bool bDesc, bool bSortKey)
{
    sortTable(*table, rows, cols, from, to, *key, aux, auxCols, bDesc, bSortKey);
}

void SortQ(matrix<int>* table, int rows, int cols, int from, int to, matrix<int>* key, matrix<int>* aux,
           int auxCols, bool bDesc, bool bSortKey)
{
    sortTable(*table, rows, cols, from, to, *key, aux, auxCols, bDesc, bSortKey);
}

void SortQ(matrix<short int>* table, int rows, int cols, int from, int to, matrix<double>* key,
           matrix<short int>* aux, int auxCols, bool bDesc, bool bSortKey)
{
    sortTable(*table, rows, cols, from, to, *key, aux, auxCols, bDesc, bSortKey);
}

void SortQ(matrix<text>* table, int rows, int cols, int from, int to, matrix<double>* key, matrix<text>* aux,
           int auxCols, bool bDesc, bool bSortKey)
{
    sortTable(*table, rows, cols, from, to, *key, aux, auxCols, bDesc, bSortKey);
}

void SortQByCol(matrix<double>* table, int rows, int cols, int from, int to, matrix<double>* key,
                matrix<double>* aux, int auxRows, bool bDesc, bool bSortKey)
{
    const korvel::row_range range(from, to, cols);
    const auto sorted = sortKeys(*key, range, bDesc);
    moveColumnsOf(*table, rows, range, sorted);
    if (auxRows > 0) {
        moveColumnsOf(*aux, auxRows, range, sorted);
    }
    if (bSortKey) {
        writeKeys(sorted, range, *key);
    }
}

void SortDataBy01(matrix<double>* table, int rows, int cols, matrix<double>* key)
{
    sortTable(*table, rows, cols, 1, rows, *key, static_cast<matrix<double>*>(nullptr), 0, false, true);
}

void SortDataBy01(matrix<short int>* table, int rows, int cols, matrix<double>* key)
{
    sortTable(*table, rows, cols, 1, rows, *key, static_cast<matrix<short int>*>(nullptr), 0, false, true);
}

void SortDataBy01(matrix<text>* table, int rows, int cols, matrix<double>* key)
{
    sortTable(*table, rows, cols, 1, rows, *key, static_cast<matrix<text>*>(nullptr), 0, false, true);
}
