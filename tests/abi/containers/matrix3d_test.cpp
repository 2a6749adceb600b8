#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"

#include <limits>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

} // namespace

TEST(FlatRecordTest, SumsAllColumns)
{
    caller_memory caller;
    ST_MVect record = caller.table(
        {caller.column(u"x", numbers{1.0, 2.0, 3.0}), caller.column(u"y", numbers{0.5})}, {u"x", u"y"});
    EXPECT_SAME_BITS(Cpp_Test(&record), 6.5);
    // In ascending order the first 1 is lost to rounding and the second is not.
    ST_MVect ordered = caller.table({caller.column(u"x", numbers{1.0}), caller.column(u"y", numbers{0x1p53}),
                                     caller.column(u"z", numbers{-0x1p53, 1.0})},
                                    {u"x", u"y", u"z"});
    EXPECT_SAME_BITS(Cpp_Test(&ordered), 1.0);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatRecordTest, TakesMissingNumbersAsTheyAre)
{
    caller_memory caller;
    constexpr double missing = -1.79769313486231e308;
    ST_MVect record = caller.table({caller.column(u"x", numbers{1.0, missing})}, {u"x"});
    EXPECT_SAME_BITS(Cpp_Test(&record), missing);
}

TEST(FlatRecordTest, IsZeroWithoutColumns)
{
    caller_memory caller;
    ST_MVect record = caller.table({}, {});
    EXPECT_SAME_BITS(Cpp_Test(&record), 0.0) << "no records";
    record.Vectors->pvData = nullptr;
    EXPECT_SAME_BITS(Cpp_Test(&record), 0.0) << "no block";
    record.Vectors = nullptr;
    EXPECT_SAME_BITS(Cpp_Test(&record), 0.0) << "no array";

    ST_MVect hollow = caller.table({caller.column(u"x", numbers{1.0})}, {u"x"});
    columnOf(hollow, 0).Vect = nullptr;
    EXPECT_SAME_BITS(Cpp_Test(&hollow), 0.0) << "a column that is not there";
}
