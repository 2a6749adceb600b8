#include "fitting/least_squares.h"

#include "fitting/small_fit.h"
#include "support/example_data.h"
#include "support/special_values.h"

#include <cmath>
#include <limits>

using namespace korvel::test;

namespace
{

const std::vector<double> x1{1, 2, 3, 4, 5, 7};
const std::vector<double> x2{2, 1, 4, 3, 6, 4};
const std::vector<double> y{3, 4, 8, 7, 12, 13};

std::vector<double> joined(std::vector<double> left, const std::vector<double>& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

} // namespace

// Figures of R 4.2.2, lm, in 16 digits: mpg of mtcars on all other columns, and Sepal.Length of iris on the
// other three.

TEST(LeastSquares, AgreesWithROnCars)
{
    small_fit fit(
        exampleColumns("mtcars.csv", {"cyl", "disp", "hp", "drat", "wt", "qsec", "vs", "am", "gear", "carb"}),
        exampleColumns("mtcars.csv", {"mpg"}));
    fit.run();
    expectNear(fit.coefficients,
               {-0.111440477886864, 0.01333523991334116, -0.02148211898913644, 0.7871109722361161,
                -3.715303928327481, 0.8210407496746315, 0.3177628141854156, 2.520226887208429,
                0.655413017081792, -0.1994192548562636, 12.30337415599615},
               1e-11);
    expectNear(fit.errors,
               {1.045023362510022, 0.01785750031412836, 0.02176857925270323, 1.635373068605088,
                1.894414299532708, 0.7308447960234483, 2.104508605707741, 2.056650553482264,
                1.493259961072795, 0.8287524976817675, 18.71788442872142},
               1e-11);
    EXPECT_NEAR(1.0 - fit.swept.getElement(10, 10), 0.8690157644777646, 1e-13);
}

TEST(LeastSquares, AgreesWithROnPowersAndInteractions)
{
    small_fit fit(exampleColumns("mtcars.csv", {"wt", "hp"}), exampleColumns("mtcars.csv", {"mpg"}));
    fit.degree = 2;
    fit.interactions = -1;
    fit.run();
    expectNear(fit.coefficients,
               {-8.375136125147129, -0.1204109962223963, 0.4456026219008849, 0.0001378515232329096,
                0.01203492890049919, 49.88390645557222},
               1e-10);
    expectNear(fit.errors,
               {2.758787880955285, 0.05716542667801133, 0.7903419182490228, 0.0001049574702452578,
                0.02170595818376136, 3.651031493513222},
               1e-10);
}

TEST(LeastSquares, TakesWeightsForCounts)
{
    // In R each row stands as often as its weight says.
    small_fit fit(exampleColumns("mtcars.csv", {"wt", "hp"}), exampleColumns("mtcars.csv", {"mpg"}));
    for (int i = 0; i < fit.n; ++i) {
        fit.weights[i] = 1 + i % 4;
    }
    fit.run();
    expectNear(fit.coefficients, {-4.331629725476102, -0.03150117966747006, 38.74191058757352}, 1e-12);
    expectNear(fit.errors, {0.3518024781029207, 0.005156695520007541, 0.8846711284863317}, 1e-12);
}

TEST(LeastSquares, AgreesWithRWithoutAConstant)
{
    small_fit fit(exampleColumns("mtcars.csv", {"wt", "hp"}), exampleColumns("mtcars.csv", {"mpg"}));
    fit.noConstant = 1;
    fit.run();
    expectNear(fit.coefficients, {6.8404499708353, -0.03393525990665769, 0.0}, 1e-12);
    expectNear(fit.errors, {1.894247638192972, 0.03939811500484781, 0.0}, 1e-12);
}

TEST(LeastSquares, AgreesWithROnIris)
{
    small_fit fit(exampleColumns("iris.csv", {"Sepal.Width", "Petal.Length", "Petal.Width"}),
                  exampleColumns("iris.csv", {"Sepal.Length"}));
    fit.run();
    expectNear(fit.coefficients,
               {0.6508371593132183, 0.7091319591367292, -0.5564826601670244, 1.855997492917544}, 1e-12);
    expectNear(fit.errors, {0.06664739438650054, 0.0567192880204781, 0.1275479495665889, 0.2507771127558052},
               1e-12);
    EXPECT_NEAR(1.0 - fit.swept.getElement(3, 3), 0.8586117200663178, 1e-14);
}

TEST(LeastSquares, RefusesTheSecondOfTwoIdenticalColumns)
{
    small_fit twice(joined(x1, x1), y);
    twice.run(7.0);
    small_fit once(x1, y);
    once.run();
    EXPECT_SAME_BITS(twice.coefficients[0], once.coefficients[0]);
    EXPECT_SAME_BITS(twice.coefficients[1], 7.0) << "left as it was";
    EXPECT_SAME_BITS(twice.errors[1], 7.0);
    EXPECT_SAME_BITS(twice.deviations[1], 0.0);
    EXPECT_SAME_BITS(twice.means[1], twice.means[0]);
    EXPECT_SAME_BITS(twice.swept.getElement(1, 1), 0.0);
    EXPECT_SAME_BITS(twice.swept.getElement(2, 1), 0.0);
    EXPECT_SAME_BITS(twice.errors[0], once.errors[0]) << "it takes no degree of freedom";
}

TEST(LeastSquares, WorksFromWhatStoodInTheElementsOfRefusedTerms)
{
    // The intercept loses the mean of the refused term times the coefficient that was there.
    small_fit fit(joined(x1, x1), y);
    fit.run(7.0);
    const double mean = fit.means[0];
    EXPECT_NEAR(fit.coefficients[2], fit.means[2] - mean * fit.coefficients[0] - mean * 7.0, 1e-12);
    EXPECT_NEAR(fit.fitted[0], fit.coefficients[2] + x1[0] * (fit.coefficients[0] + 7.0), 1e-12);
}

TEST(LeastSquares, RefusesAConstantColumn)
{
    small_fit fit({5, 5, 5, 5, 5, 5}, y);
    fit.run();
    EXPECT_SAME_BITS(fit.swept.getElement(0, 0), 0.0);
    EXPECT_SAME_BITS(fit.coefficients[0], 0.0);
    EXPECT_SAME_BITS(fit.coefficients[1], fit.means[1]) << "the mean of the response";
    EXPECT_NEAR(fit.means[1], 47.0 / 6, 1e-15 * 8);
    EXPECT_SAME_BITS(fit.fitted[3], fit.means[1]);
}

TEST(LeastSquares, RefusesADiagonalOfZeroAtAToleranceOfZero)
{
    small_fit fit({5, 5, 5, 5, 5, 5}, y);
    fit.tolerance = 0.0;
    fit.run();
    EXPECT_SAME_BITS(fit.coefficients[0], 0.0);
    EXPECT_SAME_BITS(fit.deviations[0], 0.0);
    fit.tolerance = -1.0;
    fit.run();
    EXPECT_SAME_BITS(fit.swept.getElement(0, 0), -infinite) << "below 0 it is swept in";
}

TEST(LeastSquares, TakesATermOnlyAboveTheTolerance)
{
    // The first pivot is 1.
    small_fit fit(x1, y);
    fit.tolerance = 1.0;
    fit.run();
    EXPECT_SAME_BITS(fit.coefficients[0], 0.0);
    fit.tolerance = std::nextafter(1.0, 0.0);
    fit.run();
    EXPECT_GT(fit.coefficients[0], 1.0);
}

TEST(LeastSquares, OrdersPowersAndThenProducts)
{
    small_fit fit(joined(x1, x2), y);
    fit.degree = 2;
    fit.interactions = -1;
    ASSERT_EQ(fit.terms(), 5);
    fit.run();
    const auto meanOf = [&](auto term) {
        double sum = 0.0;
        for (std::size_t i = 0; i < y.size(); ++i) {
            sum += term(x1[i], x2[i]);
        }
        return sum / 6.0;
    };
    EXPECT_NEAR(fit.means[0], meanOf([](double a, double) { return a; }), 1e-13);
    EXPECT_NEAR(fit.means[1], meanOf([](double, double b) { return b; }), 1e-13);
    EXPECT_NEAR(fit.means[2], meanOf([](double a, double) { return a * a; }), 1e-13);
    EXPECT_NEAR(fit.means[3], meanOf([](double, double b) { return b * b; }), 1e-13);
    EXPECT_NEAR(fit.means[4], meanOf([](double a, double b) { return a * b; }), 1e-13);
    EXPECT_NEAR(fit.means[5], 47.0 / 6, 1e-13);
}

TEST(LeastSquares, OrdersProductsByTheirFirstPredictor)
{
    small_fit fit(joined(joined(x1, x2), {1, 10, 100, 1000, 10000, 100000}), y);
    fit.interactions = -1;
    ASSERT_EQ(fit.terms(), 6);
    fit.run();
    EXPECT_LT(fit.means[3], 20.0) << "1 times 2";
    EXPECT_GT(fit.means[4], 125000.0) << "1 times 3";
    EXPECT_LT(fit.means[5], 90000.0) << "2 times 3";
}

TEST(LeastSquares, AddsProductsOnlyForAFlagOfMinusOne)
{
    small_fit fit(joined(x1, x2), y);
    fit.interactions = 1;
    EXPECT_EQ(fit.terms(), 2);
    fit.run();
    small_fit plain(joined(x1, x2), y);
    plain.run();
    EXPECT_SAME_BITS(fit.coefficients[1], plain.coefficients[1]);
    EXPECT_SAME_BITS(fit.errors[2], plain.errors[2]);
}

TEST(LeastSquares, CountsTerms)
{
    EXPECT_EQ(korvel::designTerms(3, 2, 0), 6);
    EXPECT_EQ(korvel::designTerms(3, 2, -1), 9);
    EXPECT_EQ(korvel::designTerms(3, 0, -1), 3);
    EXPECT_EQ(korvel::designTerms(-3, 2, -1), 0);
    EXPECT_EQ(korvel::designTerms(3, -2, 0), 0);
    EXPECT_EQ(korvel::designTerms(1 << 30, 1 << 30, -1), std::numeric_limits<int>::max() - 1);
}

TEST(LeastSquares, TakesAMissingPredictorOutPairByPair)
{
    auto gap = x2;
    gap[4] = MISSING_DBL;
    small_fit fit(joined(x1, gap), y);
    fit.run();
    small_fit complete(x1, y);
    complete.run();
    EXPECT_SAME_BITS(fit.means[0], complete.means[0]) << "the row stays in the other columns";
    EXPECT_NEAR(fit.means[1], 14.0 / 5, 1e-14);
    EXPECT_SAME_BITS(fit.fitted[4], fit.coefficients[2] + fit.coefficients[0] * x1[4])
        << "the term is left out of the row's value";
    EXPECT_NEAR(fit.fitted[0], fit.coefficients[2] + fit.coefficients[0] + fit.coefficients[1] * 2, 1e-13);
}

TEST(LeastSquares, FitsARowWithoutAResponse)
{
    auto gap = y;
    gap[2] = MISSING_DBL;
    small_fit fit(x1, gap);
    fit.run();
    EXPECT_NEAR(fit.fitted[2], fit.coefficients[1] + 3.0 * fit.coefficients[0], 1e-13);
}

TEST(LeastSquares, PassesRowsOfWeightZeroOverWithoutAConstant)
{
    small_fit fit(x1, y);
    fit.noConstant = -1;
    fit.weights[3] = 0.0;
    fit.Y[3] = infinite; // and what stands there does not matter
    fit.run();
    small_fit without({1, 2, 3, 5, 7}, {3, 4, 8, 12, 13});
    without.noConstant = -1;
    without.run();
    EXPECT_SAME_BITS(fit.coefficients[0], without.coefficients[0]);
    EXPECT_SAME_BITS(fit.errors[0], without.errors[0]);
    EXPECT_SAME_BITS(fit.fitted[3], 4.0 * fit.coefficients[0]) << "it has a fitted value";
}

TEST(LeastSquares, LeavesTheErrorOfAnAbsentConstant)
{
    small_fit fit(x1, y);
    fit.noConstant = 2;
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.coefficients[1], 0.0);
    EXPECT_SAME_BITS(fit.errors[1], 7.0);
}

