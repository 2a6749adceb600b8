#include "statistics/panels.h"

#include "platform/lanes.h"

#include <algorithm>

namespace korvel
{

bool row_blocks::next()
{
    before_ = now_;
    count_ = 0;
    weightless_ = 0;
    for (; done_ < rows_.count && count_ + weightless_ < atOnce_; ++done_) {
        if (!rows_.keeps(done_)) {
            continue;
        }
        const double w = rows_.weight(done_);
        if (w == 0.0) {
            ofWeightZero_[static_cast<std::size_t>(weightless_++)] = done_;
            continue;
        }
        const auto place = static_cast<std::size_t>(count_++);
        now_.sumW += w;
        numbers_[place] = done_;
        weights_[place] = w;
        sums_[place] = now_.sumW;
        factors_[place] = w - w * w / now_.sumW;
    }
    std::copy_n(ofWeightZero_.begin(), weightless_, numbers_.begin() + count_);
    now_.weighted += static_cast<int>(count_);
    now_.weightless += static_cast<int>(weightless_);
    return count_ + weightless_ > 0;
}

std::ptrdiff_t packColumns(const double* const* columns, std::ptrdiff_t count, const int* rows,
                           std::ptrdiff_t rowCount, double* panel, std::ptrdiff_t stride)
{
    constexpr std::ptrdiff_t group = kernels::laneColumns;
    std::ptrdiff_t j = 0;
    for (; j < count; j += group) {
        const double* each[group];
        for (std::ptrdiff_t l = 0; l < group; ++l) {
            each[l] = columns[std::min(j + l, count - 1)];
        }
        for (std::ptrdiff_t k = 0; k < rowCount; ++k) {
            const std::ptrdiff_t row = rows[k];
            // The next block's cells of one of the columns, a line of the cache for every eighth row.
            lanes::prefetch(each[k % group] + row + row_blocks::mostRows);
            for (std::ptrdiff_t l = 0; l < group; ++l) {
                panel[k * stride + j + l] = each[l][row];
            }
        }
    }
    return j;
}

} // namespace korvel
