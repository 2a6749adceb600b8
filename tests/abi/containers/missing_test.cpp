#include "containers/element_types.h"
#include "korvelmathtools/KORVELMathTools.h"
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

const place null = std::nullopt;

VARIANT cellOf(VARTYPE type)
{
    VARIANT cell{};
    cell.vt = type;
    return cell;
}

} // namespace

TEST(FlatContainers, ANumberIsMissingAtOrBelowTheSentinel)
{
    EXPECT_EQ(VB_IsMissingValueDbl(MISSING_DBL), -1);
    EXPECT_EQ(VB_IsMissingValueDbl(-1.7976931348623157e308), -1);
    EXPECT_EQ(VB_IsMissingValueDbl(-std::numeric_limits<double>::infinity()), -1);
    EXPECT_EQ(VB_IsMissingValueDbl(std::bit_cast<double>(std::uint64_t{0xFFEFFFFFFFFFFFE1})), 0);
    EXPECT_EQ(VB_IsMissingValueDbl(0.0), 0);
    EXPECT_EQ(VB_IsMissingValueDbl(std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(VB_IsMissingValueDbl(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(FlatContainers, TheMostNegativeDoubleIsMissingButIsSummed)
{
    double lowest = -1.7976931348623157e308;
    double weight = 1.0;
    EXPECT_EQ(VB_IsMissingValueDbl(lowest), -1);
    EXPECT_SAME_BITS(VB_V_Sum(&lowest, 1, nullptr, &weight), lowest);
    double sentinel = MISSING_DBL;
    EXPECT_SAME_BITS(VB_V_Sum(&sentinel, 1, nullptr, &weight), 0.0);
}

TEST(FlatContainers, ATextCellIsMissingWithoutCharacters)
{
    bstr_block block{null, u"", u"a", text(u"\0b", 2)};
    for (const auto& [index, expected] :
         {std::pair(0u, -1), std::pair(1u, -1), std::pair(2u, 0), std::pair(3u, -1)}) {
        VARIANT cell = cellOf(VT_BSTR);
        cell.bstrVal = block[index];
        EXPECT_EQ(VB_IsMissingValueStr(&cell), expected) << index;

        VARIANT byReference = cellOf(VT_BSTR | VT_BYREF);
        byReference.pbstrVal = &block[index];
        EXPECT_EQ(VB_IsMissingValueStr(&byReference), expected) << index;

        VARIANT toCell = cellOf(VT_VARIANT | VT_BYREF);
        toCell.pvarVal = &cell;
        EXPECT_EQ(VB_IsMissingValueStr(&toCell), expected) << index;
    }
}

TEST(FlatContainers, AnEmptyCellIsMissing)
{
    for (const VARTYPE type : {VT_EMPTY, VT_NULL}) {
        VARIANT cell = cellOf(type);
        EXPECT_EQ(VB_IsMissingValueStr(&cell), -1) << type;
    }
}

TEST(FlatContainers, ANumberCellIsNeverMissing)
{
    for (const VARTYPE type : {VT_I2, VT_I4, VT_R4, VT_R8, VT_CY, VT_DATE, VT_BOOL, VT_UI1, VT_I8, VT_INT}) {
        VARIANT cell = cellOf(type);
        EXPECT_EQ(VB_IsMissingValueStr(&cell), 0) << type;
    }
    VARIANT cell = cellOf(VT_R8);
    cell.dblVal = MISSING_DBL;
    EXPECT_EQ(VB_IsMissingValueStr(&cell), 0);
    cell.dblVal = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(VB_IsMissingValueStr(&cell), 0);
}

TEST(LinkedContainers, BothTestsOfTextAreThere)
{
    bstr_block block{null, u"a"};
    EXPECT_EQ(IsMissingValue(text()), -1);
    EXPECT_EQ(IsMissingValue(text(u"a")), 0);
    EXPECT_EQ(IsMissingValue(block[0]), -1);
    EXPECT_EQ(IsMissingValue(block[1]), 0);
    auto x = numbered<double>(3, 1);
    x[1] = MISSING_DBL;
    std::array<short int, 3> flags{0, 0, -1};
    EXPECT_EQ(V_GetMissingDbl(&x, 3, flags.data(), flags.data()), 0);
    EXPECT_EQ(flags, (std::array<short int, 3>{0, -1, -1}));
}
