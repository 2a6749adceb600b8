#include "linalg/vector_kernels.h"

#include "support/bits.h"
#include "support/column_tables.h"
#include "support/random_tables.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

/** A table of 5 by 2 in three forms, all changed alike. */
struct in_three_forms {
    matrix<double> dense = columnTable(5, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    matrix3D<matrix<double>> chunks = chunksOf<matrix<double>>(dense);
    cST_MVect<double> record{5, 2};

    in_three_forms()
    {
        for (int k = 0; k < 10; ++k) {
            record.Vectors[static_cast<std::size_t>(k / 5)].Vect.data[k % 5] = dense.data[k];
        }
    }

    void expect(const std::vector<double>& cells) const
    {
        EXPECT_EQ(cellsOf(dense), cells);
        for (std::size_t k = 0; k < 10; ++k) {
            EXPECT_EQ(chunks.chunks[k / 5].data[k % 5], cells[k]) << k;
            EXPECT_EQ(record.Vectors[k / 5].Vect.data[k % 5], cells[k]) << k;
        }
    }
};

} // namespace

TEST(VectorKernels, Norm)
{
    in_three_forms x;
    const double expected = std::sqrt(4.0 + 9.0 + 16.0);
    for (const double found : {DNRM2(3, &x.dense, 1, 2, 1), DNRM2SPV(3, &x.chunks, 1, 2, 1),
                               DNRM2_Fast_ST(3, x.record, 1, 2, 1)}) {
        EXPECT_NEAR(found, expected, 1e-15);
    }
    EXPECT_NEAR(DNRM2(3, &x.dense, 2, 1, 1), std::sqrt(35.0), 1e-15) << "every other row";
    EXPECT_SAME_BITS(DNRM2(0, &x.dense, 1, 1, 1), 0.0);
    EXPECT_SAME_BITS(DNRM2(-3, &x.dense, 1, 1, 1), 0.0);
    x.dense.data[0] = -7.0;
    EXPECT_SAME_BITS(DNRM2(1, &x.dense, 1, 1, 1), 7.0);
}

TEST(VectorKernels, NormByScaledSums)
{
    matrix<double> x = columnTable(4, {0.0, 3e200, -0.0, 4e200});
    EXPECT_NEAR(DNRM2(4, &x, 1, 1, 1) / 5e200, 1.0, 1e-15) << "no overflow";
    matrix<double> zero(4, 1, 0.0);
    EXPECT_SAME_BITS(DNRM2(4, &zero, 1, 1, 1), 0.0);
    double scale = 0.0;
    double ssq = 1.0;
    matrix<double> y = columnTable(5, {0.3, -0.7, 0.1, 0.7, 2.1});
    for (const double cell : cellsOf(y)) {
        const double a = std::fabs(cell);
        if (scale < a) {
            ssq = 1.0 + ssq * ((scale / a) * (scale / a));
            scale = a;
        } else {
            ssq += (a / scale) * (a / scale);
        }
    }
    EXPECT_SAME_BITS(DNRM2(5, &y, 1, 1, 1), scale * std::sqrt(ssq));
}

TEST(VectorKernels, Scaling)
{
    in_three_forms x;
    dscal(2, -2.0, &x.dense, 2, 2, 2);
    dscalSPV(2, -2.0, &x.chunks, 2, 2, 2);
    dscal_Fast_ST(2, -2.0, x.record, 2, 2, 2);
    x.expect({1, 2, 3, 4, 5, 6, -14, 8, -18, 10});
    dscal(0, 0.0, &x.dense, 1, 1, 1);
    dscalSPV(-1, 0.0, &x.chunks, 1, 1, 1);
    x.expect({1, 2, 3, 4, 5, 6, -14, 8, -18, 10});
}

TEST(VectorKernels, AddingAMultiple)
{
    in_three_forms x;
    daxpy(3, 2.0, &x.dense, 1, &x.dense, 1, 1, 1, 3, 2);
    daxpySPV(3, 2.0, &x.chunks, 1, &x.chunks, 1, 1, 1, 3, 2);
    daxpy_Fast_ST(3, 2.0, x.record, 1, x.record, 1, 1, 1, 3, 2);
    x.expect({1, 2, 3, 4, 5, 6, 7, 10, 13, 16});
    daxpy(2, 1.0, &x.dense, -1, &x.dense, 2, 1, 1, 1, 2);
    daxpySPV(2, 1.0, &x.chunks, -1, &x.chunks, 2, 1, 1, 1, 2);
    daxpy_Fast_ST(2, 1.0, x.record, -1, x.record, 2, 1, 1, 1, 2);
    x.expect({1, 2, 3, 4, 5, 8, 7, 11, 13, 16});
    matrix<double> infinity = columnTable(1, {infinite});
    matrix<double> y = columnTable(1, {1.0});
    daxpy(1, 0.0, &infinity, 1, &y, 1, 1, 1, 1, 1);
    EXPECT_EQ(y.data[0], 1.0) << "a factor of 0 does nothing";
}

