#include "linalg/products_sparse.h"

#include "linalg/product_members.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

#include <algorithm>
#include <array>

using namespace korvel::test;

namespace
{

/** Every member that makes a sparse table, by counts n, p, q and r of which each may be below 0. */
struct sparse_member {
    const char* name;
    void (*form)(counts, matrixSparse& A, matrixSparse& B, matrixSparse& C, matrixSparse& result);
    shape (*made)(counts);
};

constexpr sparse_member sparseMembers[] = {
    {"AB",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse&, matrixSparse& result) {
         M_ProductAB(&A, c.n, c.p, &B, c.q, &result, false);
     },
     resultNQ},
    {"ABKept",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse&, matrixSparse& result) {
         M_ProductAB(&A, c.n, c.p, &B, c.q, &result, true);
     },
     resultNQ},
    {"TrAB",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse&, matrixSparse& result) {
         M_ProductTrAB(&A, c.n, c.p, &B, c.q, &result);
     },
     resultPQ},
    {"ATrB",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse&, matrixSparse& result) {
         M_ProductATrB(&A, c.n, c.p, &B, c.q, &result);
     },
     resultNQ},
    {"TrAA",
     [](counts c, matrixSparse& A, matrixSparse&, matrixSparse&, matrixSparse& result) {
         M_ProductTrAA(&A, c.n, c.p, &result);
     },
     resultPP},
    {"ATrA",
     [](counts c, matrixSparse& A, matrixSparse&, matrixSparse&, matrixSparse& result) {
         M_ProductATrA(&A, c.n, c.p, &result);
     },
     resultNN},
    {"ABTrA",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse&, matrixSparse& result) {
         M_ProductABTrA(&A, c.n, c.p, &B, true, &result, false);
     },
     resultNN},
    {"TrABA",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse&, matrixSparse& result) {
         M_ProductTrABA(&A, c.n, c.p, &B, true, &result, false);
     },
     resultPP},
    {"ABC",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse& C, matrixSparse& result) {
         M_ProductABC(&A, c.n, c.p, &B, c.q, &C, c.r, &result);
     },
     [](counts c) {
         return shape{c.n, c.r};
     }},
    {"TrABC",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse& C, matrixSparse& result) {
         M_ProductTrABC(&A, c.n, c.p, &B, c.q, &C, c.r, &result);
     },
     [](counts c) {
         return shape{c.p, c.r};
     }},
    {"ATrBC",
     [](counts c, matrixSparse& A, matrixSparse& B, matrixSparse& C, matrixSparse& result) {
         M_ProductATrBC(&A, c.n, c.p, &B, c.q, &C, c.r, &result);
     },
     [](counts c) {
         return shape{c.n, c.r};
     }},
};

/** A table without entries. */
matrixSparse emptyTable(shape size)
{
    return {size.rows, size.cols, 0.0, false};
}

} // namespace

TEST(SparseProductsOfNothing, OfFewerThanNoRowsOrColumnsLeaveTheResult)
{
    const matrixSparse before = tableOfRows(3, {{{2, 4.0}}, {{0, 5.0}}});
    for (const sparse_member& member : sparseMembers) {
        for (const counts sizes : {counts{-1, 2, 2, 2}, counts{2, -1, 2, 2}, counts{2, 2, -1, 2},
                                   counts{2, 2, 2, -1}, counts{-3, -2, -1, -1}}) {
            const shape made = member.made(sizes);
            matrixSparse tables[3];
            matrixSparse result = before;
            member.form(sizes, tables[0], tables[1], tables[2], result);
            const bool leaves = made.rows < 0 || made.cols < 0;
            EXPECT_TRUE(sameStorage(result, leaves ? before : emptyTable(made)))
                << member.name << ' ' << sizes.n << ' ' << sizes.p << ' ' << sizes.q << ' ' << sizes.r;
        }
    }
}

TEST(SparseProductsOfNothing, OfNothingHaveNoEntries)
{
    for (const sparse_member& member : sparseMembers) {
        for (const counts sizes : {counts{0, 2, 2, 2}, counts{2, 0, 2, 2}, counts{2, 2, 0, 2},
                                   counts{2, 2, 2, 0}, counts{0, 0, 0, 0}}) {
            // Tables that were never filled, whose arrays are empty.
            matrixSparse tables[3];
            matrixSparse result = tableOfRows(3, {{{2, 4.0}}, {{0, 5.0}}});
            member.form(sizes, tables[0], tables[1], tables[2], result);
            EXPECT_TRUE(sameStorage(result, emptyTable(member.made(sizes))))
                << member.name << ' ' << sizes.n << ' ' << sizes.p << ' ' << sizes.q << ' ' << sizes.r;
        }
    }
}

TEST(SparseProductsOfNothing, WithVectorsOfNothingStoreNothing)
{
    matrixSparse B = tableOfRows(2, {{{0, 1.0}}, {{1, 2.0}}});
    matrix<double> none;
    for (const int count : {0, -1, -5}) {
        EXPECT_EQ(M_ProductBV(&B, count, 2, &none, &none), 0);
        M_ProductTrBV(&B, 2, count, &none, &none);
        M_ProductTrABV(&B, 2, count, &B, 2, &none, &none);
        EXPECT_EQ(none.nbElem, 0u);
        EXPECT_SAME_BITS(M_ProductTrVBV(&none, count, &B), 0.0);
        matrix<double> sums(2, 1, 9.0);
        M_ProductTrBV(&B, count, 2, &none, &sums);
        EXPECT_TRUE(sameTables(sums, vectorOf<double>({0.0, 0.0}))) << "no terms";
    }
    matrix<double> ones(2, 1, 1.0);
    matrix<double> sums(2, 1, 9.0);
    M_ProductTrABV(&B, 2, 2, &B, -1, &ones, &sums);
    EXPECT_TRUE(sameTables(sums, vectorOf<double>({0.0, 0.0}))) << "no columns between";
}
