/**
 * @file
 * Uniform access to all forms of tables. A routine is written once over a view and serves the dense `matrix`,
 * arrays of column chunks, `matrix3D`, records of labelled columns and the sparse table.
 *
 *     const auto from = reading(x);
 *     const auto to = writing(y);
 *     for (int j = 0; j < cols; ++j) {
 *         withCells([&](auto in, auto& out) { for (int i = 0; i < rows; ++i) out.set(i, 2.0 * in[i]); },
 *                   from.column(j, rows), to.column(j, rows));
 *     }
 *
 * A view is a small value and owns nothing. `get(i, j)` and `set(i, j, value)`, 0-based, are the checked
 * access of its form. Loops run on sources that it hands out for `withCells`: `column(j, rows)` is the first
 * rows of a column, `table(rows, cols)` the top left block. A table of chunks also has `triangle(n)`, a
 * symmetric table in which chunk j holds column j from the diagonal down, and `triangle(rows, cols)`, the top
 * left block of one.
 *
 * Routines that move whole blocks ask for memory instead: `run(i, j, rows, cols)` points at the block from
 * (i, j) on if it lies inside and its cells are adjacent, and is null otherwise. After writing there,
 * `leave(j, value)` tells the last value stored into column j.
 */
#ifndef KORVEL_CONTAINERS_VIEWS_H
#define KORVEL_CONTAINERS_VIEWS_H

