#include "statistics/distances.h"

#include "support/bits.h"
#include "support/near_tables.h"
#include "support/special_values.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

/** Columns 0 3 0, 4 3 0 and 0 3 12. */
matrix<double> table()
{
    matrix<double> x(3, 3, 0.0);
    const std::vector<double> cells{0, 3, 0, 4, 3, 0, 0, 3, 12};
    std::copy(cells.begin(), cells.end(), x.data);
    return x;
}

template <class X, class Y>
double plainDistance(X x, Y y, int n, const matrix<double>& w)
{
    double sum = 0.0;
    for (int k = 0; k < n; ++k) {
        const double d = x(k) - y(k);
        sum += w[k] * (d * d);
    }
    return std::sqrt(sum);
}

template <class X>
double plainDistanceTo(X x, const matrix<double>& v, int n)
{
    double sum = 0.0;
    double c = 0.0;
    for (int k = 0; k < n; ++k) {
        if (x(k) > gone && v[k] > gone) {
            sum += (x(k) - v[k]) * (x(k) - v[k]);
            c += 1.0;
        }
    }
    return c == 0.0 ? gone : std::sqrt(sum / c);
}

} // namespace

TEST(Distances, BetweenColumnsAndBetweenRows)
{
    auto x = table();
    auto w = vectorOf<double>({1, 1, 1});
    matrix<double> out(3, 3, 9.0);
    M_EuclidDist2(&x, 3, 3, &w, &out, 0, 99);
    EXPECT_TRUE(sameBits(out.getElement(0, 0), 0.0));
    EXPECT_TRUE(sameBits(out.getElement(0, 1), 4.0));
    EXPECT_TRUE(sameBits(out.getElement(2, 0), 12.0));
    EXPECT_TRUE(sameBits(out.getElement(1, 2), std::sqrt(160.0)));
    w.data[2] = 0.25;
    M_EuclidDist2(&x, 3, 3, &w, &out, 1, 99);
    EXPECT_TRUE(sameBits(out.getElement(0, 2), 6.0)) << "1 is not true";
    matrix<double> ofRows(2, 2, 9.0);
    M_EuclidDist2(&x, 3, 3, &w, &ofRows, -1, 2); // rows 0 4 0 and 3 3 3
    EXPECT_TRUE(sameBits(ofRows.getElement(0, 1), std::sqrt(9.0 + 1.0 + 0.25 * 9.0)));
    EXPECT_TRUE(sameBits(ofRows.getElement(1, 0), ofRows.getElement(0, 1)));
}

TEST(Distances, MissingCellsAreNumbers)
{
    auto x = table();
    auto w = vectorOf<double>({1, 1, 1});
    matrix<double> out(3, 3, 9.0);
    x.data[0] = gone;
    M_EuclidDist2(&x, 3, 3, &w, &out, 0, 0);
    EXPECT_TRUE(sameBits(out.getElement(0, 1), infinite));
    EXPECT_TRUE(sameBits(out.getElement(0, 0), 0.0));
    x.data[0] = infinite;
    M_EuclidDist2(&x, 3, 3, &w, &out, 0, 0);
    EXPECT_TRUE(sameBits(out.getElement(0, 0), notANumber)) << "the diagonal is computed";
    double d = 0.0;
    int row = 0;
    x.data[0] = gone;
    M_GetMaxDistToOrigin(&x, 3, 3, d, row);
    EXPECT_TRUE(sameBits(d, infinite));
}

TEST(Distances, ToAVectorAreRootMeanSquares)
{
    auto x = table();
    auto v = vectorOf<double>({0, 0, 0});
    matrix<double> out(3, 1, 9.0);
    M_EuclidDistToVector(&x, 3, 3, &v, 0, &out);
    EXPECT_TRUE(sameBits(out.data[0], std::sqrt(9.0 / 3.0)));
    EXPECT_TRUE(sameBits(out.data[1], std::sqrt(25.0 / 3.0)));
    M_EuclidDistToVector(&x, 3, 3, &v, -1, &out);
    EXPECT_TRUE(sameBits(out.data[0], std::sqrt(16.0 / 3.0)));
    EXPECT_TRUE(sameBits(out.data[2], std::sqrt(144.0 / 3.0)));
    x.data[0] = notANumber;
    x.data[1] = gone;
    v = vectorOf<double>({0, 0, 2});
    M_EuclidDistToVector(&x, 3, 3, &v, 0, &out);
    EXPECT_TRUE(sameBits(out.data[0], 2.0)) << "one coordinate is left";
    v = vectorOf<double>({0, 0, gone});
    M_EuclidDistToVector(&x, 3, 3, &v, 0, &out);
    EXPECT_TRUE(sameBits(out.data[0], gone)) << "none is left";
}

TEST(Distances, TheFarthestRow)
{
    auto x = table();
    double d = 9.0;
    int row = 9;
    M_GetMaxDistToOrigin(&x, 3, 3, d, row);
    EXPECT_TRUE(sameBits(d, 12.0));
    EXPECT_EQ(row, 3);
    x.data[2] = 0.0;
    x.data[8] = 0.0;
    x.data[0] = x.data[6] = 3.0; // rows 3 4 3 and 3 3 3
    M_GetMaxDistToOrigin(&x, 3, 3, d, row);
    EXPECT_EQ(row, 1);
    x.data[3] = 3.0;
    M_GetMaxDistToOrigin(&x, 3, 3, d, row);
    EXPECT_EQ(row, 1) << "the first of equal ones";
    M_GetMaxDistToOrigin(&x, 0, 3, d, row);
    EXPECT_TRUE(sameBits(d, gone));
    EXPECT_EQ(row, 0);
}

TEST(Distances, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto byRow = cells.weights(rows);
        auto byColumn = cells.weights(cols);
        const auto row = [&](int i) { return [&x, i](int j) { return x.getElement(i, j); }; };
        const auto column = [&](int j) { return [&x, j](int i) { return x.getElement(i, j); }; };
        matrix<double> out(cols, cols, 9.0);
        M_EuclidDist2(&x, rows, cols, &byRow, &out, 0, 0);
        for (int i = 0; i < cols; ++i) {
            for (int j = 0; j < cols; ++j) {
                ASSERT_TRUE(sameBits(out.getElement(i, j), plainDistance(column(i), column(j), rows, byRow)));
            }
        }
        matrix<double> ofRows(rows, rows, 9.0);
        M_EuclidDist2(&x, rows, cols, &byColumn, &ofRows, -1, rows);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < rows; ++j) {
                ASSERT_TRUE(sameBits(ofRows.getElement(i, j), plainDistance(row(i), row(j), cols, byColumn)));
            }
        }
        matrix<double> toVector(cols, 1, 9.0);
        M_EuclidDistToVector(&x, rows, cols, &byRow, 0, &toVector);
        for (int j = 0; j < cols; ++j) {
            ASSERT_TRUE(sameBits(toVector.data[j], plainDistanceTo(column(j), byRow, rows)));
        }
        matrix<double> ofEachRow(rows, 1, 9.0);
        M_EuclidDistToVector(&x, rows, cols, &byColumn, -1, &ofEachRow);
        for (int i = 0; i < rows; ++i) {
            ASSERT_TRUE(sameBits(ofEachRow.data[i], plainDistanceTo(row(i), byColumn, cols)));
        }
    });
}
