/**
 * @file
 * Stand-ins for absent arguments: flags of which none is set, and weights that are all 1.0. Loops read them
 * like the real ones, and the compiler removes them.
 */
#ifndef KORVEL_STATISTICS_STAND_INS_H
#define KORVEL_STATISTICS_STAND_INS_H

#include <cstdint>

namespace korvel
{

struct no_flags {
    constexpr short int operator[](std::int64_t) const noexcept { return 0; }
};

struct unit_weights {
    constexpr double operator[](std::int64_t) const noexcept { return 1.0; }
};

/** Calls `loop` with the caller's flags, or with `no_flags` for a null pointer. */
template <class Loop>
decltype(auto) withFlags(const short int* iMissing, Loop&& loop)
{
    return iMissing != nullptr ? loop(iMissing) : loop(no_flags{});
}

} // namespace korvel

#endif