#include "containers/cells.h"
#include "containers/chunk_views.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace korvel
{

/** Checked access to one column of a dense table. */
template <class T>
class dense_column
{
public:
    using value_type = std::remove_const_t<T>;

    dense_column(matrix_of<T>& owner, int j) : owner_(&owner), j_(j) {}

    const value_type& operator[](std::int64_t i) const { return owner_->getElement(static_cast<int>(i), j_); }

    void set(int i, const value_type& value) const requires(!std::is_const_v<T>)
    {
        owner_->setElement(i, j_, value);
    }

private:
    matrix_of<T>* owner_;
    int j_;
};

/** The block of a dense table that is known to lie inside; `settle` as for `raw_writer`. */
template <class T>
class raw_table
{
public:
    using value_type = std::remove_const_t<T>;

    explicit raw_table(matrix_of<T>& owner) : cells_(owner.data), stride_(owner.nbrows), owner_(&owner) {}

    const value_type& get(int i, int j) const { return cells_[i + stride_ * j]; }

    void set(int i, int j, const value_type& value) requires(!std::is_const_v<T>)
    {
        T* const cell = cells_ + (i + stride_ * j);
        *cell = value;
        last_ = cell;
    }

    void settle() const requires(!std::is_const_v<T>)
    {
        if (last_ != nullptr) {
            owner_->oobValue = *last_;
        }
    }

private:
    T* cells_;
    std::ptrdiff_t stride_;
    matrix_of<T>* owner_;
    const T* last_ = nullptr;
};

/** A `matrix` as a table. Row and column are checked against the upper bounds only. */
template <class T>
class dense_view
{
public:
    using value_type = std::remove_const_t<T>;

    explicit dense_view(matrix_of<T>& owner) : owner_(&owner) {}

    const value_type& get(int i, int j) const { return owner_->getElement(i, j); }

    void set(int i, int j, const value_type& value) const requires(!std::is_const_v<T>)
    {
        owner_->setElement(i, j, value);
    }

    [[nodiscard]] auto column(int j, int rows) const
    {
        return source(dense_column<T>(*owner_, j), rows <= owner_->nbrows && 0 <= j && j < owner_->nbcols,
                      [owner = owner_, j] {
                          return rawCells<T>(*owner,
                                             owner->data + static_cast<std::ptrdiff_t>(owner->nbrows) * j);
                      });
    }

    [[nodiscard]] auto table(int rows, int cols) const
    {
        return source(*this, rows <= owner_->nbrows && cols <= owner_->nbcols,
                      [owner = owner_] { return raw_table<T>(*owner); });
    }

    [[nodiscard]] T* run(std::int64_t i, std::int64_t j, std::int64_t rows, std::int64_t cols) const
    {
        const std::int64_t height = owner_->nbrows;
        const bool inside = 0 <= i && 0 <= j && i + rows <= height && j + cols <= owner_->nbcols;
        return inside && (cols == 1 || rows == height) ? owner_->data + (i + height * j) : nullptr;
    }

    void leave(std::int64_t, const value_type& value) const requires(!std::is_const_v<T>)
    {
        owner_->oobValue = value;
    }

private:
    matrix_of<T>* owner_;
};

/** A table without cells to point at: all access goes through its `getElement` and `setElement`. */
template <class Table>
class element_view
{
public:
    using value_type = double;

    explicit element_view(Table& owner) : owner_(&owner) {}

    [[nodiscard]] double get(int i, int j) const { return owner_->getElement(i, j); }
    void set(int i, int j, double value) const { owner_->setElement(i, j, value); }

    [[nodiscard]] auto column(int j, int) const { return never(column_access{*this, j}); }

    [[nodiscard]] auto table(int, int) const { return never(*this); }

    [[nodiscard]] const double* run(std::int64_t, std::int64_t, std::int64_t, std::int64_t) const
    {
        return nullptr;
    }

private:
    struct column_access {
        element_view view;
        int j;

        double operator[](int i) const { return view.get(i, j); }
        void set(int i, double value) const { view.set(i, j, value); }
    };

    template <class Access>
    [[nodiscard]] static auto never(Access access)
    {
        return source(access, false, [access] { return access; });
    }

    Table* owner_;
};

/** `matrix3D` and its kin: chunks by value. */
template <class Table>
concept holds_chunks = requires(Table& table)
{
    table.chunks.front().data;
};

/** Records of labelled columns. */
template <class Table>
concept holds_labelled_columns = requires(Table& table)
{
    table.Vectors.front().Vect.data;
};

/** Compressed rows. */
template <class Table>
concept holds_sparse_rows = requires(Table& table)
{
    table.rowStart;
};

/** A table that is neither a `matrix` nor an array of chunks. */
template <class Table>
concept composed_table = holds_chunks<Table> || holds_labelled_columns<Table> || holds_sparse_rows<Table>;

/** The view of a composed table, which only reads when `Table` is constant. */
template <composed_table Table>
[[nodiscard]] auto viewOf(Table& table)
{
    const auto view = [](auto chunks) {
        using element = std::remove_pointer_t<decltype(chunks.at(0).data)>;
        using seen = std::conditional_t<std::is_const_v<Table>, const element, element>;
        return chunk_view<seen, decltype(chunks)>(chunks);
    };
    if constexpr (holds_chunks<Table>) {
        return view(chunk_objects<std::remove_pointer_t<decltype(table.chunks.data())>>{table.chunks.data()});
    } else if constexpr (holds_labelled_columns<Table>) {
        return view(
            record_columns<std::remove_pointer_t<decltype(table.Vectors.data())>>{table.Vectors.data()});
    } else {
        return element_view<Table>(table);
    }
}

/** The table, to be read. */
template <class T>
[[nodiscard]] auto reading(const matrix<T>& table)
{
    return dense_view<const T>(table);
}

template <class T>
[[nodiscard]] auto reading(matrix<T>* const* chunks)
{
    return chunk_view<const T, chunk_pointers<T>>(chunk_pointers<T>{chunks});
}

template <composed_table Table>
[[nodiscard]] auto reading(const Table& table)
{
    return viewOf(table);
}

/** The table, to be written, and to be read where a routine works in place. */
template <class T>
[[nodiscard]] auto writing(matrix<T>& table)
{
    return dense_view<T>(table);
}

template <class T>
[[nodiscard]] auto writing(matrix<T>* const* chunks)
{
    return chunk_view<T, chunk_pointers<T>>(chunk_pointers<T>{chunks});
}

template <composed_table Table>
[[nodiscard]] auto writing(Table& table)
{
    return viewOf(table);
}

} // namespace korvel

#endif