TEST(LeastSquares, TakesAMissingCellForANumberWithoutAConstant)
{
    auto gap = x1;
    gap[5] = MISSING_DBL;
    small_fit fit(gap, y);
    fit.noConstant = -1;
    fit.run();
    EXPECT_SAME_BITS(fit.swept.getElement(0, 0), -1.0 / infinite) << "its square is infinite";
}

TEST(LeastSquares, WritesNoErrorsWithoutDegreesOfFreedom)
{
    small_fit fit({1, 2}, {1, 5});
    fit.run(7.0);
    EXPECT_NEAR(fit.coefficients[0], 4.0, 1e-14);
    EXPECT_SAME_BITS(fit.errors[0], 7.0);
    // The variance starts from the 7 that stood there, and takes the mean times the 7 of the slope.
    EXPECT_SAME_BITS(fit.errors[1], std::sqrt(7.0 + 10.5 * 10.5));
}

TEST(LeastSquares, TakesPairsOffTheVarianceWithoutDegreesOfFreedomToo)
{
    // Three rows and three coefficients: the residual is 0, and 0 / 0 is left to what it gives.
    small_fit fit({1, 2, 4, 1, 3, 2}, {1, 5, 2});
    fit.run();
    EXPECT_TRUE(std::isnan(fit.errors[2]));
}

