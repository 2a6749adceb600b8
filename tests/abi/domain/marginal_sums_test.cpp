#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatMarginalSums, TakeRowsAndColumnsOut)
{
    guarded<double> x{1, 0, 3, 0, 0, 0, 4, 0, 6};
    guarded<double> result{7, 7, 7, 7, 7, 7, 7, 7, 7};
    guarded<int> rows{-5};
    guarded<int> cols{-5};
    guarded<int> droppedRows{0, 0, 0};
    guarded<int> droppedCols{0, 0, 0};
    EXPECT_EQ(Cpp_CheckForMarginalSums(x.data(), 3, 3, result.data(), rows.data(), cols.data(),
                                       droppedRows.data(), droppedCols.data()),
              0);
    EXPECT_EQ(valuesOf(result), (doubles{1, 3, 3, 4, 6, 6, 7, 7, 7}));
    EXPECT_EQ(valuesOf(rows), ints{2});
    EXPECT_EQ(valuesOf(cols), ints{2});
    EXPECT_EQ(valuesOf(droppedRows), (ints{0, 1, 0}));
    EXPECT_EQ(valuesOf(droppedCols), (ints{0, 1, 0}));
    EXPECT_EQ(valuesOf(x), (doubles{1, 0, 3, 0, 0, 0, 4, 0, 6}));
    guarded<double> over{0, 0, 1, 2, 7};
    guarded<int> marks{0, 0};
    EXPECT_EQ(Cpp_CheckForMarginalSums(over.data(), 2, 2, over.data() + 1, rows.data(), cols.data(),
                                       droppedRows.data(), marks.data()),
              0);
    EXPECT_EQ(valuesOf(over), (doubles{0, 1, 2, 2, 7})) << "over a part of the table itself";
}

TEST(FlatMarginalSums, OfZerosLeaveNothing)
{
    guarded<double> x{0, 0};
    guarded<double> result{7, 7};
    guarded<int> rows{-5};
    guarded<int> cols{-5};
    guarded<int> droppedRows{0};
    guarded<int> droppedCols{0, 0};
    EXPECT_EQ(Cpp_CheckForMarginalSums(x.data(), 1, 2, result.data(), rows.data(), cols.data(),
                                       droppedRows.data(), droppedCols.data()),
              0);
    EXPECT_EQ(valuesOf(rows), ints{0});
    EXPECT_EQ(valuesOf(cols), ints{0});
    EXPECT_EQ(valuesOf(result), (doubles{7, 7}));
    EXPECT_EQ(Cpp_CheckForMarginalSums(nullptr, 0, 0, nullptr, rows.data(), cols.data(), nullptr, nullptr),
              0);
}
