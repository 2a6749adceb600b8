/**
 * @file
 * The loop of all Cholesky decompositions, and the form of it for dense tables in place.
 */
#ifndef KORVEL_LINALG_CHOLESKY_COLUMNS_H
#define KORVEL_LINALG_CHOLESKY_COLUMNS_H

#include "containers/matrix.h"

#include <cmath>

namespace korvel
{

/**
 * Forms L, which is cleared, from the upper half of a symmetric table.
 *
 * @param least a pivot fails that is below it, or 0 with elements below it
 * @return 0, or -1 when a pivot fails; L then has the columns before it
 */
int formCholesky(const matrix<double>& A, int n, matrix<double>& L, double least);

/**
 * Forms L, which is cleared, from the upper half of a symmetric table, column after column.
 *
 * @param prepare `prepare(i)` is called before column i, and may permute table and factor from there on
 * @param fails   whether a pivot, before its root is taken, ends the work
 * @return 0, or -1 when a pivot fails or is 0 with elements below it
 */
template <class Table, class Factor, class Prepare, class Fails>
int formCholesky(const Table& a, int n, Factor& l, Prepare prepare, Fails fails)
{
    for (int i = 0; i < n; ++i) {
        prepare(i);
        for (int j = i; j < n; ++j) {
            double value = a.get(i, j);
            for (int k = i - 1; k >= 0; --k) {
                value -= l.get(i, k) * l.get(j, k);
            }
            if (j == i) {
                if (fails(value)) {
                    return -1;
                }
                l.set(i, i, std::sqrt(value));
            } else {
                const double pivot = l.get(i, i);
                if (pivot == 0.0) {
                    return -1;
                }
                l.set(j, i, value / pivot);
            }
        }
    }
    return 0;
}

} // namespace korvel

#endif