TEST(LeastSquares, FitsTheMeanWithoutTerms)
{
    small_fit fit(x1, y);
    fit.p = 0;
    fit.run();
    EXPECT_SAME_BITS(fit.coefficients[0], fit.means[0]);
    // The error of a mean: the deviation over the root of the number of rows.
    EXPECT_NEAR(fit.errors[0], fit.deviations[0] / std::sqrt(6.0), 1e-14);
    fit.p = 1;
    fit.degree = 0;
    fit.run();
    EXPECT_SAME_BITS(fit.coefficients[0], fit.means[0]);
}

TEST(LeastSquares, HandsOutTheWholeSweptTable)
{
    small_fit fit(joined(x1, x2), y);
    fit.run(7.0);
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_SAME_BITS(fit.swept.getElement(i, j), fit.swept.getElement(j, i));
        }
    }
    EXPECT_LT(fit.swept.getElement(0, 0), 0.0) << "the negative of the inverse";
    const double standardised = fit.swept.getElement(2, 1);
    EXPECT_SAME_BITS(fit.coefficients[1], standardised * fit.deviations[2] / fit.deviations[1]);
}

TEST(LeastSquares, GivesLessToThoseWhoAskForLess)
{
    small_fit whole(joined(x1, x2), y);
    whole.run();
    small_fit two(joined(x1, x2), y);
    two.clear();
    OLSBasic2(two.n, two.p, &two.X, &two.Y, &two.weights, 1, 0, 0, 1e-12, &two.coefficients, &two.errors,
              &two.fitted);
    small_fit one(joined(x1, x2), y);
    one.clear();
    OLSBasic(one.n, one.p, &one.X, &one.Y, &one.weights, 1, 0, 0, 1e-12, &one.coefficients, &one.fitted);
    for (int k = 0; k < 3; ++k) {
        EXPECT_SAME_BITS(two.coefficients[k], whole.coefficients[k]);
        EXPECT_SAME_BITS(two.errors[k], whole.errors[k]);
        EXPECT_SAME_BITS(one.coefficients[k], whole.coefficients[k]);
    }
    for (int i = 0; i < 6; ++i) {
        EXPECT_SAME_BITS(two.fitted[i], whole.fitted[i]);
        EXPECT_SAME_BITS(one.fitted[i], whole.fitted[i]);
    }
}

