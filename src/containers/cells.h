/**
 * @file
 * One loop, two ways of reading: the raw block when the whole range lies inside it, the checked access
 * otherwise.
 */
#ifndef KORVEL_CONTAINERS_CELLS_H
#define KORVEL_CONTAINERS_CELLS_H

#include "containers/matrix.h"

#include <cstdint>
#include <utility>

namespace korvel
{

/** Reads a matrix by linear index as `matrix::operator[]` does: a position outside reads `oobValue`. */
template <class T>
class checked_cells
{
public:
    explicit checked_cells(const matrix<T>& source) : source_(&source) {}

    const T& operator[](std::int64_t k) const { return (*source_)[k]; }

private:
    const matrix<T>* source_;
};

/** Whether the first `n` cells all lie inside the block. */
template <class T>
[[nodiscard]] bool holds(const matrix<T>& m, std::int64_t n)
{
    return n <= 0 || static_cast<std::uint64_t>(n) <= m.nbElem;
}

/**
 * Calls `loop` with one reader for each matrix: plain pointers when the first `n` cells of all of them lie
 * inside their blocks, checked readers otherwise. The loop is written once and reads `reader[k]` for k from 0
 * to n - 1.
 */
template <class Loop, class... T>
decltype(auto) withCells(std::int64_t n, Loop&& loop, const matrix<T>&... sources)
{
    if ((holds(sources, n) && ...)) {
        return std::forward<Loop>(loop)(static_cast<const T*>(sources.data)...);
    }
    return std::forward<Loop>(loop)(checked_cells<T>(sources)...);
}

} // namespace korvel

#endif
