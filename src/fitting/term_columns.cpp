#include "fitting/term_columns.h"

#include "containers/views.h"

#include <algorithm>

namespace korvel
{

term_columns::term_columns(int rows) : rows_(std::max(rows, 0)) {}

double* term_columns::fresh()
{
    owned_.push_back(std::make_unique_for_overwrite<double[]>(static_cast<std::size_t>(rows_)));
    return owned_.back().get();
}

void term_columns::push(const double* column)
{
    // What is borrowed here is handed out for reading alone.
    columns_.emplace_back(rows_, 1, const_cast<double*>(column), true);
}

void term_columns::add(const matrix<double>& table, int cols)
{
    for (int j = 0; j < cols; ++j) {
        if (const double* const inside = reading(table).run(0, j, rows_, 1)) {
            push(inside);
            continue;
        }
        double* const copy = fresh();
        for (int i = 0; i < rows_; ++i) {
            copy[i] = table.getElement(i, j);
        }
        push(copy);
    }
}

void term_columns::add(const matrix<double>& vector)
{
    if (holds(vector, rows_)) {
        push(vector.data);
        return;
    }
    double* const copy = fresh();
    for (int i = 0; i < rows_; ++i) {
        copy[i] = vector[i];
    }
    push(copy);
}

void term_columns::addProduct(const double* left, const double* right)
{
    double* const product = fresh();
    for (int r = 0; r < rows_; ++r) {
        product[r] = left[r] * right[r];
    }
    push(product);
}

std::vector<matrix<double>*> term_columns::chunks()
{
    std::vector<matrix<double>*> list;
    for (matrix<double>& column : columns_) {
        list.push_back(&column);
    }
    return list;
}

} // namespace korvel