TEST(LeastSquares, RefusesMoreTermsThanATableHolds)
{
    matrix<double> empty;
    matrix<double> none(0, 1, 0.0);
    EXPECT_THROW(
        OLSBasic3(0, 65535, &empty, &none, &none, 1, 0, 0, 0.0, &none, &none, &none, &none, &none, &none),
        std::bad_alloc);
}

TEST(OlsCheckIfIn, ReturnsAPivotThatIsNotAboveTheTolerance)
{
    matrix<double> packed = vectorOf<double>({0.5, 0.9, 1.0});
    EXPECT_SAME_BITS(OLSCheckIfIn(&packed, 1, 1, 0.5), 0.5);
    packed[0] = notANumber;
    EXPECT_TRUE(std::isnan(OLSCheckIfIn(&packed, 1, 1, 0.5)));
    EXPECT_SAME_BITS(OLSCheckIfIn(&packed, -1, 3, 0.5), packed.oobValue) << "of no table";
}

TEST(OlsCheckIfIn, ReturnsTheFirstReciprocalAboveTheTolerance)
{
    // For the response: 1.5² / 1 - 2 = 1/4.
    matrix<double> packed = vectorOf<double>({1.0, 1.5, 2.0});
    EXPECT_SAME_BITS(OLSCheckIfIn(&packed, 1, 1, 0.5), 4.0);
    EXPECT_SAME_BITS(OLSCheckIfIn(&packed, 1, 1, 0.999), 4.0);
    // 1/4 would be below the tolerance: passed over, and the pivot returned.
    packed = vectorOf<double>({1.0, 2.5, 2.25});
    EXPECT_SAME_BITS(OLSCheckIfIn(&packed, 1, 1, 0.5), 1.0);
    EXPECT_SAME_BITS(OLSCheckIfIn(&packed, 1, 1, 0.2), 0.25);
}

