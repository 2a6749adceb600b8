#include "statistics/inertia.h"

#include "containers/cells.h"
#include "support/bits.h"
#include "support/near_tables.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

template <class X, class Takes>
double plainScatter(X x, int i, int j, int rows, const matrix<double>& w, const matrix<double>& c,
                    Takes takes)
{
    double sum = 0.0;
    for (int r = 0; r < rows; ++r) {
        if (takes(r)) {
            sum += (w[r] * (x(r, i) - c[i])) * (x(r, j) - c[j]);
        }
    }
    return sum;
}

} // namespace

TEST(Inertia, TakesTheRowsOfTheGroup)
{
    matrix<double> x(3, 2, 0.0);
    const std::vector<double> cells{1, 2, 5, 0, 4, 10};
    std::copy(cells.begin(), cells.end(), x.data);
    auto w = vectorOf<double>({1, 2, 3});
    auto ids = vectorOf<double>({7, 7, 8});
    auto wholeIds = vectorOf<int>({7, 7, 8});
    auto centres = vectorOf<double>({1, 2});
    struct {
        int group;
        double first;
        double cross;
    } const cases[] = {{7, 2.0, 4.0}, {8, 48.0, 96.0}, {-1, 50.0, 100.0}, {9, 0.0, 0.0}, {-2, 0.0, 0.0}};
    for (const auto& expected : cases) {
        matrix<double> out(2, 2, 9.0);
        M_Inertie_W(&x, 3, 2, &w, expected.group, &ids, &centres, &out);
        EXPECT_TRUE(sameBits(out.getElement(0, 0), expected.first));
        EXPECT_TRUE(sameBits(out.getElement(0, 1), expected.cross));
        EXPECT_TRUE(sameBits(out.getElement(1, 0), expected.cross));
        matrix<double> other(2, 2, 9.0);
        M_Inertie_W(&x, 3, 2, &w, expected.group, &wholeIds, &centres, &other);
        EXPECT_TRUE(sameBits(other.getElement(1, 1), out.getElement(1, 1)));
        EXPECT_TRUE(sameBits(other.getElement(0, 1), expected.cross));
    }
    matrix<double> out(2, 2, 9.0);
    M_Inertie_W(&x, 3, 2, &w, -1, static_cast<matrix<int>*>(nullptr), &centres, &out);
    EXPECT_TRUE(sameBits(out.getElement(0, 0), 50.0)) << "the group numbers are not read";
}

TEST(Inertia, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto w = cells.weights(rows);
        auto centres = cells.values(cols);
        auto ids = cells.integers(rows, -2, 1);
        const int group = cells.integer(-2, 1);
        const auto takes = [&](int r) { return group == -1 || ids.data[r] == group; };
        matrix<double> out(cols, cols, 9.0);
        M_Inertie_W(&x, rows, cols, &w, group, &ids, &centres, &out);
        for (int i = 0; i < cols; ++i) {
            for (int j = i; j < cols; ++j) {
                const auto at = [&](int r, int k) { return x.getElement(r, k); };
                const double plain = plainScatter(at, i, j, rows, w, centres, takes);
                ASSERT_TRUE(sameBits(out.getElement(i, j), plain));
                ASSERT_TRUE(sameBits(out.getElement(j, i), plain));
            }
        }
        random_chunks<double> chunks(cells, cols, [&](int) { return rows; });
        random_chunks<double> result(cells, cols, [&](int) { return cols; });
        random_chunks<double> expected(result);
        matrix<double> doubleIds(rows, 1, 0.0);
        std::copy_n(ids.data, rows, doubleIds.data);
        M_Inertie_WSPV(chunks.get(), rows, cols, &w, group, &doubleIds, &centres, result.get());
        for (int i = 0; i < cols; ++i) {
            for (int j = i; j < cols; ++j) {
                const auto at = [&](int r, int k) {
                    return static_cast<const matrix<double>&>(chunks[k])[r];
                };
                const double plain = plainScatter(at, i, j, rows, w, centres, takes);
                korvel::storeChecked(expected[j], i, plain);
                korvel::storeChecked(expected[i], j, plain);
            }
        }
        expectSame(result, expected);
    });
}
