/**
 * @file
 * Tables in all their forms, reached alike. A routine is written once over a view and serves the dense
 * `matrix`, the array of column chunks, `matrix3D`, the record of labelled columns and the sparse table.
 *
 *     const auto from = reading(x);
 *     const auto to = writing(y);
 *     for (int j = 0; j < cols; ++j) {
 *         withCells([&](auto in, auto& out) { for (int i = 0; i < rows; ++i) out.set(i, 2.0 * in[i]); },
 *                   from.column(j, rows), to.column(j, rows));
 *     }
 *
 * A view is a small value and owns nothing. `get(i, j)` and `set(i, j, value)`, 0-based, are the checked
 * access of its form. What loops run on are the sources that it hands out, for `withCells`:
 * `column(j, rows)`, the first rows of a column; `table(rows, cols)`, the top left block, in any order; and,
 * of a table of chunks, `triangle(n)`, a symmetric table of which chunk j holds column j from the diagonal
 * down, or the top left block of one, `triangle(rows, cols)`.
 *
 * What moves whole blocks asks for memory instead: `run(i, j, rows, cols)` points at the block from (i, j) on
 * when it lies inside and its cells stand one behind the other, and is null otherwise. Whoever writes there
 * says by `leave(j, value)` what the last store into column j was.
 */
#ifndef KORVEL_CONTAINERS_VIEWS_H
#define KORVEL_CONTAINERS_VIEWS_H

#include "containers/cells.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace korvel
{

// ----------------------------------------------------------------------------------------------- dense table

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

/** A `matrix` as a table: row and column are checked against its counts, from above only. */
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

// ------------------------------------------------------------------------------------------- table of chunks

/** Where chunks are: `at(j)` is the matrix that holds column j. The column number is not checked. */
template <class T>
struct chunk_pointers {
    matrix<T>* const* first;

    [[nodiscard]] matrix<T>& at(int j) const { return *first[j]; }
};

/** Chunks that stand one behind the other. */
template <class Chunk>
struct chunk_objects {
    Chunk* first;

    [[nodiscard]] Chunk& at(int j) const { return first[j]; }
};

/** Chunks that are the columns of a record. */
template <class Column>
struct record_columns {
    Column* first;

    [[nodiscard]] auto& at(int j) const { return first[j].Vect; }
};

/** Access to element i of chunk j, the element number checked, unsigned, or known to be inside. */
template <class T, class Chunks, bool checked>
class chunk_access
{
public:
    using value_type = std::remove_const_t<T>;

    explicit chunk_access(Chunks chunks) : chunks_(chunks) {}

    const value_type& get(int i, int j) const
    {
        const matrix<value_type>& chunk = chunks_.at(j);
        return checked ? chunk[i] : chunk.data[i];
    }

    void set(int i, int j, const value_type& value) const requires(!std::is_const_v<T>)
    {
        matrix<T>& chunk = chunks_.at(j);
        if constexpr (checked) {
            storeChecked(chunk, i, value);
        } else {
            chunk.data[i] = value;
            chunk.oobValue = value;
        }
    }

protected:
    Chunks chunks_;
};

/** Access to a symmetric table of which chunk j holds column j from the diagonal down. */
template <class Access>
class symmetric_access
{
public:
    using value_type = typename Access::value_type;

    explicit symmetric_access(Access stored) : stored_(stored) {}

    const value_type& get(int i, int j) const
    {
        return i >= j ? stored_.get(i - j, j) : stored_.get(j - i, i);
    }

    void set(int i, int j, const value_type& value) const requires requires(Access a) { a.set(i, j, value); }
    {
        i >= j ? stored_.set(i - j, j, value) : stored_.set(j - i, i, value);
    }

    /** Only what is stored can be had as memory: cells from the diagonal down. */
    [[nodiscard]] auto run(std::int64_t i, std::int64_t j, std::int64_t rows, std::int64_t cols) const
    {
        return i >= j ? stored_.run(i - j, j, rows, cols) : nullptr;
    }

private:
    Access stored_;
};

/** A table of which chunk j holds column j: an element number is checked against that chunk's own count. */
template <class T, class Chunks>
class chunk_view : public chunk_access<T, Chunks, true>
{
public:
    using chunk_access<T, Chunks, true>::chunk_access;

    [[nodiscard]] auto column(int j, std::int64_t rows) const
    {
        return linearRange<T>(this->chunks_.at(j), rows);
    }

    [[nodiscard]] auto table(int rows, int cols) const
    {
        return source(*this, allHold(cols, [rows](int) { return rows; }),
                      [chunks = this->chunks_] { return raw_access(chunks); });
    }

    [[nodiscard]] auto triangle(int n) const { return triangle(n, n); }

    /** The top left block of the symmetric table: of the longer side only the stored half is there. */
    [[nodiscard]] auto triangle(int rows, int cols) const
    {
        const int longer = std::max(rows, cols);
        return source(symmetric_access(*this),
                      allHold(std::min(rows, cols), [longer](int j) { return longer - j; }),
                      [chunks = this->chunks_] { return symmetric_access(raw_access(chunks)); });
    }

    [[nodiscard]] T* run(std::int64_t i, std::int64_t j, std::int64_t rows, std::int64_t cols) const
    {
        if (cols != 1 || i < 0) {
            return nullptr;
        }
        auto& chunk = this->chunks_.at(static_cast<int>(j));
        return static_cast<std::uint64_t>(i + rows) <= chunk.nbElem ? chunk.data + i : nullptr;
    }

    void leave(std::int64_t j, const std::remove_const_t<T>& value) const requires(!std::is_const_v<T>)
    {
        this->chunks_.at(static_cast<int>(j)).oobValue = value;
    }

private:
    using raw_access = chunk_access<T, Chunks, false>;

    template <class Length>
    [[nodiscard]] bool allHold(int cols, Length length) const
    {
        for (int j = 0; j < cols; ++j) {
            const matrix<std::remove_const_t<T>>& chunk = this->chunks_.at(j);
            if (!holds(chunk, length(j))) {
                return false;
            }
        }
        return true;
    }
};

// ---------------------------------------------------------------------------------------------- sparse table

/** A table that has no cells to point at: all access is by its own `getElement` and `setElement`. */
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

// ------------------------------------------------------------------------------------------- views of tables

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
