#include "fitting/least_squares_blocks.h"

#include "fitting/small_fit.h"
#include "support/allocations.h"
#include "support/example_data.h"
#include "support/nist.h"

#include <cmath>
#include <utility>

using namespace korvel::test;

namespace
{

/** The columns of a small fit, the first ones as one table and the others as another. */
struct split_fit : small_fit {
    split_fit(std::vector<double> predictors, std::vector<double> response, int columnsOfTheFirst)
        : small_fit(std::move(predictors), std::move(response)), first(columnsOfTheFirst)
    {
    }

    void run(double before = 0.0)
    {
        clear(before);
        matrix<double> left(n, first, X.data, true);
        matrix<double> right(n, p - first, X.data + n * first, true);
        OLSBasic2Lg(n, first, &left, 0, nullptr, p - first, &right, 0, nullptr, 0, nullptr, &Y, &weights,
                    degree, noConstant, tolerance, &coefficients, &errors, &fitted);
    }

    int first;
};

split_fit cars(int columnsOfTheFirst)
{
    return {exampleColumns("mtcars.csv", {"wt", "hp", "qsec"}), exampleColumns("mtcars.csv", {"mpg"}),
            columnsOfTheFirst};
}

} // namespace

TEST(LeastSquaresBlocks, AgreesWithOneTable)
{
    for (const short int noConstant : {short{0}, short{-1}}) {
        for (const int first : {0, 1, 2, 3}) {
            split_fit apart = cars(first);
            apart.noConstant = noConstant;
            apart.run();
            small_fit together(exampleColumns("mtcars.csv", {"wt", "hp", "qsec"}),
                               exampleColumns("mtcars.csv", {"mpg"}));
            together.noConstant = noConstant;
            together.run();
            for (int k = 0; k < 4; ++k) {
                EXPECT_SAME_BITS(apart.coefficients[k], together.coefficients[k]) << first;
            }
            EXPECT_SAME_BITS(apart.fitted[31], together.fitted[31]);
            if (noConstant == 0) {
                EXPECT_SAME_BITS(apart.errors[2], together.errors[2]);
                EXPECT_SAME_BITS(apart.errors[3], together.errors[3]);
            }
        }
    }
}

TEST(LeastSquaresBlocks, CountsAConstantAmongTheCoefficientsAlways)
{
    // The certified error of NoInt1 is over 10 degrees of freedom; here they are 9.
    const regression_set set = readRegressionSet("NoInt1");
    split_fit fit(set.predictors, set.response, 1);
    fit.noConstant = -1;
    fit.run(7.0);
    EXPECT_NEAR(fit.errors[0], set.errors[0] * std::sqrt(10.0 / 9.0), 1e-14);
    EXPECT_SAME_BITS(fit.coefficients[1], 0.0);
    EXPECT_SAME_BITS(fit.errors[1], 7.0) << "left as it was";
}

TEST(LeastSquaresBlocks, CountsRowsAndNotWeightsForTheErrorsOfTerms)
{
    split_fit fit = cars(2);
    for (int i = 0; i < fit.n; ++i) {
        fit.weights[i] = 2.0;
    }
    fit.run();
    split_fit plain = cars(2);
    plain.run();
    EXPECT_NEAR(fit.coefficients[0], plain.coefficients[0], 1e-12);
    // The square is r·T/e with r and T as before: only the ratio of the deviations matters, which is the
    // same.
    EXPECT_NEAR(fit.errors[0], plain.errors[0], 1e-12);
}

TEST(LeastSquaresBlocks, WritesNothingForAnyOtherDegreeOrWithoutAColumn)
{
    split_fit fit = cars(1);
    fit.degree = 2;
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.coefficients[0], 7.0);
    EXPECT_SAME_BITS(fit.coefficients[3], 7.0);
    EXPECT_SAME_BITS(fit.errors[3], 7.0);
    EXPECT_SAME_BITS(fit.fitted[0], 7.0);
    OLSBasic2Lg(fit.n, 0, nullptr, -2, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, &fit.Y, &fit.weights, 1,
                0, 1e-12, &fit.coefficients, &fit.errors, &fit.fitted);
    EXPECT_SAME_BITS(fit.coefficients[0], 7.0);
    EXPECT_SAME_BITS(fit.fitted[0], 7.0);
}

