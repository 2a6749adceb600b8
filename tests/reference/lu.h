/**
 * @file
 * Plain LU decomposition: the loops as the method names them, through the checked access.
 */
#ifndef KORVEL_TESTS_REFERENCE_LU_H
#define KORVEL_TESTS_REFERENCE_LU_H

#include "containers/matrix.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace korvel::test
{

inline double plainReduced(const matrix<double>& A, int i, int j, int depth)
{
    double sum = A.getElement(i, j);
    for (int k = 0; k < depth; ++k) {
        sum -= A.getElement(i, k) * A.getElement(k, j);
    }
    return sum;
}

inline void plainLU(matrix<double>& A, int n, matrix<int>& pivots, int& sign, short int& error)
{
    if (pivots.nbrows < n || pivots.nbcols < 1) {
        pivots.Redim(n, 1, 0);
    }
    std::fill_n(pivots.data, n, 0);
    error = 0;
    sign = 1;
    std::vector<double> scale;
    for (int i = 0; i < n; ++i) {
        double big = 0.0;
        for (int j = 0; j < n; ++j) {
            if (std::fabs(A.getElement(i, j)) > big) {
                big = std::fabs(A.getElement(i, j));
            }
        }
        if (big == 0.0) {
            error = -1;
            return;
        }
        scale.push_back(1.0 / big);
    }
    const auto at = [&scale](int i) -> double& { return scale[static_cast<std::size_t>(i)]; };
    int pivotRow = -1;
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < j; ++i) {
            A.setElement(i, j, plainReduced(A, i, j, i));
        }
        double best = 0.0;
        for (int i = j; i < n; ++i) {
            A.setElement(i, j, plainReduced(A, i, j, j));
            const double scaled = at(i) * std::fabs(A.getElement(i, j));
            if (scaled >= best) {
                best = scaled;
                pivotRow = i;
            }
        }
        if (pivotRow < 0) {
            error = 1;
            return;
        }
        if (pivotRow != j) {
            for (int k = 0; k < n; ++k) {
                const double kept = A.getElement(pivotRow, k);
                A.setElement(pivotRow, k, A.getElement(j, k));
                A.setElement(j, k, kept);
            }
            sign = -sign;
            at(pivotRow) = at(j);
        }
        pivots[j] = pivotRow + 1;
        pivots.oobValue = pivotRow + 1;
        if (A.getElement(j, j) == 0.0) {
            A.setElement(j, j, 1e-20);
        }
        const double reciprocal = 1.0 / A.getElement(j, j);
        for (int i = j + 1; i < n; ++i) {
            A.setElement(i, j, A.getElement(i, j) * reciprocal);
        }
    }
}

} // namespace korvel::test

#endif
