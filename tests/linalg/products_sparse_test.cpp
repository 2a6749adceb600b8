#include "linalg/products_sparse.h"

#include "linalg/product_members.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

#include <algorithm>
#include <array>

using namespace korvel::test;

namespace
{

entry_rows rowsOf(const matrixSparse& m)
{
    entry_rows rows;
    for (int i = 0; i < m.nbrows; ++i) {
        rows.emplace_back();
        for (int k = m.rowStart[static_cast<std::size_t>(i)]; k < m.rowStart[static_cast<std::size_t>(i) + 1];
             ++k) {
            rows.back().emplace_back(m.colIndex[static_cast<std::size_t>(k)],
                                     m.values[static_cast<std::size_t>(k)]);
        }
    }
    return rows;
}

/** Row by row. Terms are added to the sum of their column, and the columns appear last touched first. */
matrixSparse plainProduct(const matrixSparse& A, const matrixSparse& B, int cols)
{
    const entry_rows right = rowsOf(B);
    entry_rows product;
    for (const auto& row : rowsOf(A)) {
        std::vector<entry> sums;
        for (const auto& [k, a] : row) {
            for (const auto& [j, b] : right[static_cast<std::size_t>(k)]) {
                const int column = j;
                auto found = std::find_if(sums.begin(), sums.end(),
                                          [column](const entry& sum) { return sum.first == column; });
                if (found == sums.end()) {
                    found = sums.insert(sums.end(), {column, 0.0});
                }
                found->second += a * b;
            }
        }
        product.emplace_back(sums.rbegin(), sums.rend());
    }
    return tableOfRows(cols, product);
}

/** The entries of each column, in ascending order of rows, become a row. */
matrixSparse plainTransposed(const matrixSparse& x)
{
    entry_rows rows(static_cast<std::size_t>(x.nbcols));
    const entry_rows source = rowsOf(x);
    for (std::size_t i = 0; i < source.size(); ++i) {
        for (const auto& [j, value] : source[i]) {
            rows[static_cast<std::size_t>(j)].emplace_back(static_cast<int>(i), value);
        }
    }
    return tableOfRows(x.nbrows, rows);
}

/** A table whose entries stand in no order, some of them of values that cancel, or odd ones. */
matrixSparse randomSparse(random_cells& cells, int rows, int cols)
{
    constexpr std::array plain{1.0, -1.0, 0.5, 3.0};
    entry_rows made(static_cast<std::size_t>(rows));
    for (auto& row : made) {
        for (int j = 0; j < cols; ++j) {
            if (cells.integer(0, 2) == 0) {
                const double value = cells.integer(0, 3) == 0
                                         ? cells.value()
                                         : plain[static_cast<std::size_t>(cells.integer(0, 3))];
                row.insert(cells.integer(0, 1) == 0 ? row.begin() : row.end(), {j, value});
            }
        }
    }
    return tableOfRows(cols, made);
}

template <class Check>
void forSparseSizes(Check check)
{
    constexpr std::array sizes{0, 1, 2, 3, 5, 8, 17, 64};
    for (const int n : sizes) {
        for (const int p : sizes) {
            for (const int q : {0, 1, 3, 8, 17}) {
                random_cells cells(static_cast<std::uint64_t>(n * 10000 + p * 100 + q), odd_cells::all);
                check(cells, n, p, q);
            }
        }
    }
}

} // namespace

TEST(SparseProducts, StandInReverseOrderOfFirstTouchWithSumsThatCancel)
{
    matrixSparse A = tableOfRows(2, {{{0, 1.0}, {1, 2.0}}, {}, {{1, 1.0}}});
    matrixSparse B = tableOfRows(3, {{{2, 4.0}, {0, 6.0}}, {{1, 5.0}, {2, -2.0}}});
    matrixSparse C(4, 4, 1.0, false);
    EXPECT_EQ(M_ProductAB(&A, 3, 2, &B, 3, &C, false), 0);
    EXPECT_EQ(C.nbrows, 3);
    EXPECT_EQ(C.nbcols, 3);
    EXPECT_EQ(C.nnz, 5);
    EXPECT_EQ(C.rowStart, (std::vector<int>{0, 3, 3, 5}));
    EXPECT_EQ(C.colIndex, (std::vector<int>{1, 0, 2, 2, 1}));
    EXPECT_EQ(C.values, (std::vector<double>{10.0, 6.0, 0.0, -2.0, 5.0})) << "4 - 4 is stored";
}

