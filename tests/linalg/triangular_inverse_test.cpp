#include "linalg/triangular_inverse.h"

#include "linalg/square_tables.h"
#include "reference/eliminations.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

matrix<double> triangleOf(matrix<double> table, bool lower)
{
    for (int i = 0; i < table.nbrows; ++i) {
        for (int j = 0; j < table.nbcols; ++j) {
            if (lower ? i < j : i > j) {
                table.setElement(i, j, 0.0);
            }
        }
    }
    return table;
}

} // namespace

TEST(TriangularInverse, IsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 16, 17, 33, 65}, [](random_cells& cells, int n) {
        matrix<double> T = squareTable(cells, n);
        matrix<double> actual = squareTable(cells, n);
        matrix<double> expected = twinOf(actual);
        const auto lowerFlag = static_cast<short int>(cells.integer(-1, 1));
        const double tolerance = cells.integer(0, 4) == 0 ? 2.0 : 0.0;
        auto* place = &actual;
        const int status = M_InverseTriang(&T, n, lowerFlag, place, tolerance);
        ASSERT_EQ(status, plainInverseTriang(T, n, lowerFlag, expected, tolerance));
        expectSame(actual, expected);
    });
}

TEST(TriangularInverse, ReadsAndWritesOneTriangle)
{
    matrix<double> T = tableOf({{2, 3}, {5, 4}});
    matrix<double> inverse(2, 2, 9.0);
    auto* place = &inverse;
    EXPECT_EQ(M_InverseTriang(&T, 2, 0, place, 1e-12), 0);
    EXPECT_SAME_BITS(inverse.getElement(0, 0), 0.5);
    EXPECT_SAME_BITS(inverse.getElement(0, 1), -0.375);
    EXPECT_SAME_BITS(inverse.getElement(1, 0), 9.0);
    EXPECT_SAME_BITS(inverse.getElement(1, 1), 0.25);
    for (const short int lower : {short{1}, short{-1}, short{7}}) {
        matrix<double> other(2, 2, 9.0);
        place = &other;
        EXPECT_EQ(M_InverseTriang(&T, 2, lower, place, 1e-12), 0);
        EXPECT_SAME_BITS(other.getElement(0, 1), 9.0);
        EXPECT_SAME_BITS(other.getElement(1, 0), -0.625);
    }
}

TEST(TriangularInverse, FailsAtADiagonalElementBelowTheTolerance)
{
    matrix<double> T = tableOf({{2, 3, 1}, {0, 0.5, 1}, {0, 0, 4}});
    matrix<double> inverse(3, 3, 0.0);
    auto* place = &inverse;
    EXPECT_EQ(M_InverseTriang(&T, 3, 0, place, 0.5), 0) << "equal is not below";
    matrix<double> failed(3, 3, 0.0);
    place = &failed;
    EXPECT_EQ(M_InverseTriang(&T, 3, 0, place, std::nextafter(0.5, 1.0)), -1);
    matrix<double> expected = tableOf({{0.5, 0, 0}, {0, 0, 0}, {0, 0, 0}});
    expected.oobValue = 0.5;
    expectSame(failed, expected);
    T.setElement(1, 1, notANumber);
    EXPECT_EQ(M_InverseTriang(&T, 3, 0, place, 1e-12), 0) << "a NaN is not below";
}

TEST(TriangularInverse, ToleranceIsNotScaledToTheTable)
{
    matrix<double> tiny = tableOf({{1e-13, 0}, {1e-13, 1e-13}});
    matrix<double> inverse(2, 2, 0.0);
    auto* place = &inverse;
    EXPECT_EQ(M_InverseTriang(&tiny, 2, 1, place, 1e-12), -1);
    EXPECT_EQ(M_InverseTriang(&tiny, 2, 1, place, 0.0), 0);
}

TEST(TriangularInverse, InvertsAsWellAsLapackAsks)
{
    std::mt19937_64 generator(4);
    for (const bool lower : {false, true}) {
        for (const table_kind kind : tableKinds) {
            for (const int n : tableOrders) {
                if (kind == table_kind::random && n > 10) {
                    continue; // random triangles of any size are singular to working precision
                }
                matrix<double> T = triangleOf(madeTable(kind, n, generator), lower);
                if (kind == table_kind::tiny || kind == table_kind::huge) {
                    for (int i = 0; i < n; ++i) {
                        T.setElement(i, i, T.getElement(i, i) * 4.0 * n);
                    }
                }
                matrix<double> inverse(n, n, 0.0);
                auto* place = &inverse;
                ASSERT_EQ(M_InverseTriang(&T, n, lower ? 1 : 0, place, 0.0), 0);
                EXPECT_LT(inverseResidual(T, inverse), lapackThreshold)
                    << "kind " << static_cast<int>(kind) << ", order " << n;
            }
        }
    }
}
