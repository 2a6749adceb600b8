#include "linalg/lu.h"

#include "containers/views.h"
#include "linalg/clear_result.h"
#include "linalg/kernels/factors.h"
#include "linalg/kernels/product.h"
#include "linalg/lu_factors.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace
{

namespace kernels = korvel::kernels;
using korvel::lu_outcome;

using index = std::ptrdiff_t;

constexpr double insteadOfZero = 1e-20;

/** The largest magnitude of each row; a NaN is passed over. */
template <class Table>
void findScales(const Table& a, std::vector<double>& scales)
{
    const int n = static_cast<int>(scales.size());
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            double& largest = scales[static_cast<std::size_t>(i)];
            largest = std::max(largest, std::fabs(a.get(i, j)));
        }
    }
}

/** Turns largest magnitudes into the factors that make them 1. False when one is 0. */
bool invert(double* scale, const double* end)
{
    for (; scale < end; ++scale) {
        if (*scale == 0.0) {
            return false;
        }
        *scale = 1.0 / *scale;
    }
    return true;
}

/** Element (i, j) less its products with the first `depth` columns. */
template <class Table>
double reduced(const Table& a, int i, int j, int depth)
{
    double value = a.get(i, j);
    for (int k = 0; k < depth; ++k) {
        value -= a.get(i, k) * a.get(k, j);
    }
    return value;
}

template <class Table>
void swapRows(Table& a, int n, int i, int other)
{
    for (int k = 0; k < n; ++k) {
        const double kept = a.get(other, k);
        a.set(other, k, a.get(i, k));
        a.set(i, k, kept);
    }
}

/** Crout's method, column by column. */
template <class Table, class Pivots>
lu_outcome decompose(Table& a, int n, Pivots& pivots, std::vector<double>& scales)
{
    lu_outcome outcome;
    int pivotRow = -1; // A column in which no element compares leaves it as it was.
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < j; ++i) {
            a.set(i, j, reduced(a, i, j, i));
        }
        double largest = 0.0;
        for (int i = j; i < n; ++i) {
            const double value = reduced(a, i, j, j);
            a.set(i, j, value);
            const double scaled = scales[static_cast<std::size_t>(i)] * std::fabs(value);
            if (scaled >= largest) {
                largest = scaled;
                pivotRow = i;
            }
        }
        if (pivotRow < 0) {
            outcome.error = 1;
            return outcome;
        }
        if (pivotRow != j) {
            swapRows(a, n, j, pivotRow);
            outcome.sign = -outcome.sign;
            scales[static_cast<std::size_t>(pivotRow)] = scales[static_cast<std::size_t>(j)];
        }
        pivots.set(j, pivotRow + 1);
        if (a.get(j, j) == 0.0) {
            a.set(j, j, insteadOfZero);
            outcome.singular = true;
        }
        const double reciprocal = 1.0 / a.get(j, j);
        for (int i = j + 1; i < n; ++i) {
            a.set(i, j, a.get(i, j) * reciprocal);
        }
    }
    return outcome;
}

/**
 * The same decomposition by halves, without values that do not compare. The left half of the columns is
 * decomposed, its effect on the right half is a triangular solution and a product, and then comes the right
 * half. Every element has its products taken off in the same order, one by one. Until the end multipliers
 * have their signs changed, which turns subtractions into the additions that products are made of.
 */
class by_halves
{
public:
    /** @param scratch what the largest product needs */
    by_halves(double* cells, index stride, index order, int* pivots, double* scales, double* scratch)
        : cells_(cells), stride_(stride), order_(order), pivots_(pivots), scales_(scales), scratch_(scratch)
    {
    }

    /** Doubles of scratch. */
    static std::size_t scratchSize(index order)
    {
        kernels::product largest{order, order, order / 2 + kernels::panelWidth};
        largest.right.sumsDownColumns = true;
        largest.onto = true;
        return kernels::productKernel().scratchSize(largest);
    }

    /** Nothing when a column has no pivot. */
    std::optional<lu_outcome> run()
    {
        if (!decompose(0, order_)) {
            return std::nullopt;
        }
        for (index j = 0; j < order_; ++j) {
            std::transform(at(j + 1, j), at(order_, j), at(j + 1, j), std::negate());
        }
        return outcome_;
    }

private:
    bool decompose(index first, index count)
    {
        if (count <= kernels::panelWidth) {
            return decomposePanel(first, count);
        }
        const index half = (count / 2 + kernels::panelWidth - 1) / kernels::panelWidth * kernels::panelWidth;
        const index left = std::min(count - 1, half);
        const index middle = first + left;
        const index right = count - left;
        if (!decompose(first, left)) {
            return false;
        }
        swapRows(first, left, middle, right);
        solve(first, left, middle, right);
        takeProductsOff(middle, order_ - middle, first, left, middle, right);
        if (!decompose(middle, right)) {
            return false;
        }
        swapRows(middle, right, first, left);
        return true;
    }

    bool decomposePanel(index first, index count)
    {
        const kernels::panel_outcome panel =
            kernel_.decomposePanel({at(first, first), stride_, order_ - first, count, scales_ + first,
                                    pivots_ + first, static_cast<int>(first)});
        outcome_.sign = panel.isOdd ? -outcome_.sign : outcome_.sign;
        outcome_.singular = outcome_.singular || panel.hasZero;
        return panel.hasPivots;
    }

