// Certified regressions: how many digits of the coefficients and of their standard errors are found.

#include "fitting/least_squares.h"
#include "fitting/least_squares_blocks.h"
#include "support/nist.h"
#include "support/random_cells.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

/** The digits found in the worst of the coefficients and in the worst of the errors: as measured, cut to a
 * tenth. */
struct measured_fit {
    const char* set;
    int degree;
    bool constant;
    double coefficients;
    double errors;
};

// The certified errors of the Wampler sets are 0, as their polynomials are exact: what is found lies on the
// scale of the coefficients, which are 1 in the first set and 1 to 1e-5 in the second.
const measured_fit certified[] = {
    {"Norris", 1, true, 12.5, 10.2},  {"Longley", 1, true, 12.0, 13.7}, {"NoInt1", 1, false, 14.7, 13.7},
    {"Wampler1", 5, true, 6.7, 15.0}, {"Wampler2", 5, true, 9.4, 15.0},
};

class CertifiedFits : public testing::TestWithParam<measured_fit>
{
protected:
    regression_set set = readRegressionSet(GetParam().set);
    int p = static_cast<int>(set.predictors.size()) / set.rows;
    int terms = korvel::designTerms(p, GetParam().degree, 0);
    matrix<double> X = vectorOf<double>(set.predictors);
    matrix<double> Y = vectorOf<double>(set.response);
    matrix<double> weights = matrix<double>(set.rows, 1, 1.0);
    matrix<double> coefficients = matrix<double>(terms + 1, 1, 0.0);
    matrix<double> errors = matrix<double>(terms + 1, 1, 0.0);
    matrix<double> fitted = matrix<double>(set.rows, 1, 0.0);
    short int noConstant = GetParam().constant ? 0 : -1;

    void SetUp() override
    {
        X.nbrows = set.rows;
        X.nbcols = p;
    }

    /** Of the numbers from `first` on, which stand behind the intercept's when there is one. */
    [[nodiscard]] double worstDigits(const matrix<double>& found,
                                     const std::vector<double>& certifiedValues) const
    {
        double worst = 15.0;
        const bool hasConstant = GetParam().constant;
        for (int k = 0; k < static_cast<int>(certifiedValues.size()); ++k) {
            const int place = !hasConstant ? k : k == 0 ? terms : k - 1;
            const double value = certifiedValues[static_cast<std::size_t>(k)];
            worst = std::min(worst, value == 0.0 ? -std::log10(std::abs(found.data[place]))
                                                 : correctDigits(found.data[place], value));
        }
        return worst;
    }

    void expectDigits() const
    {
        EXPECT_GE(worstDigits(coefficients, set.estimates), GetParam().coefficients);
        EXPECT_GE(worstDigits(errors, set.errors), GetParam().errors);
    }
};

class CertifiedFitsInBlocks : public CertifiedFits
{
};

} // namespace

TEST_P(CertifiedFits, Digits)
{
    OLSBasic2(set.rows, p, &X, &Y, &weights, GetParam().degree, 0, noConstant, 1e-12, &coefficients, &errors,
              &fitted);
    expectDigits();
}

TEST_P(CertifiedFitsInBlocks, Digits)
{
    const int half = p / 2;
    matrix<double> left(set.rows, half, X.data, true);
    matrix<double> right(set.rows, p - half, X.data + half * set.rows, true);
    OLSBasic2Lg(set.rows, half, &left, 0, nullptr, p - half, &right, 0, nullptr, 0, nullptr, &Y, &weights, 1,
                noConstant, 1e-12, &coefficients, &errors, &fitted);
    expectDigits();
}

INSTANTIATE_TEST_SUITE_P(Nist, CertifiedFits, testing::ValuesIn(certified),
                         [](const auto& row) { return std::string(row.param.set); });

// Tables apart have no powers, and count their degrees of freedom in another way without a constant.
INSTANTIATE_TEST_SUITE_P(Nist, CertifiedFitsInBlocks, testing::Values(certified[0], certified[1]),
                         [](const auto& row) { return std::string(row.param.set); });