TEST(LeastSquaresBlocks, HasErrorsOfZeroWithOneRowMoreThanTerms)
{
    split_fit fit({1, 2, 4, 1, 3, 2}, {1, 5, 2}, 1);
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.errors[0], 0.0);
    EXPECT_SAME_BITS(fit.errors[1], 0.0);
    EXPECT_SAME_BITS(fit.errors[2], 0.0) << "W - P - 1 is 0 too, and the pair sets the sum to 0";
    EXPECT_NEAR(fit.fitted[1], 5.0, 1e-13);
}

TEST(LeastSquaresBlocks, StartsTheInterceptsErrorAtZeroWithOneRowMoreThanTerms)
{
    // One term, so that no pair resets the sum; refused, so that the response is not explained; and weights
    // that leave W - P - 1 above 0.
    split_fit fit({5, 5}, {1, 5}, 1);
    fit.weights[0] = 3.0;
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.coefficients[0], 7.0);
    EXPECT_SAME_BITS(fit.coefficients[1], 2.0) << "the mean, whatever stood in the place of the coefficient";
    EXPECT_SAME_BITS(fit.errors[0], 0.0);
    EXPECT_SAME_BITS(fit.errors[1], 0.0);
}

TEST(LeastSquaresBlocks, HasMissingErrorsWithFewerRowsThanCoefficients)
{
    // The second and third term are the first one again.
    split_fit fit({1, 2, 4, 1, 2, 4, 1, 2, 4}, {1, 5, 2}, 1);
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.errors[0], MISSING_DBL);
    EXPECT_SAME_BITS(fit.errors[1], 0.0) << "refused";
    EXPECT_SAME_BITS(fit.errors[2], 0.0) << "refused";
}

TEST(LeastSquaresBlocks, OfAnotherDegreeReadsNothing)
{
    matrix<double> weights(2, 1, 1.0);
    matrix<double> untouched(2, 1, 7.0);
    OLSBasic2Lg(2, 1, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, nullptr, &weights, 2, 0, 1e-12,
                &untouched, &untouched, &untouched);
    EXPECT_SAME_BITS(untouched[0], 7.0);
}

TEST(LeastSquaresBlocks, LeavesTheCoefficientOfARefusedTerm)
{
    split_fit fit({1, 2, 3, 4, 5, 1, 2, 3, 4, 5}, {3, 4, 8, 7, 12}, 1);
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.coefficients[1], 7.0);
    EXPECT_SAME_BITS(fit.errors[1], 0.0) << "its error is written";
    split_fit alone({1, 2, 3, 4, 5}, {3, 4, 8, 7, 12}, 1);
    alone.run();
    // Three degrees of freedom for the term alone; beside a refused one they are two.
    EXPECT_NEAR(fit.errors[0], alone.errors[0] * std::sqrt(3.0 / 2.0), 1e-14);
}

TEST(LeastSquaresBlocks, TakesAConstantColumnOfAnotherTableOut)
{
    // Its correlations with the other table are missing, and swept like numbers; the other terms are
    // untouched by that.
    split_fit fit({5, 5, 5, 5, 5, 1, 2, 3, 4, 5}, {3, 4, 8, 7, 12}, 1);
    fit.run();
    split_fit alone({1, 2, 3, 4, 5}, {3, 4, 8, 7, 12}, 1);
    alone.run();
    EXPECT_SAME_BITS(fit.coefficients[0], 0.0);
    EXPECT_SAME_BITS(fit.coefficients[1], alone.coefficients[0]);
    EXPECT_SAME_BITS(fit.coefficients[2], alone.coefficients[1]);
}

TEST(LeastSquaresBlocks, TakesSmallVariancesForUndefinedBetweenTablesAlone)
{
    // Products of variances below 1e-12: in one table the correlation stands, between two it is missing.
    std::vector<double> cells{1e-4, 2e-4, 3e-4, 4e-4, 5e-4, 2e-4, 1e-4, 4e-4, 3e-4, 7e-4};
    split_fit apart(cells, {3, 4, 8, 7, 12}, 1);
    apart.run();
    split_fit together(cells, {3, 4, 8, 7, 12}, 2);
    together.run();
    EXPECT_GT(std::fabs(together.coefficients[1]), 1.0);
    EXPECT_SAME_BITS(apart.errors[1], 0.0) << "minus infinity is left of its pivot";
    EXPECT_SAME_BITS(apart.coefficients[1], 0.0);
}

