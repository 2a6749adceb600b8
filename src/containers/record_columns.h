/**
 * @file
 * Access to the columns of a labelled table by a column number that may be wrong.
 */
#ifndef KORVEL_CONTAINERS_RECORD_COLUMNS_H
#define KORVEL_CONTAINERS_RECORD_COLUMNS_H

#include "containers/records.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvel
{

/**
 * The elements of column `j`, 0-based. A column that the table does not have counts as empty: `nowhere`, an
 * empty matrix of the caller's, stands in for it, and what is stored there is lost.
 */
template <class T>
[[nodiscard]] matrix<T>& columnAt(cST_MVect<T>& table, std::int64_t j, matrix<T>& nowhere)
{
    const auto index = static_cast<std::size_t>(j);
    return index < table.Vectors.size() ? table.Vectors[index].Vect : nowhere;
}

/**
 * The first columns of a labelled table as chunks, with an empty chunk for each column that does not exist.
 */
class column_list
{
public:
    column_list(cST_MVect<double>& table, int cols)
    {
        for (int j = 0; j < cols; ++j) {
            places_.push_back(&columnAt(table, j, nowhere_));
        }
        first_ = places_.data();
    }
    column_list(const column_list&) = delete;
    column_list& operator=(const column_list&) = delete;

    [[nodiscard]] matrix<double>**& table() { return first_; }

private:
    matrix<double> nowhere_;
    std::vector<matrix<double>*> places_;
    matrix<double>** first_ = nullptr;
};

} // namespace korvel

#endif
