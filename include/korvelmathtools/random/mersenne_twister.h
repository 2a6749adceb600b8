/**
 * @file
 * MT19937, the 32-bit Mersenne Twister of Matsumoto and Nishimura (ACM Transactions on Modeling and Computer
 * Simulation 8, 1998), with the seeding rule that its authors gave in 2002.
 */
#ifndef KORVEL_RANDOM_MERSENNE_TWISTER_H
#define KORVEL_RANDOM_MERSENNE_TWISTER_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace korvel
{

/**
 * The engine's state: a ring of two halves of 624 words. The words of one half are handed out in turn, and a
 * refill computes the next 624 words of the recurrence into the other half, so that no word is overwritten
 * while it is still needed.
 */
struct mersenne_twister {
    static constexpr std::size_t halfSize = 624;
    static constexpr std::uint32_t defaultSeed = 5489;

    std::uint32_t index;                           ///< The word that is handed out next.
    std::array<std::uint32_t, 2 * halfSize> words; ///< The ring.
    std::uint32_t temperingMask;                   ///< Applied in the first tempering step; all bits set.

    /** Starts the sequence of `value`; the first refill is left to the first draw. */
    void seed(std::uint32_t value) noexcept;

    /** The next number of the sequence. */
    std::uint32_t next() noexcept
    {
        if (index == halfSize || index >= words.size()) [[unlikely]] {
            refill();
        }
        return temper(words[index++]);
    }

    /** Makes sure that `index` is at a word, and returns how many can be handed out before the next refill.
     */
    std::size_t available() noexcept
    {
        if (index == halfSize || index >= words.size()) {
            refill();
        }
        return (index < halfSize ? halfSize : words.size()) - index;
    }

    /** The number that a word of the ring is handed out as. */
    [[nodiscard]] std::uint32_t temper(std::uint32_t word) const noexcept
    {
        word ^= (word >> 11) & temperingMask;
        word ^= (word << 7) & 0x9D2C5680U;
        word ^= (word << 15) & 0xEFC60000U;
        return word ^ (word >> 18);
    }

private:
    /** Computes the half that follows the one used up, and sets `index` to its first word. */
    void refill() noexcept;
};

} // namespace korvel

#endif