TEST(VectorKernels, InnerProduct)
{
    in_three_forms x;
    for (const double found :
         {ddot(3, &x.dense, 1, &x.dense, 1, 2, 1, 1, 2), ddotSPV(3, &x.chunks, 1, &x.chunks, 1, 2, 1, 1, 2),
          ddot_Fast_ST(3, x.record, 1, x.record, 1, 2, 1, 1, 2)}) {
        EXPECT_EQ(found, 2.0 * 6 + 3 * 7 + 4 * 8);
    }
    EXPECT_EQ(ddot(2, &x.dense, -2, &x.dense, 1, 1, 1, 1, 2), 3.0 * 6 + 1 * 7) << "from the far end";
    EXPECT_SAME_BITS(ddot(0, &x.dense, 1, &x.dense, 1, 1, 1, 1, 1), 0.0);
    random_cells cells(3, odd_cells::none);
    for (int n = 1; n < 30; ++n) {
        matrix<double> left = cells.values(n);
        matrix<double> right = cells.values(n);
        double sum = 0.0;
        for (int i = 0; i < n; ++i) {
            sum += left.data[i] * right.data[i];
        }
        EXPECT_SAME_BITS(ddot(n, &left, 1, &right, 1, 1, 1, 1, 1), sum);
    }
}

TEST(VectorKernels, SwappingAndRotatingColumns)
{
    in_three_forms x;
    M_SwapVectors(2, &x.dense, 1, &x.dense, 2, 1, 2);
    M_SwapVectorsSPV(2, &x.chunks, 1, &x.chunks, 2, 1, 2);
    EXPECT_EQ(cellsOf(x.dense), (std::vector<double>{6, 8, 3, 4, 5, 1, 7, 2, 9, 10}));
    EXPECT_EQ(x.chunks.chunks[0].data[1], 8.0);
    EXPECT_EQ(x.chunks.chunks[1].data[2], 2.0);
    in_three_forms y;
    drot(2, &y.dense, 1, &y.dense, 1, 3.0, 2.0, 1, 2);
    drotSPV(2, &y.chunks, 1, &y.chunks, 1, 3.0, 2.0, 1, 2);
    drot_Fast_ST(2, y.record, 1, y.record, 1, 3.0, 2.0, 1, 2);
    y.expect({15, 20, 3, 4, 5, 16, 17, 8, 9, 10});
}

TEST(VectorKernels, AccessIsChecked)
{
    std::vector<double> block(6, 1.0);
    matrix<double> x(2, 2, block.data() + 1, true);
    x.oobValue = 4.0;
    EXPECT_EQ(DNRM2(3, &x, 1, 2, 1), std::sqrt(1.0 + 2 * 16.0)) << "outside is the spare slot";
    dscal(3, 2.0, &x, 1, 2, 2);
    EXPECT_EQ(block, (std::vector<double>{1, 1, 1, 1, 2, 1}));
}

TEST(VectorKernels, GivensRotations)
{
    struct known {
        double a, b, r, z, c, s;
    };
    constexpr std::array cases{known{0, 0, 0, 0, 1, 0},
                               known{3, 4, 5, 1 / 0.6, 0.6, 0.8},
                               known{4, 3, 5, 0.6, 0.8, 0.6},
                               known{-4, 3, -5, -0.6, 0.8, -0.6},
                               known{3, -4, -5, 1 / -0.6, -0.6, 0.8},
                               known{0, 2, 2, 1, 0, 1},
                               known{-2, 0, -2, 0, 1, 0}};
    for (const known& one : cases) {
        double a = one.a;
        double b = one.b;
        double c = 9;
        double s = 9;
        drotg(&a, &b, &c, &s);
        EXPECT_NEAR(a, one.r, 1e-15);
        EXPECT_NEAR(b, one.z, 1e-15);
        EXPECT_NEAR(c, one.c, 1e-15);
        EXPECT_NEAR(s, one.s, 1e-15);
    }
    double a = 2;
    double b = -2;
    double c = 9;
    double s = 9;
    drotg(&a, &b, &c, &s);
    EXPECT_LT(a, 0.0) << "on a tie the sign is that of b";
    EXPECT_SAME_BITS(b, 1.0 / c);
}