TEST(SparseProducts, HaveTheStorageOfThePlainOnes)
{
    forSparseSizes([](random_cells& cells, int n, int p, int q) {
        matrixSparse A = randomSparse(cells, n, p);
        matrixSparse B = randomSparse(cells, p, q);
        matrixSparse wide = randomSparse(cells, n, q);
        matrixSparse rows = randomSparse(cells, q, p);
        matrixSparse C(2, 2, 0.0, true);
        M_ProductAB(&A, n, p, &B, q, &C, false);
        ASSERT_TRUE(sameStorage(C, plainProduct(A, B, q))) << n << ", " << p << ", " << q;
        M_ProductTrAB(&A, n, p, &wide, q, &C);
        ASSERT_TRUE(sameStorage(C, plainProduct(plainTransposed(A), wide, q)));
        M_ProductATrB(&A, n, p, &rows, q, &C);
        ASSERT_TRUE(sameStorage(C, plainProduct(A, plainTransposed(rows), q)));
        M_ProductTrAA(&A, n, p, &C);
        ASSERT_TRUE(sameStorage(C, plainProduct(plainTransposed(A), A, p)));
        M_ProductATrA(&A, n, p, &C);
        ASSERT_TRUE(sameStorage(C, plainProduct(A, plainTransposed(A), n)));
    });
}

TEST(SparseProducts, OfThreeFormTheTwoThatTheyName)
{
    forSparseSizes([](random_cells& cells, int n, int p, int q) {
        matrixSparse A = randomSparse(cells, n, p);
        matrixSparse square = randomSparse(cells, p, p);
        matrixSparse large = randomSparse(cells, n, n);
        matrixSparse B = randomSparse(cells, p, q);
        matrixSparse wide = randomSparse(cells, n, q);
        matrixSparse rows = randomSparse(cells, q, p);
        matrixSparse last = randomSparse(cells, q, 4);
        matrixSparse D;
        const matrixSparse tr = plainTransposed(A);
        for (const bool symmetric : {false, true}) {
            M_ProductABTrA(&A, n, p, &square, symmetric, &D, false);
            ASSERT_TRUE(sameStorage(D, plainProduct(A, plainProduct(square, tr, n), n)));
            M_ProductTrABA(&A, n, p, &large, symmetric, &D, false);
            ASSERT_TRUE(sameStorage(D, plainProduct(plainProduct(tr, large, n), A, p)));
        }
        M_ProductABC(&A, n, p, &B, q, &last, 4, &D);
        ASSERT_TRUE(sameStorage(D, plainProduct(plainProduct(A, B, q), last, 4)));
        M_ProductTrABC(&A, n, p, &wide, q, &last, 4, &D);
        ASSERT_TRUE(sameStorage(D, plainProduct(plainProduct(tr, wide, q), last, 4)));
        M_ProductATrBC(&A, n, p, &rows, q, &last, 4, &D);
        ASSERT_TRUE(sameStorage(D, plainProduct(plainProduct(A, plainTransposed(rows), q), last, 4)));
    });
}

TEST(SparseProducts, WithVectorsSumEntriesAsTheyAreStored)
{
    forSparseSizes([](random_cells& cells, int n, int p, int q) {
        matrixSparse B = randomSparse(cells, n, p);
        matrixSparse wide = randomSparse(cells, n, q);
        matrix<double> v = cells.values(p);
        matrix<double> u = cells.values(n);
        matrix<double> w = cells.values(q);
        const auto product = [](const matrixSparse& m, const matrix<double>& x) {
            matrix<double> y(m.nbrows, 1, 0.0);
            const entry_rows rows = rowsOf(m);
            for (int i = 0; i < m.nbrows; ++i) {
                for (const auto& [j, value] : rows[static_cast<std::size_t>(i)]) {
                    y.data[i] += value * x.data[j];
                }
            }
            return y;
        };
        matrix<double> y(n, 1, 9.0);
        EXPECT_EQ(M_ProductBV(&B, n, p, &v, &y), 0);
        ASSERT_TRUE(sameTables(y, product(B, v)));
        if (n > 0) {
            ASSERT_SAME_BITS(y.oobValue, y.data[n - 1]);
        }
        matrix<double> down(p, 1, 9.0);
        M_ProductTrBV(&B, n, p, &u, &down);
        matrix<double> dense = B.to_matrix();
        matrix<double> expected(p, 1, 0.0);
        plainVector(p, n, expected, [&](int j, int i) { return dense.getElement(i, j) * u[i]; });
        ASSERT_TRUE(sameTables(down, expected));
        matrix<double> three(p, 1, 9.0);
        M_ProductTrABV(&B, n, p, &wide, q, &w, &three);
        ASSERT_TRUE(sameTables(three, product(plainProduct(plainTransposed(B), wide, q), w)));
        matrixSparse square = randomSparse(cells, n, n);
        double form = 0.0;
        const matrix<double> byTable = product(square, u);
        for (int i = 0; i < n; ++i) {
            form += u.data[i] * byTable.data[i];
        }
        ASSERT_SAME_BITS(M_ProductTrVBV(&u, n, &square), form);
    });
}

