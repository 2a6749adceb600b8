#include "linalg/products.h"

#include "linalg/product_members.h"
#include "linalg/products_missing.h"
#include "linalg/products_records.h"
#include "linalg/products_symmetric.h"
#include "linalg/products_triple.h"
#include "linalg/products_vector.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

#include <limits>

using namespace korvel::test;

namespace
{

constexpr int largestInt = std::numeric_limits<int>::max();
constexpr int smallestInt = std::numeric_limits<int>::min();

matrix<int> integersOf(int rows, int cols, std::vector<int> cells)
{
    return matrix<int>(rows, cols, cells.data(), false);
}

matrix<int> randomIntegers(random_cells& cells, int rows, int cols)
{
    matrix<int> made(rows, cols);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = cells.integer(-70000, 70000);
    }
    return made;
}

::testing::AssertionResult sameIntegers(const matrix<int>& actual, const matrix<int>& expected)
{
    const std::vector<int> a(actual.data, actual.data + actual.nbElem);
    const std::vector<int> e(expected.data, expected.data + expected.nbElem);
    if (a == e && actual.nbrows == expected.nbrows) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << ::testing::PrintToString(a) << " is not " << ::testing::PrintToString(e);
}

/** The plain loops over integers: wrapped products, added as doubles. */
template <class Cell>
matrix<double> plainHalfOfIntegers(int order, int depth, Cell cell)
{
    matrix<double> sums(order, order, 0.0);
    plainHalf(order, depth, storeIn(sums), [&](int i, int j, int k) {
        const unsigned product = static_cast<unsigned>(cell(i, k)) * static_cast<unsigned>(cell(j, k));
        return static_cast<double>(static_cast<int>(product));
    });
    return sums;
}

} // namespace

TEST(Products, AreRightOnPaper)
{
    matrix<double> A = tableOf({{1, 2, 3}, {4, 5, 6}});
    matrix<double> B = tableOf({{1, 0}, {2, 1}, {0, -1}});
    matrix<double> C;
    EXPECT_EQ(M_ProductAB(A, 2, 3, B, 2, C), 0);
    EXPECT_TRUE(sameTables(C, tableOf({{5, -1}, {14, -1}})));
    matrix<double>* result = &C;
    M_ProductTrAB(&B, 3, 2, &B, 2, result);
    EXPECT_TRUE(sameTables(C, tableOf({{5, 2}, {2, 2}})));
    matrix<double> outer;
    M_ProductATrB(&A, 2, 3, &A, 2, &outer);
    EXPECT_TRUE(sameTables(outer, tableOf({{14, 32}, {32, 77}})));
}

TEST(Products, MultiplyFirstAndThenAdd)
{
    // The product is rounded by itself: 1 + 2^-30 squared, less what it rounds to, is not left over.
    const double x = 1.0 + 0x1p-30;
    matrix<double> A = tableOf({{-(1.0 + 0x1p-29), x}});
    matrix<double> B = tableOf({{1.0}, {x}});
    matrix<double> C;
    M_ProductAB(A, 1, 2, B, 1, C);
    EXPECT_TRUE(sameBits(C.data[0], 0.0));
}

TEST(Products, ClearWhatIsLargeEnoughInStorageOrder)
{
    matrix<double> A = tableOf({{2, 0}, {0, 2}});
    matrix<double> B = tableOf({{1, 3}, {5, 7}});
    matrix<double> C(3, 2, 9.0);
    M_ProductAB(A, 2, 2, B, 2, C);
    // The first four elements became 0: a column of three and the head of the next. The product goes on top.
    EXPECT_TRUE(sameTables(C, tableOf({{2, 6}, {10, 9 + 14}, {0, 9}})));
    matrix<double> D(3, 2, 9.0);
    matrix<double>* result = &D;
    M_ProductTrAB(&A, 2, 2, &B, 2, result);
    EXPECT_TRUE(sameTables(D, tableOf({{2, 6}, {10, 14}, {0, 9}}))) << "sums from 0.0 are stored";
}

