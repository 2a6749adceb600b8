#include "statistics/weighted_sums.h"

#include "containers/cells.h"
#include "support/bits.h"
#include "support/near_tables.h"
#include "support/special_values.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

double plainSum(double left, double right, double a, double b)
{
    return left == gone || right == gone ? 0.0 : a * left + b * right;
}

} // namespace

TEST(WeightedSums, AMissingCellGivesZero)
{
    auto A = vectorOf<double>({1, gone, 3, notANumber});
    auto B = vectorOf<double>({10, 20, gone, 1});
    matrix<double> out(4, 1, 9.0);
    M_Sums1As2B(&A, 4, 1, &B, 2.0, 0.5, &out);
    EXPECT_TRUE(sameBits(out.data[0], 7.0));
    EXPECT_TRUE(sameBits(out.data[1], 0.0));
    EXPECT_TRUE(sameBits(out.data[2], 0.0));
    EXPECT_TRUE(sameBits(out.data[3], notANumber));
    M_Sums1As2B(&A, 4, 1, &B, 2.0, 0.5, &A);
    EXPECT_TRUE(sameBits(A.data[0], 7.0)) << "the result may be one of the tables";
}

TEST(WeightedSums, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const double a = cells.value();
        const double b = cells.value();
        auto A = nearTable<double>(cells, rows, cols);
        auto B = nearTable<double>(cells, rows, cols);
        auto out = nearTable<double>(cells, rows, cols);
        auto expected = twinOf(out);
        M_Sums1As2B(&A, rows, cols, &B, a, b, &out);
        for (int j = 0; j < cols; ++j) {
            for (int i = 0; i < rows; ++i) {
                expected.setElement(i, j, plainSum(A.getElement(i, j), B.getElement(i, j), a, b));
            }
        }
        expectSame(out, expected);

        const auto length = [&](int) { return rows; };
        random_chunks<double> left(cells, cols, length);
        random_chunks<double> right(cells, cols, length);
        random_chunks<double> sums(cells, cols, length);
        random_chunks<double> twin(sums);
        M_Sums1As2BSPV(left.get(), rows, cols, right.get(), a, b, sums.get());
        for (int j = 0; j < cols; ++j) {
            const matrix<double>& x = left[j];
            const matrix<double>& y = right[j];
            for (int i = 0; i < rows; ++i) {
                korvel::storeChecked(twin[j], i, plainSum(x[i], y[i], a, b));
            }
        }
        expectSame(sums, twin);
    });
}

TEST(WeightedSums, Triangles)
{
    const auto triangle = [](const std::vector<std::vector<double>>& columns) {
        const int n = static_cast<int>(columns.size());
        matrix3D<matrix<double>> made(n, n, n, 0.0);
        for (std::size_t j = 0; j < columns.size(); ++j) {
            made.chunks[j] = vectorOf<double>(columns[j]);
        }
        return made;
    };
    auto A = triangle({{1, 2, 3}, {4, gone}, {6}});
    auto B = triangle({{10, 20, 30}, {40, 50}, {60}});
    auto out = triangle({{9, 9, 9}, {9, 9}, {9}});
    M_Sums1As2BSPV_T(&A, 3, 3, &B, 1.0, 0.5, &out);
    const std::vector<std::vector<double>> expected{{6, 12, 18}, {24, 0}, {36}};
    for (std::size_t j = 0; j < 3; ++j) {
        for (std::size_t i = 0; i < expected[j].size(); ++i) {
            EXPECT_TRUE(sameBits(out.chunks[j].data[i], expected[j][i])) << i << ", " << j;
        }
        EXPECT_TRUE(sameBits(out.chunks[j].oobValue, expected[j].back()));
    }
}

TEST(WeightedSums, SparseTables)
{
    matrixSparse A(3, 4, 0.0, false);
    matrixSparse B(3, 4, 0.0, false);
    A.setElement(0, 1, 2.0);
    A.setElement(2, 3, gone);
    A.setElement(1, 0, 4.0);
    B.setElement(0, 1, 6.0);
    B.setElement(1, 2, 8.0);
    B.setElement(1, 0, -2.0);
    matrixSparse out(1, 1, 7.0, false);
    M_Sums1As2B(&A, 3, 4, &B, 0.5, 1.0, &out);
    EXPECT_EQ(out.nbrows, 3);
    EXPECT_EQ(out.nbcols, 4);
    EXPECT_EQ(out.nnz, 2) << "a sum of 0 is not stored";
    EXPECT_TRUE(sameBits(out.getElement(0, 1), 7.0));
    EXPECT_TRUE(sameBits(out.getElement(1, 2), 8.0));
    EXPECT_TRUE(sameBits(out.getElement(1, 0), 0.0));
    EXPECT_TRUE(sameBits(out.getElement(2, 3), 0.0)) << "missing in the first table";
    M_Sums1As2B(&A, 3, 4, &A, 1.0, 1.0, &A);
    EXPECT_TRUE(sameBits(A.getElement(1, 0), 8.0)) << "the result may be one of the tables";
}

TEST(WeightedSums, LabelledTables)
{
    cST_MVect<double> A(2, 2);
    cST_MVect<double> B(2, 2);
    cST_MVect<double> out(2, 2);
    const double left[] = {1, gone, 3, 4};
    const double right[] = {10, 20, 30, gone};
    for (std::size_t j = 0; j < 2; ++j) {
        std::copy_n(left + 2 * j, 2, A.Vectors[j].Vect.data);
        std::copy_n(right + 2 * j, 2, B.Vectors[j].Vect.data);
        std::fill_n(out.Vectors[j].Vect.data, 2, 9.0);
    }
    M_Sums1As2B_ST(A, 2, 2, B, 2.0, 0.5, out);
    EXPECT_EQ(out.Vectors[0].Vect.data[0], 7.0);
    EXPECT_EQ(out.Vectors[0].Vect.data[1], 0.0);
    EXPECT_EQ(out.Vectors[1].Vect.data[0], 21.0);
    EXPECT_EQ(out.Vectors[1].Vect.data[1], 0.0);
    M_Sums1As2B_ST(A, 2, 1, B, 1.0, 1.0, B);
    EXPECT_EQ(B.Vectors[0].Vect.data[0], 11.0) << "the result may be one of the tables";
    EXPECT_EQ(B.Vectors[1].Vect.data[0], 30.0) << "only the columns that are asked for";
}
