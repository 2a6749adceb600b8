#include "statistics/error_measures.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <cmath>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;
constexpr double missing = MISSING_DBL;

/** What the three measures give for the same rows. */
struct measures {
    std::string rows;
    numbers actual;
    numbers predicted;
    numbers w;
    int first;
    double mape;
    double mpe;
    double mae;
};

void expectMeasures(const measures& given)
{
    auto actual = vectorOf(given.actual);
    auto predicted = vectorOf(given.predicted);
    auto weights = vectorOf(given.w);
    const int n = static_cast<int>(given.actual.size());
    auto* w = given.w.empty() ? nullptr : &weights;
    EXPECT_TRUE(sameBits(MAPE(&actual, &predicted, n, w, given.first), given.mape)) << "MAPE " << given.rows;
    EXPECT_TRUE(sameBits(MPE(&actual, &predicted, n, w, given.first), given.mpe)) << "MPE " << given.rows;
    EXPECT_TRUE(sameBits(MAE(&actual, &predicted, n, w, given.first), given.mae)) << "MAE " << given.rows;
}

struct errors {
    double sum = 0.0;
    double sumW = 0.0;
};

/** The plain loop, through the checked access. */
template <class Counts, class Term>
errors errorsOf(const matrix<double>& a, const matrix<double>& p, int n, const matrix<double>* w, int first,
                Counts counts, Term term)
{
    errors total;
    for (std::int64_t i = std::int64_t{first} - 1; i < n; ++i) {
        if (a[i] != missing && p[i] != missing && counts(a[i])) {
            const double weight = w == nullptr ? 1.0 : (*w)[i];
            total.sum += term(a[i], p[i], weight);
            total.sumW += weight;
        }
    }
    return total;
}

} // namespace

TEST(ErrorMeasures, DifferInWhatTheyLeaveOutAndReturn)
{
    const numbers a{2, 4, 8};
    const numbers p{3, 2, 8};
    for (const measures& given : std::vector<measures>{
             {"all", a, p, {}, 1, 100.0 / 3.0, 0.0, 1.0},
             {"weighted", a, p, {2, 1, 1}, 1, 37.5, -12.5, 1.0},
             {"from the second", a, p, {}, 2, 25.0, 25.0, 1.0},
             {"from the last", a, p, {}, 3, 0.0, 0.0, 0.0},
             {"from behind the last", a, p, {}, 4, 0.0, missing, missing},
             {"none", {}, {}, {}, 1, 0.0, missing, missing},
             {"only zeros observed", {0, 0}, {1, 3}, {}, 1, 0.0, missing, 2.0},
             {"a zero among them", {0, 4}, {3, 2}, {}, 1, 50.0, 50.0, 2.5},
             {"missing values", {missing, 2, 4}, {1, missing, 2}, {}, 1, 50.0, 50.0, 2.0},
             {"weights of 0", a, p, {0, 0, 0}, 1, 0.0, missing, missing},
             {"weights that cancel out", {2, 4}, {3, 4}, {1, -1}, 1, 50.0, missing, missing},
             {"forecasts too high", {4, 4}, {6, 5}, {}, 1, 37.5, -37.5, 1.5},
             {"a NaN", {2, notANumber}, {2, 2}, {}, 1, notANumber, notANumber, notANumber},
             {"a missing row of weight NaN", {2, missing}, {3, 2}, {1, notANumber}, 1, 50.0, -50.0, 1.0},
         }) {
        expectMeasures(given);
    }
}

TEST(ErrorMeasures, CountTheFirstRowFromOne)
{
    // Position 0 is outside: both values and the weight read as -1.
    expectMeasures({"from 0", {2, 4}, {3, 2}, {1, 3}, 0, 50.0, 100.0 / 3.0, 7.0 / 3.0});
    expectMeasures({"from 0, unweighted", {2, 4}, {3, 2}, {}, 0, 50.0, 0.0, 1.0});
    expectMeasures({"from -1", {2, 4}, {3, 2}, {}, -1, 25.0, 0.0, 0.75});
}

