/**
 * @file
 * Products of three tables, of which the first two are multiplied in scratch, a small block at a time: the
 * product with the third is formed from it before the next block takes its place.
 */
#ifndef KORVEL_LINALG_ROW_BY_ROW_H
#define KORVEL_LINALG_ROW_BY_ROW_H

#include "linalg/product_forms.h"

#include <vector>

namespace korvel
{

/** How much of a result is summed: all of it, or the half below the diagonal, which is then mirrored. */
enum class extent { whole, mirrored };

/**
 * With w(c) the sum over k of first(i,k)·second(c,k), stores at (i, j) of the result the sum over c of
 * w(c)·third(j,c).
 */
struct row_by_row {
    std::ptrdiff_t rows = 0;
    std::ptrdiff_t depth = 0;  ///< terms of w(c)
    std::ptrdiff_t middle = 0; ///< elements of w
    std::ptrdiff_t cols = 0;
    kernels::operand first;
    kernels::operand second;
    kernels::operand third;
    kernels::columns_of<double> result;
    extent summedPart = extent::whole;
};

/** Forms the product in the kernel. */
void multiplyRowByRow(const row_by_row& form, workers who);

/**
 * The same on any tables, the first and the second summed over `depth` terms: in the kernel when all cells
 * lie inside the tables, otherwise through the checked access on the calling thread.
 */
template <class First, class Second, class Third, class Result>
void formRowByRow(const product_side<First>& first, const product_side<Second>& second,
                  const product_side<Third>& third, int depth, Result& result, extent summedPart, workers who)
{
    const int rows = first.outer();
    const int middle = second.outer();
    const int cols = third.outer();
    if (rows < 1 || cols < 1) {
        return;
    }
    depth = std::max(depth, 0);
    const auto to = writing(result);
    if (first.inside(depth) && second.inside(depth) && third.inside(middle) &&
        to.table(rows, cols).inside()) {
        const auto firstPlaces = first.places(depth);
        const auto secondPlaces = second.places(depth);
        const auto thirdPlaces = third.places(middle);
        const column_places<double> resultPlaces(result, rows, cols);
        multiplyRowByRow({rows,
                          depth,
                          middle,
                          cols,
                          {firstPlaces.get(), first.down()},
                          {secondPlaces.get(), second.down()},
                          {thirdPlaces.get(), third.down()},
                          resultPlaces.get(),
                          summedPart},
                         who);
        settleResult(to, rows, cols);
        return;
    }
    std::vector<double> row(static_cast<std::size_t>(middle));
    for (int i = 0; i < rows; ++i) {
        for (int c = 0; c < middle; ++c) {
            row[static_cast<std::size_t>(c)] = checkedSum(first, i, second, c, depth, term_factors::none());
        }
        const bool mirrored = summedPart == extent::mirrored;
        for (int j = 0; j < (mirrored ? i + 1 : cols); ++j) {
            double sum = 0.0;
            for (int c = 0; c < middle; ++c) {
                sum += row[static_cast<std::size_t>(c)] * third.at(j, c);
            }
            to.set(i, j, sum);
            if (mirrored) {
                to.set(j, i, sum);
            }
        }
    }
}

} // namespace korvel

#endif
