/**
 * @file
 * The plane rotation that every decomposition by rotations is made of. It is inlined always, so that the
 * kernels of each instruction set may use it.
 */
#ifndef KORVEL_LINALG_ROTATIONS_H
#define KORVEL_LINALG_ROTATIONS_H

#include <cstdint>

namespace korvel
{

struct rotation {
    double c;
    double s;
};

/** The rotation that turns (a, b) to (r, 0); a becomes r, with the sign of the larger one, of b on a tie. */
[[nodiscard, gnu::always_inline]] inline rotation rotationOf(double& a, double b)
{
    const double scale = __builtin_fabs(a) + __builtin_fabs(b);
    if (scale == 0.0) {
        a = 0.0;
        return {1.0, 0.0};
    }
    // Which one is larger is anyone's guess: a branch would be mispredicted every other time.
    const std::uint64_t chosen = std::uint64_t{0} - (__builtin_fabs(a) > __builtin_fabs(b) ? 1U : 0U);
    const double larger = __builtin_bit_cast(double, (__builtin_bit_cast(std::uint64_t, a) & chosen) |
                                                         (__builtin_bit_cast(std::uint64_t, b) & ~chosen));
    const double x = a / scale;
    const double y = b / scale;
    const double r = __builtin_copysign(scale * __builtin_sqrt(x * x + y * y), larger);
    const rotation made{a / r, b / r};
    a = r;
    return made;
}

} // namespace korvel

#endif
