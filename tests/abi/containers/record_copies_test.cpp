#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"

#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

} // namespace

#if !defined(_WIN32)
#include "platform/automation/counters.h"
#endif

TEST(FlatRecords, CopyADenseTableIntoARecord)
{
    caller_memory caller;
    ST_MVect record =
        caller.table({caller.column(u"x", numbers{0.0, 0.0, 9.0}), caller.column(u"y", numbers{0.0, 0.0}),
                      caller.column(u"z", numbers{8.0})},
                     {u"a", u"b", u"c"});
    const ST_MVect before = record;
    numbers cells{1.0, 2.0, 3.0, 4.0};
    EXPECT_EQ(Cpp_CopyDblToMVDbl(cells.data(), 2, 2, &record), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), (numbers{1.0, 2.0, 9.0}));
    EXPECT_EQ(numbersIn<double>(columnOf(record, 1).Vect), (numbers{3.0, 4.0}));
    EXPECT_EQ(numbersIn<double>(columnOf(record, 2).Vect), numbers{8.0});
    EXPECT_EQ(cells, (numbers{1.0, 2.0, 3.0, 4.0}));
    EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
    EXPECT_EQ(textsIn(record.CLabels), (texts{u"a", u"b", u"c"}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatRecords, CopyOfNothingReadsNothing)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{5.0})}, {u"a"});
    EXPECT_EQ(Cpp_CopyDblToMVDbl(nullptr, 0, 0, &record), 0);
    EXPECT_EQ(Cpp_CopyDblToMVDbl(nullptr, 0, 1, &record), 0);
    EXPECT_EQ(Cpp_CopyDblToMVDbl(nullptr, 3, 0, &record), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), numbers{5.0});
}

TEST(FlatRecords, CopyPastTheRoomOfARecordStaysInside)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{5.0})}, {u"a"});
    numbers cells{1.0, 2.0, 3.0, 4.0};
    EXPECT_EQ(Cpp_CopyDblToMVDbl(cells.data(), 2, 2, &record), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), numbers{1.0});
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatRecords, DuplicateALowerTriangle)
{
    caller_memory caller;
    ST_MVect src =
        caller.table({caller.column(u"", numbers{1.0, 2.0, 3.0}), caller.column(u"", numbers{4.0, 5.0, 6.0}),
                      caller.column(u"", numbers{7.0, 8.0, 9.0})},
                     {u"", u"", u""});
    ST_MVect dst = caller.table(
        {caller.column(u"p", numbers{0.5, 0.5, 0.5}), caller.column(u"q", numbers{0.5})}, {u"s", u"t"});
    const ST_MVect before = dst;
    EXPECT_EQ(Cpp_M_DuplicateMVDblTriang_ST(&src, &dst), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(dst, 0).Vect), (numbers{1.0, 0.5, 0.5}));
    EXPECT_EQ(numbersIn<double>(columnOf(dst, 1).Vect), numbers{4.0});
    EXPECT_EQ(std::memcmp(&dst, &before, sizeof dst), 0);
    EXPECT_TRUE(caller.guardsIntact());

    EXPECT_EQ(Cpp_M_DuplicateMVDblTriang_ST(&src, &src), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(src, 2).Vect), (numbers{7.0, 8.0, 9.0}));
}

TEST(FlatRecords, LetTheOverflowOfADimensionPass)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{5.0})}, {u"a"});
    double cell = 1.0;
    ULONG& count = columnOf(record, 0).Vect->rgsabound[0].cElements;
    count = 0x80000000u;
    try {
        Cpp_CopyDblToMVDbl(&cell, 1, 1, &record);
        ADD_FAILURE();
    } catch (const boost::numeric::positive_overflow& failure) {
        EXPECT_STREQ(failure.what(), "bad numeric conversion: positive overflow");
    }
    count = 1;
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), numbers{5.0});
}

#if !defined(_WIN32)
TEST(FlatRecords, AllocateNoTextOfTheCallersAndNoArray)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{5.0})}, {u"a"});
    double cell = 1.0;
    KorvelAutomationCounters before{};
    KorvelAutomationCounters after{};
    KorvelReadAutomationCounters(&before);
    Cpp_CopyDblToMVDbl(&cell, 1, 1, &record);
    Cpp_M_DuplicateMVDblTriang_ST(&record, &record);
    KorvelReadAutomationCounters(&after);
    EXPECT_EQ(std::memcmp(&before, &after, sizeof before), 0);
}
#endif
