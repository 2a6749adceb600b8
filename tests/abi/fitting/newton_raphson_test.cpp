#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatNewtonRaphson, TakesOneStep)
{
    guarded<double> parameters{10, 20};
    guarded<int> constraints{0, 0};
    guarded<double> gradient{4, 32};
    guarded<double> hessian{2, 0, 0, 8};
    guarded<double> errors{7, 7};
    guarded<double> inverse{7, 7, 7, 7};
    EXPECT_EQ(NewtonRaphson(parameters.data(), 2, constraints.data(), gradient.data(), hessian.data(), 1e-9,
                            errors.data(), inverse.data(), 0, 1.0),
              0);
    expectCells(parameters, {8, 16});
    expectCells(errors, {std::sqrt(0.5), std::sqrt(0.125)});
    expectCells(inverse, {0.5, 0, 0, 0.125});
    EXPECT_EQ(NewtonRaphson(parameters.data(), 2, constraints.data(), gradient.data(), hessian.data(), 4.0,
                            errors.data(), inverse.data(), 0, 1.0),
              1);
    expectCells(parameters, {6, 12});
}

TEST(FlatNewtonRaphson, LimitsForAnyFlagButZero)
{
    for (const short int flag : {short{-1}, short{1}, short{5}}) {
        guarded<double> parameters{10, 20};
        guarded<int> constraints{0, 0};
        guarded<double> gradient{4, 32};
        guarded<double> hessian{2, 0, 0, 8};
        guarded<double> errors{7, 7};
        guarded<double> inverse{7, 7, 7, 7};
        NewtonRaphson(parameters.data(), 2, constraints.data(), gradient.data(), hessian.data(), 1e-9,
                      errors.data(), inverse.data(), flag, 1.0);
        expectCells(parameters, {9.5, 19});
    }
}

TEST(FlatNewtonRaphson, ClearsTheResultsOfFixedParameters)
{
    guarded<double> parameters{10, 20};
    guarded<int> constraints{1, 0};
    guarded<double> gradient{4, 32};
    guarded<double> hessian{2, 0, 0, 8};
    guarded<double> errors{7, 7};
    guarded<double> inverse{7, 7, 7, 7};
    EXPECT_EQ(NewtonRaphson(parameters.data(), 2, constraints.data(), gradient.data(), hessian.data(), 1e-9,
                            errors.data(), inverse.data(), -1, 8.0),
              0);
    expectCells(parameters, {10, 16});
    expectCells(errors, {0, std::sqrt(0.125)});
    expectCells(inverse, {0, 0, 0, 0.125});
}
