#ifndef KORVEL_PLATFORM_AUTOMATION_LEDGER_H
#define KORVEL_PLATFORM_AUTOMATION_LEDGER_H

#include <atomic>
#include <cstdint>

namespace korvel::automation
{

/** One pair of totals: things made and things given back. */
struct tally {
    std::atomic<std::int64_t> made{0};
    std::atomic<std::int64_t> freed{0};
};

/** The totals behind the counters. */
struct ledger {
    tally texts;
    tally blocks;
    tally arrays;
    std::atomic<std::int64_t> debugLines{0};
    std::atomic<std::int64_t> allowance{-1};

    /** True when one more allocation may go ahead. */
    bool permits() noexcept
    {
        std::int64_t left = allowance.load();
        while (left > 0 && !allowance.compare_exchange_weak(left, left - 1)) {
        }
        return left != 0;
    }
};

ledger& theLedger() noexcept;

} // namespace korvel::automation

#endif
