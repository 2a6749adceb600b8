/**
 * @file
 * Small tables given, and compared, column after column.
 */
#ifndef KORVEL_TESTS_SUPPORT_COLUMN_TABLES_H
#define KORVEL_TESTS_SUPPORT_COLUMN_TABLES_H

#include "containers/matrix.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace korvel::test
{

/** A table of `rows` rows with these cells. */
inline matrix<double> columnTable(int rows, std::vector<double> cells)
{
    return matrix<double>(rows, static_cast<int>(cells.size()) / rows, cells.data(), false);
}

inline std::vector<double> cellsOf(const matrix<double>& table)
{
    return {table.data, table.data + table.nbElem};
}

/** Each column of a table as a chunk. */
class column_chunks
{
public:
    explicit column_chunks(const matrix<double>& table)
    {
        for (int j = 0; j < table.nbcols; ++j) {
            double* const first = table.data + std::ptrdiff_t{table.nbrows} * j;
            chunks_.push_back(std::make_unique<matrix<double>>(table.nbrows, 1, first, false));
            chunks_.back()->oobValue = table.oobValue;
            pointers_.push_back(chunks_.back().get());
        }
    }

    [[nodiscard]] matrix<double>** get() { return pointers_.data(); }
    [[nodiscard]] const matrix<double>& operator[](int j) const
    {
        return *pointers_[static_cast<std::size_t>(j)];
    }

    /** All cells, column after column. */
    [[nodiscard]] std::vector<double> cells() const
    {
        std::vector<double> found;
        for (const auto& chunk : chunks_) {
            found.insert(found.end(), chunk->data, chunk->data + chunk->nbElem);
        }
        return found;
    }

private:
    std::vector<std::unique_ptr<matrix<double>>> chunks_;
    std::vector<matrix<double>*> pointers_;
};

} // namespace korvel::test

#endif
