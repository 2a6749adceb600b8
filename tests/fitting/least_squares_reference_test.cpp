// The regression and its plain twin, bit for bit.

#include "fitting/least_squares.h"
#include "fitting/least_squares_blocks.h"
#include "fitting/small_fit.h"
#include "reference/least_squares.h"
#include "support/near_tables.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

/** Tables for the results, with cells that show what is not written; vectors are of the size that they need.
 */
reference::fit_tables tablesFor(random_cells& cells, int n, int terms)
{
    const auto vector = [&] {
        matrix<double> made(terms + 1, 1, 0.0);
        fillRandomly(cells, made);
        return made;
    };
    return {
        vector(), vector(), nearTable<double>(cells, n, 1), nearTable<double>(cells, terms + 1, terms + 1),
        vector(), vector()};
}

reference::fit_tables twinOf(const reference::fit_tables& tables)
{
    using korvel::test::twinOf;
    return {twinOf(tables.coefficients), twinOf(tables.errors), twinOf(tables.fitted),
            twinOf(tables.swept),        twinOf(tables.means),  twinOf(tables.deviations)};
}

void expectSameFit(const reference::fit_tables& actual, const reference::fit_tables& expected)
{
    const auto same = [](const char* what, const matrix<double>& found, const matrix<double>& wanted) {
        SCOPED_TRACE(what);
        expectSame(found, wanted);
    };
    same("swept", actual.swept, expected.swept);
    same("means", actual.means, expected.means);
    same("deviations", actual.deviations, expected.deviations);
    same("coefficients", actual.coefficients, expected.coefficients);
    same("errors", actual.errors, expected.errors);
    same("fitted", actual.fitted, expected.fitted);
}

constexpr odd_cells kinds[] = {odd_cells::none, odd_cells::missing, odd_cells::missing_and_zeros,
                               odd_cells::all};
constexpr double tolerances[] = {1e-12, 0.0, 0.3, 1e-4, -1.0};

/** Calls `compare(cells, n, p)`; every kind of odd cells comes up. */
template <class Compare>
void forRandomFits(Compare compare)
{
    for (std::uint64_t seed = 1; seed <= 600; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, kinds[seed % 4]);
        const int n = cells.integer(0, seed % 20 == 0 ? 600 : 25);
        compare(cells, n, cells.integer(0, 6));
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

/** All 1, as most callers have them, or anything. */
matrix<double> weightsFor(random_cells& cells, int n)
{
    if (cells.integer(0, 2) == 0) {
        return matrix<double>(n, 1, 1.0);
    }
    return cells.weights(cells.integer(0, 9) == 0 ? std::max(n - 1, 0) : n);
}

matrix<double> predictorsFor(random_cells& cells, int n, int p)
{
    matrix<double> X = cells.integer(0, 4) == 0 ? nearTable<double>(cells, n, p) : matrix<double>(n, p, 0.0);
    fillRandomly(cells, X);
    // Now and then two columns that are one.
    for (int i = 0; p > 1 && i < n && n % 3 == 0 && X.nbrows == n && X.nbcols == p; ++i) {
        X.setElement(i, p - 1, X.getElement(i, 0));
    }
    return X;
}

} // namespace

TEST(LeastSquares, IsThePlainOne)
{
    forRandomFits([](random_cells& cells, int n, int p) {
        const matrix<double> X = predictorsFor(cells, n, p);
        const matrix<double> Y = cells.values(cells.integer(0, 9) == 0 ? std::max(n - 1, 0) : n);
        const matrix<double> w = weightsFor(cells, n);
        reference::fit_flags how;
        how.degree = cells.integer(0, 3) == 0 ? cells.integer(0, 3) : 1;
        how.interactions = static_cast<short int>(cells.integer(-2, 1));
        how.noConstant = static_cast<short int>(cells.integer(-1, 1));
        how.tolerance = tolerances[static_cast<std::size_t>(cells.integer(0, 4))];
        const int terms = korvel::designTerms(p, how.degree, how.interactions);
        auto actual = tablesFor(cells, n, terms);
        auto expected = twinOf(actual);
        auto given = twinOf(X);
        auto response = twinOf(Y);
        auto weights = twinOf(w);
        OLSBasic3(n, p, &given, &response, &weights, how.degree, how.interactions, how.noConstant,
                  how.tolerance, &actual.coefficients, &actual.errors, &actual.fitted, &actual.swept,
                  &actual.means, &actual.deviations);
        reference::plainLeastSquares(n, p, X, Y, w, how, expected);
        expectSameFit(actual, expected);
        expectSame(given, X);
        expectSame(response, Y);
        expectSame(weights, w);
    });
}

