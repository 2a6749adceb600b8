#include "containers/element_types.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/bits.h"
#include "support/host_arrays.h"

#include <array>
#include <bit>
#include <boost/numeric/conversion/cast.hpp>
#include <cstdint>
#include <limits>
#include <new>
#include <string>

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
    EXPECT_TRUE(sameBits(VB_V_Sum(&lowest, 1, nullptr, &weight), lowest));
    double sentinel = MISSING_DBL;
    EXPECT_TRUE(sameBits(VB_V_Sum(&sentinel, 1, nullptr, &weight), 0.0));
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

TEST(FlatContainers, TheTextsOfAHostArrayAreItsData)
{
    host_array array(VT_BSTR, {2}, {u"a", u"b"});
    EXPECT_EQ(static_cast<void*>(ExtractBSTR(array.address())), array->pvData);

    SAFEARRAY* none = nullptr;
    EXPECT_EQ(ExtractBSTR(&none), nullptr);
    SAFEARRAY withoutData{};
    SAFEARRAY* descriptor = &withoutData;
    EXPECT_EQ(ExtractBSTR(&descriptor), nullptr);
}

#if !defined(_WIN32)

TEST(FlatContainers, ALineGoesToTheDebugger)
{
    const auto lastLine = [] {
        std::array<char, 2000> line{};
        KorvelLastDebugLine(line.data(), line.size());
        return std::string(line.data());
    };
    KorvelAutomationCounters before{};
    KorvelReadAutomationCounters(&before);
    dprint(1.5, "x =");
    EXPECT_EQ(lastLine(), "x =                   1.5000000000000000\n");
    dprint(-1.0 / 3.0, "");
    EXPECT_EQ(lastLine(), "                  -0.3333333333333333\n");
    dprint(1e20, "big");
    EXPECT_EQ(lastLine(), "big 100000000000000000000.0000000000000000\n");

    // The block has room for 999 bytes and the closing NUL.
    dprint(1.0, std::string(2000, 'y').c_str());
    EXPECT_EQ(lastLine(), std::string(999, 'y'));
    dprint(1.0, std::string(980, 'y').c_str());
    EXPECT_EQ(lastLine(), std::string(980, 'y').append(19, ' '));

    KorvelAutomationCounters after{};
    KorvelReadAutomationCounters(&after);
    EXPECT_EQ(after.debugLines - before.debugLines, 5);
}

#else

TEST(FlatContainers, ALineGoesToTheDebugger)
{
    dprint(1.5, "x =");
    dprint(MISSING_DBL, std::string(2000, 'y').c_str());
}

#endif

// The container itself, as a module sees it that links against the library.

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

TEST(LinkedContainers, AnAttachedTableResizesItsArray)
{
    const automation_watch watch;
    {
        const host_array numbers({2, 2}, elements<double>(4));
        matrix<double> m(numbers.get());
        m.Redim(3, 3, 4.0);
        EXPECT_EQ(numbers.numbers<double>(9), std::vector<double>(9, 4.0));

        const host_array flags({2}, elements<short int>(2));
        matrix<short int>(flags.get()).Redim(3, 1, -1);
        EXPECT_EQ(flags.numbers<short int>(3), std::vector<short int>(3, -1));

        const host_array integers({2}, elements<int>(2));
        matrix<int>(integers.get()).Redim(3, 1, 7);
        EXPECT_EQ(integers.numbers<int>(3), std::vector<int>(3, 7));

        const host_array texts(VT_BSTR, {2}, {u"a", null});
        {
            matrix<text> t(texts.get());
            t.Redim(3, 1, u"z");
            t[1] = text(u"y");
        }
        EXPECT_EQ(texts.texts(3), (std::vector<place>{u"z", u"y", u"z"}));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(LinkedContainers, TextsComeFromABlockAndFromAnArrayInAnyShape)
{
    bstr_block block{u"a", null, u"c"};
    EXPECT_EQ(linear(matrix<text>(3, 1, block.data(), 0, 0)), (std::vector<text>{u"a", u"", u"c"}));
    const host_array array(VT_BSTR, {2}, {u"a", u"b"});
    EXPECT_EQ(linear(matrix<text>(3, 1, array.get())), (std::vector<text>{u"a", u"b", u""}));
}

TEST(LinkedContainers, ExceptionsComeOutByTheirType)
{
    const host_array array({2, 2}, elements<double>(4));
    array.count(1) = 0x80000000;
    try {
        const matrix<double> m(array.get());
        ADD_FAILURE() << "constructed";
    } catch (const boost::numeric::positive_overflow& overflow) {
        EXPECT_STREQ(overflow.what(), "bad numeric conversion: positive overflow");
    }
    array.count(1) = 2;

    matrix<double> owned(2, 2, 1.0);
    EXPECT_THROW(owned.Redim(65536, 32768), std::bad_alloc);
}
