/**
 * @file
 * What the members of the product family are made of. A member says which table stands left and right, and
 * which way each is summed; the sums run in the kernel when all cells lie inside the tables, and through the
 * checked access otherwise.
 */
#ifndef KORVEL_LINALG_PRODUCT_FORMS_H
#define KORVEL_LINALG_PRODUCT_FORMS_H

#include "containers/views.h"
#include "linalg/kernels/product.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <type_traits>
#include <vector>

namespace korvel
{

/** Forms a product in the kernel, on this thread. */
void multiply(const kernels::product& form);

/** What a team shares out among its threads, each of which gets one stretch. */
enum class shared_out { rows, columns };

/** The same on a team of threads, forked whatever the size. */
void multiplyInTeam(const kernels::product& form, shared_out by);

/**
 * Copies what was summed of a symmetric result over the other half, for rows from `first` on: of the upper
 * half element (i, j), j above i, to (j, i), of the lower half element (i, j), j below i.
 */
void mirror(const kernels::columns_of<double>& table, std::ptrdiff_t first, std::ptrdiff_t count,
            kernels::part summedHalf);

/** Where the columns of a table are: one block, or a list made for the purpose. */
template <class T>
class column_places
{
public:
    explicit column_places(matrix_of<T>& table, int, int) : columns_{table.data, table.nbrows} {}

    /** Columns of any other table that `reading` takes and that holds `rows` in each. */
    template <class Table>
    requires(!std::same_as<std::remove_const_t<Table>, matrix<double>>)
        column_places(Table& table, int rows, int cols)
        : list_(static_cast<std::size_t>(cols))
    {
        for (int j = 0; j < cols; ++j) {
            // A view to be written hides its cells behind a writer; the columns are the same.
            list_[static_cast<std::size_t>(j)] = const_cast<T*>(reading(table).column(j, rows).raw());
        }
        columns_.list = list_.data();
    }

    column_places(const column_places&) = delete;
    column_places& operator=(const column_places&) = delete;

    [[nodiscard]] const kernels::columns_of<T>& get() const { return columns_; }

private:
    std::vector<T*> list_;
    kernels::columns_of<T> columns_;
};

/** A vector, which is reached by linear index, as a table of one column. */
class vector_column
{
public:
    explicit vector_column(matrix<double>& x) : column_(&x) {}
    [[nodiscard]] matrix<double>** table() { return &column_; }

private:
    matrix<double>* column_;
};

/** Which way the elements of an operand are summed: along a row, or down a column. */
enum class summed { along, down };

/** One side of a product: element (o, k) of `outer` by `depth`. */
template <class Table>
class product_side
{
public:
    product_side(Table& table, summed way, int outer, int depth)
        : table_(&table), down_(way == summed::down), rows_(down_ ? depth : outer),
          cols_(down_ ? outer : depth)
    {
    }

    [[nodiscard]] double at(int o, int k) const
    {
        return down_ ? reading(*table_).get(k, o) : reading(*table_).get(o, k);
    }

    [[nodiscard]] bool inside() const { return reading(*table_).table(rows_, cols_).inside(); }
    [[nodiscard]] auto places() const { return column_places<const double>(*table_, rows_, cols_); }
    [[nodiscard]] bool down() const { return down_; }

private:
    Table* table_;
    bool down_;
    int rows_;
    int cols_;
};

/** The factors of a product's terms: none, a vector, or the diagonal of a square table. */
class term_factors
{
public:
    static term_factors none() { return {nullptr, false}; }
    static term_factors vector(const matrix<double>& d) { return {&d, false}; }
    static term_factors diagonal(const matrix<double>& d) { return {&d, true}; }

    [[nodiscard]] bool inside(int depth) const
    {
        return d_ == nullptr || (diagonal_ ? depth <= d_->nbrows && depth <= d_->nbcols : holds(*d_, depth));
    }

    /** Left element times factor, the first product of a term. */
    [[nodiscard]] double applyTo(double left, int k) const
    {
        return d_ == nullptr ? left : left * (diagonal_ ? d_->getElement(k, k) : (*d_)[k]);
    }

    [[nodiscard]] const double* first() const { return d_ == nullptr ? nullptr : d_->data; }
    [[nodiscard]] std::ptrdiff_t step() const { return diagonal_ ? std::ptrdiff_t{d_->nbrows} + 1 : 1; }

private:
    term_factors(const matrix<double>* d, bool diagonal) : d_(d), diagonal_(diagonal) {}

    const matrix<double>* d_;
    bool diagonal_;
};

/** The sum of the terms (i, j), through the checked access. */
template <class Left, class Right>
double checkedSum(const Left& left, int i, const Right& right, int j, int depth, term_factors factors)
{
    double sum = 0.0;
    for (int k = 0; k < depth; ++k) {
        sum += factors.applyTo(left.at(i, k), k) * right.at(j, k);
    }
    return sum;
}

/** Leaves in the spare slots what a loop over i, and in it over j, would have stored last. */
template <class View>
void settleResult(const View& to, int rows, int cols)
{
    for (int j = 0; j < cols; ++j) {
        to.set(rows - 1, j, to.get(rows - 1, j));
    }
}

/**
 * Stores in element (i, j) of the result the sum over k of left(i,k) * right(j,k), on this thread or in a
 * team that shares out the rows. With a team the spare slots of the result have no meaning afterwards.
 */
template <class Left, class Right, class Result>
void formProduct(int rows, int cols, int depth, const product_side<Left>& left,
                 const product_side<Right>& right, term_factors factors, Result& result, bool inTeam = false)
{
    if (rows < 1 || cols < 1) {
        return;
    }
    depth = std::max(depth, 0);
    const auto to = writing(result);
    if (left.inside() && right.inside() && factors.inside(depth) && to.table(rows, cols).inside()) {
        const auto leftPlaces = left.places();
        const auto rightPlaces = right.places();
        const column_places<double> resultPlaces(result, rows, cols);
        kernels::product form{rows, cols, depth};
        form.left = {leftPlaces.get(), left.down()};
        form.right = {rightPlaces.get(), right.down()};
        form.factors = factors.first();
        form.factorStep = factors.step();
        form.result = resultPlaces.get();
        inTeam ? multiplyInTeam(form, shared_out::rows) : multiply(form);
        settleResult(to, rows, cols);
        return;
    }
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            to.set(i, j, checkedSum(left, i, right, j, depth, factors));
        }
    }
}

/**
 * The symmetric product of `table` with itself, `order` by `order`: only the elements with j not below i are
 * summed, and each is stored at (i, j) and at (j, i). The result is taken as it is.
 */
void formSymmetricProduct(const matrix<double>& table, summed way, int order, int depth, term_factors factors,
                          matrix<double>& result);

} // namespace korvel

#endif
