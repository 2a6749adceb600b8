#include "statistics/panels.h"

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

} // namespace korvel
