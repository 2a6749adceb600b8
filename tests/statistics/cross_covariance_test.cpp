#include "statistics/cross_covariance.h"

#include "containers/views.h"
#include "reference/covariance.h"
#include "support/bits.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

constexpr double gone = MISSING_DBL;

struct cross_flags {
    short int corr = 0;
    short int square = 0;
    reference::denominator_flags how{0, 0};
    short int undefinedIsZero = 0;
};

/** One column of each table. */
double cellOf(std::vector<double> left, std::vector<double> right, const cross_flags& flags,
              matrix<double>* w = nullptr)
{
    const int rows = static_cast<int>(left.size());
    auto x = vectorOf<double>(std::move(left));
    auto y = vectorOf<double>(std::move(right));
    matrix<double> out;
    auto* to = &out;
    EXPECT_EQ(M_CorrMatMat(&x, rows, 1, &y, 1, to, nullptr, w, flags.corr, flags.square, flags.how.unbiased,
                           flags.how.freq, flags.undefinedIsZero),
              0);
    EXPECT_EQ(out.nbElem, 1U);
    return out.data[0];
}

double plainCell(const reference::pair_sums& sums, const cross_flags& flags)
{
    const double divisor = reference::denominatorOf(sums.s, sums.c, flags.how);
    const double v = sums.cij / divisor;
    if (flags.corr == 0) {
        return v;
    }
    const double p = (sums.cii / divisor) * (sums.cjj / divisor);
    if (!(std::fabs(p) - 1e-12 > 0.0)) {
        return flags.undefinedIsZero != 0 ? 0.0 : MISSING_DBL;
    }
    const double r = v / std::sqrt(p);
    return flags.square != 0 ? r * r : r;
}

} // namespace

TEST(CrossCovariance, VariancesAreOverTheCommonRows)
{
    const std::vector<double> x{1, 2, 3, 100, gone};
    const std::vector<double> y{2, 4, 6, gone, -50};
    EXPECT_TRUE(sameBits(cellOf(x, y, {0, 0, {-1, -1}, 0}), 2.0));
    EXPECT_TRUE(sameBits(cellOf(x, y, {1, 0, {-1, -1}, 0}), 2.0 / std::sqrt(4.0)));
    EXPECT_TRUE(sameBits(cellOf(x, {-2, -4, -6, gone, 1}, {7, 0, {0, 0}, 0}), -1.0));
}

TEST(CrossCovariance, Squares)
{
    const std::vector<double> x{1, 2, 3, 7};
    const std::vector<double> y{2, 1, 6, 1};
    const double r = cellOf(x, y, {1, 0, {0, 0}, 0});
    EXPECT_TRUE(sameBits(cellOf(x, y, {1, 1, {0, 0}, 0}), r * r));
    EXPECT_TRUE(sameBits(cellOf(x, y, {0, 1, {0, 0}, 0}), cellOf(x, y, {0, 0, {0, 0}, 0})))
        << "covariances are not squared";
}

TEST(CrossCovariance, UndefinedCells)
{
    struct {
        std::vector<double> x;
        std::vector<double> y;
        cross_flags flags;
        double cell;
    } const cases[] = {
        {{1, 1}, {2, 4}, {1, 0, {0, 0}, 0}, MISSING_DBL},
        {{1, 1}, {2, 4}, {1, 0, {0, 0}, 1}, 0.0},
        {{1, 1}, {2, 4}, {0, 0, {0, 0}, 0}, 0.0},
        {{0, 2e-3}, {0, 2e-3}, {1, 0, {0, 0}, 0}, MISSING_DBL},
        {{0, 2}, {0, 2e-3}, {1, 0, {0, 0}, 0}, 1.0},
        {{1, gone}, {gone, 2}, {1, 0, {0, 0}, 0}, MISSING_DBL},
        {{1, gone}, {gone, 2}, {1, 0, {0, 0}, 1}, 0.0},
        {{1, gone}, {gone, 2}, {0, 0, {0, 0}, 1}, notANumber},
        {{1, gone}, {gone, 2}, {0, 0, {-1, -1}, 0}, -0.0},
        {{1, gone}, {gone, 2}, {0, 0, {-1, 0}, 0}, notANumber},
        {{1}, {2}, {0, 0, {-1, -1}, 0}, notANumber},
    };
    for (const auto& expected : cases) {
        const double found = cellOf(expected.x, expected.y, expected.flags);
        EXPECT_TRUE(sameBits(found, expected.cell)) << &expected - cases;
    }
}

TEST(CrossCovariance, AWeightOfZeroIsCounted)
{
    auto w = vectorOf<double>({2, 0, 2, 0});
    EXPECT_TRUE(sameBits(cellOf({0, 9, 2, 9}, {0, 5, 4, 9}, {0, 0, {-1, 0}, 0}, &w), 8.0 / 3.0));
}

