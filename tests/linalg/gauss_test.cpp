#include "linalg/gauss.h"

#include "linalg/square_tables.h"
#include "reference/eliminations.h"
#include "support/near_tables.h"

using namespace korvel::test;

TEST(Gauss, IsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 17, 33}, [](random_cells& cells, int n) {
        matrix<double> A = squareTable(cells, n);
        const int m = cells.integer(0, 9);
        matrix<double> B =
            cells.integer(0, 3) == 0 ? nearTable<double>(cells, n, m) : matrix<double>(n, m, 1.5);
        fillRandomly(cells, B);
        matrix<double> expectedA = twinOf(A);
        matrix<double> expectedB = twinOf(B);
        const bool noSwap = cells.integer(0, 3) == 0;
        const bool noPivot = cells.integer(0, 3) == 0;
        ASSERT_EQ(M_Gauss(&A, n, m, &B, noSwap, noPivot),
                  plainGauss(expectedA, n, m, expectedB, noSwap, noPivot));
        expectSame(A, expectedA);
        expectSame(B, expectedB);
    });
}

TEST(Gauss, OfALabelledTableIsThatOfTheTable)
{
    forSquareTables({0, 1, 2, 3, 5, 9}, [](random_cells& cells, int n) {
        matrix<double> A(n, n, 0.0);
        matrix<double> b(n, 1, 0.0);
        fillRandomly(cells, A);
        fillRandomly(cells, b);
        cST_MVect<double> record(n, n);
        cST_Vect<double> side;
        side.Vect.Redim(n, 1);
        std::copy_n(b.data, n, side.Vect.data);
        const auto columnOf = [&](int j) { return record.Vectors[static_cast<std::size_t>(j)].Vect.data; };
        for (int j = 0; j < n; ++j) {
            std::copy_n(A.data + n * j, n, columnOf(j));
        }
        ASSERT_EQ(V_Gauss_ST(record, n, side), plainGauss(A, n, 1, b, false, false));
        for (int j = 0; j < n; ++j) {
            ASSERT_SAME_BITS(side.Vect.data[j], b.data[j]);
            for (int i = 0; i < n; ++i) {
                ASSERT_SAME_BITS(columnOf(j)[i], A.getElement(i, j));
            }
        }
    });
}

TEST(Gauss, SolvesAndInverts)
{
    matrix<double> A = tableOf({{0, 2}, {4, 0}});
    matrix<double> B = tableOf({{6, 2}, {8, 12}});
    EXPECT_EQ(M_Gauss(&A, 2, 2, &B, false, false), 0);
    EXPECT_EQ(std::vector<double>(A.data, A.data + 4), (std::vector<double>{0, 0.5, 0.25, 0}));
    EXPECT_EQ(std::vector<double>(B.data, B.data + 4), (std::vector<double>{2, 3, 3, 1}));
}

TEST(Gauss, WithoutPivotingFailsAtAZeroOnTheDiagonal)
{
    matrix<double> A = tableOf({{0, 2}, {4, 0}});
    matrix<double> B = tableOf({{6}, {8}});
    EXPECT_EQ(M_Gauss(&A, 2, 1, &B, false, true), -2);
    EXPECT_EQ(std::vector<double>(A.data, A.data + 4), (std::vector<double>{0, 4, 2, 0})) << "at once";
    EXPECT_EQ(std::vector<double>(B.data, B.data + 2), (std::vector<double>{6, 8}));
}

TEST(Gauss, WithoutSwappingTakesTheDiagonalOfTheColumnThatItFinds)
{
    matrix<double> A = tableOf({{0, 2}, {4, 0}});
    matrix<double> B(2, 1, 1.0);
    EXPECT_EQ(M_Gauss(&A, 2, 1, &B, true, false), -2)
        << "4 is found in the first column, whose diagonal is 0";
    // 8 is the largest element, but the pivot is the diagonal of its column, 5, as without pivoting.
    A = tableOf({{5, 2}, {8, 4}});
    matrix<double> inOrder(A);
    matrix<double> C(2, 1, 1.0);
    EXPECT_EQ(M_Gauss(&A, 2, 1, &B, true, false), 0);
    EXPECT_EQ(M_Gauss(&inOrder, 2, 1, &C, false, true), 0);
    expectSame(A, inOrder);
    expectSame(B, C);
    matrix<double> swapped = tableOf({{5, 2}, {8, 4}});
    EXPECT_EQ(M_Gauss(&swapped, 2, 1, &C, false, false), 0);
    EXPECT_NE(swapped.getElement(0, 0), A.getElement(0, 0))
        << "with swaps it is 8, and the last places differ";
}

