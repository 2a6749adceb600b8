#include "ordering/sort_table.h"

#include "ordering/move_rows.h"
#include "ordering/row_range.h"
#include "ordering/sorted_keys.h"

#include <algorithm>
#include <vector>

namespace
{

template <class Key>
auto keysOf(const matrix<Key>& key, const korvel::row_range& range)
{
    return [&key, first = range.first](std::int32_t k) { return key[first + k]; };
}

template <class Key>
korvel::sorted_numbers<Key> sortKeys(const matrix<Key>& key, const korvel::row_range& range, bool descending)
{
    return {range.count, descending, keysOf(key, range)};
}

template <class Key>
void writeKeys(const korvel::sorted_numbers<Key>& sorted, const korvel::row_range& range, matrix<Key>& key)
{
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        key[range.first + static_cast<std::ptrdiff_t>(k)] = sorted.key(k);
    }
}

/** The first cell of the range in column j; null when the column does not hold the whole range. */
template <class T>
T* rangeInColumn(matrix<T>& table, int j, const korvel::row_range& range)
{
    const bool inside = range.first + range.count <= table.nbrows && j < table.nbcols;
    return inside ? table.data + range.first + static_cast<std::ptrdiff_t>(table.nbrows) * j : nullptr;
}

template <class T>
T* rangeInColumn(cST_MVect<T>& table, int j, const korvel::row_range& range)
{
    return static_cast<std::size_t>(j) < table.Vectors.size()
               ? rangeInColumn(table.Vectors[static_cast<std::size_t>(j)].Vect, 0, range)
               : nullptr;
}

template <class T>
const void* storageOf(const matrix<T>& table)
{
    return table.data;
}

template <class T>
const void* storageOf(const cST_MVect<T>& table)
{
    return table.Vectors.empty() ? nullptr : table.Vectors.front().Vect.data;
}

/** Moves the rows of the range in the columns `firstColumn` to `cols - 1`; columns that the table does not
 * have are left out. */
template <class T, class Table, class Sorted>
void moveRowsOf(Table& table, int rows, int firstColumn, int cols, const korvel::row_range& range,
                const Sorted& sorted)
{
    korvel::moveRows<T>(
        sorted, cols - firstColumn, [&](int j) { return rangeInColumn(table, firstColumn + j, range); },
        korvel::sharesRows(rows, cols, sorted.size()));
}

template <class Table, class T, class Key>
void sortTable(Table& table, int rows, int cols, int from, int to, matrix<Key>& key, matrix<T>* aux,
               int auxCols, bool descending, bool sortKey)
{
    const korvel::row_range range(from, to, rows);
    if (korvel::orderOf(range.count, descending, keysOf(key, range)) == korvel::key_order::sorted) {
        return;
    }
    const bool keyIsFirstColumn = sortKey && storageOf(key) == storageOf(table);
    const auto sorted = sortKeys(key, range, descending);
    moveRowsOf<T>(table, rows, keyIsFirstColumn ? 1 : 0, cols, range, sorted);
    if (auxCols > 0 && storageOf(*aux) != storageOf(key) && storageOf(*aux) != storageOf(table)) {
        moveRowsOf<T>(*aux, rows, 0, auxCols, range, sorted);
    }
    if (sortKey) {
        writeKeys(sorted, range, key);
    }
}

/** Moves the rows of the range in a sparse table. The cells are read from a dense copy. */
void moveRowsOf(matrixSparse& table, int rows, int cols, const korvel::row_range& range,
                const korvel::sorted_numbers<double>& sorted)
{
    const matrix<double> copy = table.to_matrix(std::min(rows, table.nbrows), std::min(cols, table.nbcols));
    for (int k = 0; k < range.count && range.first + range.count <= copy.nbrows; ++k) {
        const int source = range.first + sorted.position(static_cast<std::size_t>(k));
        for (int j = 0; j < std::min(cols, table.nbcols); ++j) {
            table.setElement(range.first + k, j, copy.getElement(source, j));
        }
    }
}

/** Moves the first `rows` cells of whole columns: the column of rank k goes to column `range.first + k`. */
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

void SortQ(cST_MVect<double>& table, int rows, int cols, int from, int to, matrix<double>* key,
           matrix<double>* aux, int auxCols, bool bDesc, bool bSortKey)
{
    sortTable(table, rows, cols, from, to, *key, aux, auxCols, bDesc, bSortKey);
}

void SortQ(cST_MVect<text>& table, int rows, int cols, int from, int to, matrix<double>* key,
           matrix<text>* aux, int auxCols, bool bDesc, bool bSortKey)
{
    sortTable(table, rows, cols, from, to, *key, aux, auxCols, bDesc, bSortKey);
}

void SortQ(matrixSparse* table, int rows, int cols, int from, int to, matrix<double>* key, matrixSparse* aux,
           int auxCols, bool bDesc, bool)
{
    const korvel::row_range range(from, to, rows);
    const auto sorted = sortKeys(*key, range, bDesc);
    moveRowsOf(*table, rows, cols, range, sorted);
    if (auxCols > 0 && aux != table) {
        moveRowsOf(*aux, rows, auxCols, range, sorted);
    }
    writeKeys(sorted, range, *key);
}

void SortQByCol(matrix<double>* table, int rows, int cols, int from, int to, matrix<double>* key,
                matrix<double>* aux, int auxRows, bool bDesc, bool bSortKey)
{
    const korvel::row_range range(from, to, cols);
    const auto sorted = sortKeys(*key, range, bDesc);
    moveColumnsOf(*table, rows, range, sorted);
    if (auxRows > 0 && aux->data != key->data && aux->data != table->data) {
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
