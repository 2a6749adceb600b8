#include "linalg/products_triple.h"

#include "linalg/product_members.h"
#include "reference/products.h"
#include "support/allocations.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

std::vector<product_member> members()
{
    std::vector<product_member> all;
    for (const bool symmetric : {false, true}) {
        const std::string suffix = symmetric ? "Symmetric" : "";
        all.push_back(
            {"ABTrA" + suffix, tablesNPAndPP, resultNN,
             [=](operands& t, counts c, table& C) { M_ProductABTrA(t[0], c.n, c.p, t[1], symmetric, C); },
             [=](operands& t, counts c, table& C) { plainABTrA(t[0], c.n, c.p, t[1], symmetric, C); }, true,
             false});
        all.push_back(
            {"TrABA" + suffix, tablesNPAndNN, resultPP,
             [=](operands& t, counts c, table& C) { M_ProductTrABA(t[0], c.n, c.p, t[1], symmetric, C); },
             [=](operands& t, counts c, table& C) { plainTrABA(t[0], c.n, c.p, t[1], symmetric, C); }, true,
             false});
    }
    const auto plainThree = [](auto twin) {
        return [twin](operands& t, counts c, table& D) { twin(t[0], c.n, c.p, t[1], c.q, t[2], c.r, D); };
    };
    all.push_back(
        {"ABC",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, c.q}, {c.q, c.r}};
         },
         [](counts c) {
             return shape{c.n, c.r};
         },
         [](operands& t, counts c, table& D) { M_ProductABC(&t[0], c.n, c.p, &t[1], c.q, &t[2], c.r, &D); },
         plainThree(plainABC), true});
    all.push_back(
        {"TrABC",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.n, c.q}, {c.q, c.r}};
         },
         [](counts c) {
             return shape{c.p, c.r};
         },
         [](operands& t, counts c, table& D) { M_ProductTrABC(&t[0], c.n, c.p, &t[1], c.q, &t[2], c.r, &D); },
         plainThree(plainTrABC)});
    all.push_back(
        {"ATrBC",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.q, c.p}, {c.q, c.r}};
         },
         [](counts c) {
             return shape{c.n, c.r};
         },
         [](operands& t, counts c, table& D) { M_ProductATrBC(&t[0], c.n, c.p, &t[1], c.q, &t[2], c.r, &D); },
         plainThree(plainATrBC)});
    all.push_back(
        {"TrABV",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.n, c.q}, {c.q, 1}};
         },
         [](counts c) {
             return shape{c.p, 1};
         },
         [](operands& t, counts c, table& y) { M_ProductTrABV(&t[0], c.n, c.p, &t[1], c.q, &t[2], &y); },
         [](operands& t, counts c, table& y) { plainTrABV(t[0], c.n, c.p, t[1], c.q, t[2], y); }, false, true,
         true});
    return all;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Triple, ProductMember, ::testing::ValuesIn(members()), nameOf);
INSTANTIATE_TEST_SUITE_P(Triple, DenseProductMember, ::testing::ValuesIn(members()), nameOf);

TEST(TripleProducts, PromisedSymmetryIsNotChecked)
{
    matrix<double> A = tableOf({{1, 0}, {0, 1}});
    matrix<double> B = tableOf({{1, 2}, {3, 4}});
    matrix<double> C(2, 2, 0.0);
    M_ProductABTrA(&A, 2, 2, &B, short{2}, &C);
    EXPECT_TRUE(sameTables(C, tableOf({{1, 3}, {3, 4}}))) << "any flag but 0, the lower half mirrored";
    M_ProductABTrA(&A, 2, 2, &B, short{0}, &C);
    EXPECT_TRUE(sameTables(C, B));
    for (const short int promise : {short{-1}, short{2}}) {
        C.Redim(2, 2, 0.0);
        M_ProductTrABA(&A, 2, 2, &B, promise, &C);
        EXPECT_TRUE(sameTables(C, tableOf({{1, 3}, {3, 4}})));
    }
    M_ProductTrABA(&A, 2, 2, &B, short{0}, &C);
    EXPECT_TRUE(sameTables(C, B));
}

TEST(TripleProducts, SumTheFirstTwoFirst)
{
    // (a b) c overflows where a (b c) would not.
    matrix<double> big = tableOf({{1e200}});
    matrix<double> small = tableOf({{1e-200}});
    matrix<double> D(1, 1, 0.0);
    M_ProductABC(&big, 1, 1, &big, 1, &small, 1, &D);
    EXPECT_SAME_BITS(D.data[0], infinite);
    M_ProductTrABC(&big, 1, 1, &big, 1, &small, 1, &D);
    EXPECT_SAME_BITS(D.data[0], infinite);
    M_ProductATrBC(&big, 1, 1, &big, 1, &small, 1, &D);
    EXPECT_SAME_BITS(D.data[0], infinite);
    M_ProductTrABV(&big, 1, 1, &big, 1, &small, &D);
    EXPECT_SAME_BITS(D.data[0], infinite);
}

TEST(TripleProducts, KeepTheirResultsShape)
{
    matrix<double> A = tableOf({{1, 2}});
    matrix<double> B = tableOf({{1, 0}, {0, 1}});
    matrix<double> C(2, 2, 9.0);
    M_ProductABTrA(A, 1, 2, B, false, C);
    EXPECT_TRUE(sameTables(C, tableOf({{5, 9}, {9, 9}})));
}

namespace
{

constexpr int wide = 400'000;
constexpr int threads = 8;

/** What a call asks for, in doubles. */
template <class Call>
std::int64_t doublesFor(Call call)
{
    const std::int64_t before = bytesAllocated();
    call();
    return (bytesAllocated() - before) / static_cast<std::int64_t>(sizeof(double));
}

} // namespace

TEST(TripleProducts, OfATeamTakeNoMoreThanARowForEachThread)
{
    const team_of team(threads);
    matrix<double> tall(64, 1, 0.5);
    matrix<double> row(1, wide, 2.0);
    matrix<double> column(wide, 1, 3.0);
    matrix<double> D(64, 1, 0.0);
    EXPECT_LE(doublesFor([&] { M_ProductABC(&tall, 64, 1, &row, wide, &column, 1, &D); }),
              std::int64_t{threads} * wide);
    EXPECT_SAME_BITS(D.data[63], 3.0 * wide);
}

TEST(TripleProducts, WithAVectorTakeNoMoreThanARow)
{
    matrix<double> few(1, 100, 0.5);
    matrix<double> row(1, wide, 2.0);
    matrix<double> v(wide, 1, 3.0);
    matrix<double> y(100, 1, 0.0);
    EXPECT_LE(doublesFor([&] { M_ProductTrABV(&few, 1, 100, &row, wide, &v, &y); }), wide);
    EXPECT_SAME_BITS(y.data[99], 3.0 * wide);
}

TEST(TripleProducts, HaveTheBitsOfThePlainLoopOverSeveralBlocks)
{
    const team_of team(2);
    random_cells cells(31, odd_cells::missing_and_zeros);
    for (const auto& member : members()) {
        for (const counts sizes : {counts{73, 460, 449, 7}, counts{449, 74, 448, 9}, counts{72, 5, 447, 3},
                                   counts{145, 450, 897, 2}}) {
            const counts used{sizes.n, sizes.p, member.usesQ ? sizes.q : 0, sizes.r};
            operands tables = randomOperands(member, used, cells);
            ASSERT_NO_FATAL_FAILURE(expectTwins(member, used, tables, member.written(used))) << member.name;
        }
    }
}
