#include "containers/missing.h"

#include "containers/matrix.h"
#include "support/bits.h"
#include "support/host_arrays.h"

#include <array>
#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

using namespace korvel::test;

namespace
{

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

double fromBits(std::uint64_t bits)
{
    return std::bit_cast<double>(bits);
}

} // namespace

TEST(Missing, TheSentinelLies29UnitsAboveTheMostNegativeDouble)
{
    EXPECT_EQ(std::bit_cast<std::uint64_t>(MISSING_DBL), 0xFFEFFFFFFFFFFFE2u);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(std::numeric_limits<double>::lowest()) -
                  std::bit_cast<std::uint64_t>(MISSING_DBL),
              29u);
    EXPECT_EQ(MISSING_LNG, -2147483647 - 1);
}

TEST(Missing, TheOrderedTestTakesAllAtOrBelowTheSentinel)
{
    EXPECT_TRUE(korvel::isMissingOrdered(MISSING_DBL));
    EXPECT_TRUE(korvel::isMissingOrdered(fromBits(0xFFEFFFFFFFFFFFE3u)));
    EXPECT_TRUE(korvel::isMissingOrdered(-1.7976931348623157e308));
    EXPECT_TRUE(korvel::isMissingOrdered(-infinity));
    EXPECT_FALSE(korvel::isMissingOrdered(fromBits(0xFFEFFFFFFFFFFFE1u)));
    EXPECT_FALSE(korvel::isMissingOrdered(0.0));
    EXPECT_FALSE(korvel::isMissingOrdered(notANumber));
    EXPECT_FALSE(korvel::isMissingOrdered(infinity));
}

TEST(Missing, ATextIsMissingWhenItIsEmpty)
{
    EXPECT_EQ(IsMissingValue(text()), -1);
    EXPECT_EQ(IsMissingValue(text(u" ")), 0);
    EXPECT_EQ(IsMissingValue(text(1, u'\0')), 0);
}

TEST(Missing, ABstrIsMissingWhenItHasNoBytes)
{
    bstr_block block{std::nullopt, u"", u"a", text(1, u'\0')};
    EXPECT_EQ(IsMissingValue(block[0]), -1);
    EXPECT_EQ(IsMissingValue(block[1]), -1);
    EXPECT_EQ(IsMissingValue(block[2]), 0);
    EXPECT_EQ(IsMissingValue(block[3]), 0);
}

TEST(Missing, VectorFlagsJoinBothSources)
{
    matrix<double> x(7, 1, 1.0);
    x[1] = MISSING_DBL;
    x[2] = -1.7976931348623157e308;
    x[3] = notANumber;
    x[4] = fromBits(0xFFEFFFFFFFFFFFE1u);
    // Only -1 is taken over; the output has a guard at both ends.
    std::array<short int, 7> flags{0, 0, 0, 0, 0, -1, 1};
    std::array<short int, 9> out;
    out.fill(9);
    EXPECT_EQ(V_GetMissingDbl(&x, 7, flags.data(), out.data() + 1), 0);
    EXPECT_EQ(out, (std::array<short int, 9>{9, 0, -1, -1, 0, 0, -1, 0, 9}));

    out.fill(9);
    EXPECT_EQ(V_GetMissingDbl(&x, 7, nullptr, out.data() + 1), 0);
    EXPECT_EQ(out, (std::array<short int, 9>{9, 0, -1, -1, 0, 0, 0, 0, 9}));
}

TEST(Missing, VectorFlagsMayBeWrittenInPlace)
{
    matrix<double> x(3, 1, 1.0);
    x[2] = MISSING_DBL;
    std::array<short int, 3> flags{-1, 0, 0};
    V_GetMissingDbl(&x, 3, flags.data(), flags.data());
    EXPECT_EQ(flags, (std::array<short int, 3>{-1, 0, -1}));
}

TEST(Missing, AShortVectorReadsItsSpareSlot)
{
    matrix<double> x(1, 1, 1.0);
    std::array<short int, 2> out{9, 9};
    V_GetMissingDbl(&x, 2, nullptr, out.data());
    EXPECT_EQ(out, (std::array<short int, 2>{0, 0}));
    x.oobValue = MISSING_DBL;
    V_GetMissingDbl(&x, 2, nullptr, out.data());
    EXPECT_EQ(out, (std::array<short int, 2>{0, -1}));
}

TEST(Missing, NoElementsReadAndWriteNothing)
{
    matrix<double> x;
    short int untouched = 9;
    EXPECT_EQ(V_GetMissingDbl(&x, 0, nullptr, &untouched), 0);
    EXPECT_EQ(V_GetMissingDbl(&x, -3, nullptr, &untouched), 0);
    EXPECT_EQ(untouched, 9);
}
