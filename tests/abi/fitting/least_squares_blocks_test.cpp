#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

const std::vector<double> x1{1, 2, 3, 4, 6};
const std::vector<double> x2{2, 1, 5, 3, 4};
const std::vector<double> response{1, 4, 2, 6, 9};
const std::vector<double> ones(5, 1.0);

struct results {
    explicit results(std::size_t order)
        : coefficients(std::vector<double>(order, 7.0)), errors(std::vector<double>(order, 7.0)),
          fitted(std::vector<double>(5, 7.0))
    {
    }

    guarded<double> coefficients;
    guarded<double> errors;
    guarded<double> fitted;
};

} // namespace

TEST(FlatLeastSquaresBlocks, FitsColumnsOfTwoTables)
{
    results out(2);
    EXPECT_EQ(RunOLSBasic2Lg(5, 0, nullptr, 1, x1.data(), 0, nullptr, 0, nullptr, 0, nullptr, response.data(),
                             ones.data(), 1, 0, 0, 1e-12, out.coefficients.data(), out.errors.data(),
                             out.fitted.data()),
              0);
    // R 4.2.2: lm(c(1, 4, 2, 6, 9) ~ c(1, 2, 3, 4, 6))
    EXPECT_NEAR(valuesOf(out.coefficients)[0], 1.527027027027027, 1e-12);
    EXPECT_NEAR(valuesOf(out.errors)[1], 1.41020490250752, 1e-12);
}

TEST(FlatLeastSquaresBlocks, LeavesTheTailForInteractionsZero)
{
    const std::vector<double> other{2, 1, 4, 3, 4};
    results out(4);
    EXPECT_EQ(RunOLSBasic2Lg(5, 1, x1.data(), 1, other.data(), 0, nullptr, 0, nullptr, 0, nullptr,
                             response.data(), ones.data(), 1, -1, 0, 1e-12, out.coefficients.data(),
                             out.errors.data(), out.fitted.data()),
              0);
    EXPECT_NE(valuesOf(out.coefficients)[2], 0.0) << "the intercept comes after the two columns";
    EXPECT_SAME_BITS(valuesOf(out.coefficients)[3], 0.0);
    EXPECT_SAME_BITS(valuesOf(out.errors)[3], 0.0);
}

TEST(FlatLeastSquaresBlocks, ClearsItsResultsForAnotherDegree)
{
    const std::vector<double> other{2, 1, 4, 3, 4};
    results out(5);
    EXPECT_EQ(RunOLSBasic2Lg(5, 1, x1.data(), 1, other.data(), 0, nullptr, 0, nullptr, 0, nullptr,
                             response.data(), ones.data(), 2, 0, 0, 1e-12, out.coefficients.data(),
                             out.errors.data(), out.fitted.data()),
              0);
    expectCells(out.coefficients, {0, 0, 0, 0, 0});
    expectCells(out.errors, {0, 0, 0, 0, 0});
    expectCells(out.fitted, {0, 0, 0, 0, 0});
}

TEST(FlatLeastSquaresBlocks, PassesTablesWithoutColumnsOver)
{
    results out(3);
    EXPECT_EQ(RunOLSBasic2Lg(5, 0, nullptr, 1, x1.data(), 0, nullptr, 1, x2.data(), 0, nullptr,
                             response.data(), ones.data(), 1, 0, -1, 1e-12, out.coefficients.data(),
                             out.errors.data(), out.fitted.data()),
              0);
    EXPECT_NE(valuesOf(out.coefficients)[1], 0.0);
    EXPECT_SAME_BITS(valuesOf(out.coefficients)[2], 0.0);
    EXPECT_SAME_BITS(valuesOf(out.errors)[2], 0.0);
}

TEST(FlatLeastSquaresBlocks, FitsEachOfTheFiveTables)
{
    const std::vector<double> columns{1, 2, 3, 4, 6, 5, 7, 9, 2, 1, 5, 3, 4, 8, 6, 6, 3, 1, 4, 1,
                                      5, 9, 2, 6, 2, 7, 1, 8, 2, 8, 1, 8, 1, 6, 1, 8, 0, 3, 3, 9};
    const std::vector<double> y{1, 4, 2, 6, 9, 7, 5, 3};
    const std::vector<double> weights(8, 1.0);
    guarded<double> coefficients(std::vector<double>(6, 7.0));
    guarded<double> errors(std::vector<double>(6, 7.0));
    guarded<double> fitted(std::vector<double>(8, 7.0));
    const double* const x = columns.data();
    RunOLSBasic2Lg(8, 1, x, 1, x + 8, 1, x + 16, 1, x + 24, 1, x + 32, y.data(), weights.data(), 1, 0, 0,
                   1e-12, coefficients.data(), errors.data(), fitted.data());
    guarded<double> ofOneTable(std::vector<double>(6, 7.0));
    guarded<double> itsErrors(std::vector<double>(6, 7.0));
    guarded<double> itsFitted(std::vector<double>(8, 7.0));
    RunOLSBasic2(8, 5, x, y.data(), weights.data(), 1, 0, 0, 1e-12, ofOneTable.data(), itsErrors.data(),
                 itsFitted.data());
    expectCells(coefficients, valuesOf(ofOneTable));
    expectCells(fitted, valuesOf(itsFitted));
    EXPECT_NE(valuesOf(coefficients)[4], 0.0);
}

TEST(FlatLeastSquaresBlocks, HasRoomForTheSumOfTheCounts)
{
    results none(1);
    EXPECT_EQ(RunOLSBasic2Lg(5, 1, x1.data(), -1, nullptr, 0, nullptr, 0, nullptr, 0, nullptr,
                             response.data(), ones.data(), 1, 0, 0, 1e-12, none.coefficients.data(),
                             none.errors.data(), none.fitted.data()),
              0);
    expectCells(none.coefficients, {0});
    expectCells(none.fitted, {0, 0, 0, 0, 0});
    // The intercept has no room, and is in the fitted values all the same.
    const std::vector<double> both{1, 2, 3, 4, 6, 2, 1, 5, 3, 4};
    results out(2);
    results whole(3);
    RunOLSBasic2Lg(5, 2, both.data(), -1, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, response.data(),
                   ones.data(), 1, 0, 0, 1e-12, out.coefficients.data(), out.errors.data(),
                   out.fitted.data());
    RunOLSBasic2Lg(5, 2, both.data(), 0, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, response.data(),
                   ones.data(), 1, 0, 0, 1e-12, whole.coefficients.data(), whole.errors.data(),
                   whole.fitted.data());
    expectCells(out.coefficients, {valuesOf(whole.coefficients)[0], valuesOf(whole.coefficients)[1]});
    expectCells(out.fitted, valuesOf(whole.fitted));
}
