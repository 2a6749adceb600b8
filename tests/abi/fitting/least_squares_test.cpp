#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <new>
#include <vector>

using namespace korvel::test;

namespace
{

// y = 1 + 2·x1 - x2, exactly.
const std::vector<double> predictors{1, 2, 3, 4, 6, 2, 1, 5, 3, 4};
const std::vector<double> response{1, 4, 2, 6, 9};
const std::vector<double> ones(5, 1.0);

void expectNear(const guarded<double>& found, const std::vector<double>& expected)
{
    const auto cells = valuesOf(found);
    ASSERT_EQ(cells.size(), expected.size());
    for (std::size_t k = 0; k < cells.size(); ++k) {
        EXPECT_NEAR(cells[k], expected[k], 1e-12) << k;
    }
}

struct results {
    explicit results(std::size_t order)
        : coefficients(std::vector<double>(order, 7.0)), errors(std::vector<double>(order, 7.0)),
          fitted(std::vector<double>(5, 7.0)), swept(std::vector<double>(order * order, 7.0)),
          means(std::vector<double>(order, 7.0)), deviations(std::vector<double>(order, 7.0))
    {
    }

    guarded<double> coefficients;
    guarded<double> errors;
    guarded<double> fitted;
    guarded<double> swept;
    guarded<double> means;
    guarded<double> deviations;
};

} // namespace

TEST(FlatLeastSquares, FitsALine)
{
    results out(3);
    EXPECT_EQ(RunOLSBasic(5, 2, predictors.data(), response.data(), ones.data(), 1, 0, 0, 1e-12,
                          out.coefficients.data(), out.fitted.data()),
              0);
    expectNear(out.coefficients, {2, -1, 1});
    expectNear(out.fitted, response);
}

TEST(FlatLeastSquares, GivesErrors)
{
    results out(2);
    // R 4.2.2: lm(c(1, 4, 2, 6, 9) ~ c(1, 2, 3, 4, 6))
    EXPECT_EQ(RunOLSBasic2(5, 1, predictors.data(), response.data(), ones.data(), 1, 0, 0, 1e-12,
                           out.coefficients.data(), out.errors.data(), out.fitted.data()),
              0);
    expectNear(out.coefficients, {1.527027027027027, -0.4864864864864865});
    expectNear(out.errors, {0.388146124766083, 1.41020490250752});
}

TEST(FlatLeastSquares, ClearsWhatARefusedTermLeaves)
{
    const std::vector<double> twice{1, 2, 3, 4, 6, 1, 2, 3, 4, 6};
    results out(3);
    EXPECT_EQ(RunOLSBasic3(5, 2, twice.data(), response.data(), ones.data(), 1, 1, 0, 1e-12,
                           out.coefficients.data(), out.errors.data(), out.fitted.data(), out.swept.data(),
                           out.means.data(), out.deviations.data()),
              0);
    EXPECT_SAME_BITS(valuesOf(out.coefficients)[1], 0.0);
    EXPECT_SAME_BITS(valuesOf(out.errors)[1], 0.0);
    EXPECT_SAME_BITS(valuesOf(out.deviations)[1], 0.0);
    EXPECT_NEAR(valuesOf(out.means)[1], 3.2, 1e-15);
    EXPECT_SAME_BITS(valuesOf(out.swept)[4], 0.0);
    EXPECT_SAME_BITS(valuesOf(out.swept)[7], 0.0);
}

TEST(FlatLeastSquares, SizesItsResultsForInteractions)
{
    results out(4);
    EXPECT_EQ(RunOLSBasic3(5, 2, predictors.data(), response.data(), ones.data(), 1, -1, -1, 1e-12,
                           out.coefficients.data(), out.errors.data(), out.fitted.data(), out.swept.data(),
                           out.means.data(), out.deviations.data()),
              0);
    EXPECT_NEAR(valuesOf(out.means)[2], (2 + 2 + 15 + 12 + 24) / 5.0, 1e-14);
    EXPECT_SAME_BITS(valuesOf(out.coefficients)[3], 0.0) << "no constant";
    results two(3);
    EXPECT_EQ(RunOLSBasic2(5, 1, predictors.data(), response.data(), ones.data(), 2, 1, 0, 1e-12,
                           two.coefficients.data(), two.errors.data(), two.fitted.data()),
              0);
    EXPECT_TRUE(two.errors.intact());
}

TEST(FlatLeastSquares, MayWriteOverWhatItReads)
{
    guarded<double> y(response);
    guarded<double> weights(ones);
    results out(3);
    RunOLSBasic2(5, 2, predictors.data(), y.data(), weights.data(), 1, 0, 0, 1e-12, out.coefficients.data(),
                 out.errors.data(), y.data());
    expectNear(y, response);
    expectNear(out.coefficients, {2, -1, 1});
}

TEST(FlatLeastSquares, RefusesARowCountBelowZero)
{
    results out(3);
    EXPECT_THROW(RunOLSBasic(-1, 2, predictors.data(), response.data(), ones.data(), 1, 0, 0, 1e-12,
                             out.coefficients.data(), out.fitted.data()),
                 std::bad_alloc);
    expectCells(out.coefficients, {7, 7, 7});
}
