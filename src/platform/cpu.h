/**
 * @file
 * What the processor can do beyond the baseline that the library is built for.
 */
#ifndef KORVEL_PLATFORM_CPU_H
#define KORVEL_PLATFORM_CPU_H

namespace korvel::platform
{

/** Whether the processor has AVX2 and the system keeps its registers. */
[[nodiscard]] inline bool hasAvx2() noexcept
{
#if defined(__x86_64__)
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

/** The same for AVX-512, its foundation. */
[[nodiscard]] inline bool hasAvx512() noexcept
{
#if defined(__x86_64__)
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx512f") != 0;
#else
    return false;
#endif
}

} // namespace korvel::platform

#endif
