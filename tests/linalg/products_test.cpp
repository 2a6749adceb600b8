#include "linalg/products.h"

#include "linalg/product_chunks.h"
#include "linalg/products_symmetric.h"
#include "linalg/products_table_vector.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

std::vector<product_member> denseMembers()
{
    const auto plain = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, t[1], c.q, C); };
    };
    const auto plainBetween = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, t[1], t[2], c.q, C); };
    };
    return {
        {"AB", tablesNPAndPQ, resultNQ,
         [](operands& t, counts c, table& C) { EXPECT_EQ(M_ProductAB(t[0], c.n, c.p, t[1], c.q, C), 0); },
         plain(plainAB), true},
        {"TrAB", tablesNPAndNQ, resultPQ,
         [](operands& t, counts c, table& C) {
             table* result = &C;
             M_ProductTrAB(&t[0], c.n, c.p, &t[1], c.q, result);
         },
         plain(plainTrAB)},
        {"ATrB", tablesNPAndQP, resultNQ,
         [](operands& t, counts c, table& C) { M_ProductATrB(&t[0], c.n, c.p, &t[1], c.q, &C); },
         plain(plainATrB)},
        {"ADiagVB",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, 1}, {c.p, c.q}};
         },
         resultNQ,
         [](operands& t, counts c, table& C) { M_ProductADiagVB(&t[0], c.n, c.p, &t[1], &t[2], c.q, &C); },
         plainBetween(plainADiagVB)},
        {"ADiagVTrB",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, 1}, {c.q, c.p}};
         },
         resultNQ,
         [](operands& t, counts c, table& C) { M_ProductADiagVTrB(&t[0], c.n, c.p, &t[1], &t[2], c.q, &C); },
         plainBetween(plainADiagVTrB)},
    };
}

std::vector<product_member> chunkedMembers()
{
    return {
        {"ABSPV", tablesNPAndPQ, resultNQ,
         [](operands& t, counts c, table& C) {
             chunk_places A(t[0]);
             table* result = &C;
             EXPECT_EQ(M_ProductABSPV(A.get(), c.n, c.p, &t[1], c.q, result), 0);
         },
         [](operands& t, counts c, table& C) { plainAB(t[0], c.n, c.p, t[1], c.q, C); }, true},
        {"ABSPV2", tablesNPAndPQ, resultNQ,
         [](operands& t, counts c, table& C) {
             chunk_places A(t[0]);
             chunk_places B(t[1]);
             chunk_places result(C);
             EXPECT_EQ(M_ProductABSPV2(A.get(), c.n, c.p, B.get(), c.q, result.get()), 0);
             result.copyTo(C);
         },
         [](operands& t, counts c, table& C) {
             plainSums(c.n, c.q, c.p, storeIn(C),
                       [&](int i, int j, int k) { return t[0].getElement(i, k) * t[1].getElement(k, j); });
         },
         true},
        {"ATrBSPV", tablesNPAndQP, resultNQ,
         [](operands& t, counts c, table& C) {
             auto result = chunksOf<table>(C);
             M_ProductATrBSPV(&t[0], c.n, c.p, &t[1], c.q, &result);
             copyChunks(result, C);
         },
         [](operands& t, counts c, table& C) {
             plainSums(c.n, c.q, c.p, storeIn(C),
                       [&](int i, int j, int k) { return t[0].getElement(i, k) * t[1].getElement(j, k); });
         }},
    };
}

} // namespace

INSTANTIATE_TEST_SUITE_P(TwoTables, ProductMember, ::testing::ValuesIn(denseMembers()), nameOf);
INSTANTIATE_TEST_SUITE_P(Chunks, ProductMember, ::testing::ValuesIn(chunkedMembers()), nameOf);
INSTANTIATE_TEST_SUITE_P(TwoTables, DenseProductMember, ::testing::ValuesIn(denseMembers()), nameOf);

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
    EXPECT_SAME_BITS(C.data[0], 0.0);
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
    matrix<double> E(3, 2, 9.0);
    result = &E;
    chunk_places columns(A);
    M_ProductABSPV(columns.get(), 2, 2, &B, 2, result);
    EXPECT_TRUE(sameTables(E, D));
    matrix<double> F;
    result = &F;
    M_ProductABSPV(columns.get(), 2, 2, &B, 2, result);
    EXPECT_TRUE(sameTables(F, tableOf({{2, 6}, {10, 14}}))) << "too small, and made anew";
}