TEST(SparseProducts, MayKeepTheMemoryOfTheResult)
{
    matrixSparse A = tableOfRows(2, {{{0, 1.0}, {1, 2.0}}});
    matrixSparse B = tableOfRows(2, {{{1, 3.0}}, {{0, 4.0}}});
    matrixSparse kept(5, 5, 0.0, true);
    const double* const memory = kept.values.data();
    M_ProductAB(&A, 1, 2, &B, 2, &kept, true);
    EXPECT_TRUE(sameStorage(kept, plainProduct(A, B, 2)));
    EXPECT_EQ(kept.values.data(), memory);
    matrixSparse full(3, 3, 2.0, false);
    M_ProductAB(&A, 1, 2, &B, 2, &full, true);
    EXPECT_TRUE(sameStorage(full, plainProduct(A, B, 2))) << "old entries are gone";
    matrixSparse released(5, 5, 0.0, true);
    M_ProductAB(&A, 1, 2, &B, 2, &released, false);
    EXPECT_LT(released.values.capacity(), 25u);
}

TEST(SparseProducts, OfThreeMayKeepTheMemoryToo)
{
    matrixSparse A = tableOfRows(2, {{{0, 1.0}, {1, 2.0}}, {{1, 5.0}}});
    for (const bool keep : {true, false}) {
        matrixSparse first(5, 5, 0.0, true);
        const double* memory = first.values.data();
        M_ProductABTrA(&A, 2, 2, &A, false, &first, keep);
        EXPECT_EQ(first.values.data() == memory, keep);
        matrixSparse second(5, 5, 0.0, true);
        memory = second.values.data();
        M_ProductTrABA(&A, 2, 2, &A, false, &second, keep);
        EXPECT_EQ(second.values.data() == memory, keep);
    }
}

TEST(SparseProducts, MayReplaceWhatTheyRead)
{
    for (const bool keep : {false, true}) {
        const matrixSparse A = tableOfRows(2, {{{0, 1.0}, {1, 2.0}}, {{1, 5.0}}});
        const matrixSparse expected = plainProduct(A, A, 2);
        matrixSparse C = A;
        M_ProductAB(&C, 2, 2, &C, 2, &C, keep);
        EXPECT_TRUE(sameStorage(C, expected));
        matrixSparse other = tableOfRows(2, {{{1, 3.0}}, {{0, 4.0}, {1, -1.0}}});
        const matrixSparse afterwards = plainProduct(A, other, 2);
        matrixSparse left = A;
        M_ProductAB(&left, 2, 2, &other, 2, &left, keep);
        EXPECT_TRUE(sameStorage(left, afterwards)) << "over the left one";
        left = A;
        M_ProductAB(&left, 2, 2, &other, 2, &other, keep);
        EXPECT_TRUE(sameStorage(other, afterwards)) << "over the right one";
    }
}

TEST(SparseProducts, ReachNothingOutside)
{
    // Columns 7 and -1 lie outside of every count, and there is no row 5 in B.
    matrixSparse A = tableOfRows(2, {{{0, 1.0}, {5, 2.0}, {-1, 3.0}}});
    matrixSparse B = tableOfRows(2, {{{7, 3.0}, {1, 4.0}, {-1, 2.0}}});
    matrixSparse C;
    M_ProductAB(&A, 4, 2, &B, 2, &C, false);
    EXPECT_TRUE(sameStorage(C, tableOfRows(2, {{{1, 4.0}}, {}, {}, {}})));
    matrixSparse wide = tableOfRows(3, {{{2, 3.0}, {3, 5.0}}});
    M_ProductAB(&A, 1, 3, &wide, 1, &C, false);
    EXPECT_TRUE(sameStorage(C, tableOfRows(1, {{{2, 3.0}}}))) << "columns below the largest count are taken";
    M_ProductAB(&A, 0, 2, &B, 0, &C, false);
    EXPECT_TRUE(sameStorage(C, tableOfRows(0, {})));
    matrix<double> v = vectorOf<double>({2.0});
    matrix<double> y(1, 1, 0.0);
    M_ProductBV(&B, 1, 1, &v, &y);
    EXPECT_SAME_BITS(y.data[0], -9.0) << "elements outside read -1";
    matrix<double> none;
    EXPECT_SAME_BITS(M_ProductTrVBV(&none, -1, &B), 0.0);
    matrix<double> threes(3, 1, 3.0);
    matrixSparse one = tableOfRows(1, {{{0, 2.0}}});
    M_ProductBV(&one, 3, 1, &threes, &threes);
    EXPECT_TRUE(sameTables(threes, vectorOf<double>({6.0, 0.0, 0.0}))) << "rows that are not there are empty";
    matrix<double> twos(2, 1, 2.0);
    matrix<double> sums(2, 1, 9.0);
    M_ProductTrBV(&one, 2, 2, &twos, &sums);
    EXPECT_TRUE(sameTables(sums, vectorOf<double>({4.0, 0.0})));
}
