#include "linalg/products.h"

#include "linalg/product_members.h"
#include "linalg/products_symmetric.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

#include <cmath>
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
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        random_cells cells(seed, odd_cells::none);
        // One count at a time falls short, then several.
        const auto some = [&](std::uint64_t which, int count) {
            return seed % 6 == which || (seed % 6 == 5 && seed > 30) ? cells.integer(1, count - 1) : count;
        };
        matrix<int> left = randomIntegers(cells, some(0, 4), some(1, 5));
        matrix<int> right = randomIntegers(cells, some(2, 5), some(3, 6));
        matrix<int> product(cells.integer(0, 5), cells.integer(1, 7), 5);
        matrix<int> plain(product.nbrows, product.nbcols, 5);
        M_ProductAB(&left, 4, 5, &right, 6, &product);
        plainABInt(left, 4, 5, right, 6, plain);
        ASSERT_TRUE(sameIntegers(product, plain)) << "seed " << seed;
        std::vector<int> block(8, 5);
        matrix<int> borrowed(cells.integer(1, 4), 2, block.data(), true);
        std::vector<int> plainBlock(8, 5);
        matrix<int> plainBorrowed(borrowed.nbrows, 2, plainBlock.data(), true);
        M_ProductAB(&left, 4, 5, &right, 6, &borrowed);
        plainABInt(left, 4, 5, right, 6, plainBorrowed);
        ASSERT_EQ(block, plainBlock) << "a borrowed result that is too small, seed " << seed;
    }
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
    EXPECT_SAME_BITS(sums.data[0], 2.0) << "each square of the largest wraps to 1, of 2^16 to 0";
    matrix<int> big = integersOf(2, 1, {46340, 46340});
    matrix<double> beyond;
    M_ProductTrAA(&big, 2, 1, &beyond);
    EXPECT_SAME_BITS(beyond.data[0], 2.0 * 46340.0 * 46340.0) << "the sum does not wrap";
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
                const double whole = down.data[k];
                const bool isHeld = std::abs(whole) < 2147483648.0;
                ASSERT_EQ(cut.data[k], isHeld ? static_cast<int>(whole) : smallestInt) << n << ", " << p;
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
    M_ProductTrAA(&odd, 1, -2, &kept);
    EXPECT_TRUE(sameIntegers(kept, integersOf(1, 1, {7})));
}