TEST(Products, OfNothingAreClearedResults)
{
    matrix<double> none;
    for (const shape counts : {shape{2, 0}, shape{0, 2}, shape{-1, 2}, shape{2, -3}, shape{-1, -2}}) {
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
    EXPECT_SAME_BITS(M_ProductTrVBV(&none, 0, &none), 0.0);
    EXPECT_SAME_BITS(M_ProductTrVBV(&none, -2, &none), 0.0);
    EXPECT_SAME_BITS(M_ProductTrV1BV2(&none, 0, &none, &none), 0.0);
}

TEST(Products, LeaveABorrowedResultThatIsTooSmall)
{
    matrix<double> A = tableOf({{1, 2}, {3, 4}});
    std::vector<double> block{9, 9};
    matrix<double> C(1, 2, block.data(), true);
    M_ProductATrB(&A, 2, 2, &A, 2, &C);
    EXPECT_EQ(C.nbrows, 1);
    EXPECT_EQ(block, (std::vector<double>{5, 11}));
    EXPECT_SAME_BITS(C.oobValue, 25.0);
}

TEST(Products, IntoChunksTakeThemAsTheyAre)
{
    matrix<double> A = tableOf({{1, 2}, {3, 4}});
    matrix3D<matrix<double>> C;
    C.chunks.emplace_back(1, 1, 9.0);
    C.chunks.emplace_back(3, 1, 9.0);
    M_ProductATrBSPV(&A, 2, 2, &A, 2, &C);
    EXPECT_TRUE(sameTables(C.chunks[0], vectorOf<double>({5})));
    EXPECT_SAME_BITS(C.chunks[0].oobValue, 11.0);
    EXPECT_TRUE(sameTables(C.chunks[1], vectorOf<double>({11, 25, 9})));
    matrix<double> one(1, 1, 9.0);
    matrix<double> three(3, 1, 9.0);
    matrix<double>* list[]{&one, &three};
    auto columns = chunksOf<matrix<double>>(A);
    matrix<double>* from[]{&columns.chunks[0], &columns.chunks[1]};
    M_ProductABSPV2(from, 2, 2, from, 2, list);
    EXPECT_TRUE(sameTables(one, vectorOf<double>({7})));
    EXPECT_TRUE(sameTables(three, vectorOf<double>({10, 22, 9})));
}

TEST(Products, OfChunksTakeCountsBelowNone)
{
    const table zeros(2, 2, 0.0);
    const table nines(2, 2, 9.0);
    table B = tableOf({{1, 2}, {3, 4}});
    chunk_places A(B);
    const auto expectEach = [&](int n, int p, int q, const table& expected) {
        table C = nines;
        table* result = &C;
        EXPECT_EQ(M_ProductABSPV(A.get(), n, p, &B, q, result), 0);
        EXPECT_TRUE(sameTables(C, expected)) << n << ' ' << p << ' ' << q;
        chunk_places chunks(nines);
        EXPECT_EQ(M_ProductABSPV2(A.get(), n, p, A.get(), q, chunks.get()), 0);
        chunks.copyTo(C);
        EXPECT_TRUE(sameTables(C, expected)) << n << ' ' << p << ' ' << q;
        auto slices = chunksOf<table>(nines);
        M_ProductATrBSPV(&B, n, p, &B, q, &slices);
        copyChunks(slices, C);
        EXPECT_TRUE(sameTables(C, expected)) << n << ' ' << p << ' ' << q;
    };
    expectEach(2, -1, 2, zeros);
    expectEach(2, -7, 2, zeros);
    expectEach(-1, 2, 2, nines);
    expectEach(2, 2, -1, nines);
    expectEach(-1, -1, -1, nines);
}
