#include "fitting/newton_raphson.h"

#include "linalg/constraint_cleaning.h"
#include "support/bits.h"
#include "support/example_data.h"
#include "support/near_tables.h"

#include <cmath>
#include <vector>

using namespace korvel::test;

namespace
{

/** The arguments of a step, the results filled with 7. */
struct one_step {
    explicit one_step(std::vector<double> at, std::vector<double> slopes, std::vector<double> curvature)
        : n(static_cast<int>(at.size())), parameters(vectorOf<double>(std::move(at))),
          gradient(vectorOf<double>(std::move(slopes))), hessian(vectorOf<double>(std::move(curvature))),
          fixed(n, 1), errors(n, 1, 7.0), inverse(n, n, 0.0)
    {
        hessian.nbrows = n;
        hessian.nbcols = n;
    }

    int run()
    {
        return cNewtonRaphson(parameters, n, fixed, gradient, hessian, tolerance, errors, inverse, limit,
                              stepLimit);
    }

    int n;
    matrix<double> parameters;
    matrix<double> gradient;
    matrix<double> hessian;
    matrix<int> fixed;
    matrix<double> errors;
    matrix<double> inverse;
    double tolerance = 1e-9;
    bool limit = false;
    double stepLimit = 1.0;
};

/** A step with steps 2 and 4: the Hessian is diagonal. */
one_step twoByFour()
{
    return one_step({10, 20}, {4, 32}, {2, 0, 0, 8});
}

/** Slopes and curvature of the likelihood of a logistic model. */
struct logistic_model {
    std::vector<double> design; // column after column, the first one of ones
    std::vector<double> response;

    void evaluate(const matrix<double>& beta, matrix<double>& gradient, matrix<double>& hessian) const
    {
        const int n = static_cast<int>(response.size());
        const int p = static_cast<int>(design.size()) / n;
        const auto x = [&](int i, int j) { return design[static_cast<std::size_t>(i + j * n)]; };
        gradient = matrix<double>(p, 1, 0.0);
        hessian = matrix<double>(p, p, 0.0);
        for (int i = 0; i < n; ++i) {
            double eta = 0.0;
            for (int j = 0; j < p; ++j) {
                eta += x(i, j) * beta[j];
            }
            const double mu = 1.0 / (1.0 + std::exp(-eta));
            for (int j = 0; j < p; ++j) {
                gradient[j] += x(i, j) * (response[static_cast<std::size_t>(i)] - mu);
                for (int k = 0; k < p; ++k) {
                    hessian.setElement(j, k, hessian.getElement(j, k) - x(i, j) * x(i, k) * mu * (1.0 - mu));
                }
            }
        }
    }
};

} // namespace

TEST(NewtonRaphson, FitsALogisticModelAsRDoes)
{
    // R 4.2.2: glm(am ~ wt + hp, binomial, mtcars, control = list(epsilon = 1e-15, maxit = 100)).
    logistic_model model;
    model.design = std::vector<double>(32, 1.0);
    const auto columns = exampleColumns("mtcars.csv", {"wt", "hp"});
    model.design.insert(model.design.end(), columns.begin(), columns.end());
    model.response = exampleColumns("mtcars.csv", {"am"});
    one_step fit({0, 0, 0}, {0, 0, 0}, std::vector<double>(9, 0.0));
    fit.limit = true;
    fit.stepLimit = 5.0;
    fit.tolerance = 1e-10;
    int steps = 0;
    int status = 0;
    while (status == 0 && steps < 100) {
        model.evaluate(fit.parameters, fit.gradient, fit.hessian);
        status = fit.run();
        ++steps;
    }
    EXPECT_EQ(status, 1);
    EXPECT_LT(steps, 20);
    const double estimates[] = {18.8662987172041, -8.08347518244463, 0.03625559608221656};
    const double errors[] = {7.443558060205286, 3.068675113054701, 0.01773415365076938};
    for (int j = 0; j < 3; ++j) {
        EXPECT_NEAR(fit.parameters[j], estimates[j], 1e-9 * std::fabs(estimates[j]));
        EXPECT_NEAR(fit.errors[j], errors[j], 1e-6 * errors[j]);
    }
}

TEST(NewtonRaphson, SubtractsTheInverseTimesTheGradient)
{
    one_step step = twoByFour();
    EXPECT_EQ(step.run(), 0);
    EXPECT_SAME_BITS(step.parameters[0], 8.0);
    EXPECT_SAME_BITS(step.parameters[1], 16.0);
    EXPECT_SAME_BITS(step.inverse.getElement(0, 0), 0.5);
    EXPECT_SAME_BITS(step.errors[0], std::sqrt(0.5));
    EXPECT_SAME_BITS(step.errors[1], std::sqrt(0.125));
}

