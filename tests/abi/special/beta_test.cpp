#include "special/beta.h"

#include "special/log_binomial.h"
#include "special/log_gamma.h"

#include <cmath>
#include <gtest/gtest.h>
#include <korvelmathtools/containers/missing_values.h>

namespace
{

TEST(SpecialFunctions, AreCalledThroughTheLibrary)
{
    EXPECT_EQ(GammaLn(1.0), 0.0);
    EXPECT_EQ(GammaLnCorr(1e9), 1.0 / 1.2e10);
    EXPECT_EQ(chebyshev_eval(1.2, 5), KORVEL_MISSING_DBL);
    EXPECT_NEAR(betaln(2.0, 3.0), -std::log(12.0), 1e-14);
    EXPECT_EQ(cLogCnk(10.0, 1.0), std::log(10.0));
    EXPECT_EQ(LogCnk(10.0, 9.0), std::log(10.0));
    EXPECT_NEAR(IncompleteBetaR(0.5, 2.0, 3.0), 11.0 / 16.0, 1e-15);
    EXPECT_NEAR(IncompleteBeta(0.5, 2.0, 3.0), 11.0 / 192.0, 1e-15);
    double w = -2.0;
    double w1 = -2.0;
    int status = -2;
    bratio(2.0, 3.0, 0.0, 1.0, &w, &w1, &status, 1);
    EXPECT_EQ(w, KORVEL_MISSING_DBL);
    EXPECT_EQ(w1, 0.0);
    EXPECT_EQ(status, 0);
}

} // namespace
