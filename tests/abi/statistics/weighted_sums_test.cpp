#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

} // namespace

TEST(FlatWeightedSums, OfTablesAndOfLabelledTables)
{
    guarded<double> a{1, gone, 3};
    guarded<double> b{10, 20, 30};
    EXPECT_EQ(VB_M_Sums1As2B(a.data(), 3, 1, b.data(), 2.0, 0.5, b.data()), 0);
    EXPECT_EQ(valuesOf(b), (doubles{7, 0, 21}));
    caller_memory caller;
    ST_MVect left = caller.table({caller.column(u"a", doubles{1, gone}), caller.column(u"b", doubles{3, 4})},
                                 {u"a", u"b"});
    ST_MVect out = caller.table({caller.column(u"a", doubles{7, 7, 7}), caller.column(u"b", doubles{7, 7})},
                                {u"a", u"b"});
    EXPECT_EQ(Cpp_M_Sums1As2B_ST(&left, 2, 2, &left, 1.0, 2.0, &out), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(out, 0).Vect), (doubles{3, 0, 7}));
    EXPECT_EQ(numbersIn<double>(columnOf(out, 1).Vect), (doubles{9, 12}));
    ST_MVect right = caller.table(
        {caller.column(u"a", doubles{10, 20}), caller.column(u"b", doubles{30, 40})}, {u"a", u"b"});
    EXPECT_EQ(Cpp_M_Sums1As2B_ST(&left, 2, 2, &right, 1.0, 2.0, &out), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(out, 0).Vect), (doubles{21, 0, 7})) << "each with its own factor";
    EXPECT_EQ(numbersIn<double>(columnOf(out, 1).Vect), (doubles{63, 84}));
    EXPECT_TRUE(caller.guardsIntact());
}