TEST(Products, OfNothingAreClearedResults)
{
    matrix<double> none;
    for (const shape counts : {shape{2, 0}, shape{0, 2}, shape{-1, 2}, shape{2, -3}}) {
        matrix<double> C(2, 2, 9.0);
        M_ProductAB(none, counts.rows, 4, none, counts.cols, C);
        EXPECT_TRUE(sameTables(C, matrix<double>(2, 2, 9.0))) << "nothing to clear";
    }
    matrix<double> C(2, 2, 9.0);
    M_ProductAB(none, 2, 0, none, 2, C);
    EXPECT_TRUE(sameTables(C, matrix<double>(2, 2, 0.0)));
    matrix<double> fresh;
    M_ProductATrA(&none, 2, -1, &fresh);
    EXPECT_TRUE(sameTables(fresh, matrix<double>(2, 2, 0.0)));
    EXPECT_TRUE(sameBits(M_ProductTrVBV(&none, 0, &none), 0.0));
    EXPECT_TRUE(sameBits(M_ProductTrVBV(&none, -2, &none), 0.0));
    EXPECT_TRUE(sameBits(M_ProductTrV1BV2(&none, 0, &none, &none), 0.0));
}

TEST(Products, LeaveABorrowedResultThatIsTooSmall)
{
    matrix<double> A = tableOf({{1, 2}, {3, 4}});
    std::vector<double> block{9, 9};
    matrix<double> C(1, 2, block.data(), true);
    M_ProductATrB(&A, 2, 2, &A, 2, &C);
    EXPECT_EQ(C.nbrows, 1);
    EXPECT_EQ(block, (std::vector<double>{5, 11}));
    EXPECT_TRUE(sameBits(C.oobValue, 25.0));
}

TEST(Products, OneMissingCellBlanksARowOrAColumn)
{
    matrix<double> A = tableOf({{1, MISSING_DBL}, {3, 4}});
    matrix<double> B = tableOf({{1, 2}, {3, 4}});
    matrix<double> C;
    EXPECT_EQ(M_ProductABMissing(&A, 2, 2, &B, 2, &C), 0);
    EXPECT_TRUE(sameTables(C, tableOf({{MISSING_DBL, MISSING_DBL}, {15, 22}})));
    matrix<double> D;
    M_ProductABMissing(&B, 2, 2, &A, 2, &D);
    EXPECT_TRUE(sameTables(D, tableOf({{7, MISSING_DBL}, {15, MISSING_DBL}})));
    matrix<double> below = tableOf({{belowSentinel}});
    matrix<double> one = tableOf({{1.0}});
    matrix<double> E;
    M_ProductABMissing(&below, 1, 1, &one, 1, &E);
    EXPECT_TRUE(sameBits(E.data[0], belowSentinel)) << "only the sentinel itself is missing";
    matrix<double> F(1, 1, 9.0);
    M_ProductABMissing(&A, 1, 0, &B, 1, &F);
    EXPECT_TRUE(sameBits(F.data[0], 0.0));
}

TEST(Products, VectorTimesTableStopsAtTheFirstMissingCell)
{
    matrix<double> v = vectorOf<double>({MISSING_DBL, 1.0});
    matrix<double> B = tableOf({{1, 2, 3}, {4, 5, 6}});
    matrix<double> y;
    matrix<double>* result = &y;
    EXPECT_EQ(M_ProductVB(&v, 2, &B, 3, result), 0);
    EXPECT_TRUE(sameTables(y, vectorOf<double>({MISSING_DBL, MISSING_DBL, MISSING_DBL})));
    v.data[0] = 2.0;
    B.data[3] = MISSING_DBL;
    M_ProductVB(&v, 2, &B, 3, result);
    EXPECT_TRUE(sameTables(y, vectorOf<double>({6.0, MISSING_DBL, 12.0})));
}

TEST(Products, PromisedSymmetryIsNotChecked)
{
    matrix<double> A = tableOf({{1, 0}, {0, 1}});
    matrix<double> B = tableOf({{1, 2}, {3, 4}});
    matrix<double> C(2, 2, 0.0);
    M_ProductABTrA(&A, 2, 2, &B, short{2}, &C);
    EXPECT_TRUE(sameTables(C, tableOf({{1, 3}, {3, 4}}))) << "any flag but 0, the lower half mirrored";
    M_ProductABTrA(&A, 2, 2, &B, short{0}, &C);
    EXPECT_TRUE(sameTables(C, B));
    M_ProductTrABA(&A, 2, 2, &B, short{-1}, &C);
    EXPECT_TRUE(sameTables(C, tableOf({{1, 3}, {3, 4}})));
    M_ProductTrABA(&A, 2, 2, &B, short{0}, &C);
    EXPECT_TRUE(sameTables(C, B));
}