TEST(LeastSquares, IsThePlainOneInBlocks)
{
    forRandomFits([](random_cells& cells, int n, int) {
        std::vector<int> sizes;
        std::vector<matrix<double>> blocks;
        int terms = 0;
        for (int b = 0; b < 5; ++b) {
            sizes.push_back(cells.integer(-1, 2));
            terms += std::max(sizes.back(), 0);
            blocks.push_back(predictorsFor(cells, n, std::max(sizes.back(), 0)));
        }
        const matrix<double> Y = cells.values(n);
        const matrix<double> w = weightsFor(cells, n);
        const auto noConstant = static_cast<short int>(cells.integer(-1, 1));
        const double tolerance = tolerances[static_cast<std::size_t>(cells.integer(0, 4))];
        auto actual = tablesFor(cells, n, terms);
        auto expected = twinOf(actual);
        auto response = twinOf(Y);
        auto weights = twinOf(w);
        const auto table = [&](std::size_t b) { return sizes[b] > 0 ? &blocks[b] : nullptr; };
        OLSBasic2Lg(n, sizes[0], table(0), sizes[1], table(1), sizes[2], table(2), sizes[3], table(3),
                    sizes[4], table(4), &response, &weights, 1, noConstant, tolerance, &actual.coefficients,
                    &actual.errors, &actual.fitted);
        if (std::accumulate(sizes.begin(), sizes.end(), 0) > 0) {
            matrix<double> M(n, terms + 1, 0.0);
            int place = 0;
            for (std::size_t b = 0; b < 5; ++b) {
                for (int j = 0; j < sizes[b]; ++j, ++place) {
                    for (int i = 0; i < n; ++i) {
                        M.setElement(i, place, blocks[b].getElement(i, j));
                    }
                }
            }
            for (int i = 0; i < n; ++i) {
                M.setElement(i, terms, Y[i]);
            }
            reference::plainLeastSquaresInBlocks(M, sizes, w, noConstant, tolerance, expected);
        }
        expectSameFit(actual, expected);
    });
}

TEST(LeastSquares, MayTakeAVariableAsThePlainOne)
{
    forRandomFits([](random_cells& cells, int, int p) {
        matrix<double> packed = cells.values((p + 1) * (p + 2) / 2);
        const double tolerance = tolerances[static_cast<std::size_t>(cells.integer(0, 4))];
        for (int k = 1; k <= p + 1; ++k) {
            const double actual = OLSCheckIfIn(&packed, p, k, tolerance);
            EXPECT_SAME_BITS(actual, reference::plainCheckIfIn(packed, p, k, tolerance));
            EXPECT_EQ(actual > tolerance, packed.data[k * (k + 1) / 2 - 1] > tolerance);
        }
    });
}

TEST(LeastSquares, HoldsTheInterceptsVarianceInItsOwnPlace)
{
    // There is none in a vector without elements: what each term adds is then the square of its mean times
    // the sum so far, which is what the spare slot holds.
    small_fit fit({1, 2, 4, 5}, {1, 3, 2, 6});
    fit.run();
    const double s = fit.deviations[1];
    const double start = s * s * (4.0 - 1.0) * fit.swept.getElement(1, 1) / 2.0 / 4.0;
    const double part = fit.means[0] * start;
    fit.errors = matrix<double>(0, 1, 0.0);
    OLSBasic2(fit.n, fit.p, &fit.X, &fit.Y, &fit.weights, 1, 0, 0, 1e-12, &fit.coefficients, &fit.errors,
              &fit.fitted);
    EXPECT_SAME_BITS(fit.errors.oobValue, std::sqrt(start + part * part));
}
