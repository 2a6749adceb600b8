/**
 * @file
 * A regression on a handful of rows, with room for everything that it writes.
 */
#ifndef KORVEL_TESTS_FITTING_SMALL_FIT_H
#define KORVEL_TESTS_FITTING_SMALL_FIT_H

#include "fitting/least_squares.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <vector>

namespace korvel::test
{

/** The arguments, and the results cleared, or filled with another number that shows what is not written. */
struct small_fit {
    small_fit(std::vector<double> predictors, std::vector<double> response)
        : n(static_cast<int>(response.size())), X(vectorOf<double>(std::move(predictors))),
          Y(vectorOf<double>(std::move(response))), weights(n, 1, 1.0)
    {
        p = static_cast<int>(X.nbElem) / n;
        X.nbrows = n;
        X.nbcols = p;
    }

    /** Room for the results. */
    void clear(double before = 0.0)
    {
        const int order = terms() + 1;
        coefficients = matrix<double>(order, 1, before);
        errors = matrix<double>(order, 1, before);
        fitted = matrix<double>(n, 1, before);
        swept = matrix<double>(order, order, before);
        means = matrix<double>(order, 1, before);
        deviations = matrix<double>(order, 1, before);
    }

    void run(double before = 0.0)
    {
        clear(before);
        OLSBasic3(n, p, &X, &Y, &weights, degree, interactions, noConstant, tolerance, &coefficients, &errors,
                  &fitted, &swept, &means, &deviations);
    }

    [[nodiscard]] int terms() const { return korvel::designTerms(p, degree, interactions); }

    int n;
    int p;
    int degree = 1;
    short int interactions = 0;
    short int noConstant = 0;
    double tolerance = 1e-12;
    matrix<double> X;
    matrix<double> Y;
    matrix<double> weights;
    matrix<double> coefficients;
    matrix<double> errors;
    matrix<double> fitted;
    matrix<double> swept;
    matrix<double> means;
    matrix<double> deviations;
};

/** Numbers that agree with figures from outside to a share of each. */
inline void expectNear(const matrix<double>& found, const std::vector<double>& figures, double share)
{
    ASSERT_EQ(found.nbElem, figures.size());
    for (std::size_t k = 0; k < figures.size(); ++k) {
        EXPECT_NEAR(found.data[k], figures[k], share * std::abs(figures[k])) << "element " << k;
    }
}

} // namespace korvel::test

#endif