TEST(Products, OfThreeSumTheFirstTwoFirst)
{
    // (a b) c overflows where a (b c) would not.
    matrix<double> big = tableOf({{1e200}});
    matrix<double> small = tableOf({{1e-200}});
    matrix<double> D(1, 1, 0.0);
    M_ProductABC(&big, 1, 1, &big, 1, &small, 1, &D);
    EXPECT_TRUE(sameBits(D.data[0], infinite));
    M_ProductTrABC(&big, 1, 1, &big, 1, &small, 1, &D);
    EXPECT_TRUE(sameBits(D.data[0], infinite));
    M_ProductATrBC(&big, 1, 1, &big, 1, &small, 1, &D);
    EXPECT_TRUE(sameBits(D.data[0], infinite));
    M_ProductTrABV(&big, 1, 1, &big, 1, &small, &D);
    EXPECT_TRUE(sameBits(D.data[0], infinite));
    matrix<double> C;
    M_ProductADTrA(&big, 1, 1, &big, &C);
    EXPECT_TRUE(sameBits(C.data[0], infinite));
    M_ProductADTrA(&small, 1, 1, &big, &C);
    EXPECT_TRUE(sameBits(C.data[0], 1e-200 * 1e200 * 1e-200));
}

TEST(Products, OfThreeKeepTheirResultsShape)
{
    matrix<double> A = tableOf({{1, 2}});
    matrix<double> B = tableOf({{1, 0}, {0, 1}});
    matrix<double> C(2, 2, 9.0);
    M_ProductABTrA(A, 1, 2, B, false, C);
    EXPECT_TRUE(sameTables(C, tableOf({{5, 9}, {9, 9}})));
}

TEST(Products, QuadraticFormGoesByWayOfTableTimesVector)
{
    matrix<double> B = tableOf({{2, 1}, {0, 3}});
    matrix<double> v = vectorOf<double>({1, -1});
    matrix<double> w = vectorOf<double>({4, 5});
    EXPECT_TRUE(sameBits(M_ProductTrVBV(&v, 2, &B), 4.0));
    EXPECT_TRUE(sameBits(M_ProductTrVBV(std::as_const(v), 2, std::as_const(B)), 4.0));
    EXPECT_TRUE(sameBits(M_ProductTrV1BV2(&w, 2, &B, &v), -11.0));
}

TEST(IntegerProducts, WrapAround)
{
    matrix<int> A = integersOf(1, 2, {largestInt, 1});
    matrix<int> B = integersOf(2, 1, {2, 7});
    matrix<int> C;
    EXPECT_EQ(M_ProductAB(&A, 1, 2, &B, 1, &C), 0);
    EXPECT_TRUE(sameIntegers(C, integersOf(1, 1, {5})));
    matrix<int> lowest = integersOf(1, 1, {smallestInt});
    M_ProductAB(&lowest, 1, 1, &lowest, 1, &C);
    EXPECT_TRUE(sameIntegers(C, integersOf(1, 1, {0})));
}

TEST(IntegerProducts, HaveTheBitsOfThePlainLoop)
{
    for (const int n : productSizes) {
        for (const int p : {0, 1, 5, 17, 64}) {
            for (const int q : {0, 1, 3, 9}) {
                random_cells cells(static_cast<std::uint64_t>(n + p + q), odd_cells::none);
                matrix<int> A = randomIntegers(cells, n, p);
                matrix<int> B = randomIntegers(cells, p, q);
                for (const int threads : {1, 2, 3, 7}) {
                    const team_of team(threads);
                    matrix<int> C(n, q, 3);
                    matrix<int> expected(n, q, 3);
                    M_ProductAB(&A, n, p, &B, q, &C);
                    plainABInt(A, n, p, B, q, expected);
                    ASSERT_TRUE(sameIntegers(C, expected)) << n << ", " << p << ", " << q;
                }
            }
        }
    }
    matrix<int> A = integersOf(2, 1, {1, 2});
    matrix<int> C(1, 1, 5);
    matrix<int> expected(1, 1, 5);
    M_ProductAB(&A, 2, 3, &A, 2, &C);
    plainABInt(A, 2, 3, A, 2, expected);
    EXPECT_TRUE(sameIntegers(C, expected)) << "tables smaller than the counts";
    matrix<int> larger(4, 3, 5);
    matrix<int> alike(4, 3, 5);
    matrix<int> row = integersOf(1, 2, {3, 4});
    M_ProductAB(&A, 2, 1, &row, 2, &larger);
    plainABInt(A, 2, 1, row, 2, alike);
    EXPECT_TRUE(sameIntegers(larger, alike)) << "a larger result";
}