TEST(CrossCovariance, WeightedCorrelationOfVectors)
{
    struct {
        std::vector<double> x;
        std::vector<double> y;
        std::vector<double> w;
        double result;
    } const cases[] = {
        {{1, 2, 3}, {2, 4, 6}, {1, 1, 1}, 1.0},
        {{1, 2, 3, 50}, {-2, -4, -6, 9}, {1, 1, 1, 0}, -1.0},
        {{1, 2, 3, 50}, {-2, -4, -6, 9}, {1, 1, 1, -3}, -1.0},
        {{1, 2, 3, 50}, {-2, -4, -6, 9}, {1, 1, 1, MISSING_DBL}, -1.0},
        {{1, 2, 3, 50}, {-2, -4, -6, 9}, {1, 1, 1, notANumber}, -1.0},
        {{1, 2, gone, 3, notANumber, -infinite, 4, belowSentinel},
         {2, 4, 9, 6, 1, 1, gone, 1},
         {1, 1, 1, 1, 1, 1, 1, 1},
         1.0},
        {{1, 1}, {2, 4}, {1, 1}, MISSING_DBL},
        {{1}, {2}, {1}, MISSING_DBL},
        {{}, {}, {}, MISSING_DBL},
        {{1, infinite}, {2, 4}, {1, 1}, notANumber},
    };
    for (const auto& expected : cases) {
        auto x = vectorOf<double>(expected.x);
        auto y = vectorOf<double>(expected.y);
        auto w = vectorOf<double>(expected.w);
        const double found = V_Correl2W(&x, static_cast<int>(expected.x.size()), &y, &w);
        EXPECT_TRUE(sameBits(found, expected.result)) << &expected - cases;
    }
}

TEST(CrossCovariance, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const int colsY = cells.integer(0, 5);
        auto x = nearTable<double>(cells, rows, cols);
        auto y = nearTable<double>(cells, rows, colsY);
        // In a third of the tables no cell is missing.
        const bool isComplete = cells.integer(0, 2) == 0;
        const auto fillGaps = [&](matrix<double>& table) {
            if (isComplete) {
                std::replace(table.data, table.data + table.nbElem, gone, 2.5);
            }
        };
        fillGaps(x);
        fillGaps(y);
        auto flags = cells.flags(rows);
        auto w = cells.weights(rows);
        const auto flag = [&] { return static_cast<short int>(cells.integer(-1, 1)); };
        const cross_flags how{flag(), flag(), {flag(), flag()}, flag()};
        matrix<double> out;
        auto* to = &out;
        M_CorrMatMat(&x, rows, cols, &y, colsY, to, flags.data(), &w, how.corr, how.square, how.how.unbiased,
                     how.how.freq, how.undefinedIsZero);
        ASSERT_EQ(out.nbrows, cols);
        for (int i = 0; i < cols; ++i) {
            for (int j = 0; j < colsY; ++j) {
                const auto sums =
                    reference::sumsOfPair([&](int r) { return x.getElement(r, i); },
                                          [&](int r) { return y.getElement(r, j); }, rows, flags.data(), &w);
                ASSERT_TRUE(sameBits(out.getElement(i, j), plainCell(sums, how))) << i << ", " << j;
            }
        }

        random_chunks<double> left(cells, cols, [&](int) { return rows; });
        random_chunks<double> right(cells, colsY, [&](int) { return rows; });
        for (int i = 0; i < cols; ++i) {
            fillGaps(left[i]);
        }
        for (int j = 0; j < colsY; ++j) {
            fillGaps(right[j]);
        }
        random_chunks<double> result(cells, colsY, [&](int) { return cols; });
        random_chunks<double> expected(result);
        M_CorrMatMatSPV(left.get(), rows, cols, right.get(), colsY, result.get(), flags.data(), &w, how.corr,
                        how.square, how.how.unbiased, how.how.freq, how.undefinedIsZero);
        for (int i = 0; i < cols; ++i) {
            for (int j = 0; j < colsY; ++j) {
                const matrix<double>& columnX = left[i];
                const matrix<double>& columnY = right[j];
                const auto sums =
                    reference::sumsOfPair([&](int r) { return columnX[r]; },
                                          [&](int r) { return columnY[r]; }, rows, flags.data(), &w);
                korvel::writing(expected.get()).set(i, j, plainCell(sums, how));
            }
        }
        expectSame(result, expected);
    });
}

TEST(CrossCovariance, VectorsEqualToThePlainLoop)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto y = cells.values(n);
        auto w = cells.weights(n);
        reference::pair_sums sums;
        for (int i = 0; i < n; ++i) {
            const double left = static_cast<const matrix<double>&>(x)[i];
            if (w.data[i] > 0.0 && left > MISSING_DBL && y.data[i] > MISSING_DBL) {
                sums.add(left, y.data[i], w.data[i]);
            }
        }
        const double p = sums.cii * sums.cjj;
        ASSERT_TRUE(sameBits(V_Correl2W(&x, n, &y, &w), p > 0.0 ? sums.cij / std::sqrt(p) : MISSING_DBL));
    });
}
