#include "statistics/correlation_conversion.h"

#include "support/bits.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

matrix<double> squareOf(int n, const std::vector<double>& cells)
{
    matrix<double> made(n, n, 0.0);
    std::copy(cells.begin(), cells.end(), made.data);
    return made;
}

} // namespace

TEST(CorrelationConversion, FromCovariances)
{
    auto cov = squareOf(3, {4, 6, 1, 3, 9, 2, 5, 7, 0});
    for (const short int zero : std::array<short int, 3>{0, 1, -1}) {
        const double undefined = zero != 0 ? 0.0 : gone;
        matrix<double> out(3, 3, 7.0);
        M_CorrMatFromCovMat(&cov, 3, &out, zero);
        EXPECT_TRUE(sameBits(out.getElement(0, 0), 1.0));
        EXPECT_TRUE(sameBits(out.getElement(1, 0), 6.0 / 6.0));
        EXPECT_TRUE(sameBits(out.getElement(0, 1), 3.0 / 6.0)) << "cell by cell";
        EXPECT_TRUE(sameBits(out.getElement(2, 2), undefined));
        EXPECT_TRUE(sameBits(out.getElement(2, 0), undefined));
        EXPECT_TRUE(sameBits(out.getElement(1, 2), undefined));
    }
}

TEST(CorrelationConversion, ThresholdsDiffer)
{
    struct {
        double first;
        double second;
        double diagonal;
        double cell;
    } const cases[] = {{1e-12, 1, gone, 2.0 / std::sqrt(1e-12)},
                       {1.1e-12, 1, 1.0, 2.0 / std::sqrt(1.1e-12)},
                       {-4, 1, gone, gone},
                       {-4, -1, gone, 1.0},
                       {notANumber, 1, gone, gone},
                       {0, 1, gone, gone}};
    for (const auto& expected : cases) {
        auto cov = squareOf(2, {expected.first, 2, 2, expected.second});
        matrix<double> out(2, 2, 7.0);
        M_CorrMatFromCovMat(&cov, 2, &out, 0);
        EXPECT_TRUE(sameBits(out.getElement(0, 0), expected.diagonal)) << expected.first;
        EXPECT_TRUE(sameBits(out.getElement(0, 1), expected.cell)) << expected.first;
    }
}

TEST(CorrelationConversion, InPlaceOnATriangle)
{
    forRandomShapes([](random_cells& cells, int n, int) {
        n = std::min(n, 20);
        matrix<double> cov(n, n, 0.0);
        matrix3D<matrix<double>> triangle(n, n, n, 0.0);
        for (int j = 0; j < n; ++j) {
            triangle.chunks[static_cast<std::size_t>(j)].Redim(n - j, 1, 0.0);
            for (int i = j; i < n; ++i) {
                const double cell = i == j ? std::fabs(cells.value()) : cells.value();
                cov.setElement(i, j, cell);
                cov.setElement(j, i, cell);
                triangle.setElement(j, i - j, cell);
            }
        }
        matrix<double> out(n, n, 0.0);
        M_CorrMatFromCovMat(&cov, n, &out, 0);
        M_CorrMatFromCovMatSPV2_T(&triangle, n);
        for (int j = 0; j < n; ++j) {
            for (int i = j; i < n; ++i) {
                const double p = cov.getElement(i, i) * cov.getElement(j, j);
                const double plain = i == j    ? (cov.getElement(i, i) > 1e-12 ? 1.0 : gone)
                                     : p > 0.0 ? cov.getElement(i, j) / std::sqrt(p)
                                               : gone;
                ASSERT_TRUE(sameBits(triangle.getElement(j, i - j), plain));
                ASSERT_TRUE(sameBits(out.getElement(i, j), plain));
            }
        }
    });
}

TEST(CorrelationConversion, ToCovariances)
{
    auto corr = squareOf(2, {1, 0.5, 0.25, gone});
    auto vars = vectorOf<double>({4, 9});
    matrix<double> out(2, 2, 7.0);
    M_CovMatFromCorrMat(&corr, 2, &vars, &out);
    EXPECT_TRUE(sameBits(out.getElement(0, 0), 4.0));
    EXPECT_TRUE(sameBits(out.getElement(1, 0), 3.0));
    EXPECT_TRUE(sameBits(out.getElement(0, 1), 1.5));
    EXPECT_TRUE(sameBits(out.getElement(1, 1), -infinite)) << "nothing is tested";
    vars.data[0] = -4;
    M_CovMatFromCorrMat(&corr, 2, &vars, &corr);
    EXPECT_TRUE(sameBits(corr.getElement(0, 1), notANumber)) << "in place";
    EXPECT_TRUE(sameBits(corr.getElement(0, 0), 4.0));
}
