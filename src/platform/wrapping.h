/**
 * @file
 * Integers modulo 2^32, as the machine has them. Unsigned arithmetic is used because signed overflow is
 * undefined.
 */
#ifndef KORVEL_PLATFORM_WRAPPING_H
#define KORVEL_PLATFORM_WRAPPING_H

#include <cstdint>

namespace korvel
{

[[nodiscard]] constexpr int wrappedSum(int a, int b)
{
    return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

[[nodiscard]] constexpr int wrappedProduct(int a, int b)
{
    return static_cast<int>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

} // namespace korvel

#endif