TEST(IntegerProducts, WithThemselvesWrapEachProductAndSumInDoublePrecision)
{
    matrix<int> A = integersOf(3, 1, {largestInt, largestInt, 1 << 16});
    matrix<double> sums;
    M_ProductTrAA(&A, 3, 1, &sums);
    EXPECT_TRUE(sameBits(sums.data[0], 2.0)) << "each square of the largest wraps to 1, of 2^16 to 0";
    matrix<int> big = integersOf(2, 1, {46340, 46340});
    matrix<double> beyond;
    M_ProductTrAA(&big, 2, 1, &beyond);
    EXPECT_TRUE(sameBits(beyond.data[0], 2.0 * 46340.0 * 46340.0)) << "the sum does not wrap";
    matrix<int> cut;
    M_ProductTrAA(&big, 2, 1, &cut);
    EXPECT_TRUE(sameIntegers(cut, integersOf(1, 1, {smallestInt}))) << "what no integer holds";
    matrix<double>* result = &beyond;
    M_ProductATrA(&big, 2, 1, result);
    EXPECT_TRUE(sameTables(beyond, matrix<double>(2, 2, 46340.0 * 46340.0)));
}

TEST(IntegerProducts, WithThemselvesHaveTheBitsOfThePlainLoop)
{
    for (const int n : productSizes) {
        for (const int p : {0, 1, 3, 8, 17, 40}) {
            random_cells cells(static_cast<std::uint64_t>(100 * n + p), odd_cells::none);
            matrix<int> A = randomIntegers(cells, n, p);
            const matrix<double> down =
                plainHalfOfIntegers(p, n, [&](int i, int k) { return A.getElement(k, i); });
            const matrix<double> along =
                plainHalfOfIntegers(n, p, [&](int i, int k) { return A.getElement(i, k); });
            matrix<double> sums(p, p, 4.0);
            M_ProductTrAA(&A, n, p, &sums);
            matrix<int> cut(p, p, 4);
            M_ProductTrAA(&A, n, p, &cut);
            matrix<double> other(n, n, 4.0);
            matrix<double>* result = &other;
            M_ProductATrA(&A, n, p, result);
            if (p > 0) {
                ASSERT_TRUE(sameTables(sums, down)) << n << ", " << p;
            }
            if (n > 0) {
                ASSERT_TRUE(sameTables(other, along)) << n << ", " << p;
            }
            for (std::uint64_t k = 0; p > 0 && k < cut.nbElem; ++k) {
                ASSERT_EQ(cut.data[k], static_cast<int>(down.data[k])) << n << ", " << p;
            }
        }
    }
}

TEST(IntegerProducts, OfNumbersCutEachSum)
{
    matrix<double> A = tableOf({{1.5, -1.0}, {0.25, 1.0}});
    matrix<int> C;
    M_ProductTrAA(&A, 2, 2, &C);
    EXPECT_TRUE(sameIntegers(C, integersOf(2, 2, {2, -1, -1, 2})));
    EXPECT_EQ(C.oobValue, 2);
    matrix<double> odd = tableOf({{1e200, notANumber}});
    M_ProductTrAA(&odd, 1, 2, &C);
    EXPECT_TRUE(sameIntegers(C, matrix<int>(2, 2, smallestInt)));
    matrix<int> kept(1, 1, 7);
    M_ProductTrAA(&odd, 1, 0, &kept);
    EXPECT_TRUE(sameIntegers(kept, integersOf(1, 1, {7})));
}

TEST(RecordProducts, ReachNoColumnThatIsNotThere)
{
    cST_MVect<double> A(2, 1);
    A.Vectors[0].Vect.data[0] = 3.0;
    A.Vectors[0].Vect.data[1] = 5.0;
    cST_MVect<double> C(1, 1);
    M_ProductATrB_ST(A, 2, 2, A, 2, C);
    // The second column of A reads -1, and of C there is one element.
    EXPECT_TRUE(sameBits(C.Vectors[0].Vect.data[0], 10.0));
    EXPECT_TRUE(sameBits(C.Vectors[0].Vect.oobValue, 16.0));
    EXPECT_EQ(C.nbcols, 2);
    EXPECT_EQ(C.nbrowsmax, 2);
    cST_MVect<double> D(2, 1);
    M_ProductABTrA_ST(A, 2, 1, C, 0, D);
    EXPECT_TRUE(sameBits(D.Vectors[0].Vect.data[0], 90.0));
    EXPECT_TRUE(sameBits(D.Vectors[0].Vect.data[1], 150.0));
}