TEST(NewtonRaphson, ServesAHessianOfEitherSign)
{
    one_step step({10}, {4}, {-2});
    step.run();
    EXPECT_SAME_BITS(step.parameters[0], 12.0);
    EXPECT_SAME_BITS(step.errors[0], std::sqrt(0.5));
}

TEST(NewtonRaphson, TellsWhenNothingMovedByMoreThanTheTolerance)
{
    one_step step = twoByFour();
    step.tolerance = 4.0;
    EXPECT_EQ(step.run(), 1) << "the largest change equals it";
    step = twoByFour();
    step.tolerance = std::nextafter(4.0, 0.0);
    EXPECT_EQ(step.run(), 0);
    // One that moved is not made up for by a later one that did not.
    one_step first({1, 1}, {5, 0}, {1, 0, 0, 1});
    EXPECT_EQ(first.run(), 0);
}

TEST(NewtonRaphson, WritesErrorsWithoutAGradient)
{
    one_step step({10, 20}, {0, 0}, {4, 0, 0, 16});
    EXPECT_EQ(step.run(), 1);
    EXPECT_SAME_BITS(step.parameters[1], 20.0);
    EXPECT_SAME_BITS(step.errors[0], 0.5);
    EXPECT_SAME_BITS(step.errors[1], 0.25);
}

TEST(NewtonRaphson, LeavesFixedParameters)
{
    one_step step = twoByFour();
    step.fixed[0] = 3;
    EXPECT_EQ(step.run(), 0);
    EXPECT_SAME_BITS(step.parameters[0], 10.0);
    EXPECT_SAME_BITS(step.errors[0], 7.0);
    EXPECT_SAME_BITS(step.parameters[1], 16.0);
    step = twoByFour();
    step.fixed[0] = 1;
    step.fixed[1] = 1;
    step.limit = true;
    EXPECT_EQ(step.run(), 1) << "whatever the gradient";
    EXPECT_SAME_BITS(step.parameters[1], 20.0);
    EXPECT_SAME_BITS(step.errors[1], 7.0);
}

TEST(NewtonRaphson, ShortensTheWholeStep)
{
    one_step step = twoByFour();
    step.limit = true;
    step.stepLimit = 1.0;
    EXPECT_EQ(step.run(), 0);
    EXPECT_SAME_BITS(step.parameters[0], 9.5);
    EXPECT_SAME_BITS(step.parameters[1], 19.0);
    step = twoByFour();
    step.limit = true;
    step.stepLimit = 4.0;
    step.run();
    EXPECT_SAME_BITS(step.parameters[1], 16.0) << "no longer than allowed";
    step = twoByFour();
    step.limit = true;
    step.stepLimit = 1.0;
    step.tolerance = 1.0;
    EXPECT_EQ(step.run(), 1) << "what was shortened counts";
}

TEST(NewtonRaphson, DividesEachPartOfTheStep)
{
    one_step step({0, 0}, {1, 3}, {1, 0, 0, 1});
    step.limit = true;
    step.stepLimit = 0.7;
    step.run();
    EXPECT_SAME_BITS(step.parameters[0], 0.0 - 1.0 / (3.0 / 0.7));
    EXPECT_SAME_BITS(step.parameters[1], 0.0 - 3.0 / (3.0 / 0.7));
}

TEST(NewtonRaphson, CountsTheStepOfAFixedParameterForTheLimit)
{
    // The caller left something in the fixed column: the step there is 8 * 32.
    one_step step = twoByFour();
    step.fixed[1] = 1;
    step.inverse.setElement(1, 1, 8.0);
    step.limit = true;
    step.stepLimit = 128.0;
    EXPECT_EQ(step.run(), 0);
    EXPECT_SAME_BITS(step.parameters[0], 9.0) << "half of the step of 2";
    EXPECT_SAME_BITS(step.parameters[1], 20.0);
}

TEST(NewtonRaphson, TakesAStepOfNaNForNone)
{
    one_step step({1, 2}, {std::nan(""), 0}, {1, 0, 0, 1});
    step.limit = true;
    EXPECT_EQ(step.run(), 1);
    EXPECT_TRUE(std::isnan(step.parameters[0]));
}

TEST(NewtonRaphson, TakesTheGeneralisedInverseOfASingularHessian)
{
    one_step step({1, 1}, {2, 2}, {2, 2, 2, 2});
    EXPECT_EQ(step.run(), 0);
    EXPECT_SAME_BITS(step.parameters[0], 0.0);
    EXPECT_SAME_BITS(step.parameters[1], 1.0);
    EXPECT_SAME_BITS(step.errors[1], 0.0);
}

