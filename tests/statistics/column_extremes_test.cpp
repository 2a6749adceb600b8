#include "statistics/column_extremes.h"

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

struct pair_of_extremes {
    double smallest = gone;
    double largest = gone;
};

/** The extremes of the cells that count, the first of which starts both. */
template <class At, class Counts>
pair_of_extremes plainExtremes(At at, int rows, Counts counts)
{
    pair_of_extremes found;
    bool any = false;
    for (int i = 0; i < rows; ++i) {
        if (!counts(i, at(i))) {
            continue;
        }
        if (!any) {
            found = {at(i), at(i)};
            any = true;
        }
        if (at(i) < found.smallest) {
            found.smallest = at(i);
        }
        if (at(i) > found.largest) {
            found.largest = at(i);
        }
    }
    return found;
}

} // namespace

TEST(ColumnExtremes, TheFlagChoosesTheCells)
{
    struct {
        short int flag;
        double smallest;
        double largest;
    } const cases[] = {{-1, 1, 50}, {0, gone, 5}, {1, gone, gone}, {7, gone, gone}};
    for (const auto& expected : cases) {
        auto x = vectorOf<double>({3, 5, gone, 50, 1});
        std::vector<short int> flags{0, 0, 0, -1, 2};
        matrix<double> mins(1, 1, 9.0);
        matrix<double> maxs(1, 1, 9.0);
        M_MinMax(&x, 5, 1, &mins, &maxs, flags.data(), expected.flag);
        EXPECT_TRUE(sameBits(mins.data[0], expected.smallest)) << "flag 0 has no test of a missing cell";
        EXPECT_TRUE(sameBits(maxs.data[0], expected.largest)) << expected.flag;
        M_MinMax(&x, 5, 1, &mins, &maxs, nullptr, expected.flag == 0 ? short{5} : expected.flag);
        EXPECT_TRUE(sameBits(maxs.data[0], expected.flag == 0 ? gone : expected.largest))
            << "flags are not read";
    }
}

TEST(ColumnExtremes, OfColumnsAndOfTheTable)
{
    matrix<double> x(3, 3, 0.0);
    const std::vector<double> cells{gone, 4, -2, gone, gone, gone, notANumber, 1, infinite};
    std::copy(cells.begin(), cells.end(), x.data);
    matrix<double> out(3, 1, 9.0);
    M_Max(&x, 3, 3, &out);
    EXPECT_TRUE(sameBits(out.data[0], 4));
    EXPECT_TRUE(sameBits(out.data[1], gone));
    EXPECT_TRUE(sameBits(out.data[2], notANumber)) << "the first cell that counts";
    M_Min(&x, 3, 3, &out);
    EXPECT_TRUE(sameBits(out.data[0], -2));
    EXPECT_TRUE(sameBits(out.data[1], gone));
    EXPECT_TRUE(sameBits(M_MinAll(&x, 3, 3), -2));
    EXPECT_TRUE(sameBits(M_MinAll(&x, 1, 2), gone));
    EXPECT_TRUE(sameBits(M_MinAll(&x, 0, 3), gone));
}

TEST(ColumnExtremes, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        random_chunks<double> chunks(cells, cols, [&](int) { return rows; });
        auto flags = cells.flags(rows);
        const auto isPresent = [](int, double cell) { return cell != gone; };
        for (const short int flag : {short{-1}, short{0}, short{3}}) {
            const auto counts = [&](int i, double cell) {
                return flag == -1 ? cell != gone : flag == 0 && flags[static_cast<std::size_t>(i)] == 0;
            };
            matrix<double> mins(cols, 1, 9.0);
            matrix<double> maxs(cols, 1, 9.0);
            M_MinMax(&x, rows, cols, &mins, &maxs, flags.data(), flag);
            for (int j = 0; j < cols; ++j) {
                const auto plain = plainExtremes([&](int i) { return x.getElement(i, j); }, rows, counts);
                ASSERT_TRUE(sameBits(mins.data[j], plain.smallest));
                ASSERT_TRUE(sameBits(maxs.data[j], plain.largest));
            }
            M_MinMaxSPV(chunks.get(), rows, cols, &mins, &maxs, flags.data(), flag);
            for (int j = 0; j < cols; ++j) {
                const matrix<double>& chunk = chunks[j];
                const auto plain = plainExtremes([&](int i) { return chunk[i]; }, rows, counts);
                ASSERT_TRUE(sameBits(mins.data[j], plain.smallest));
                ASSERT_TRUE(sameBits(maxs.data[j], plain.largest));
            }
        }
        matrix<double> least(cols, 1, 9.0);
        matrix<double> most(cols, 1, 9.0);
        M_Min(&x, rows, cols, &least);
        M_Max(&x, rows, cols, &most);
        for (int j = 0; j < cols; ++j) {
            const auto plain = plainExtremes([&](int i) { return x.getElement(i, j); }, rows, isPresent);
            ASSERT_TRUE(sameBits(least.data[j], plain.smallest));
            ASSERT_TRUE(sameBits(most.data[j], plain.largest));
        }
        const auto all =
            plainExtremes([&](int k) { return x.getElement(k % rows, k / rows); }, rows * cols, isPresent);
        ASSERT_TRUE(sameBits(M_MinAll(&x, rows, cols), all.smallest));
    });
}

TEST(ColumnExtremes, TrianglesHaveWholeColumns)
{
    // 1 5 9
    // 5 2 7
    // 9 7 3
    matrix3D<matrix<double>> x(3, 3, 3, 0.0);
    const std::vector<std::vector<double>> stored{{1, 5, 9}, {2, 7}, {3}};
    for (std::size_t j = 0; j < 3; ++j) {
        x.chunks[j] = vectorOf<double>(stored[j]);
    }
    matrix<double> mins(3, 1, 0.0);
    matrix<double> maxs(3, 1, 0.0);
    M_MinMaxSPV_T(&x, 3, 3, &mins, &maxs, nullptr, -1);
    EXPECT_TRUE(sameBits(mins.data[0], 1));
    EXPECT_TRUE(sameBits(mins.data[1], 2));
    EXPECT_TRUE(sameBits(mins.data[2], 3));
    EXPECT_TRUE(sameBits(maxs.data[0], 9));
    EXPECT_TRUE(sameBits(maxs.data[1], 7));
    EXPECT_TRUE(sameBits(maxs.data[2], 9)) << "read from the first column";
    std::vector<short int> flags{-1, 0, 0};
    M_MinMaxSPV_T(&x, 3, 3, &mins, &maxs, flags.data(), 0);
    EXPECT_TRUE(sameBits(mins.data[0], 5));
    EXPECT_TRUE(sameBits(maxs.data[2], 7));
}

TEST(ColumnExtremes, OfTrianglesThatAreTooShortTakeTheSpareSlots)
{
    matrix3D<matrix<double>> x(2, 2, 2, 0.0);
    x.chunks[0] = vectorOf<double>({5, 6});
    x.chunks[1] = vectorOf<double>({7});
    x.chunks[0].oobValue = -3;
    x.chunks[1].oobValue = 40;
    matrix<double> mins(2, 1, 0.0);
    matrix<double> maxs(2, 1, 0.0);
    M_MinMaxSPV_T(&x, 3, 2, &mins, &maxs, nullptr, -1);
    EXPECT_TRUE(sameBits(mins.data[0], -3));
    EXPECT_TRUE(sameBits(maxs.data[0], 6));
    EXPECT_TRUE(sameBits(mins.data[1], 6));
    EXPECT_TRUE(sameBits(maxs.data[1], 40));
}