TEST(LeastSquaresBlocks, CopiesNoTable)
{
    constexpr int n = 100000;
    random_cells cells(1, odd_cells::none);
    matrix<double> left = cells.values(n * 2);
    matrix<double> right = cells.values(n * 2);
    for (matrix<double>* table : {&left, &right}) {
        table->nbrows = n;
        table->nbcols = 2;
    }
    matrix<double> Y = cells.values(n);
    matrix<double> weights(n, 1, 1.0);
    matrix<double> coefficients(5, 1, 0.0);
    matrix<double> errors(5, 1, 0.0);
    matrix<double> fitted(n, 1, 0.0);
    for (const short int noConstant : {short{0}, short{-1}}) {
        (void)takeLargestAllocation();
        OLSBasic2Lg(n, 2, &left, 2, &right, 0, nullptr, 0, nullptr, 0, nullptr, &Y, &weights, 1, noConstant,
                    1e-12, &coefficients, &errors, &fitted);
        EXPECT_LT(takeLargestAllocation(), std::int64_t{8} * n) << "not even one column; " << noConstant;
    }
}

TEST(LeastSquaresBlocks, ResetsTheVarianceOfTheInterceptWhenTheWeightsLeaveNoFreedom)
{
    // Five rows of weights that add up to 3, two terms and the constant: the weights are used up, the rows
    // are not.
    split_fit fit({1.0, 2.0, 3.0, 4.0, 6.0, 2.0, 1.0, 4.0, 3.0, 7.0}, {1.0, 3.0, 2.0, 5.0, 4.0}, 1);
    const double weights[] = {0.5, 0.5, 0.5, 0.5, 1.0};
    for (int i = 0; i < fit.n; ++i) {
        fit.weights[i] = weights[i];
    }
    fit.run(5.0);
    EXPECT_GT(fit.errors[0], 0.0);
    EXPECT_SAME_BITS(fit.errors[2], 0.0);
}

TEST(LeastSquaresBlocks, TakesTheCountsTogetherAsTheyAre)
{
    split_fit fit = cars(1);
    fit.clear(7.0);
    OLSBasic2Lg(fit.n, 1, &fit.X, -1, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, &fit.Y, &fit.weights, 1, 0,
                1e-12, &fit.coefficients, &fit.errors, &fit.fitted);
    EXPECT_SAME_BITS(fit.coefficients[0], 7.0) << "they add up to 0";
    EXPECT_SAME_BITS(fit.fitted[0], 7.0);
    OLSBasic2Lg(fit.n, 2, &fit.X, -1, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, &fit.Y, &fit.weights, 1, 0,
                1e-12, &fit.coefficients, &fit.errors, &fit.fitted);
    const matrix<double> both(fit.coefficients);
    OLSBasic2Lg(fit.n, 2, &fit.X, 0, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, &fit.Y, &fit.weights, 1, 0,
                1e-12, &fit.coefficients, &fit.errors, &fit.fitted);
    for (int k = 0; k < 3; ++k) {
        EXPECT_SAME_BITS(fit.coefficients[k], both.data[k]);
    }
}

TEST(LeastSquaresBlocks, HasAMissingErrorOfTheInterceptWhereTheSumIsNegative)
{
    // The weights add up to 1.5, which leaves -0.5 degrees of freedom; and the mean of the term is 0.
    split_fit fit({-1, 0, 1}, {1, 2, 4}, 1);
    for (int i = 0; i < fit.n; ++i) {
        fit.weights[i] = 0.5;
    }
    fit.run(7.0);
    EXPECT_GT(fit.errors[0], 0.0);
    EXPECT_SAME_BITS(fit.errors[1], MISSING_DBL);
}

TEST(LeastSquaresBlocks, LeavesATermThatHardlyVaries)
{
    // It is taken in, but its deviation is not above 1e-12.
    split_fit fit({-1e-13, 0, 1e-13, 1, 2, 4}, {1, 2, 4}, 2);
    fit.p = 1;
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.coefficients[0], 7.0);
    EXPECT_SAME_BITS(fit.errors[0], 7.0) << "neither 0, as of a term that was refused";
}
