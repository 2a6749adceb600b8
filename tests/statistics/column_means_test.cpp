#include "statistics/column_means.h"

#include "support/bits.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

/** What the three members make of one column. */
struct three_means {
    double mean;
    double mean2;
    double mean3;
};

three_means meansOf(std::vector<double> cells, std::vector<double> weights)
{
    const int n = static_cast<int>(cells.size());
    auto x = vectorOf<double>(std::move(cells));
    auto w = vectorOf<double>(std::move(weights));
    matrix<double> out;
    matrix<double> out2(1, 1, 5.0);
    matrix<double> out3(1, 1, 5.0);
    auto* to = &out;
    M_Mean(&x, n, 1, to, &w);
    EXPECT_EQ(out.nbElem, 1U);
    M_Mean2(&x, n, 1, &w, &out2);
    M_Mean3(&x, n, 1, &out3);
    return {out.data[0], out2.data[0], out3.data[0]};
}

/** The weighted mean of the cells that `isKept` lets through, missing or 0.0 when there are none. */
template <class At, class Kept>
double plainMean(At at, int rows, const matrix<double>* w, bool testsZero, double ofNothing, Kept isKept)
{
    double s = 0.0;
    double m = 0.0;
    int kept = 0;
    for (int i = 0; i < rows; ++i) {
        const double wi = w == nullptr ? 1.0 : (*w)[i];
        if (isKept(at(i))) {
            kept += 1;
            s += wi;
            if (!testsZero || wi != 0.0) {
                m += ((at(i) - m) * wi) / s;
            }
        }
    }
    return kept == 0 ? ofNothing : m;
}

constexpr auto isPresent = [](double x) { return x != MISSING_DBL; };
constexpr auto isAbove = [](double x) { return x > MISSING_DBL; };

} // namespace

TEST(ColumnMeans, WhatEachMemberKeeps)
{
    struct {
        std::vector<double> cells;
        std::vector<double> weights;
        three_means expected;
    } const cases[] = {
        {{1, 3, gone, 5}, {1, 1, 1, 2}, {3.5, 3.5, 3.0}},
        {{gone, gone}, {1, 1}, {0.0, gone, gone}},
        {{}, {}, {0.0, gone, gone}},
        {{1, notANumber, 3}, {1, 1, 1}, {notANumber, 2.0, 2.0}},
        {{1, -infinite, 3}, {1, 1, 1}, {notANumber, 2.0, 2.0}},
        {{9, 1, 3}, {0, 1, 1}, {2.0, notANumber, 13.0 / 3.0}},
        {{1, 3, 9}, {1, 1, 0}, {2.0, 2.0, 13.0 / 3.0}},
        {{1, 3}, {0, 0}, {0.0, notANumber, 2.0}},
    };
    for (const auto& [cells, weights, expected] : cases) {
        const three_means found = meansOf(cells, weights);
        SCOPED_TRACE(::testing::PrintToString(cells));
        EXPECT_TRUE(sameBits(found.mean, expected.mean));
        EXPECT_TRUE(sameBits(found.mean2, expected.mean2));
        EXPECT_DOUBLE_EQ(found.mean3, expected.mean3);
    }
}

TEST(ColumnMeans, EqualToThePlainLoops)
{
    forRandomTables([](random_cells& cells, table_sizes sizes) {
        matrix<double> x = randomTable(cells, sizes.n - sizes.rowsShort, sizes.p - sizes.colsShort);
        x.oobValue = cells.value();
        auto weights = cells.weights(sizes.n);
        matrix<double>* w = cells.integer(0, 2) == 0 ? nullptr : &weights;
        matrix<double> out;
        auto* to = &out;
        matrix<double> out2(sizes.p, 1, 5.0);
        matrix<double> out3(sizes.p, 1, 5.0);
        M_Mean(&x, sizes.n, sizes.p, to, w);
        M_Mean2(&x, sizes.n, sizes.p, &weights, &out2);
        M_Mean3(&x, sizes.n, sizes.p, &out3);
        ASSERT_EQ(out.nbrows, sizes.p);
        for (int j = 0; j < sizes.p; ++j) {
            const auto at = [&](int i) { return x.getElement(i, j); };
            ASSERT_TRUE(sameBits(out.data[j], plainMean(at, sizes.n, w, true, 0.0, isPresent)));
            ASSERT_TRUE(sameBits(out2.data[j], plainMean(at, sizes.n, &weights, false, gone, isAbove)));
            ASSERT_TRUE(sameBits(out3.data[j], plainMean(at, sizes.n, nullptr, false, gone, isAbove)));
        }
    });
}

TEST(ColumnMeans, ChunksAsTheDenseTable)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        random_chunks<double> x(cells, cols, [&](int) { return rows; });
        auto w = cells.weights(rows);
        matrix<double> out;
        auto* to = &out;
        M_MeanSPV(x.get(), rows, cols, to, &w);
        ASSERT_EQ(out.nbrows, cols);
        for (int j = 0; j < cols; ++j) {
            const matrix<double>& chunk = x[j];
            ASSERT_TRUE(sameBits(out.data[j],
                                 plainMean([&](int i) { return chunk[i]; }, rows, &w, true, 0.0, isPresent)));
        }
    });
}
