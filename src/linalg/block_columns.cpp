#include "linalg/block_columns.h"

#include "platform/lanes.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace korvel
{

namespace
{

/** So many rows of so many columns are summed side by side, in registers. */
constexpr int together = 4;

/** out(i, j) = the sum over c of row i's c-th cell times the c-th factor of column j. */
template <int rows, int cols>
void sumTile(const double* first, std::ptrdiff_t stride, const double* factors, std::ptrdiff_t factorStride,
             std::ptrdiff_t depth, double* out, std::ptrdiff_t outStride)
{
    constexpr int width = rows < lanes::registerWidth ? 1 : lanes::registerWidth;
    constexpr int registers = rows / width;
    using cells = std::conditional_t<width == 1, double, lanes::doubles<std::max(width, 2)>>;
    cells sums[cols][registers]{};
    for (std::ptrdiff_t c = 0; c < depth; ++c) {
        cells left[registers];
        for (int i = 0; i < registers; ++i) {
            std::memcpy(&left[i], first + stride * c + width * i, sizeof left[i]);
        }
        for (int j = 0; j < cols; ++j) {
            const double factor = factors[factorStride * j + c];
            for (int i = 0; i < registers; ++i) {
                sums[j][i] += left[i] * factor;
            }
        }
    }
    for (int j = 0; j < cols; ++j) {
        std::memcpy(out + outStride * j, sums[j], sizeof sums[j]);
    }
}

} // namespace

std::vector<run_of_kind> runsOf(const line_kinds& rows)
{
    std::vector<run_of_kind> runs;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i == 0 || rows[i] != rows[i - 1]) {
            runs.push_back({rows[i], static_cast<std::ptrdiff_t>(i), 0});
        }
        ++runs.back().count;
    }
    return runs;
}

std::vector<double> diagonalOf(const stripe_product& form)
{
    std::vector<double> diagonal(static_cast<std::size_t>(std::min(form.rows, form.depth)));
    const double* cell = form.left.cells();
    for (double& x : diagonal) {
        x = *cell;
        cell += form.left.stride() + 1;
    }
    return diagonal;
}

bool block_columns::suits(const stripe_product& form, const line_kinds& rows)
{
    constexpr int small = 16;
    const bool sums = std::find(rows.begin(), rows.end(), line_kind::summed) != rows.end();
    // The columns of a square stripe may be diagonal, which matters where sums are formed.
    const bool suited = !sums || (form.depth <= small && form.depth != form.cols);
    return suited && form.rows > 0 && form.cols > 0 && form.left.inside(form.rows, form.depth) &&
           form.right.inside(form.depth, form.cols) && form.result.inside(form.rows, form.cols);
}

void block_columns::add(const stripe_product& form, const line_kinds& rows)
{
    if (entries_.empty()) {
        cols_ = form.cols;
        rightStride_ = form.right.stride();
        resultStride_ = form.result.stride();
    }
    entries_.push_back({form.rows, form.depth, form.left.cells(), form.left.stride(), form.right.cells(),
                        form.result.cells(), runsOf(rows), diagonalOf(form)});
    last_ = form.result;
}

void block_columns::form()
{
    if (entries_.empty()) {
        return;
    }
    int j = 0;
    for (; j + together <= cols_; j += together) {
        for (const entry& block : entries_) {
            formColumns<together>(block, j);
        }
    }
    for (; j < cols_; ++j) {
        for (const entry& block : entries_) {
            formColumns<1>(block, j);
        }
    }
    const entry& last = entries_.back();
    last_->leave(last.result[last.rows - 1 + resultStride_ * (cols_ - 1)]);
    entries_.clear();
}

template <int cols>
void block_columns::formColumns(const entry& block, std::ptrdiff_t j) const
{
    const double* const from = block.right + rightStride_ * j;
    double* const to = block.result + resultStride_ * j;
    bool isZero[cols];
    bool anyZero = false;
    for (int k = 0; k < cols; ++k) {
        const double* const column = from + rightStride_ * k;
        isZero[k] = std::all_of(column, column + block.depth, [](double x) { return x == 0.0; });
        anyZero = anyZero || isZero[k];
    }
    if constexpr (cols > 1) {
        if (anyZero) {
            for (int k = 0; k < cols; ++k) {
                formColumns<1>(block, j + k);
            }
            return;
        }
    } else if (anyZero) {
        std::fill_n(to, block.rows, 0.0);
        return;
    }
    for (const run_of_kind& run : block.runs) {
        formRun<cols>(block, run, from, to + run.first);
    }
}

template <int cols>
void block_columns::formRun(const entry& block, const run_of_kind& run, const double* from, double* to) const
{
    if (run.kind == line_kind::summed) {
        const double* const first = block.left + run.first;
        std::ptrdiff_t i = 0;
        for (; i + together <= run.count; i += together) {
            sumTile<together, cols>(first + i, block.leftStride, from, rightStride_, block.depth, to + i,
                                    resultStride_);
        }
        for (; i < run.count; ++i) {
            sumTile<1, cols>(first + i, block.leftStride, from, rightStride_, block.depth, to + i,
                             resultStride_);
        }
        return;
    }
    const double* const diagonal = block.diagonal.data() + run.first;
    for (int k = 0; k < cols; ++k) {
        double* const out = to + resultStride_ * k;
        const double* const factors = from + rightStride_ * k + run.first;
        for (std::ptrdiff_t i = 0; i < run.count; ++i) {
            out[i] = run.kind == line_kind::zero ? 0.0 : diagonal[i] * factors[i];
        }
    }
}

} // namespace korvel