TEST(Gauss, SaysThatATableIsSingularOnlyWhenAPivotIsZero)
{
    matrix<double> zeros(2, 2, 0.0);
    matrix<double> B(2, 1, 1.0);
    EXPECT_EQ(M_Gauss(&zeros, 2, 1, &B, false, false), -2);
    matrix<double> rankOne = tableOf({{1, 2}, {2, 4}});
    EXPECT_EQ(M_Gauss(&rankOne, 2, 1, &B, false, false), -2);
    matrix<double> nearlyRankOne = tableOf({{0.1, 0.2}, {0.3, 0.6 + 1e-16}});
    EXPECT_EQ(M_Gauss(&nearlyRankOne, 2, 1, &B, false, false), 0) << "what is left is rounding error";
    matrix<double> tiny = tableOf({{1e-300}});
    matrix<double> none(1, 1, 3.0);
    EXPECT_EQ(M_Gauss(&tiny, 1, 0, &none, false, false), 0) << "however small";
    EXPECT_SAME_BITS(tiny.data[0], 1.0 / 1e-300);
    EXPECT_SAME_BITS(none.data[0], 3.0);
}

TEST(Gauss, KeepsTheFirstOfNearlyEqualElements)
{
    // The pivot shows in the last places of the inverse: 1 stays before 1 + 0.9e-12, not before 1 + 3e-12.
    for (const bool goes : {false, true}) {
        const double other = goes ? 1.0 + 3e-12 : 1.0 + 0.9e-12;
        matrix<double> A = tableOf({{1.0, other}, {0.25, 0.5}});
        matrix<double> B(2, 1, 0.0);
        M_Gauss(&A, 2, 1, &B, false, false);
        // With the first column as pivot row 2 becomes 0.5 - 0.25 * other; with the second, after the swap of
        // rows, 0.25 - 0.5 * (1 / other).
        const double p = goes ? 1.0 / other : 1.0;
        const double rest = goes ? 0.25 - 0.5 * (1.0 * p) : 0.5 - 0.25 * (other * p);
        const double inverted = goes ? A.getElement(0, 1) : A.getElement(1, 1);
        EXPECT_SAME_BITS(inverted, 1.0 * (1.0 / rest));
    }
}

TEST(Gauss, TakesAnElementThatIsLargerByMoreThanTheLimitItself)
{
    // Without swapping, the pivot of the first column changes its cell, and that of the second is 0 at once.
    const auto firstCellAfter = [](double other) {
        matrix<double> A = tableOf({{2, other}, {0, 0}});
        matrix<double> B(2, 1, 1.0);
        EXPECT_EQ(M_Gauss(&A, 2, 0, &B, true, false), -2);
        return A.getElement(0, 0);
    };
    EXPECT_SAME_BITS(firstCellAfter(2 + std::ldexp(2251.0, -51)), 0.5);
    EXPECT_SAME_BITS(firstCellAfter(2 + std::ldexp(2252.0, -51)), 2.0)
        << "by 1.00009e-12, as it is subtracted";
    matrix<double> limit = tableOf({{0, 1e-12}, {1e-12, 0}});
    matrix<double> B(2, 1, 1.0);
    EXPECT_EQ(M_Gauss(&limit, 2, 0, &B, false, false), -2) << "no element stands out";
    const double over = std::nextafter(1e-12, 1.0);
    limit = tableOf({{0, over}, {over, 0}});
    EXPECT_EQ(M_Gauss(&limit, 2, 0, &B, false, false), 0);
}

TEST(Gauss, TakesTheDiagonalInOrderWhereNoElementStandsOut)
{
    // All are below 1e-12: 4e-13 would be the larger pivot, but no pivot is searched for.
    matrix<double> A = tableOf({{1e-13, 4e-13}, {3e-13, 1e-13}});
    matrix<double> twin(A);
    matrix<double> B(2, 1, 1.0);
    matrix<double> C(2, 1, 1.0);
    EXPECT_EQ(M_Gauss(&A, 2, 1, &B, false, false), 0);
    EXPECT_EQ(M_Gauss(&twin, 2, 1, &C, false, true), 0);
    for (int k = 0; k < 4; ++k) {
        EXPECT_SAME_BITS(A.data[k], twin.data[k]);
    }
}

TEST(Gauss, InvertsAsWellAsLapackAsks)
{
    std::mt19937_64 generator(21);
    for (const table_kind kind : tableKinds) {
        for (const int n : tableOrders) {
            if ((kind == table_kind::hilbert && n > 10) || (kind == table_kind::tiny && n > 1)) {
                continue; // the one is singular to working precision, the other has no pivoting
            }
            const matrix<double> A = madeTable(kind, n, generator);
            matrix<double> inverse(A);
            matrix<double> B(n, 1, 1.0);
            ASSERT_EQ(M_Gauss(&inverse, n, 1, &B, false, false), 0);
            EXPECT_LT(inverseResidual(A, inverse), lapackThreshold)
                << "kind " << static_cast<int>(kind) << ", order " << n;
        }
    }
}
