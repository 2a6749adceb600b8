#include "linalg/products_records.h"

#include "linalg/product_members.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

/** A labelled table of its own. */
cST_MVect<double> recordOf(const table& from)
{
    cST_MVect<double> made(from.nbrows, from.nbcols);
    for (int j = 0; j < from.nbcols; ++j) {
        std::copy_n(from.data + std::int64_t{from.nbrows} * j, from.nbrows,
                    made.Vectors[static_cast<std::size_t>(j)].Vect.data);
    }
    return made;
}

void copyRecord(const cST_MVect<double>& from, shape counts, table& to)
{
    EXPECT_EQ(from.nbrowsmax, counts.rows);
    EXPECT_EQ(from.nbcols, counts.cols);
    for (int j = 0; j < to.nbcols; ++j) {
        const table& column = from.Vectors[static_cast<std::size_t>(j)].Vect;
        std::copy_n(column.data, column.nbElem, to.data + std::int64_t{to.nbrows} * j);
    }
    to.oobValue = from.Vectors.back().Vect.oobValue;
}

std::vector<product_member> members()
{
    std::vector<product_member> all{{"ABST", tablesNPAndPQ, resultNQ,
                                     [](operands& t, counts c, table& C) {
                                         auto A = recordOf(t[0]);
                                         auto B = recordOf(t[1]);
                                         auto result = recordOf(C);
                                         EXPECT_EQ(M_ProductAB_ST(A, c.n, c.p, B, c.q, result), 0);
                                         copyRecord(result, {c.n, c.q}, C);
                                     },
                                     [](operands& t, counts c, table& C) {
                                         plainSums(c.n, c.q, c.p, storeIn(C), [&](int i, int j, int k) {
                                             return t[0].getElement(i, k) * t[1].getElement(k, j);
                                         });
                                     }},
                                    {"TrABST", tablesNPAndNQ, resultPQ,
                                     [](operands& t, counts c, table& C) {
                                         auto A = recordOf(t[0]);
                                         auto B = recordOf(t[1]);
                                         auto result = recordOf(C);
                                         M_ProductTrAB_ST(A, c.n, c.p, B, c.q, result);
                                         copyRecord(result, {c.p, c.q}, C);
                                     },
                                     [](operands& t, counts c, table& C) {
                                         plainSums(c.p, c.q, c.n, storeIn(C), [&](int i, int j, int r) {
                                             return t[0].getElement(r, i) * t[1].getElement(r, j);
                                         });
                                     }},
                                    {"ATrBST", tablesNPAndQP, resultNQ,
                                     [](operands& t, counts c, table& C) {
                                         auto A = recordOf(t[0]);
                                         auto B = recordOf(t[1]);
                                         auto result = recordOf(C);
                                         M_ProductATrB_ST(A, c.n, c.p, B, c.q, result);
                                         copyRecord(result, {c.n, c.q}, C);
                                     },
                                     [](operands& t, counts c, table& C) {
                                         plainSums(c.n, c.q, c.p, storeIn(C), [&](int i, int j, int k) {
                                             return t[0].getElement(i, k) * t[1].getElement(j, k);
                                         });
                                     }}};
    for (const auto& [name, flag] :
         {std::pair{"ABTrAST", 0}, {"ABTrASTSymmetric", -1}, {"ABTrASTOtherFlag", 1}}) {
        const auto symmetric = static_cast<short int>(flag);
        all.push_back({name, tablesNPAndPP, resultNN,
                       [symmetric](operands& t, counts c, table& C) {
                           auto A = recordOf(t[0]);
                           auto B = recordOf(t[1]);
                           auto result = recordOf(C);
                           M_ProductABTrA_ST(A, c.n, c.p, B, symmetric, result);
                           copyRecord(result, {c.n, c.n}, C);
                       },
                       [symmetric](operands& t, counts c, table& C) {
                           plainABTrA(t[0], c.n, c.p, t[1], symmetric == -1, C);
                       },
                       false, false});
    }
    return all;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Records, ProductMember, ::testing::ValuesIn(members()), nameOf);

TEST(RecordProducts, ReachNoColumnThatIsNotThere)
{
    cST_MVect<double> A(2, 1);
    A.Vectors[0].Vect.data[0] = 3.0;
    A.Vectors[0].Vect.data[1] = 5.0;
    cST_MVect<double> C(1, 1);
    M_ProductATrB_ST(A, 2, 2, A, 2, C);
    // The second column of A reads -1, and of C there is one element.
    EXPECT_SAME_BITS(C.Vectors[0].Vect.data[0], 10.0);
    EXPECT_SAME_BITS(C.Vectors[0].Vect.oobValue, 16.0);
    EXPECT_EQ(C.nbcols, 2);
    EXPECT_EQ(C.nbrowsmax, 2);
    cST_MVect<double> D(2, 1);
    M_ProductABTrA_ST(A, 2, 1, C, 0, D);
    EXPECT_SAME_BITS(D.Vectors[0].Vect.data[0], 90.0);
    EXPECT_SAME_BITS(D.Vectors[0].Vect.data[1], 150.0);
}

TEST(RecordProducts, TakeCountsBelowNone)
{
    const table zeros(2, 2, 0.0);
    const table nines(2, 2, 9.0);
    auto A = recordOf(tableOf({{1, 2}, {3, 4}}));
    const auto expectEach = [&](int n, int p, int q, const table& expected) {
        const auto expectCells = [&](auto form) {
            auto result = recordOf(nines);
            form(result);
            for (int j = 0; j < 2; ++j) {
                const double* const column = expected.data + 2 * j;
                EXPECT_TRUE(sameTables(result.Vectors[static_cast<std::size_t>(j)].Vect,
                                       vectorOf<double>({column[0], column[1]})))
                    << n << ' ' << p << ' ' << q;
            }
        };
        expectCells([&](auto& C) { EXPECT_EQ(M_ProductAB_ST(A, n, p, A, q, C), 0); });
        expectCells([&](auto& C) { M_ProductTrAB_ST(A, p, n, A, q, C); });
        expectCells([&](auto& C) { M_ProductATrB_ST(A, n, p, A, q, C); });
    };
    expectEach(2, -1, 2, zeros);
    expectEach(2, -7, 2, zeros);
    expectEach(-1, 2, 2, nines);
    expectEach(2, 2, -1, nines);
    expectEach(-1, -1, -1, nines);
    for (const short int symmetric : {short{0}, short{-1}}) {
        auto result = recordOf(nines);
        M_ProductABTrA_ST(A, -1, 2, A, symmetric, result);
        EXPECT_TRUE(sameTables(result.Vectors[0].Vect, vectorOf<double>({9.0, 9.0})));
        M_ProductABTrA_ST(A, 2, -1, A, symmetric, result);
        EXPECT_TRUE(sameTables(result.Vectors[0].Vect, vectorOf<double>({0.0, 0.0})));
        EXPECT_TRUE(sameTables(result.Vectors[1].Vect, vectorOf<double>({0.0, 0.0})));
    }
}
