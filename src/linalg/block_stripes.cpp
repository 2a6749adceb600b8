#include "linalg/block_stripes.h"

#include "linalg/product_forms.h"

#include <algorithm>

namespace korvel
{

namespace
{

using flags = std::vector<unsigned char>;

/** Which lines of a table have cells that are not zeros, those on the diagonal aside. */
struct filled_lines {
    flags rows;
    flags cols;
};

/** Marks what is filled in a part of a column, and tells whether anything is. */
template <class Cells>
unsigned char markFilled(const Cells& column, int first, int end, flags& rows)
{
    unsigned char any = 0;
    for (int i = first; i < end; ++i) {
        const unsigned char filled = column(i) != 0.0;
        rows[static_cast<std::size_t>(i)] |= filled;
        any |= filled;
    }
    return any;
}

template <class Cell>
filled_lines filledBesideDiagonal(int rows, int cols, Cell cell)
{
    filled_lines found{flags(static_cast<std::size_t>(rows)), flags(static_cast<std::size_t>(cols))};
    for (int j = 0; j < cols; ++j) {
        const auto column = [&](int i) { return cell(i, j); };
        found.cols[static_cast<std::size_t>(j)] = markFilled(column, 0, std::min(j, rows), found.rows) |
                                                  markFilled(column, j + 1, rows, found.rows);
    }
    return found;
}

/** Calls `work` with what reads cell (i, j) of a part: raw when the part lies inside. */
template <class Work>
auto withCellsOf(const part_read& part, int rows, int cols, Work work)
{
    if (part.inside(rows, cols)) {
        return work(
            [cells = part.cells(), stride = part.stride()](int i, int j) { return cells[i + stride * j]; });
    }
    return work([&](int i, int j) { return part.get(i, j); });
}

/** Which rows, or columns, of a table are zeros: of most, the first cells tell. */
template <class Cell>
line_kinds zeroLines(int lines, int length, Cell cell)
{
    line_kinds kinds(static_cast<std::size_t>(lines), line_kind::zero);
    for (int k = 0; k < lines; ++k) {
        for (int c = 0; c < length; ++c) {
            if (cell(k, c) != 0.0) {
                kinds[static_cast<std::size_t>(k)] = line_kind::summed;
                break;
            }
        }
    }
    return kinds;
}

/** The kinds of the rows of a table, or of its columns. */
line_kinds kindsOfLines(const part_read& part, int rows, int cols, bool ofRows)
{
    if (rows < 1 || cols < 1) {
        return {};
    }
    return withCellsOf(part, rows, cols, [=](auto cell) {
        if (rows != cols) {
            return ofRows ? zeroLines(rows, cols, cell)
                          : zeroLines(cols, rows, [&](int j, int i) { return cell(i, j); });
        }
        const filled_lines filled = filledBesideDiagonal(rows, cols, cell);
        line_kinds kinds(static_cast<std::size_t>(ofRows ? rows : cols), line_kind::summed);
        for (std::size_t k = 0; k < kinds.size(); ++k) {
            const int line = static_cast<int>(k);
            const bool onDiagonal = cell(line, line) != 0.0;
            if ((ofRows ? filled.rows : filled.cols)[k] == 0 && !onDiagonal) {
                kinds[k] = line_kind::zero;
            } else if (filled.rows[k] == 0 && filled.cols[k] == 0) {
                kinds[k] = line_kind::diagonal;
            }
        }
        return kinds;
    });
}

/** The diagonal of the left operand, as far as it goes. */
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

/** What a row and a column of some kind make where they meet. */
enum class meeting { zero, rowDiagonal, columnDiagonal, sum };

meeting meetingOf(line_kind row, line_kind col, block_side block)
{
    if (row == line_kind::zero || col == line_kind::zero) {
        return meeting::zero;
    }
    const bool rowFirst = block == block_side::left || col != line_kind::diagonal;
    if (row == line_kind::diagonal && rowFirst) {
        return meeting::rowDiagonal;
    }
    return col == line_kind::diagonal ? meeting::columnDiagonal : meeting::sum;
}

/** The product of operands whose cells all lie inside. */
class raw_stripe
{
public:
    raw_stripe(const stripe_product& form, const line_kinds& rows, const line_kinds& cols, block_side block)
        : form_(form), cols_(cols), block_(block), runs_(runsOf(rows))
    {
    }

