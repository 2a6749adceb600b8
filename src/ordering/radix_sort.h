/**
 * @file
 * Stable sorting of number keys in linear time. Each key is replaced by an image, an unsigned integer that
 * compares as the key does.
 */
#ifndef KORVEL_ORDERING_RADIX_SORT_H
#define KORVEL_ORDERING_RADIX_SORT_H

#include <bit>
#include <cstdint>
#include <span>

namespace korvel
{

/** A key's image and original position, and whether the key was -0.0, which has the image of 0.0. */
struct image_pair {
    std::uint64_t image;
    std::int32_t position;
    std::uint32_t negativeZero;
};

inline constexpr std::uint64_t signBit = std::uint64_t{1} << 63;

/** The image of a key. Both zeros have the same image; that of a NaN is of no use. */
[[nodiscard]] constexpr std::uint64_t orderImage(double key) noexcept
{
    const auto bits = std::bit_cast<std::uint64_t>(key + 0.0);
    return (bits & signBit) != 0 ? ~bits : bits | signBit;
}

[[nodiscard]] constexpr std::uint64_t orderImage(int key) noexcept
{
    return static_cast<std::uint32_t>(key) ^ 0x80000000u;
}

/** The key that has an image; 0.0 for that of the zeros. */
[[nodiscard]] constexpr double keyOfImage(std::uint64_t image) noexcept
{
    return std::bit_cast<double>((image & signBit) != 0 ? image & ~signBit : ~image);
}

/**
 * Sorts by ascending image; pairs of one image keep their order. The result does not depend on the number of
 * threads.
 *
 * @param pairs   the pairs
 * @param scratch as many pairs, overwritten
 * @param threads how many threads share the work from `parallelFrom` pairs on
 */
void radixSort(std::span<image_pair> pairs, std::span<image_pair> scratch, int threads);

/** Lists of fewer pairs are sorted on one thread. */
inline constexpr std::size_t parallelFrom = 100'000;

} // namespace korvel

#endif
