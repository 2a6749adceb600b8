#ifndef KORVEL_TESTS_SUPPORT_BITS_H
#define KORVEL_TESTS_SUPPORT_BITS_H

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>

namespace korvel::test
{

/** Whether two results are the same double: the same bits, or both a NaN (whose payload no rule fixes). */
inline ::testing::AssertionResult sameBits(double actual, double expected)
{
    if ((std::isnan(actual) && std::isnan(expected)) ||
        std::bit_cast<std::uint64_t>(actual) == std::bit_cast<std::uint64_t>(expected)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << std::hexfloat << actual << " is not " << expected
                                         << std::defaultfloat << " (" << actual << ", " << expected << ")";
}

} // namespace korvel::test

#endif
