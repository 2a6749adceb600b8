#include "KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <cmath>

using namespace korvel::test;

TEST(FlatDistances, BetweenColumnsRowsAndToAVector)
{
    guarded<double> x{0, 3, 4, 3}; // columns 0 3 and 4 3, rows 0 4 and 3 3
    guarded<double> w{1, 1};
    guarded<double> out(doubles(4, 7.0));
    EXPECT_EQ(VB_M_EuclidDist2(x.data(), 2, 2, w.data(), out.data(), 0, 0), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 4, 4, 0}));
    EXPECT_EQ(VB_M_EuclidDist2(x.data(), 2, 2, w.data(), out.data(), -1, 2), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, std::sqrt(10.0), std::sqrt(10.0), 0}));
    guarded<double> v{0, 0};
    guarded<double> distances{7, 7};
    EXPECT_EQ(Cpp_M_EuclidDistToVector(x.data(), 2, 2, v.data(), 0, distances.data()), 0);
    EXPECT_EQ(valuesOf(distances), (doubles{std::sqrt(4.5), std::sqrt(12.5)}));
    EXPECT_EQ(Cpp_M_EuclidDistToVector(x.data(), 2, 2, v.data(), -1, distances.data()), 0);
    EXPECT_EQ(valuesOf(distances), (doubles{std::sqrt(8.0), std::sqrt(9.0)}));
    guarded<double> d{7};
    guarded<int> row{7};
    EXPECT_EQ(Cpp_M_GetMaxDistToOrigin(x.data(), 2, 2, d.data(), row.data()), 0);
    EXPECT_EQ(valuesOf(d), (doubles{std::sqrt(18.0)}));
    EXPECT_EQ(valuesOf(row), (ints{2}));
}