    void form() const
    {
        formSums();
        const std::vector<double> diagonal = diagonalOf(form_);
        for (int j = 0; j < form_.cols; ++j) {
            for (const run_of_kind& run : runs_) {
                formRun(run, j, diagonal.data());
            }
        }
        form_.result.leave(result(form_.cols - 1)[form_.rows - 1]);
    }

private:
    [[nodiscard]] const double* left(std::ptrdiff_t k) const
    {
        return form_.left.cells() + form_.left.stride() * k;
    }
    [[nodiscard]] const double* right(std::ptrdiff_t j) const
    {
        return form_.right.cells() + form_.right.stride() * j;
    }
    [[nodiscard]] double* result(std::ptrdiff_t j) const
    {
        return form_.result.cells() + form_.result.stride() * j;
    }
    [[nodiscard]] line_kind kindOf(int j) const { return cols_[static_cast<std::size_t>(j)]; }

    /** All elements that are sums, in the kernel: runs of rows by a list of columns. */
    void formSums() const
    {
        std::vector<const double*> from;
        std::vector<double*> to;
        for (int j = 0; j < form_.cols; ++j) {
            if (kindOf(j) == line_kind::summed) {
                from.push_back(right(j));
                to.push_back(result(j));
            }
        }
        for (const run_of_kind& run : runs_) {
            if (run.kind != line_kind::summed || to.empty()) {
                continue;
            }
            kernels::product product{run.count, static_cast<std::ptrdiff_t>(to.size()), form_.depth};
            product.left = {{left(0) + run.first, form_.left.stride()}, false};
            product.right = {{nullptr, 0, from.data()}, true};
            product.result = {nullptr, 0, to.data(), run.first};
            multiply(product);
        }
    }

    void formRun(const run_of_kind& run, int j, const double* diagonal) const
    {
        double* const to = result(j) + run.first;
        const double* factors = nullptr;
        switch (meetingOf(run.kind, kindOf(j), block_)) {
        case meeting::zero:
            std::fill_n(to, run.count, 0.0);
            break;
        case meeting::rowDiagonal:
            factors = right(j) + run.first;
            for (std::ptrdiff_t i = 0; i < run.count; ++i) {
                to[i] = diagonal[run.first + i] * factors[i];
            }
            break;
        case meeting::columnDiagonal:
            factors = left(j) + run.first;
            for (std::ptrdiff_t i = 0; i < run.count; ++i) {
                to[i] = factors[i] * right(j)[j];
            }
            break;
        case meeting::sum:
            break;
        }
    }

    const stripe_product& form_;
    const line_kinds& cols_;
    block_side block_;
    std::vector<run_of_kind> runs_;
};

double checkedCell(const stripe_product& form, int r, int j, meeting lines)
{
    switch (lines) {
    case meeting::zero:
        return 0.0;
    case meeting::rowDiagonal:
        return form.left.get(r, r) * form.right.get(r, j);
    case meeting::columnDiagonal:
        return form.left.get(r, j) * form.right.get(j, j);
    case meeting::sum:
        break;
    }
    double sum = 0.0;
    for (int c = 0; c < form.depth; ++c) {
        sum += form.left.get(r, c) * form.right.get(c, j);
    }
    return sum;
}

} // namespace

std::vector<run_of_kind> runsOf(const line_kinds& lines)
{
    std::vector<run_of_kind> runs;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i == 0 || lines[i] != lines[i - 1]) {
            runs.push_back({lines[i], static_cast<std::ptrdiff_t>(i), 0});
        }
        ++runs.back().count;
    }
    return runs;
}

line_kinds kindsOfRows(const stripe_product& form)
{
    return kindsOfLines(form.left, form.rows, form.depth, true);
}

line_kinds kindsOfColumns(const stripe_product& form)
{
    return kindsOfLines(form.right, form.depth, form.cols, false);
}

void multiplyStripe(const stripe_product& form, const line_kinds& rows, const line_kinds& cols,
                    block_side block)
{
    if (form.rows < 1 || form.depth < 1 || form.cols < 1) {
        return;
    }
    if (form.left.inside(form.rows, form.depth) && form.right.inside(form.depth, form.cols) &&
        form.result.inside(form.rows, form.cols)) {
        raw_stripe(form, rows, cols, block).form();
        return;
    }
    for (int r = 0; r < form.rows; ++r) {
        for (int j = 0; j < form.cols; ++j) {
            const meeting lines =
                meetingOf(rows[static_cast<std::size_t>(r)], cols[static_cast<std::size_t>(j)], block);
            form.result.set(r, j, checkedCell(form, r, j, lines));
        }
    }
}

} // namespace korvel
