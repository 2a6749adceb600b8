/**
 * @file
 * What the steps of the singular value decomposition have in common. The kernels of each instruction set use
 * it too: what is no template is inlined always.
 */
#ifndef KORVEL_LINALG_BIDIAGONAL_H
#define KORVEL_LINALG_BIDIAGONAL_H

#include "linalg/vector_runs.h"

#include <algorithm>
#include <limits>

namespace korvel
{

/** As many steps as it takes. */
inline constexpr int noLimit = std::numeric_limits<int>::max();

inline constexpr int stepsOfDense = 500;
inline constexpr int stepsOfChunked = 60;

/** What is to be decomposed, and how far. */
struct svd_shape {
    int n;
    int p;
    int columnsOfU; ///< 0: U is not wanted
    bool wantsV;
    int mostSteps; ///< for one value
    bool wantsU;
    bool hasLimit;
    int left;  ///< columns with a reflector on the left
    int right; ///< rows with a reflector on the right
    int order; ///< of the bidiagonal form

    svd_shape(int rows, int cols, int leftVectors, bool rightVectors, int steps)
        : n(rows), p(cols), columnsOfU(leftVectors), wantsV(rightVectors), mostSteps(steps),
          wantsU(leftVectors > 0), hasLimit(steps != noLimit), left(std::max(std::min(n - 1, p), 0)),
          right(std::max(0, std::min(p - 2, n))), order(std::max(std::min(p, n + 1), 0))
    {
    }
};

/** Whether a norm counts: otherwise there is nothing to reflect. */
[[nodiscard, gnu::always_inline]] inline bool isNorm(double x)
{
    return __builtin_fabs(x) > 1e-31;
}

/** The Householder vector of a run of numbers, in place; returns their length with the sign of the first. */
template <class Run>
double makeReflector(int count, Run x, bool copiesSign)
{
    double norm = lengthOf(count, x);
    if (isNorm(norm)) {
        if (copiesSign) {
            norm = __builtin_copysign(norm, x[0]);
        }
        scaleBy(count, 1.0 / norm, x);
        x.set(0, x[0] + 1.0);
    }
    return norm;
}

/** The same for a column of the table, of which only a negative first element lends its sign to the length.
 */
template <class Run>
double makeColumnReflector(int count, Run x)
{
    return makeReflector(count, x, x[0] < 0.0);
}

/** The same for the rest of a row, whose first element counts as 0 when it is too small for a norm. */
template <class Run>
double makeRowReflector(int count, Run x)
{
    return makeReflector(count, x, isNorm(x[0]));
}

/** The last elements of the bidiagonal form, which no reflector has made. */
template <class Cells, class Values>
void closeBidiagonal(const svd_shape& shape, const Cells& a, Values& s, double* e)
{
    const int m = shape.order;
    if (shape.left < shape.p) {
        s.set(shape.left, a.get(shape.left, shape.left));
    }
    if (shape.n < m) {
        s.set(m - 1, 0.0);
    }
    if (shape.right + 1 < m) {
        e[shape.right] = a.get(shape.right, m - 1);
    }
    if (m > 0) {
        e[m - 1] = 0.0;
    }
}

} // namespace korvel

#endif