TEST(ErrorMeasures, EqualThePlainLoops)
{
    const auto always = [](double) { return true; };
    const auto nonZero = [](double a) { return a != 0.0; };
    forRandomVectors([&](random_cells& cells, int n, int held) {
        auto a = cells.values(n);
        auto p = cells.values(held);
        auto weights = cells.weights(n);
        const int first = cells.integer(-2, n + 1);
        for (auto* w : {static_cast<matrix<double>*>(nullptr), &weights}) {
            const errors mape =
                errorsOf(a, p, n, w, first == 0 ? 1 : first, nonZero,
                         [](double x, double y, double wi) { return wi * std::fabs(1.0 - y / x); });
            EXPECT_TRUE(sameBits(MAPE(&a, &p, n, w, first),
                                 mape.sumW == 0.0 ? 100.0 * mape.sum : 100.0 * mape.sum / mape.sumW));
            const errors mpe = errorsOf(a, p, n, w, first, nonZero,
                                        [](double x, double y, double wi) { return (x - y) * wi / x; });
            EXPECT_TRUE(
                sameBits(MPE(&a, &p, n, w, first), mpe.sumW == 0.0 ? missing : 100.0 * mpe.sum / mpe.sumW));
            const errors mae = errorsOf(a, p, n, w, first, always,
                                        [](double x, double y, double wi) { return wi * std::fabs(x - y); });
            EXPECT_TRUE(sameBits(MAE(&a, &p, n, w, first), mae.sumW == 0.0 ? missing : mae.sum / mae.sumW));
        }
    });
}

TEST(ErrorMeasures, RootMeanSquareOfAColumn)
{
    numbers x{9, 9, 9, 1, missing, 5};
    numbers y{0, 0, 0, 4, 100, 1};
    matrix<double> a(3, 2, x.data(), false);
    matrix<double> b(3, 2, y.data(), false);
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 2, &b, 4.0), 2.5)) << "9 and 16, over what the caller says";
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 2, &b, 1.0), 5.0));
    EXPECT_TRUE(sameBits(RMSE(&a, 1, 2, &b, 1.0), 3.0));
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 1, &b, 243.0), 1.0));
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 2, &b, 0.0), infinite));
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 2, &a, 0.0), notANumber)) << "0 over 0";
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 2, &b, -1.0), notANumber));
    EXPECT_TRUE(sameBits(RMSE(&a, 3, 0, &b, 0.0), 0.0));
    EXPECT_TRUE(sameBits(RMSE(&a, 3, -1, &b, 1.0), 0.0));
    EXPECT_TRUE(sameBits(RMSE(&a, 0, 2, &b, 1.0), 0.0));
}

TEST(ErrorMeasures, RootMeanSquareTestsTheFirstTableOnly)
{
    auto x = vectorOf<double>({notANumber, belowSentinel, 1});
    auto y = vectorOf<double>({1, 1, missing});
    EXPECT_TRUE(sameBits(RMSE(&x, 2, 1, &y, 1.0), 0.0)) << "what is not above the sentinel is left out";
    EXPECT_TRUE(sameBits(RMSE(&x, 3, 1, &y, 1.0), infinite));
    EXPECT_TRUE(sameBits(RMSE(&x, 4, 1, &y, 1.0), infinite)) << "a row outside reads as -1 in both";
}

TEST(ErrorMeasures, SumOfSquaredDeviations)
{
    auto y = vectorOf<double>({1, missing, 3, 8});
    auto w = vectorOf<double>({2, notANumber, 1, 0.5});
    double mean = 77;
    EXPECT_TRUE(sameBits(GetSSE(&y, 4, &w, mean), 18.0 + 1.0 + 8.0));
    EXPECT_TRUE(sameBits(mean, 4.0)) << "the mean is not weighted";
    EXPECT_TRUE(sameBits(GetSSE(&y, 0, &w, mean), missing));
    EXPECT_TRUE(sameBits(mean, missing));
    auto zeros = vectorOf<double>({0, 0, 0, 0});
    EXPECT_TRUE(sameBits(GetSSE(&y, 4, &zeros, mean), missing));
    EXPECT_TRUE(sameBits(mean, 4.0));
    auto none = vectorOf<double>({missing, missing});
    EXPECT_TRUE(sameBits(GetSSE(&none, 2, &w, mean), missing));
    EXPECT_TRUE(sameBits(mean, missing));
}
