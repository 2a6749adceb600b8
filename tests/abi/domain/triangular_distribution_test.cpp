#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatTriangularDistribution, GivesBothBounds)
{
    // On 2 to 11 with the mode 6: 4 has the share 4/36, 9 the share 1 - 4/45.
    guarded<double> a{7};
    guarded<double> b{7};
    EXPECT_EQ(Cpp_TriangularQFindAB(4, 6, 9, 4.0 / 36, 1 - 4.0 / 45, a.data(), b.data()), 0);
    EXPECT_NEAR(valuesOf(a)[0], 2, 1e-9);
    EXPECT_NEAR(valuesOf(b)[0], 11, 1e-9);
}
