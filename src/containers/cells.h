/**
 * @file
 * One loop, two ways of reaching cells: raw memory when the whole range lies inside the block, checked access
 * otherwise.
 *
 * A loop names the cells that it reads and writes as *sources*, and `withCells` hands it an accessor for
 * each. Raw and checked accessors are used alike: `x[i]` reads and `y.set(i, value)` stores; accessors of a
 * table have `get(i, j)` and `set(i, j, value)`. Sources of tables and of their columns are in `views.h`.
 */
#ifndef KORVEL_CONTAINERS_CELLS_H
#define KORVEL_CONTAINERS_CELLS_H

#include "containers/matrix.h"

#include <concepts>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace korvel
{

/** `matrix<T>`, constant when `T` is: the owner of cells that are only read. */
template <class T>
using matrix_of = std::conditional_t<std::is_const_v<T>, const matrix<std::remove_const_t<T>>, matrix<T>>;

/** Whether the first `n` cells all lie inside the block. */
template <class T>
[[nodiscard]] bool holds(const matrix<T>& m, std::int64_t n)
{
    return n <= 0 || static_cast<std::uint64_t>(n) <= m.nbElem;
}

/** Stores into element `k`, in linear order, if it exists, and always into `oobValue`. */
template <class T>
void storeChecked(matrix<T>& m, std::int64_t k, const std::type_identity_t<T>& value)
{
    if (static_cast<std::uint64_t>(k) < m.nbElem) {
        m.data[k] = value;
    }
    m.oobValue = value;
}

/** Checked access to a matrix by linear index. */
template <class T>
class linear_cells
{
public:
    using value_type = std::remove_const_t<T>;

    explicit linear_cells(matrix_of<T>& owner) : owner_(&owner) {}

    const value_type& operator[](std::int64_t k) const { return std::as_const(*owner_)[k]; }

    void set(std::int64_t k, const value_type& value) const requires(!std::is_const_v<T>)
    {
        storeChecked(*owner_, k, value);
    }

private:
    matrix_of<T>* owner_;
};

/**
 * Writes cells that are known to lie inside. A checked store also leaves its value in the owner's `oobValue`;
 * here `settle` does that once, after the loop.
 */
template <class T>
class raw_writer
{
public:
    raw_writer(T* cells, T& spare) : cells_(cells), spare_(&spare) {}
    raw_writer(const raw_writer&) = delete;
    raw_writer& operator=(const raw_writer&) = delete;

    const T& operator[](std::int64_t i) const { return cells_[i]; }

    void set(std::int64_t i, const T& value)
    {
        cells_[i] = value;
        last_ = cells_ + i;
    }

    void settle() const
    {
        if (last_ != nullptr) {
            *spare_ = *last_;
        }
    }

private:
    T* cells_;
    T* spare_;
    const T* last_ = nullptr;
};

/** Raw access to the cells from `first` on: a plain pointer to read, a `raw_writer` to write. */
template <class T>
[[nodiscard]] auto rawCells(matrix_of<T>& owner, T* first)
{
    if constexpr (std::is_const_v<T>) {
        return static_cast<T*>(first);
    } else {
        return raw_writer<T>(first, owner.oobValue);
    }
}

/** A range of cells: its checked accessor, whether it lies inside the block, and how to reach it raw if so.
 */
template <class Checked, class MakeRaw>
class source : public Checked
{
public:
    source(Checked checked, bool inside, MakeRaw makeRaw)
        : Checked(checked), makeRaw_(makeRaw), inside_(inside)
    {
    }

    [[nodiscard]] bool inside() const { return inside_; }
    [[nodiscard]] auto raw() const { return makeRaw_(); }

private:
    MakeRaw makeRaw_;
    bool inside_;
};

template <class Source>
concept cell_source = requires(const Source& range)
{
    {
        range.inside()
        } -> std::same_as<bool>;
    range.raw();
};

/** The first `n` cells of a matrix by linear index; `T` is constant for cells that are only read. */
template <class T>
[[nodiscard]] auto linearRange(matrix_of<T>& owner, std::int64_t n)
{
    return source(linear_cells<T>(owner), holds(owner, n),
                  [&owner] { return rawCells<T>(owner, owner.data); });
}

/** The first `n` elements of a vector, to be read. */
template <class T>
[[nodiscard]] auto readVector(const matrix<T>& x, std::int64_t n)
{
    return linearRange<const T>(x, n);
}

/** The first `n` elements of a vector, to be written. */
template <class T>
[[nodiscard]] auto writeVector(matrix<T>& y, std::int64_t n)
{
    return linearRange<T>(y, n);
}

namespace detail
{

template <class Raw>
void settle(const Raw& raw)
{
    if constexpr (requires { raw.settle(); }) {
        raw.settle();
    }
}

template <class Loop, class... Raw>
auto runRaw(Loop&& loop, Raw&&... raw)
{
    if constexpr (std::is_void_v<std::invoke_result_t<Loop, Raw&...>>) {
        std::forward<Loop>(loop)(raw...);
        (settle(raw), ...);
    } else {
        auto result = std::forward<Loop>(loop)(raw...);
        (settle(raw), ...);
        return result;
    }
}

} // namespace detail

/**
 * Runs `loop` once, with one accessor for each source: raw ones when all sources lie inside their blocks,
 * checked ones otherwise. The loop takes what it only reads by `auto` (a raw column is a plain pointer) and
 * what it writes by `auto&`.
 */
template <class Loop, cell_source... Source>
auto withCells(Loop&& loop, const Source&... sources)
{
    if ((sources.inside() && ...)) {
        return detail::runRaw(std::forward<Loop>(loop), sources.raw()...);
    }
    return std::forward<Loop>(loop)(sources...);
}

/** `withCells` on the first `n` elements of each vector, all of them only read. */
template <class Loop, class... T>
auto withCells(Loop&& loop, std::int64_t n, const matrix<T>&... vectors)
{
    return withCells(std::forward<Loop>(loop), readVector(vectors, n)...);
}

} // namespace korvel

#endif
