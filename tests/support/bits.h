#ifndef KORVEL_TESTS_SUPPORT_BITS_H
#define KORVEL_TESTS_SUPPORT_BITS_H

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>
#include <string>

namespace korvel::test
{

/** A number in all its digits, with its bits. */
inline std::string withBits(double x)
{
    std::ostringstream line;
    line << std::setprecision(17) << x << " (" << std::hexfloat << x << ", 0x" << std::hex << std::setw(16)
         << std::setfill('0') << std::bit_cast<std::uint64_t>(x) << ")";
    return line.str();
}

/** Whether two results are the same double: the same bits, or both a NaN (whose payload no rule fixes). */
inline ::testing::AssertionResult sameBits(double actual, double expected)
{
    if ((std::isnan(actual) && std::isnan(expected)) ||
        std::bit_cast<std::uint64_t>(actual) == std::bit_cast<std::uint64_t>(expected)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << withBits(actual) << " is not " << withBits(expected);
}

/** `sameBits` for the assertions below, which also say what was written in them. */
inline ::testing::AssertionResult compareBits(const char* actualText, const char* expectedText, double actual,
                                              double expected)
{
    const auto same = sameBits(actual, expected);
    return same ? same
                : ::testing::AssertionFailure()
                      << actualText << "\n  is not " << expectedText << ":\n  " << same.message();
}

} // namespace korvel::test

#define EXPECT_SAME_BITS(actual, expected) EXPECT_PRED_FORMAT2(::korvel::test::compareBits, actual, expected)
#define ASSERT_SAME_BITS(actual, expected) ASSERT_PRED_FORMAT2(::korvel::test::compareBits, actual, expected)

#endif
