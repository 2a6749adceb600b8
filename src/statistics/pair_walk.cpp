#include "statistics/pair_walk.h"

#include "linalg/product_forms.h"
#include "statistics/panels.h"

#include <algorithm>

namespace korvel
{

namespace
{

using index = std::ptrdiff_t;

constexpr index width = kernels::laneColumns;

/** The sums of all columns up to `last` with the columns from `first` to `last`. */
class pair_strip
{
public:
    /** Columns of a strip, a number of groups: what the sums of a strip take grows with it. */
    static constexpr index columns = 8 * width;

    pair_strip(const column_pointers& table, index first)
        : table_(table), first_(first), last_(std::min(first + columns, static_cast<index>(table.size()))),
          stride_(kernels::inGroups(last_)),
          rowsAtOnce_(std::clamp<index>(panelCells / stride_, 16, kernels::mostPanelRows)),
          memory_(2 * rowsAtOnce_ * stride_), panel_(memory_.get()),
          factored_(panel_ + rowsAtOnce_ * stride_), means_(static_cast<std::size_t>(stride_)),
          products_(static_cast<std::size_t>(stride_ * (last_ - first_)))
    {
    }

    void walk(const weighted_rows& rows)
    {
        row_blocks blocks(rows, static_cast<int>(rowsAtOnce_));
        while (blocks.next()) {
            const kernels::panel_rows now = blocks.rows();
            const bool mayMiss = kernel_.pack(table_.data(), last_, now, panel_, stride_);
            if (isComplete() && mayMiss) {
                separate(blocks.before());
            }
            isComplete() ? addProducts(now) : addPairs(now);
        }
        totals_ = blocks.now();
    }

    [[nodiscard]] running_covariance pair(index i, index j) const
    {
        running_covariance found;
        if (isComplete()) {
            found.sumW = totals_.sumW;
            found.kept = totals_.weighted + totals_.weightless;
            found.meanX = means_[static_cast<std::size_t>(i)];
            found.products = products_[productPlace(i, j)];
        } else {
            const kernels::pair_lanes& sums = pairs_[pairPlace(i, j)];
            const auto l = static_cast<std::size_t>(j % width);
            found.sumW = sums.sumW[l];
            found.kept = static_cast<int>(sums.kept[l]);
            found.meanX = sums.meanX[l];
            found.products = sums.products[l];
        }
        return found;
    }

    [[nodiscard]] index first() const { return first_; }
    [[nodiscard]] index last() const { return last_; }

private:
    /** Cells of a panel: what the nearer caches hold. */
    static constexpr index panelCells = 16384;

    [[nodiscard]] bool isComplete() const { return pairs_.empty(); }

    [[nodiscard]] std::size_t productPlace(index i, index j) const
    {
        return static_cast<std::size_t>(i + (j - first_) * stride_);
    }
    [[nodiscard]] std::size_t pairPlace(index i, index j) const
    {
        return static_cast<std::size_t>(i + (j - first_) / width * stride_);
    }

    /** From the first missing cell on each pair has sums of its own. */
    void separate(const row_blocks::totals& before)
    {
        pairs_.resize(pairPlace(stride_ - 1, last_ - 1) + 1);
        for (index j = first_; j < last_; ++j) {
            const auto l = static_cast<std::size_t>(j % width);
            for (index i = 0; i <= j; ++i) {
                kernels::pair_lanes& sums = pairs_[pairPlace(i, j)];
                sums.sumW[l] = before.sumW;
                sums.kept[l] = before.weighted + before.weightless;
                sums.meanX[l] = means_[static_cast<std::size_t>(i)];
                sums.meanY[l] = means_[static_cast<std::size_t>(j)];
                sums.products[l] = products_[productPlace(i, j)];
            }
        }
    }

    /** Without missing cells a deviation is that of its column, whatever the other one, and the sums are a
     * product of two tables. */
    void addProducts(const kernels::panel_rows& now)
    {
        kernel_.takeDeviations(panel_, factored_, stride_, stride_, now, means_.data());
        const auto add = [&](index rows, index firstRow, kernels::part kept) {
            kernels::product form{rows, last_ - first_, now.count};
            form.left = {{factored_ + firstRow, stride_}, false};
            form.right = {{panel_ + first_, stride_}, false};
            form.result = {&products_[static_cast<std::size_t>(firstRow)], stride_};
            form.kept = kept;
            form.onto = true;
            multiply(form);
        };
        if (first_ > 0) {
            add(first_, 0, kernels::part::whole);
        }
        add(last_ - first_, first_, kernels::part::upper);
    }

    void addPairs(const kernels::panel_rows& now)
    {
        for (index j = first_; j < last_; j += width) {
            kernel_.addPairs(panel_, std::min(j + width, last_), panel_ + j, stride_, now,
                             &pairs_[pairPlace(0, j)]);
        }
    }

    const column_pointers& table_;
    const kernels::column_kernel& kernel_ = kernels::columnKernel();
    const index first_;
    const index last_;
    const index stride_;
    const index rowsAtOnce_;
    panel_memory memory_;
    double* panel_;
    double* factored_;
    std::vector<double> means_;
    std::vector<double> products_;
    std::vector<kernels::pair_lanes> pairs_;
    row_blocks::totals totals_;
};

} // namespace

void walkPairsInMemory(const column_pointers& columns, const weighted_rows& rows, const pair_taker& take)
{
    for (index first = 0; first < static_cast<index>(columns.size()); first += pair_strip::columns) {
        pair_strip strip(columns, first);
        strip.walk(rows);
        for (index j = strip.first(); j < strip.last(); ++j) {
            for (index i = 0; i <= j; ++i) {
                take(static_cast<int>(i), static_cast<int>(j), strip.pair(i, j));
            }
        }
    }
}

} // namespace korvel