TEST(NewtonRaphson, HasTwoPointerFormsThatDifferInTheFlag)
{
    for (const short int flag : {short{-1}, short{0}, short{1}}) {
        one_step integers = twoByFour();
        cNewtonRaphson(&integers.parameters, 2, &integers.fixed, &integers.gradient, &integers.hessian, 1e-9,
                       &integers.errors, &integers.inverse, flag, 1.0);
        EXPECT_SAME_BITS(integers.parameters[1], flag != 0 ? 19.0 : 16.0) << flag;
        one_step numbers = twoByFour();
        matrix<double> free(2, 1, 0.0);
        cNewtonRaphson(&numbers.parameters, 2, &free, &numbers.gradient, &numbers.hessian, 1e-9,
                       &numbers.errors, &numbers.inverse, flag, 1.0);
        EXPECT_SAME_BITS(numbers.parameters[1], flag == -1 ? 19.0 : 16.0) << flag;
        EXPECT_SAME_BITS(numbers.errors[0], integers.errors[0]);
    }
}

TEST(NewtonRaphson, TakesANumberBesideZeroForFixed)
{
    one_step step = twoByFour();
    matrix<double> fixed = vectorOf<double>({0.5, 0.0});
    EXPECT_EQ(cNewtonRaphson(&step.parameters, 2, &fixed, &step.gradient, &step.hessian, 1e-9, &step.errors,
                             &step.inverse, 0, 1.0),
              0);
    EXPECT_SAME_BITS(step.parameters[0], 10.0);
    EXPECT_SAME_BITS(step.parameters[1], 16.0);
}

TEST(NewtonRaphson, IsThePlainStep)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::all : odd_cells::none);
        const int n = cells.integer(0, 6);
        matrix<double> start = cells.values(n);
        matrix<double> gradient = cells.values(n);
        matrix<double> hessian(n, n, 0.0);
        fillRandomly(cells, hessian);
        matrix<int> fixed(n, 1);
        for (int i = 0; i < n; ++i) {
            fixed[i] = cells.integer(0, 3) == 0 ? cells.integer(-1, 1) : 0;
        }
        const double tolerance = std::fabs(cells.value()) / 100;
        const double limit = std::fabs(cells.value()) / 1000;
        const bool limited = cells.integer(0, 1) == 0;
        matrix<double> parameters(start);
        matrix<double> errors(n, 1, 7.0);
        matrix<double> inverse(n, n, 0.0);
        const int status = cNewtonRaphson(parameters, n, fixed, gradient, hessian, tolerance, errors, inverse,
                                          limited, limit);

        matrix<double> expected(n, n, 0.0);
        cCleanConstraintsAndInvert(n, fixed, hessian, expected);
        std::vector<double> step;
        double longest = 0.0;
        for (int i = 0; i < n; ++i) {
            double sum = 0.0;
            for (int j = 0; j < n; ++j) {
                sum += expected.getElement(i, j) * gradient[j];
            }
            step.push_back(sum);
            longest = std::fabs(sum) > longest ? std::fabs(sum) : longest;
        }
        int expectedStatus = 1;
        for (int i = 0; i < n; ++i) {
            double part = step[static_cast<std::size_t>(i)];
            if (limited && longest / limit > 1.0) {
                part = part / (longest / limit);
            }
            const double after = fixed[i] == 0 ? start[i] - part : start[i];
            if (fixed[i] == 0 && std::fabs(start[i] - (start[i] - part)) > tolerance) {
                expectedStatus = 0;
            }
            EXPECT_SAME_BITS(parameters[i], after);
            EXPECT_SAME_BITS(errors[i],
                             fixed[i] == 0 ? std::sqrt(std::fabs(expected.getElement(i, i))) : 7.0);
        }
        EXPECT_EQ(status, expectedStatus);
        expectSame(inverse, expected);
    }
}

TEST(NewtonStep, ProposesEveryParameterBeforeOneIsChanged)
{
    // The second parameter lies outside its vector: it is proposed from what the spare slot held at first,
    // and compared with what it holds by then, which is the first one as it was stored.
    one_step step({10}, {1}, {1});
    step.n = 2;
    step.gradient = vectorOf<double>({1, 2});
    step.hessian = vectorOf<double>({1, 0, 0, 1});
    step.hessian.nbrows = 2;
    step.hessian.nbcols = 2;
    step.inverse = matrix<double>(2, 2, 0.0);
    step.fixed = matrix<int>(2, 1);
    step.parameters.oobValue = 5.0;
    step.tolerance = 3.0;
    EXPECT_EQ(step.run(), 0) << "9 and 3 differ by more";
    EXPECT_SAME_BITS(step.parameters[0], 9.0);
    EXPECT_SAME_BITS(step.parameters.oobValue, 3.0);
}