    /** Swaps the rows of `count` columns as the pivots of `swaps` columns from `pivot` on say. */
    void swapRows(index pivot, index swaps, index first, index count)
    {
        index j = first;
        for (; j + 4 <= first + count; j += 4) {
            swapRowsOf<4>(pivot, swaps, j);
        }
        for (; j < first + count; ++j) {
            swapRowsOf<1>(pivot, swaps, j);
        }
    }

    /** The same in a few columns at once: their elements are read before any is written. */
    template <index Count>
    void swapRowsOf(index pivot, index swaps, index first)
    {
        double* columns[Count];
        for (index c = 0; c < Count; ++c) {
            columns[c] = at(0, first + c);
        }
        const int* const pivots = pivots_;
        for (index i = pivot; i < pivot + swaps; ++i) {
            const index other = pivots[i] - 1;
            double here[Count];
            double there[Count];
            for (index c = 0; c < Count; ++c) {
                here[c] = columns[c][i];
                there[c] = columns[c][other];
            }
            for (index c = 0; c < Count; ++c) {
                columns[c][i] = there[c];
                columns[c][other] = here[c];
            }
        }
    }

    /** Solves for `cols` columns with the unit triangle of `order` rows from `row` on. */
    void solve(index row, index order, index first, index cols)
    {
        if (order <= kernels::panelWidth) {
            kernel_.solveTriangle(at(row, row), stride_, order, at(row, first), stride_, cols);
            return;
        }
        const index half = (order / 2 + kernels::panelWidth - 1) / kernels::panelWidth * kernels::panelWidth;
        const index above = std::min(order - 1, half);
        solve(row, above, first, cols);
        takeProductsOff(row + above, order - above, row, above, first, cols);
        solve(row + above, order - above, first, cols);
    }

    /** Takes off some rows and columns their products with the multipliers in `depth` columns from `k` on. */
    void takeProductsOff(index row, index rows, index k, index depth, index first, index cols)
    {
        kernels::product form{rows, cols, depth};
        form.left.columns = {at(row, k), stride_};
        form.right = {{at(k, first), stride_}, true};
        form.result = {at(row, first), stride_};
        form.onto = true;
        kernels::productKernel().multiply(form, scratch_);
    }

    [[nodiscard]] double* at(index i, index j) const { return cells_ + j * stride_ + i; }

    double* cells_;
    index stride_;
    index order_;
    int* pivots_;
    double* scales_;
    double* scratch_;
    lu_outcome outcome_{};
    const kernels::factor_kernel& kernel_ = kernels::factorKernel();
};

/**
 * The decomposition of a block that lies inside its table. Nothing, and the table as it was, when a column
 * has no pivot: what is to be done then only the plain order of the work tells.
 */
std::optional<lu_outcome> decomposeInside(matrix<double>& A, index n, matrix<int>& pivots)
{
    const auto cells = static_cast<std::size_t>(n * n);
    const auto rows = static_cast<std::size_t>(n);
    const auto space = std::make_unique_for_overwrite<double[]>(cells + rows + by_halves::scratchSize(n));
    double* const copy = space.get();
    double* const scales = copy + cells;
    std::fill_n(scales, rows, 0.0);
    kernels::factorKernel().copyAndScale(A.data, A.nbrows, n, copy, scales);
    if (!invert(scales, scales + rows)) {
        return lu_outcome{1, -1, false};
    }
    const auto outcome = by_halves(A.data, A.nbrows, n, pivots.data, scales, scales + rows).run();
    if (outcome) {
        A.oobValue = A.getElement(static_cast<int>(n) - 1, static_cast<int>(n) - 1);
        pivots.oobValue = pivots.data[n - 1];
        return outcome;
    }
    for (index j = 0; j < n; ++j) {
        std::copy_n(copy + j * n, n, A.data + j * A.nbrows);
    }
    std::fill_n(pivots.data, n, 0);
    return std::nullopt;
}

} // namespace

namespace korvel
{

lu_outcome factoriseLU(matrix<double>& A, int n, matrix<int>& pivots)
{
    clearResult(pivots, n, 1);
    if (n > 0 && n <= A.nbrows && n <= A.nbcols && holds(pivots, n)) {
        if (const auto outcome = decomposeInside(A, n, pivots)) {
            return *outcome;
        }
    }
    std::vector<double> scales(static_cast<std::size_t>(std::max(n, 0)));
    return withCells(
        [&](auto& a, auto& rows) -> lu_outcome {
            findScales(a, scales);
            if (!invert(scales.data(), scales.data() + scales.size())) {
                return {1, -1, false};
            }
            return decompose(a, n, rows, scales);
        },
        writing(A).table(n, n), writeVector(pivots, n));
}

} // namespace korvel

void M_LUDecomp(matrix<double>* A, int n, matrix<int>* pivots, int& sign, short int* error)
{
    *error = 0;
    sign = 1;
    const lu_outcome outcome = korvel::factoriseLU(*A, n, *pivots);
    sign = outcome.sign;
    *error = outcome.error;
}
