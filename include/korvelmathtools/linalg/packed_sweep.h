/**
 * @file
 * The sweep of a symmetric table that is held packed: the lower triangle row after row, element (i, j) with
 * j not above i, both counted from 1, at position i(i - 1)/2 + j.
 */
#ifndef KORVEL_LINALG_PACKED_SWEEP_H
#define KORVEL_LINALG_PACKED_SWEEP_H

#include "containers/matrix.h"
#include "platform/export.h"

#include <algorithm>
#include <cstdint>

namespace korvel
{

/** Elements of a packed symmetric table of order `n`. A table can have so many only up to order 65535. */
[[nodiscard]] constexpr int packedElements(int n) noexcept
{
    const std::int64_t order = std::clamp(n, 0, 65535);
    return static_cast<int>(order * (order + 1) / 2);
}

} // namespace korvel

/**
 * Sweeps one pivot of a symmetric packed table in place. With d = -1 / A(k,k), the pivot becomes d, the rest
 * of its row and column is multiplied by |d|, and every other element has t·A(j,k) added, with t what A(i,k)
 * was, negated when d is negative, and A(j,k) as it is after the multiplication. So a table of which all
 * pivots have been swept is the negative of its inverse (Goodnight, A tutorial on the SWEEP operator, The
 * American Statistician 33, 1979).
 *
 * The pivot is not tested: a zero gives infinities, and a tiny one whatever its rounding errors are worth. An
 * element of the rest whose new magnitude is below 1e-12 is stored as exactly 0, so that sweeping a pivot
 * twice is not exactly no sweep, and what was small from the start does not last: of a table in units of
 * 1e-13 nothing is left beside the pivot's row. The pivot's own row and column are not cleaned.
 *
 * @param packed the n(n + 1)/2 elements, reached by linear index, checked: one outside reads `oobValue`, and
 *               what is stored there is lost. Missing elements are numbers
 * @param n      order of the table
 * @param k      number of the pivot, counted from 1
 * @return 0
 */
KORVEL_API int M_Sweep(matrix<double>* packed, int n, int k);

#endif
