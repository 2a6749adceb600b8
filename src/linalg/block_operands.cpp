#include "linalg/block_operands.h"

#include "linalg/product_forms.h"
#include "platform/lanes.h"

#include <algorithm>

namespace korvel
{

namespace
{

using index = std::ptrdiff_t;

/** Up to this order a block is multiplied where it lies, beyond it in packed panels. */
constexpr int largestInPlace = 128;

/** So many numbers of blocks stay in the second cache while they meet one group of columns after the other.
 */
constexpr index cellsTogether = 32'768;

bool has(const line_kinds& kinds, line_kind kind)
{
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

/** Whether all cells are finite numbers: of these only, sums of products with zeros are 0.0. */
bool isFinite(const double* cells, index stride, index rows, index cols)
{
    bool finite = true;
    for (index j = 0; j < cols; ++j) {
        for (index i = 0; i < rows; ++i) {
            const double x = cells[i + stride * j];
            finite &= x - x == 0.0;
        }
    }
    return finite;
}

bool areZeros(const double* cells, index count)
{
    return std::all_of(cells, cells + count, [](double x) { return x == 0.0; });
}

/** A factor for each row, the same ones for every column. */
struct factors_of_rows {
    const double* first;

    [[nodiscard]] double at(index i) const { return first[i]; }
    template <int Width>
    [[nodiscard]] lanes::doubles<Width> at(index i) const
    {
        return lanes::load<Width>(first + i);
    }
};

/** One factor for all cells. */
struct one_factor {
    double value;

    [[nodiscard]] double at(index) const { return value; }
    template <int Width>
    [[nodiscard]] lanes::doubles<Width> at(index) const
    {
        return lanes::everywhere<Width>(value);
    }
};

/** Stores the products of cells and their factors, in some columns side by side, and tells whether one of the
 * cells is 0. */
template <int cols, class Factors>
bool multiplyCells(const double* from, index fromStride, index count, double* to, index toStride,
                   Factors factors)
{
    constexpr int width = lanes::registerWidth;
    auto zeros = lanes::everyLane<width>(false);
    bool anyZero = false;
    index i = 0;
    for (; i + width <= count; i += width) {
        const auto factor = factors.template at<width>(i);
        for (int k = 0; k < cols; ++k) {
            const auto cells = lanes::load<width>(from + fromStride * k + i);
            lanes::store(to + toStride * k + i, cells * factor);
            zeros = lanes::either(zeros, cells == 0.0);
        }
    }
    for (; i < count; ++i) {
        for (int k = 0; k < cols; ++k) {
            const double cell = from[fromStride * k + i];
            to[toStride * k + i] = cell * factors.at(i);
            anyZero |= cell == 0.0;
        }
    }
    return anyZero || lanes::any(zeros);
}

/** Sums in the kernel of products. */
void multiplyInPanels(const kernels::block_sum& sum, const kernels::block_columns_between& columns)
{
    kernels::product product{sum.rows, columns.count, sum.depth};
    product.left = {{sum.left, sum.leftStride}, false};
    product.right = {{sum.right, columns.rightStride}, true};
    product.result = {sum.result, columns.resultStride};
    multiply(product);
}

/** The rows of a table whose cells are all zeros: few candidates are left by the first column. */
std::vector<index> zeroRows(const double* cells, index stride, index rows, index cols)
{
    std::vector<index> found;
    for (index i = 0; i < rows; ++i) {
        if (cells[i] == 0.0) {
            found.push_back(i);
        }
    }
    for (index j = 1; j < cols && !found.empty(); ++j) {
        const auto filled = [column = cells + stride * j](index i) { return column[i] != 0.0; };
        found.erase(std::remove_if(found.begin(), found.end(), filled), found.end());
    }
    return found;
}

} // namespace

bool blockDecides(const stripe_product& form, const line_kinds& kinds)
{
    // A square stripe may have diagonal lines, which matter where sums are formed.
    const bool otherIsSquare = form.rows == form.depth && form.depth == form.cols;
    return (!otherIsSquare || !has(kinds, line_kind::summed)) && form.rows > 0 && form.depth > 0 &&
           form.cols > 0 && form.left.inside(form.rows, form.depth) &&
           form.right.inside(form.depth, form.cols) && form.result.inside(form.rows, form.cols);
}

void left_blocks::append(std::vector<rows_opposite>& list, const rows_opposite& rows)
{
    if (!list.empty() && list.back().result + list.back().count == rows.result) {
        list.back().count += rows.count;
    } else {
        list.push_back(rows);
    }
}

void left_blocks::add(const stripe_product& form, const line_kinds& rows)
{
    columns_ = {form.cols, form.right.stride(), form.result.stride()};
    const double* const block = form.left.cells();
    const index stride = form.left.stride();
    const double* const right = form.right.cells();
    double* const result = form.result.cells();
    for (const run_of_kind& run : runsOf(rows)) {
        const rows_opposite opposite{right + run.first, result + run.first, run.count};
        switch (run.kind) {
        case line_kind::zero:
            append(zeros_, opposite);
            break;
        case line_kind::diagonal:
            append(diagonals_, opposite);
            for (index i = run.first; i < run.first + run.count; ++i) {
                factors_.push_back(block[i * (stride + 1)]);
            }
            break;
        case line_kind::summed:
            sums_.push_back({run.count, form.depth, block + run.first, stride, right, result + run.first});
            break;
        }
    }
    const rows_opposite stripe{right, result, form.rows};
    if (has(rows, line_kind::summed) && !isFinite(block, stride, form.rows, form.depth)) {
        notFinite_.push_back(stripe);
    } else if (has(rows, line_kind::diagonal)) {
        withDiagonals_.push_back(stripe);
    }
    last_ = form.result;
    lastRow_ = form.rows - 1;
}

void left_blocks::formSums() const
{
    for (std::size_t first = 0; first < sums_.size();) {
        std::size_t end = first;
        index cells = 0;
        for (; end < sums_.size() && cells < cellsTogether && sums_[end].depth <= largestInPlace; ++end) {
            cells += sums_[end].rows * sums_[end].depth;
        }
        if (end > first) {
            kernels::blockSumsKernel().byColumns(&sums_[first], end - first, columns_);
        } else {
            multiplyInPanels(sums_[end++], columns_);
        }
        first = end;
    }
}

void left_blocks::clearOppositeZeros(const std::vector<rows_opposite>& stripes, index j) const
{
    for (const rows_opposite& stripe : stripes) {
        if (areZeros(stripe.right + columns_.rightStride * j, stripe.count)) {
            std::fill_n(stripe.result + columns_.resultStride * j, stripe.count, 0.0);
        }
    }
}

template <int cols>
void left_blocks::formColumns(index j) const
{
    const index from = columns_.rightStride * j;
    const index to = columns_.resultStride * j;
    for (const rows_opposite& rows : zeros_) {
        for (int k = 0; k < cols; ++k) {
            std::fill_n(rows.result + to + columns_.resultStride * k, rows.count, 0.0);
        }
    }
    factors_of_rows factors{factors_.data()};
    bool anyZero = false;
    for (const rows_opposite& rows : diagonals_) {
        anyZero |= multiplyCells<cols>(rows.right + from, columns_.rightStride, rows.count, rows.result + to,
                                       columns_.resultStride, factors);
        factors.first += rows.count;
    }
    for (int k = 0; k < cols; ++k) {
        if (anyZero) {
            clearOppositeZeros(withDiagonals_, j + k);
        }
        clearOppositeZeros(notFinite_, j + k);
    }
}

void left_blocks::form()
{
    if (!last_) {
        return;
    }
    formSums();
    constexpr int together = 4;
    index j = 0;
    for (; j + together <= columns_.count; j += together) {
        formColumns<together>(j);
    }
    for (; j < columns_.count; ++j) {
        formColumns<1>(j);
    }
    last_->leave(last_->cells()[lastRow_ + columns_.resultStride * (columns_.count - 1)]);
    *this = {};
}

void multiplyByBlock(const stripe_product& form, const line_kinds& cols)
{
    const index n = form.rows;
    const double* const left = form.left.cells();
    const double* const block = form.right.cells();
    double* const result = form.result.cells();
    const kernels::block_columns_between strides{0, form.right.stride(), form.result.stride()};
    bool mayClear = false;
    for (const run_of_kind& run : runsOf(cols)) {
        if (run.kind == line_kind::summed) {
            const kernels::block_sum sum{n,
                                         form.depth,
                                         left,
                                         form.left.stride(),
                                         block + strides.rightStride * run.first,
                                         result + strides.resultStride * run.first};
            const kernels::block_columns_between columns{run.count, strides.rightStride,
                                                         strides.resultStride};
            form.depth <= largestInPlace ? kernels::blockSumsKernel().byRows(sum, columns)
                                         : multiplyInPanels(sum, columns);
            mayClear |= !isFinite(sum.right, strides.rightStride, form.depth, run.count);
            continue;
        }
        for (index j = run.first; j < run.first + run.count; ++j) {
            double* const to = result + strides.resultStride * j;
            if (run.kind == line_kind::zero) {
                std::fill_n(to, n, 0.0);
            } else {
                mayClear |= multiplyCells<1>(left + form.left.stride() * j, 0, n, to, 0,
                                             one_factor{block[j * (strides.rightStride + 1)]});
            }
        }
    }
    if (mayClear) {
        for (const index i : zeroRows(left, form.left.stride(), n, form.depth)) {
            for (index j = 0; j < form.cols; ++j) {
                result[i + strides.resultStride * j] = 0.0;
            }
        }
    }
    form.result.leave(result[n - 1 + strides.resultStride * (form.cols - 1)]);
}

void multiplyByTransposedBlock(const stripe_product& form, std::vector<double>& turned)
{
    const index n = form.rows;
    const index size = form.depth;
    const double* const block = form.right.cells();
    const index stride = form.right.stride();
    double* const result = form.result.cells();
    if (size <= largestInPlace) {
        turned.resize(static_cast<std::size_t>(size * size));
        for (index j = 0; j < size; ++j) {
            for (index c = 0; c < size; ++c) {
                turned[static_cast<std::size_t>(c + size * j)] = block[j + stride * c];
            }
        }
        kernels::blockSumsKernel().byRows(
            {n, size, form.left.cells(), form.left.stride(), turned.data(), result},
            {size, size, form.result.stride()});
    } else {
        kernels::product product{n, size, size};
        product.left = {{form.left.cells(), form.left.stride()}, false};
        product.right = {{block, stride}, false};
        product.result = {result, form.result.stride()};
        multiply(product);
    }
    form.result.leave(result[n - 1 + form.result.stride() * (size - 1)]);
}

} // namespace korvel
