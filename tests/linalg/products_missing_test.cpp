#include "linalg/products_missing.h"

#include "linalg/product_chunks.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

void plain(operands& t, counts c, table& C)
{
    plainABMissing(t[0], c.n, c.p, t[1], c.q, C);
}

std::vector<product_member> denseMembers()
{
    return {{"ABMissing", tablesNPAndPQ, resultNQ,
             [](operands& t, counts c, table& C) {
                 EXPECT_EQ(M_ProductABMissing(&t[0], c.n, c.p, &t[1], c.q, &C), 0);
             },
             plain}};
}

std::vector<product_member> chunkedMembers()
{
    return {{"ABMissingSPV", tablesNPAndPQ, resultNQ,
             [](operands& t, counts c, table& C) {
                 auto A = chunksOf<table>(t[0]);
                 table* result = &C;
                 EXPECT_EQ(M_ProductABMissingSPV(&A, c.n, c.p, &t[1], c.q, result), 0);
             },
             plain},
            {"ABMissingSPV2", tablesNPAndPQ, resultNQ,
             [](operands& t, counts c, table& C) {
                 auto result = chunksOf<table>(C);
                 EXPECT_EQ(M_ProductABMissingSPV2(&t[0], c.n, c.p, &t[1], c.q, &result), 0);
                 copyChunks(result, C);
             },
             plain},
            {"ABMissingSPV3", tablesNPAndPQ, resultNQ,
             [](operands& t, counts c, table& C) {
                 auto A = chunksOf<statistics_matrix<double>>(t[0]);
                 auto result = chunksOf<table>(C);
                 EXPECT_EQ(M_ProductABMissingSPV3(&A, c.n, c.p, &t[1], c.q, &result), 0);
                 copyChunks(result, C);
             },
             plain}};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Missing, ProductMember, ::testing::ValuesIn(denseMembers()), nameOf);
INSTANTIATE_TEST_SUITE_P(MissingInChunks, ProductMember, ::testing::ValuesIn(chunkedMembers()), nameOf);
INSTANTIATE_TEST_SUITE_P(Missing, DenseProductMember, ::testing::ValuesIn(denseMembers()), nameOf);

TEST(MissingProducts, OneMissingCellBlanksARowOrAColumn)
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
    EXPECT_SAME_BITS(E.data[0], belowSentinel) << "only the sentinel itself is missing";
    matrix<double> F(1, 1, 9.0);
    M_ProductABMissing(&A, 1, 0, &B, 1, &F);
    EXPECT_SAME_BITS(F.data[0], 0.0);
}

TEST(MissingProducts, ClearTheColumnsOfAResultInChunks)
{
    matrix<double> A = tableOf({{1, 2}, {3, 4}});
    auto chunks = chunksOf<statistics_matrix<double>>(A);
    const auto expectProduct = [](const matrix3D<matrix<double>>& C) {
        EXPECT_TRUE(sameTables(C.chunks[0], vectorOf<double>({7, 15}))) << "too short, and made anew";
        EXPECT_TRUE(sameTables(C.chunks[1], vectorOf<double>({10, 22, 9}))) << "keeps its shape";
        EXPECT_TRUE(sameTables(C.chunks[2], vectorOf<double>({9}))) << "not asked for";
    };
    const auto blank = [] {
        matrix3D<matrix<double>> made;
        made.chunks.emplace_back(1, 1, 9.0);
        made.chunks.emplace_back(3, 1, 9.0);
        made.chunks.emplace_back(1, 1, 9.0);
        return made;
    };
    auto second = blank();
    M_ProductABMissingSPV2(&A, 2, 2, &A, 2, &second);
    expectProduct(second);
    auto third = blank();
    M_ProductABMissingSPV3(&chunks, 2, 2, &A, 2, &third);
    expectProduct(third);
}

TEST(MissingProducts, OfChunksTakeCountsBelowNone)
{
    matrix<double> A = tableOf({{1, 2}, {3, 4}});
    auto chunks = chunksOf<table>(A);
    auto statistics = chunksOf<statistics_matrix<double>>(A);
    struct given {
        int n;
        int p;
        int q;
        matrix<double> expected;
    };
    const matrix<double> untouched = tableOf({{9, 9}, {9, 9}});
    for (const given& counts : std::vector<given>{
             {-1, 2, 2, untouched}, {2, 2, -1, untouched}, {2, -1, 2, tableOf({{0, 0}, {0, 0}})}}) {
        SCOPED_TRACE(::testing::Message() << counts.n << ' ' << counts.p << ' ' << counts.q);
        matrix<double> dense(2, 2, 9.0);
        matrix<double>* first = &dense;
        EXPECT_EQ(M_ProductABMissingSPV(&chunks, counts.n, counts.p, &A, counts.q, first), 0);
        EXPECT_TRUE(sameTables(dense, counts.expected));
        matrix3D<matrix<double>> second(2, 2, 2, 9.0);
        EXPECT_EQ(M_ProductABMissingSPV2(&A, counts.n, counts.p, &A, counts.q, &second), 0);
        matrix3D<matrix<double>> third(2, 2, 2, 9.0);
        EXPECT_EQ(M_ProductABMissingSPV3(&statistics, counts.n, counts.p, &A, counts.q, &third), 0);
        for (int j = 0; j < 2; ++j) {
            for (int i = 0; i < 2; ++i) {
                EXPECT_SAME_BITS(second.getElement(i, j), counts.expected.getElement(i, j));
                EXPECT_SAME_BITS(third.getElement(i, j), counts.expected.getElement(i, j));
            }
        }
    }
}
