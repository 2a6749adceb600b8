/**
 * @file
 * The combined multiplicative congruential generator of L'Ecuyer (Communications of the ACM 31, 1988),
 * without a shuffle table: two generators of prime moduli a little below 2^31, and the difference of their
 * states.
 */
#ifndef KORVEL_RANDOM_COMBINED_GENERATOR_H
#define KORVEL_RANDOM_COMBINED_GENERATOR_H

#include <cstdint>

namespace korvel
{

/** One of the two: a state s goes to `multiplier * s` modulo `modulus`, which is 2^31 - `gap`. */
template <std::int64_t Multiplier, std::int64_t Gap>
struct congruential_step {
    static constexpr std::int64_t multiplier = Multiplier;
    static constexpr std::int64_t modulus = (std::int64_t{1} << 31) - Gap;

    /**
     * The state after `s`, from 0 to `modulus` - 1. `s` may be any number: a caller's seed may lie below 0 or
     * above the modulus.
     *
     * 2^31 equals `Gap` modulo the modulus, so the bits of the product above the lowest 31 are multiplied by
     * `Gap` and added to these. That sum is below twice the modulus. The result is that of Schrage's method,
     * without a division.
     */
    static constexpr std::int32_t next(std::int32_t s) noexcept
    {
        const std::int64_t start = s < 0 ? s + 2 * modulus : s;
        const std::int64_t product = multiplier * start;
        const std::int64_t folded = (product & 0x7FFFFFFF) + (product >> 31) * Gap;
        return static_cast<std::int32_t>(folded < modulus ? folded : folded - modulus);
    }

    /** The state `Steps` steps after `s`, or the modulus less: the state after that is the same. */
    template <int Steps>
    static constexpr std::int32_t jump(std::int32_t s) noexcept
    {
        constexpr std::int64_t factor = power(Steps);
        return static_cast<std::int32_t>(factor * s % modulus);
    }

private:
    static constexpr std::int64_t power(int exponent) noexcept
    {
        std::int64_t result = 1;
        for (int i = 0; i < exponent; ++i) {
            result = result * multiplier % modulus;
        }
        return result;
    }
};

using first_step = congruential_step<40014, 85>;
using second_step = congruential_step<40692, 249>;

/** The output of a pair of states: their difference, brought into 1 to 2147483562. */
constexpr std::int32_t combine(std::int32_t s1, std::int32_t s2) noexcept
{
    const std::int32_t difference = s1 - s2;
    return difference < 1 ? difference + 2147483562 : difference;
}

/** Moves both states on and returns the output. */
constexpr std::int32_t nextCombined(std::int32_t& s1, std::int32_t& s2) noexcept
{
    s1 = first_step::next(s1);
    s2 = second_step::next(s2);
    return combine(s1, s2);
}

} // namespace korvel

#endif
