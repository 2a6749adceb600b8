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
 * Copies the summed half of a symmetric result onto the other, for `count` rows from `first` on: element
 * (i, j) to (j, i), with j above i when the upper half was summed, and below i when the lower one was.
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

/** Who works: the calling thread, or a team that shares out the rows of the result. */
enum class workers { caller, team };

/** One side of a product: element (o, k), o below `outer` and k below the depth of the product. */
template <class Table>
class product_side
{
public:
    product_side(Table& table, bool down, int outer) : table_(&table), down_(down), outer_(std::max(outer, 0))
    {
    }

    [[nodiscard]] double at(int o, int k) const
    {
        return down_ ? reading(*table_).get(k, o) : reading(*table_).get(o, k);
    }

    [[nodiscard]] int outer() const { return outer_; }
    [[nodiscard]] bool down() const { return down_; }
    [[nodiscard]] bool inside(int depth) const
    {
        return reading(*table_).table(down_ ? depth : outer_, down_ ? outer_ : depth).inside();
    }
    [[nodiscard]] auto places(int depth) const
    {
        return column_places<const double>(*table_, down_ ? depth : outer_, down_ ? outer_ : depth);
    }

private:
    Table* table_;
    bool down_;
    int outer_;
};

/** A table of which `rows` rows are summed along. */
template <class Table>
[[nodiscard]] product_side<Table> along(Table& table, int rows)
{
    return {table, false, rows};
}

/** A table of which `cols` columns are summed down. */
template <class Table>
[[nodiscard]] product_side<Table> down(Table& table, int cols)
{
    return {table, true, cols};
}

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
 * Stores in element (i, j) of the result the sum over k, below `depth`, of left(i,k) * right(j,k). With a
 * team the spare slots of the result have no meaning afterwards.
 */
template <class Left, class Right, class Result>
void formProduct(const product_side<Left>& left, const product_side<Right>& right, int depth, Result& result,
                 workers who = workers::caller, term_factors factors = term_factors::none())
{
    const int rows = left.outer();
    const int cols = right.outer();
    if (rows < 1 || cols < 1) {
        return;
    }
    depth = std::max(depth, 0);
    const auto to = writing(result);
    if (left.inside(depth) && right.inside(depth) && factors.inside(depth) && to.table(rows, cols).inside()) {
        const auto leftPlaces = left.places(depth);
        const auto rightPlaces = right.places(depth);
        const column_places<double> resultPlaces(result, rows, cols);
        kernels::product form{rows, cols, depth};
        form.left = {leftPlaces.get(), left.down()};
        form.right = {rightPlaces.get(), right.down()};
        form.factors = factors.first();
        form.factorStep = factors.step();
        form.result = resultPlaces.get();
        who == workers::team ? multiplyInTeam(form, shared_out::rows) : multiply(form);
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
 * The symmetric product of a table with itself: only the elements with j not below i are summed, and each is
 * stored at (i, j) and at (j, i). The result is taken as it is.
 */
void formSymmetricProduct(const product_side<const matrix<double>>& side, int depth, matrix<double>& result,
                          term_factors factors = term_factors::none());

} // namespace korvel

#endif
