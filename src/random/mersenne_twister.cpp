#include "random/mersenne_twister.h"

namespace korvel
{

namespace
{

constexpr std::size_t half = mersenne_twister::halfSize;
constexpr std::size_t shift = 397;

/** The part of the recurrence that takes the top bit of one word and the other bits of the next. */
constexpr std::uint32_t twist(std::uint32_t word, std::uint32_t following) noexcept
{
    constexpr std::uint32_t matrix = 0x9908B0DFU;
    const std::uint32_t joined = (word & 0x80000000U) | (following & 0x7FFFFFFFU);
    return (joined >> 1) ^ ((0U - (joined & 1U)) & matrix);
}

/**
 * Computes words `from` to `to` - 1 of a new half. `old` is the half before it; `middle` points `shift` words
 * further on, in either half. A word depends on the one 227 places before it, so up to 227 words in a row are
 * independent.
 */
void twistRun(const std::uint32_t* __restrict old, const std::uint32_t* __restrict middle,
              std::uint32_t* __restrict fresh, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i) {
        fresh[i] = middle[i] ^ twist(old[i], old[i + 1]);
    }
}

/** The half of the recurrence that follows `old`. The two do not overlap. */
void nextHalf(const std::uint32_t* old, std::uint32_t* fresh) noexcept
{
    constexpr std::size_t run = half - shift;
    twistRun(old, old + shift, fresh, run);
    twistRun(old + run, fresh, fresh + run, run);
    twistRun(old + 2 * run, fresh + run, fresh + 2 * run, half - 1 - 2 * run);
    fresh[half - 1] = fresh[shift - 1] ^ twist(old[half - 1], fresh[0]);
}

} // namespace

void mersenne_twister::seed(std::uint32_t value) noexcept
{
    words[0] = value;
    for (std::uint32_t i = 1; i < half; ++i) {
        const std::uint32_t before = words[i - 1];
        words[i] = 1812433253U * (before ^ (before >> 30)) + i;
    }
    index = half;
    temperingMask = 0xFFFFFFFFU;
}

void mersenne_twister::refill() noexcept
{
    std::uint32_t* const lower = words.data();
    std::uint32_t* const upper = lower + half;
    if (index == half) {
        nextHalf(lower, upper);
    } else {
        nextHalf(upper, lower);
        index = 0;
    }
}

} // namespace korvel
