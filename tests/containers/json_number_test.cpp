#include "containers/json_number.h"
#include "containers/missing.h"
#include "support/bits.h"

#include <array>
#include <bit>
#include <charconv>
#include <limits>
#include <random>

using korvel::jsonNumber;
using korvel::test::sameBits;

namespace
{

/** Significant digits, without zeros at either end. */
std::string significantDigits(const std::string& number)
{
    std::string digits;
    for (const char character : number.substr(0, number.find('e'))) {
        if (character >= '0' && character <= '9') {
            digits += character;
        }
    }
    digits.erase(0, digits.find_first_not_of('0'));
    digits.erase(digits.find_last_not_of('0') + 1);
    return digits;
}

/**
 * The digits of the shortest correctly rounded rendering that reads back, found by trying each length. The C
 * runtime of Windows rounds neither way correctly, so both are the standard library's, at a given length and
 * not the shortest one.
 */
std::string shortestByTrial(double value)
{
    for (int decimals = 0;; ++decimals) {
        std::array<char, 64> rendered{};
        const auto end = std::to_chars(rendered.data(), rendered.data() + rendered.size(), value,
                                       std::chars_format::scientific, decimals)
                             .ptr;
        double readBack = 0.0;
        std::from_chars(rendered.data(), end, readBack);
        if (readBack == value) {
            return significantDigits(std::string(rendered.data(), end));
        }
    }
}

void expectShortest(double value)
{
    const std::string number = jsonNumber(value);
    double readBack = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), readBack);
    EXPECT_EQ(result.ptr, number.data() + number.size()) << number;
    EXPECT_TRUE(sameBits(readBack, value)) << number;
    EXPECT_NE(number.find_first_of(".e"), std::string::npos) << number;
    EXPECT_LE(significantDigits(number).size(), shortestByTrial(value).size()) << number;
}

} // namespace

TEST(JsonNumber, HasAPointOrAnExponent)
{
    const std::pair<double, const char*> cases[] = {
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {1.0, "1.0"},
        {-17.0, "-17.0"},
        {12.5, "12.5"},
        {0.1, "0.1"},
        {0.05, "0.05"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1.0 / 3.0, "0.3333333333333333"},
        {2.0 / 3.0, "0.6666666666666666"},
        {123456.789, "123456.789"},
        {9007199254740993.0, "9007199254740992.0"},
        {1e20, "100000000000000000000.0"},
        {123456789012345678901.0, "123456789012345680000.0"},
        {-9.999999999999999e20, "-999999999999999900000.0"},
        {1e21, "1e21"},
        {1.5e21, "1.5e21"},
        {1e300, "1e300"},
        {1e-5, "0.00001"},
        {1.25e-6, "0.00000125"},
        {1e-6, "0.000001"},
        {9.5e-7, "9.5e-7"},
        {1e-7, "1e-7"},
        {-1.25e-10, "-1.25e-10"},
        {5e-324, "5e-324"},
        {std::numeric_limits<double>::max(), "1.7976931348623157e308"},
        {std::numeric_limits<double>::min(), "2.2250738585072014e-308"},
        {MISSING_DBL, "-1.79769313486231e308"},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(jsonNumber(value), expected);
    }
}

TEST(JsonNumber, IsTheShortestThatReadsBack)
{
    std::mt19937_64 random(30);
    for (int round = 0; round < 5000; ++round) {
        const auto anyBits = std::bit_cast<double>(random());
        if (std::isfinite(anyBits)) {
            expectShortest(anyBits);
        }
        expectShortest(static_cast<double>(random() >> 11) * 0x1p-53);
        expectShortest(static_cast<double>(static_cast<int>(random())) / 100.0);
    }
    for (int exponent = -1074; exponent < 1024; ++exponent) {
        expectShortest(std::ldexp(1.0, exponent));
        expectShortest(-std::nextafter(std::ldexp(1.0, exponent), 0.0));
    }
}
