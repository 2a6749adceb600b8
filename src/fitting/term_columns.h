/**
 * @file
 * Columns of equal length in memory, wherever they come from: parts of a caller's table as they stand,
 * columns that were computed, and copies of what is only to be had through the checked access.
 */
#ifndef KORVEL_FITTING_TERM_COLUMNS_H
#define KORVEL_FITTING_TERM_COLUMNS_H

#include "containers/matrix.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <vector>

namespace korvel
{

class term_columns
{
public:
    explicit term_columns(int rows);

    /** The first `cols` columns of a table. They are copied only when they do not lie inside it. */
    void add(const matrix<double>& table, int cols);

    /** The first elements of a vector, likewise. */
    void add(const matrix<double>& vector);

    /** Row by row the product of two columns. */
    void addProduct(const double* left, const double* right);

    [[nodiscard]] int rows() const { return rows_; }
    [[nodiscard]] int size() const { return static_cast<int>(columns_.size()); }
    [[nodiscard]] const double* operator[](int j) const { return columns_[static_cast<std::size_t>(j)].data; }

    /** The columns as chunks, to be read. */
    [[nodiscard]] std::vector<matrix<double>*> chunks();

private:
    double* fresh();
    void push(const double* column);

    int rows_;
    std::vector<std::unique_ptr<double[]>> owned_;
    std::deque<matrix<double>> columns_; // which never move: a copy of one would own its cells
};

} // namespace korvel

#endif