TEST(OlsCheckIfIn, NeverReturnsLessThanTheToleranceForAPivotAboveIt)
{
    random_cells cells(5, odd_cells::all);
    for (int repeat = 0; repeat < 2000; ++repeat) {
        matrix<double> packed = cells.values(10);
        const double tolerance = cells.integer(-3, 3) / 7.0;
        for (int k = 1; k <= 3; ++k) {
            EXPECT_EQ(OLSCheckIfIn(&packed, 3, k, tolerance) > tolerance,
                      packed[k * (k + 1) / 2 - 1] > tolerance);
        }
    }
}

TEST(LeastSquares, WithoutAConstantRefusesATermOfTinyDeviation)
{
    // The square of its deviation is below the machine epsilon, so its element of the diagonal is 0.
    small_fit fit({1e-9, 2e-9, 3e-9}, {1.0, 2.0, 4.0});
    fit.noConstant = -1;
    fit.run();
    EXPECT_SAME_BITS(fit.coefficients[0], 0.0);
    EXPECT_SAME_BITS(fit.deviations[0], 0.0);
}

TEST(LeastSquares, WritesTheCoefficientOfATermThatDeviatesByMoreThanItsLimit)
{
    for (const double deviation : {1e-9, 1e-11, 1e-13}) {
        small_fit fit({deviation, 2.0 * deviation, 3.0 * deviation}, {1.0, 2.0, 3.0});
        fit.run(5.0);
        if (deviation > 1e-12) {
            EXPECT_NEAR(fit.coefficients[0] * deviation, 1.0, 1e-12) << deviation;
        } else {
            EXPECT_SAME_BITS(fit.coefficients[0], 5.0) << deviation;
        }
    }
}

TEST(LeastSquares, LeavesPairsOfTinyDeviationsOutOfTheErrorOfTheIntercept)
{
    for (const double scale : {1.0, 1e-9}) {
        small_fit fit({1.0 * scale, 2.0 * scale, 3.0 * scale, 4.0 * scale, 6.0 * scale, 2.0 * scale,
                       1.0 * scale, 4.0 * scale, 3.0 * scale, 7.0 * scale},
                      {1.0, 3.0, 2.0, 5.0, 4.0});
        fit.run();
        const double r = fit.swept.getElement(2, 2);
        double variance = fit.deviations[2] * fit.deviations[2] * 4.0 * r / 2.0 / 5.0;
        for (int k = 0; k < 2; ++k) {
            variance += std::pow(fit.means[k] * fit.errors[k], 2.0);
        }
        const double share = fit.errors[2] / std::sqrt(variance);
        if (scale == 1.0) {
            EXPECT_GT(std::fabs(share - 1.0), 0.01);
        } else {
            EXPECT_NEAR(share, 1.0, 1e-12);
        }
    }
}

TEST(LeastSquares, OfRefusedTermsAloneIsTheMeanWhateverStoodInTheirPlaces)
{
    small_fit fit({5.0, 5.0}, {1.0, 3.0});
    fit.run(7.0);
    EXPECT_SAME_BITS(fit.coefficients[0], 7.0);
    EXPECT_SAME_BITS(fit.coefficients[1], 2.0);
}
