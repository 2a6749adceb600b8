/**
 * @file
 * Views of tables whose columns are separate chunks, and of symmetric tables that chunks hold from the
 * diagonal down. `views.h` tells what a view is.
 */
#ifndef KORVEL_CONTAINERS_CHUNK_VIEWS_H
#define KORVEL_CONTAINERS_CHUNK_VIEWS_H

#include "containers/cells.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace korvel
{

/** Where chunks are: `at(j)` is the matrix that holds column j. The column number is not checked. */
template <class T>
struct chunk_pointers {
    matrix<T>* const* first;

    [[nodiscard]] matrix<T>& at(int j) const { return *first[j]; }
};

/** Chunks in one array. */
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

/**
 * Access to element i of chunk j. The element number is checked, unsigned, unless it is known to be inside.
 */
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

/** Access to a symmetric table in which chunk j holds column j from the diagonal down. */
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

    /** Only the stored cells, from the diagonal down, have memory. */
    [[nodiscard]] auto run(std::int64_t i, std::int64_t j, std::int64_t rows, std::int64_t cols) const
    {
        return i >= j ? stored_.run(i - j, j, rows, cols) : nullptr;
    }

private:
    Access stored_;
};

/** A table in which chunk j holds column j. An element number is checked against that chunk's own count. */
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

    /** The top left block of the symmetric table. Of the longer side only the stored half exists. */
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

} // namespace korvel

#endif
