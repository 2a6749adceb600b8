#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <limits>

using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::valuesOf;

namespace
{

const guarded<double> sample{3.7, -1.25, 8, 0.5, 3.7, 12.125, -4, 0.5, 0.5, 7.75, 2.2};

} // namespace

TEST(FlatDeviations, MeanAbsolute)
{
    guarded<double> x{1, 3, MISSING_DBL, 8};
    guarded<short int> flags{0, 0, 0, -1};
    guarded<double> w{1, 3, 5, 7};
    EXPECT_SAME_BITS(Cpp_V_MeanAbsDev(x.data(), 4, 2.0, flags.data(), w.data()), 1.0);
    EXPECT_SAME_BITS(Cpp_V_MeanAbsDev(x.data(), 4, 1.0, flags.data(), w.data()), 1.5);
    guarded<double> zeros{0, 0, 0, 0};
    EXPECT_SAME_BITS(Cpp_V_MeanAbsDev(x.data(), 4, 2.0, flags.data(), zeros.data()), MISSING_DBL);
    EXPECT_SAME_BITS(Cpp_V_MeanAbsDev(x.data(), 0, 2.0, flags.data(), w.data()), MISSING_DBL);
    // R 4.2.2: mean(abs(x - mean(x)))
    guarded<double> y = sample;
    guarded<short int> none{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    guarded<double> ones{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    const double mean = (3.7 - 1.25 + 8 + 0.5 + 3.7 + 12.125 - 4 + 0.5 + 0.5 + 7.75 + 2.2) / 11;
    EXPECT_NEAR(Cpp_V_MeanAbsDev(y.data(), 11, mean, none.data(), ones.data()), 3.6264462809917357, 2e-15);
    // R 4.2.2: mad(x, constant = 1)
    EXPECT_NEAR(Cpp_V_MedianAbsDev(y.data(), 11, 2.2, none.data(), ones.data()), 1.7, 4e-16);
}

TEST(FlatDeviations, MedianAbsoluteIsWeightedUnlessTheWeightsAreConstant)
{
    guarded<double> x{1, 2, 4, 8};
    guarded<short int> flags{0, 0, 0, 0};
    guarded<double> constant{2, 2, 2, 2};
    guarded<double> uneven{1, 1, 1, 7};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev(x.data(), 4, 0.0, flags.data(), constant.data()), 3.0);
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev(x.data(), 4, 0.0, flags.data(), uneven.data()), 8.0);
    guarded<short int> one{0, 0, 0, 1};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev(x.data(), 4, 0.0, one.data(), constant.data()), 2.0);
    guarded<double> holes{1, 2, 4, MISSING_DBL};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev(holes.data(), 4, 0.0, flags.data(), constant.data()), 2.0);
}

TEST(FlatDeviations, ConstantWeightsOfZeroGiveThePlainMedian)
{
    guarded<double> x{1, 2, 4, 8};
    guarded<short int> flags{0, 0, 0, -1};
    guarded<double> w{0, 0, MISSING_DBL, 0};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev(x.data(), 4, 0.0, flags.data(), w.data()), 2.0);
    guarded<double> onlyThere{0, 0, 0, 1};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev(x.data(), 4, 0.0, flags.data(), onlyThere.data()), MISSING_DBL)
        << "the weight of an element that is left out makes them uneven";
}

TEST(FlatDeviations, AMissingCentreBecomesTheMedian)
{
    guarded<double> x{1, 2, 9};
    double centre = MISSING_DBL;
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev2(x.data(), 3, &centre), 1.0);
    EXPECT_SAME_BITS(centre, 2.0);
    centre = 9.0;
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev2(x.data(), 3, &centre), 7.0);
    EXPECT_SAME_BITS(centre, 9.0);
    guarded<double> holes{MISSING_DBL, 2, 9};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev2(holes.data(), 3, &centre), 0.0);
    guarded<double> mostlyHoles{MISSING_DBL, MISSING_DBL, 9};
    EXPECT_SAME_BITS(Cpp_V_MedianAbsDev2(mostlyHoles.data(), 3, &centre), MISSING_DBL);
}

TEST(FlatDeviations, WinsorizingPullsInTheTails)
{
    guarded<double> x{1, 2, 3, 4, MISSING_DBL, 10};
    EXPECT_EQ(Cpp_V_Winsorize2(x.data(), 6, 0.0, 1.0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3, 4, MISSING_DBL, 10}));
    EXPECT_EQ(Cpp_V_Winsorize2(x.data(), 6, 0.4, 0.8), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 2, 3, 4, MISSING_DBL, 4}));

    // Both bounds come from the original data, and a raised element is not lowered again.
    guarded<double> crossed{1, 2, 3, 4, 5};
    EXPECT_EQ(Cpp_V_Winsorize2(crossed.data(), 5, 1.0, 0.0), 0);
    EXPECT_EQ(valuesOf(crossed), (doubles{5, 5, 5, 5, 1}));
}

TEST(FlatDeviations, WinsorizingLeavesWhatIsNotAboveTheMissingValue)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    guarded<double> x{1, -infinite, 2, MISSING_DBL, 3};
    Cpp_V_Winsorize2(x.data(), 5, 0.75, 1.0);
    EXPECT_EQ(valuesOf(x), (doubles{2, -infinite, 2, MISSING_DBL, 3}));
}
