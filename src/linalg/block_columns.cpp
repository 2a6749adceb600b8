#include "linalg/block_columns.h"

#include <algorithm>

namespace korvel
{

namespace
{

/** So many rows are summed side by side, in registers. */
constexpr int together = 4;

/** out(i) = the sum over c of row i's c-th cell times `factors(c)`. */
template <int rows>
void sumRows(const double* first, std::ptrdiff_t stride, const double* factors, int depth, double* out)
{
    double sums[rows]{};
    for (int c = 0; c < depth; ++c) {
        for (int i = 0; i < rows; ++i) {
            sums[i] += first[stride * c + i] * factors[c];
        }
    }
    std::copy_n(sums, rows, out);
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
    entries_.push_back({form, runsOf(rows), diagonalOf(form)});
}

void block_columns::form()
{
    if (entries_.empty()) {
        return;
    }
    const stripe_product& last = entries_.back().product;
    for (int j = 0; j < last.cols; ++j) {
        for (const entry& block : entries_) {
            formColumn(block, j);
        }
    }
    last.result.leave(last.result.cells()[last.rows - 1 + last.result.stride() * (last.cols - 1)]);
    entries_.clear();
}

void block_columns::formColumn(const entry& block, int j)
{
    const stripe_product& product = block.product;
    const double* const from = product.right.cells() + product.right.stride() * j;
    double* const to = product.result.cells() + product.result.stride() * j;
    if (std::all_of(from, from + product.depth, [](double x) { return x == 0.0; })) {
        std::fill_n(to, product.rows, 0.0);
        return;
    }
    for (const run_of_kind& run : block.runs) {
        double* const out = to + run.first;
        if (run.kind == line_kind::diagonal) {
            for (std::ptrdiff_t i = 0; i < run.count; ++i) {
                out[i] = block.diagonal[static_cast<std::size_t>(run.first + i)] * from[run.first + i];
            }
            continue;
        }
        if (run.kind == line_kind::zero) {
            std::fill_n(out, run.count, 0.0);
            continue;
        }
        const double* const first = product.left.cells() + run.first;
        std::ptrdiff_t i = 0;
        for (; i + together <= run.count; i += together) {
            sumRows<together>(first + i, product.left.stride(), from, product.depth, out + i);
        }
        for (; i < run.count; ++i) {
            sumRows<1>(first + i, product.left.stride(), from, product.depth, out + i);
        }
    }
}

} // namespace korvel
